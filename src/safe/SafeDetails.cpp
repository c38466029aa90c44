#include "SafeDetails.h"

#include "SafeFiles.h"
#include "SafeLayout.h"
#include "SafeLooks.h"

#include <utility>

namespace {

SafeDetails detailsOf(FileLayer &files, const QString &folder)
{
    SafeDetails details;
    const SafeLook look = lookAtSafe(files, folder);
    details.place = look.place;
    if (!look.description)
        return details;
    details.description = *look.description;
    details.passId = files.read(SafeFolder(folder).path(SafeLayout::passId)).value_or(QByteArray());
    if (const auto list = SafeFiles::list(SafeFolder(folder)))
        details.size = list->totalSize;
    return details;
}

bool isCopy(const SafeDetails &one, const SafeDetails &other)
{
    return !one.passId.isEmpty() && one.passId == other.passId &&
           one.description.created == other.description.created;
}

} // namespace

SafeDetailsReader::SafeDetailsReader(std::shared_ptr<FileLayer> files)
    : m_files(std::move(files))
{
}

void SafeDetailsReader::start(const QStringList &folders, const QString &backupFolder)
{
    // Answers to a former question are not taken.
    m_work = std::make_unique<LooseWork>();
    m_folders = folders;
    m_open = folders.size() + 1;
    for (const QString &folder : folders) {
        const auto found = std::make_shared<SafeDetails>();
        m_work->run([files = m_files, found, folder] { *found = detailsOf(*files, folder); },
                    [this, found, folder] {
                        m_details.insert(folder, *found);
                        takeOne();
                    });
    }
    const auto backups = std::make_shared<QVector<BackupEntry>>();
    m_work->run(
        [files = m_files, backups, backupFolder] { *backups = listBackups(*files, backupFolder); },
        [this, backups] {
            m_backups = *backups;
            takeOne();
        });
}

void SafeDetailsReader::takeOne()
{
    --m_open;
    Q_EMIT changed();
}

std::optional<SafeDetails> SafeDetailsReader::of(const QString &folder) const
{
    const auto found = m_details.find(folder);
    if (found == m_details.end())
        return std::nullopt;
    SafeDetails details = *found;
    details.backupsKnown = m_backups.has_value();
    if (m_backups && details.place == SafePlace::Here)
        details.lastBackup = lastBackup(*m_backups, folder, details.description);
    for (const QString &other : m_folders) {
        if (other == folder)
            break;
        if (isCopy(m_details.value(other), details)) {
            details.copyOf = other;
            break;
        }
    }
    return details;
}
