#include "RestoreDialog.h"

#include "ArchiveMessages.h"
#include "BackupDelegate.h"
#include "BackupTexts.h"
#include "Backups.h"
#include "dialogs/FileChooser.h"
#include "main/EmptyState.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"
#include "widgets/MessageLabel.h"

#include <QDir>
#include <QListWidget>
#include <QPointer>

namespace {

const QSize usualSize(520, 460);
const QSize smallestSize(420, 360);

} // namespace

RestoreDialog::RestoreDialog(const Parts &parts, const Theme &theme, QWidget *parent)
    : FramedDialog(tr("Restore from a backup"), theme, parent)
    , m_parts(parts)
    , m_place(new ElidedLabel("muted", this))
    , m_otherFolder(makeButton(tr("Another folder…"), "plain", this))
    , m_list(new QListWidget(this))
    , m_empty(new EmptyState(theme, this))
    , m_word(new MessageLabel(this))
    , m_cancel(makeButton(tr("Cancel"), "plain", this))
    , m_restore(makeButton(tr("Restore"), "primary", this))
{
    setObjectName(QStringLiteral("restoreDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumSize(Style::scaled(smallestSize.width()), Style::scaled(smallestSize.height()));
    resize(Style::scaled(usualSize.width()), Style::scaled(usualSize.height()));
    if (!m_parts.chooseFolder)
        m_parts.chooseFolder = [](QWidget *asking, const QString &start) {
            return askForFolder(asking, {}, start);
        };
    m_place->setObjectName(QStringLiteral("restorePlace"));
    m_otherFolder->setObjectName(QStringLiteral("otherFolderButton"));
    m_list->setObjectName(QStringLiteral("backupList"));
    m_list->setAccessibleName(tr("Backups"));
    m_list->setItemDelegate(new BackupDelegate(theme, this));
    m_list->setMouseTracking(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_word->setObjectName(QStringLiteral("restoreWord"));
    m_restore->setObjectName(QStringLiteral("restoreButton"));
    m_restore->setDefault(true);
    layOut();
    follow();
    showList();
    read();
}

void RestoreDialog::layOut()
{
    auto *place = new QHBoxLayout;
    place->setSpacing(Style::gap);
    place->addWidget(m_place, 1);
    place->addWidget(m_otherFolder);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Style::spacing);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_restore);
    body().addLayout(place);
    body().addWidget(m_list, 1);
    body().addWidget(m_empty, 1);
    body().addWidget(m_word);
    body().addLayout(buttons);
    setTabOrder(m_list, m_restore);
    setTabOrder(m_restore, m_cancel);
    setTabOrder(m_cancel, m_otherFolder);
}

void RestoreDialog::follow()
{
    connect(&m_reading, &QFutureWatcherBase::finished, this, [this] {
        m_overview = m_reading.result();
        showList();
    });
    connect(m_list, &QListWidget::currentRowChanged, this, &RestoreDialog::showChoice);
    connect(m_list, &QListWidget::itemActivated, this, &RestoreDialog::choose);
    connect(m_restore, &QPushButton::clicked, this, &RestoreDialog::choose);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_otherFolder, &QPushButton::clicked, this, &RestoreDialog::chooseFolder);
    connect(&m_parts.backups, &Backups::finished, this, &RestoreDialog::read);
    connect(&m_parts.settings, &GPMAppSettings::backupPathChanged, this, &RestoreDialog::read);
}

void RestoreDialog::read()
{
    const QString folder = m_folder.isEmpty() ? m_parts.backups.folder() : m_folder;
    m_place->setFullText(QDir::toNativeSeparators(folder));
    m_place->setToolTip(QDir::toNativeSeparators(folder));
    m_reading.setFuture(m_parts.backups.archivesIn(folder));
}

void RestoreDialog::chooseFolder()
{
    // A lock closes it while the user is choosing.
    const QPointer<RestoreDialog> alive(this);
    const QString chosen = m_parts.chooseFolder(this, m_overview.folder);
    if (!alive || chosen.isEmpty())
        return;
    m_folder = chosen;
    read();
}

const BackupEntry *RestoreDialog::current() const
{
    const int row = m_list->currentRow();
    return row >= 0 && row < m_overview.archives.size() ? &m_overview.archives.at(row) : nullptr;
}

void RestoreDialog::showList()
{
    const bool hadFocus = m_list->count() == 0 || m_list->hasFocus();
    const QListWidgetItem *before = m_list->currentItem();
    const QString chosen = before ? before->data(Qt::ToolTipRole).toString() : QString();
    const QDateTime now = m_parts.clock();
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    for (const BackupEntry &entry : qAsConst(m_overview.archives)) {
        const QString name = BackupTexts::name(entry);
        const QString detail = BackupTexts::detail(entry, now);
        auto *item = new QListWidgetItem(name, m_list);
        item->setData(BackupDelegate::DetailRole, detail);
        item->setData(BackupDelegate::DamagedRole, !entry.good());
        item->setData(Qt::AccessibleTextRole, QStringLiteral("%1, %2").arg(name, detail));
        item->setToolTip(QDir::toNativeSeparators(entry.path));
        if (item->toolTip() == chosen)
            m_list->setCurrentItem(item);
    }
    if (m_list->currentRow() < 0)
        m_list->setCurrentRow(0);
    const bool empty = m_list->count() == 0;
    m_list->setVisible(!empty);
    m_empty->setVisible(empty);
    if (empty)
        showEmpty();
    else if (hadFocus)
        m_list->setFocus();
    showChoice();
}

void RestoreDialog::showEmpty()
{
    const QString icon = QStringLiteral("archive");
    if (m_overview.folder.isEmpty())
        m_empty->setContent(icon, tr("Reading the backups…"), {});
    else if (m_overview.place == BackupOverview::Place::NotThere)
        m_empty->setContent(
            icon, tr("The folder is not there"),
            tr("Connect its drive, or choose the folder that your backups lie in."));
    else
        m_empty->setContent(icon, tr("No backups here"),
                            tr("Choose the folder that your backups lie in, such as one on "
                               "another disk."));
}

void RestoreDialog::showChoice()
{
    const BackupEntry *entry = current();
    m_restore->setEnabled(entry && entry->good());
    const bool damaged = entry && !entry->good();
    setStyleProperty(*m_word, "tone", damaged ? QStringLiteral("error") : QStringLiteral("muted"));
    m_word->setVisible(entry != nullptr);
    m_word->setMessage(damaged ? importMessage(entry->outcome)
                               : tr("It comes back as a new safe with the password of that time."));
}

void RestoreDialog::choose()
{
    const BackupEntry *entry = current();
    if (!entry || !entry->good())
        return;
    const QString path = entry->path;
    accept();
    Q_EMIT chosen(path);
}
