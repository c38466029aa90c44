#include "ExportDialog.h"

#include "FileNames.h"
#include "GPMAppCore.h"
#include "dialogs/FileChooser.h"
#include "dialogs/ProgressDialog.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"
#include "widgets/PasswordField.h"
#include "widgets/SelectBox.h"

#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QUrl>

#include <utility>

namespace {

const int usualWidth = 480;

QString chooseTarget(QWidget *parent, const QString &name)
{
    return askForTarget(parent, ExportDialog::tr("Save as"),
                        QDir::homePath() + QLatin1Char('/') + name);
}

QString endText(ItemExportTask::Outcome outcome, int count, const QString &path)
{
    switch (outcome) {
    case ItemExportTask::Written:
        return ExportDialog::tr("%n items are in “%1” now. Everyone who opens the file can read "
                                "them: delete it when it has served.",
                                nullptr, count)
            .arg(QFileInfo(path).fileName());
    case ItemExportTask::NotWritten:
        return ExportDialog::tr("The file cannot be written, and nothing of it is left. Check the "
                                "free space and the permissions, or choose another folder:\n%1")
            .arg(QDir::toNativeSeparators(path));
    case ItemExportTask::Locked:
        return ExportDialog::tr("The safe was locked before the file was written. Nothing of it "
                                "is left.");
    case ItemExportTask::Cancelled:
        break;
    }
    return {};
}

} // namespace

ExportDialog::ExportDialog(Parts parts, const QStringList &selected, const Theme &theme,
                           QWidget *parent)
    : FramedDialog(tr("Export items"), theme, parent)
    , m_parts(std::move(parts))
    , m_theme(theme)
    , m_safe(m_parts.core.currentSafe())
    , m_what(new SelectBox(theme.icon(QStringLiteral("chevron-down"), Palette::Muted), this))
    , m_format(new SelectBox(theme.icon(QStringLiteral("chevron-down"), Palette::Muted), this))
    , m_leftOut(makeLabel({}, "muted", this))
    , m_password(new PasswordField(theme.icon(QStringLiteral("eye"), Palette::Muted),
                                   theme.icon(QStringLiteral("eye-off"), Palette::Muted), this))
    , m_message(new MessageLabel(this))
    , m_export(makeButton(tr("Export…"), "primary", this))
{
    setObjectName(QStringLiteral("exportDialog"));
    for (const QString &id : selected) {
        const PMListItem *item = m_safe->item(id);
        if (item && item->type() != PMListItem::Attachment)
            m_selected.append(id);
    }
    if (!m_parts.chooseTarget)
        m_parts.chooseTarget = chooseTarget;
    FramedDialog::setMinimumWidth(Style::scaled(usualWidth));
    makeFields();
    layOut();
    connect(m_safe.get(), &GPMSafe::lockedChanged, this, &ExportDialog::reject);
    showChoice();
    m_password->setFocus();
}

void ExportDialog::open(GPMAppCore &core, const QStringList &selected, const Theme &theme,
                        QWidget *window)
{
    if (!core.currentSafe() || !core.currentSafe()->isUnlocked())
        return;
    auto *dialog = new ExportDialog({core}, selected, theme, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->show();
}

void ExportDialog::makeFields()
{
    m_what->setObjectName(QStringLiteral("exportWhat"));
    m_what->setAccessibleName(tr("What"));
    if (!m_selected.isEmpty())
        m_what->addItem(tr("The %n selected items", nullptr, m_selected.size()));
    m_what->addItem(tr("All items of the safe (%1)").arg(ItemExportTask::idsOf(*m_safe).size()));
    m_format->setObjectName(QStringLiteral("exportFormat"));
    m_format->setAccessibleName(tr("Format"));
    m_format->addItem(tr("JSON: everything, for another safe"), ItemExport::Json);
    m_format->addItem(tr("CSV: logins, for browsers and other programs"), ItemExport::Csv);
    m_leftOut->setObjectName(QStringLiteral("exportLeftOut"));
    m_leftOut->setWordWrap(true);
    m_password->setObjectName(QStringLiteral("exportPassword"));
    m_password->setAccessibleName(tr("Password of the safe"));
    m_message->setObjectName(QStringLiteral("exportMessage"));
    m_message->hide();
    m_export->setObjectName(QStringLiteral("exportButton"));
    m_export->setDefault(true);
    for (SelectBox *box : {m_what, m_format})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &ExportDialog::showChoice);
    connect(m_password, &QLineEdit::textChanged, this, [this] {
        m_message->hide();
        showChoice();
    });
    connect(m_export, &QPushButton::clicked, this, &ExportDialog::goOn);
}

void ExportDialog::layOut()
{
    auto *cancel = makeButton(tr("Cancel"), "plain", this);
    connect(cancel, &QPushButton::clicked, this, &ExportDialog::reject);
    auto *foot = new QHBoxLayout;
    foot->setSpacing(Style::spacing);
    foot->addStretch();
    foot->addWidget(cancel);
    foot->addWidget(m_export);
    const auto addField = [this](const QString &label, QWidget *field) {
        body().addWidget(makeLabel(label, "muted", this));
        body().addWidget(field);
    };
    addField(tr("What"), m_what);
    addField(tr("Format"), m_format);
    body().addWidget(m_leftOut);
    body().addSpacing(Style::spacing);
    body().addWidget(makeWarning());
    body().addSpacing(Style::spacing);
    addField(tr("Password of the safe “%1”").arg(m_safe->name()), m_password);
    body().addWidget(m_message);
    body().addStretch();
    body().addSpacing(Style::spacing);
    body().addLayout(foot);
}

QWidget *ExportDialog::makeWarning()
{
    auto *card = makeCard(this);
    auto *picture = new QLabel(card);
    const int size = Style::scaled(24);
    picture->setPixmap(m_theme.icon(QStringLiteral("alert-triangle"), Palette::Weak)
                           .pixmap(windowHandle(), QSize(size, size)));
    auto *text = makeLabel(tr("The file is not encrypted: everyone who gets hold of it can read "
                              "your passwords. Do not leave it lying, nor in a folder that is "
                              "synchronised, and delete it as soon as it has served."),
                           "text", card);
    text->setWordWrap(true);
    auto *row = new QHBoxLayout(card);
    row->setContentsMargins(Style::margin, Style::gap, Style::margin, Style::gap);
    row->setSpacing(Style::gap);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addWidget(text, 1);
    return card;
}

void ExportDialog::showEvent(QShowEvent *event)
{
    FramedDialog::showEvent(event);
    fitHeight();
}

void ExportDialog::fitHeight()
{
    // A window does not ask for the height that wrapped texts take.
    const int needed = layout()->totalHeightForWidth(width());
    setMinimumHeight(needed);
    QDialog::resize(width(), needed);
}

QStringList ExportDialog::chosenIds() const
{
    const bool all = m_what->currentIndex() == m_what->count() - 1;
    return all ? ItemExportTask::idsOf(*m_safe) : m_selected;
}

ItemExport::Format ExportDialog::format() const
{
    return static_cast<ItemExport::Format>(m_format->currentData().toInt());
}

void ExportDialog::showChoice()
{
    if (!m_safe->isUnlocked())
        return;
    const ItemExportTask::Counts counts = ItemExportTask::count(*m_safe, chosenIds(), format());
    QStringList lines;
    if (counts.otherKinds > 0)
        lines.append(tr("%n items that are no logins are left out.", nullptr, counts.otherKinds));
    if (counts.attachments > 0)
        lines.append(tr("%n attachments are left out. An archive of the safe holds them.", nullptr,
                        counts.attachments));
    m_leftOut->setText(lines.join(QLatin1Char('\n')));
    m_leftOut->setVisible(!lines.isEmpty());
    m_export->setEnabled(counts.items > 0 && !m_password->text().isEmpty());
    if (isVisible())
        fitHeight();
}

void ExportDialog::goOn()
{
    if (!m_safe->isPassword(m_password->text())) {
        m_message->show();
        m_message->setMessage(tr("This is not the password of the safe."));
        fitHeight();
        m_password->selectAll();
        m_password->setFocus();
        return;
    }
    const QString name =
        QStringLiteral("%1 %2.%3")
            .arg(cleanFileName(m_safe->name()), QDate::currentDate().toString(Qt::ISODate),
                 format() == ItemExport::Csv ? QStringLiteral("csv") : QStringLiteral("json"));
    const QPointer<ExportDialog> alive(this);
    const QString path = m_parts.chooseTarget(this, name);
    // The safe may have been locked while the user was choosing.
    if (!alive || path.isEmpty() || !m_safe->isUnlocked())
        return;
    m_password->clearSecret();
    write(path);
}

void ExportDialog::write(const QString &path)
{
    const QStringList ids = chosenIds();
    const int count = ItemExportTask::count(*m_safe, ids, format()).items;
    auto *progress =
        new ProgressDialog(windowTitle(), tr("Writing “%1”…").arg(QFileInfo(path).fileName()),
                           m_theme, parentWidget());
    progress->setAttribute(Qt::WA_DeleteOnClose);
    auto *task = new ItemExportTask(m_safe, ids, format(), path, m_parts.files, progress);
    connect(task, &ItemExportTask::progress, progress, &ProgressDialog::setProgress);
    connect(progress, &ProgressDialog::cancelRequested, task, &ItemExportTask::cancel);
    connect(task, &ItemExportTask::finished, progress, [progress, task, count, path] {
        const ItemExportTask::Outcome outcome = task->outcome();
        if (outcome == ItemExportTask::Cancelled) {
            progress->finish();
            return;
        }
        const bool written = outcome == ItemExportTask::Written;
        const ProgressDialog::Way showFolder{
            tr("Show folder"), [path] {
                QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
            }};
        progress->tell(written, endText(outcome, count, path),
                       written ? showFolder : ProgressDialog::Way());
    });
    progress->show();
    task->start();
    accept();
}
