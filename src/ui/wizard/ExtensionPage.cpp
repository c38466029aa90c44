#include "ExtensionPage.h"

#include "style/Style.h"
#include "widgets/Announcer.h"
#include "widgets/Controls.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include <utility>

ExtensionPage::ExtensionPage(Parts parts, QWidget *parent)
    : WizardPage(parent)
    , m_parts(std::move(parts))
    , m_state(makeLabel({}, "muted", this))
{
    const QString address = QStringLiteral("chrome://extensions");
    auto *copy = makeButton(tr("Copy"), "plain", this);
    copy->setObjectName(QStringLiteral("copyAddress"));
    copy->setAccessibleName(tr("Copy the address"));
    connect(copy, &QPushButton::clicked, this, [this, address] { m_parts.copy(address); });
    auto *open = makeButton(tr("Show folder"), "plain", this);
    connect(open, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(m_parts.folder)); });

    auto *card = makeCard(this);
    auto *rows = new QVBoxLayout(card);
    rows->setContentsMargins(Style::margin, Style::gap, Style::margin, Style::gap);
    rows->setSpacing(Style::gap);
    rows->addWidget(
        makeStep(1, tr("In Chromium, Chrome or Edge open the address %1").arg(address), copy));
    rows->addWidget(makeStep(2, tr("Switch on “Developer mode”"), nullptr));
    rows->addWidget(
        makeStep(3, tr("Choose “Load unpacked” and the folder of the extension"), open));
    auto *path = makeLabel(QDir::toNativeSeparators(m_parts.folder), "muted", this);
    path->setWordWrap(true);
    path->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    path->setAccessibleName(tr("Folder of the extension"));
    m_state->setObjectName(QStringLiteral("extensionState"));
    m_state->setAlignment(Qt::AlignHCenter);
    m_state->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(Style::gap);
    column->addWidget(card);
    column->addWidget(path);
    column->addWidget(m_state);
    column->addStretch();
    m_timer.setInterval(1000);
    connect(&m_timer, &QTimer::timeout, this, &ExtensionPage::look);
    look();
}

QWidget *ExtensionPage::makeStep(int number, const QString &text, QWidget *button)
{
    auto *row = new QWidget(this);
    auto *line = new QHBoxLayout(row);
    line->setContentsMargins({});
    line->setSpacing(Style::gap);
    line->addWidget(makeLabel(QString::number(number), "heading", row), 0, Qt::AlignTop);
    auto *label = makeLabel(text, "text", row);
    label->setWordWrap(true);
    line->addWidget(label, 1);
    if (button)
        line->addWidget(button);
    return row;
}

QString ExtensionPage::folder(const QString &programFolder)
{
    // Beside the program, in a system's share, in a folder of sources.
    for (const char *place :
         {"extension", "../share/glaceron/extension", "../../../extension/dist/chromium"}) {
        const QDir folder(programFolder + QLatin1Char('/') + QLatin1String(place));
        if (folder.exists(QStringLiteral("manifest.json")))
            return folder.canonicalPath();
    }
    return {};
}

bool ExtensionPage::canSkip() const
{
    return !m_connected;
}

void ExtensionPage::look()
{
    m_connected = m_parts.isConnected();
    const QString text = m_connected ? tr("A browser is connected.")
                                     : tr("No browser is connected yet. It shows here when it is.");
    if (m_state->text() == text)
        return;
    m_state->setText(text);
    Announcer::announce(*m_state, text);
    Q_EMIT changed();
}

void ExtensionPage::showEvent(QShowEvent *event)
{
    WizardPage::showEvent(event);
    look();
    m_timer.start();
}

void ExtensionPage::hideEvent(QHideEvent *event)
{
    WizardPage::hideEvent(event);
    m_timer.stop();
}
