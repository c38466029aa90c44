#include "SafeSwitcher.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"

#include <QActionGroup>
#include <QDir>
#include <QMenu>
#include <QSvgWidget>

namespace {

const int switcherHeight = 52;

/// "&" marks a key in the text of an action.
QString menuText(QString text)
{
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

SafeSwitcher::SafeSwitcher(const Theme &theme, QWidget *parent)
    : QPushButton(parent)
    , m_theme(theme)
    , m_name(new ElidedLabel("heading", this))
    , m_state(new ElidedLabel("label", this))
    , m_menu(new QMenu(this))
{
    setObjectName(QStringLiteral("safeSwitcher"));
    setProperty("look", QStringLiteral("switcher"));
    setCursor(Qt::PointingHandCursor);
    setToolTip(tr("Switch to another safe"));
    setFixedHeight(Style::scaled(switcherHeight));
    m_menu->setObjectName(QStringLiteral("safeMenu"));
    setMenu(m_menu);
    connect(m_menu, &QMenu::aboutToShow, this, &SafeSwitcher::fillMenu);

    auto *crystal = new QSvgWidget(QStringLiteral(":/crystal.svg"), this);
    crystal->setFixedSize(34, 34);
    auto *arrow = new QLabel(this);
    const auto showArrow = [this, arrow] {
        arrow->setPixmap(m_theme.icon(QStringLiteral("selector"), Palette::SidebarMuted)
                             .pixmap(arrow->window()->windowHandle(), QSize(16, 16)));
    };
    showArrow();
    connect(&theme, &Theme::changed, this, showArrow);
    auto *names = new QVBoxLayout;
    names->setSpacing(1);
    names->addStretch();
    names->addWidget(m_name);
    names->addWidget(m_state);
    names->addStretch();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(6, 0, 6, 0);
    row->setSpacing(9);
    row->addWidget(crystal);
    row->addLayout(names, 1);
    row->addWidget(arrow);
    const QList<QWidget *> inner = findChildren<QWidget *>();
    for (QWidget *widget : inner) {
        if (widget != m_menu)
            widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    describe();
}

void SafeSwitcher::setSafe(const QString &name, const QString &folder)
{
    m_name->setFullText(name);
    m_folder = folder;
    describe();
}

void SafeSwitcher::setState(const QString &state)
{
    m_state->setFullText(state);
    describe();
}

void SafeSwitcher::describe()
{
    setAccessibleName(tr("Safe: %1").arg(m_name->fullText()));
    setAccessibleDescription(m_state->fullText());
}

void SafeSwitcher::fillMenu()
{
    m_menu->clear();
    delete m_menu->findChild<QActionGroup *>();
    auto *group = new QActionGroup(m_menu);
    const QVector<KnownSafes::Entry> entries =
        m_entries ? m_entries() : QVector<KnownSafes::Entry>();
    for (const KnownSafes::Entry &entry : entries) {
        const QString name =
            entry.available ? entry.name : tr("%1 (not available)").arg(entry.name);
        QAction *action = m_menu->addAction(menuText(name));
        action->setToolTip(QDir::toNativeSeparators(entry.folder));
        action->setCheckable(true);
        action->setChecked(entry.folder == m_folder);
        action->setEnabled(entry.available);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, folder = entry.folder] {
            if (folder != m_folder)
                Q_EMIT safeChosen(folder);
        });
    }
    m_menu->setToolTipsVisible(true);
    m_menu->addSeparator();
    m_menu->addAction(m_theme.icon(QStringLiteral("plus"), Palette::Text), tr("Create new..."),
                      this, &SafeSwitcher::createRequested);
    m_menu->addAction(m_theme.icon(QStringLiteral("lock"), Palette::Text),
                      tr("Lock") + QStringLiteral("\tCtrl+L"), this, &SafeSwitcher::lockRequested);
}
