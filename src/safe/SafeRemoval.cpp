#include "SafeRemoval.h"

#include "DraftStore.h"
#include "FolderLock.h"
#include "FolderPath.h"
#include "ItemFile.h"
#include "SafeLayout.h"
#include "SafeUse.h"

#include <QDebug>
#include <QDir>
#include <QUuid>

#include <algorithm>

namespace {

const char operation[] = "SafeRemoval::run";
const QLatin1String unfinishedPrefix(".deleted-");

const char *const ownFiles[] = {SafeLayout::meta,         SafeLayout::oldMeta,
                                SafeLayout::restore,      SafeLayout::passId,
                                SafeLayout::passIdBackup, SafeLayout::deletedList,
                                SafeLayout::syncRecord,   SafeLayout::mirrorDeletions,
                                SafeLayout::lockFile,     SafeLayout::openLock};

bool isOwnFile(const QString &name)
{
    // With what an interrupted write leaves beside: the name and six letters.
    return std::any_of(std::begin(ownFiles), std::end(ownFiles), [&name](const char *own) {
        const QLatin1String text(own);
        return name == text || (name.startsWith(text) && name.size() == text.size() + 7 &&
                                name.at(text.size()) == QLatin1Char('.'));
    });
}

bool isItemFile(const QString &name)
{
    return isInterruptedWrite(name) || !QUuid(ItemFileName::parse(name).id).isNull();
}

} // namespace

bool SafeRemoval::isUnfinished(const QString &folderName)
{
    return folderName.startsWith(unfinishedPrefix);
}

SafeRemoval::Content SafeRemoval::listContent(const SafeFolder &folder)
{
    const QDir::Filters everything =
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QStringList ownFolders{QLatin1String(SafeLayout::content),
                                 QLatin1String(SafeLayout::attachment),
                                 QLatin1String(SafeLayout::favicon)};
    Content content;
    const QFileInfoList entries = QDir(folder.root()).entryInfoList(everything, QDir::Name);
    for (const QFileInfo &entry : entries) {
        const QString name = entry.fileName();
        const bool isFolder = entry.isDir() && !entry.isSymLink();
        if (!isFolder || !ownFolders.contains(name)) {
            (!isFolder && isOwnFile(name) ? content.files : content.foreign).append(name);
            continue;
        }
        content.folders.append(name);
        const bool icons = name == QLatin1String(SafeLayout::favicon);
        const QFileInfoList inner = QDir(entry.filePath()).entryInfoList(everything, QDir::Name);
        for (const QFileInfo &file : inner) {
            const bool own = file.isFile() && (icons || isItemFile(file.fileName()));
            (own ? content.files : content.foreign)
                .append(name + QLatin1Char('/') + file.fileName());
        }
    }
    return content;
}

SafeRemoval::Result SafeRemoval::run(const QString &folder, WorkControl &control) const
{
    const SafeFolder safe(folder);
    if (!safe.holdsSafe()) {
        qWarning() << operation << "There is no safe at:" << folder;
        return {Outcome::NotFound, {}, {}};
    }
    FolderLock lock(safe.path(SafeLayout::lockFile));
    if (!lock.lock(m_environment.lockWaitMs, control)) {
        qWarning() << operation << "Can't take the lock file in:" << folder;
        return {lock.isHeldByAnother() ? Outcome::Busy : Outcome::Failed, {}, {}};
    }
    const QString home = canonicalFolder(folder);
    // Behind the wait, in which it can have been opened.
    if (SafeUse::other(folder))
        return {Outcome::InUse, {}, {}};
    const Content content = listContent(safe);
    // Some systems move no folder with an open file in it.
    lock.unlock();
    Result result =
        content.foreign.isEmpty() ? removeWhole(safe, content) : removeAmong(safe, content);
    if (result.outcome == Outcome::Done)
        DraftStore::removeAll(m_environment, home, m_hasNamesake);
    else
        qWarning() << operation << "Can't delete safe:" << folder;
    return result;
}

SafeRemoval::Result SafeRemoval::removeWhole(const SafeFolder &folder, const Content &content) const
{
    const QString aside = QFileInfo(folder.root()).path() + QLatin1Char('/') + unfinishedPrefix +
                          QUuid::createUuid().toString(QUuid::WithoutBraces);
    if (!m_environment.files->replace(folder.root(), aside))
        return removeAmong(folder, content); // its parent folder may not be written to
    removeFiles(aside, content);
    return {Outcome::Done, QDir(aside).exists() ? aside : QString(), {}};
}

SafeRemoval::Result SafeRemoval::removeAmong(const SafeFolder &folder, const Content &content) const
{
    // Without its descriptions it is no safe any more; until the last of them goes, it opens.
    for (const char *name : {SafeLayout::oldMeta, SafeLayout::meta}) {
        if (!m_environment.files->remove(folder.path(name)))
            return {Outcome::Failed, {}, {}};
    }
    removeFiles(folder.root(), content);
    const bool left = QDir(folder.root()).exists();
    return {Outcome::Done, left ? folder.root() : QString(), content.foreign};
}

/// The files of a safe that opens no more, and then the folders that are empty.
void SafeRemoval::removeFiles(const QString &root, const Content &content) const
{
    for (const QString &file : content.files) {
        if (!m_environment.files->remove(root + QLatin1Char('/') + file))
            qWarning() << operation << "Can't remove file:" << root + QLatin1Char('/') + file;
    }
    // Taken to list the content.
    m_environment.files->remove(root + QLatin1Char('/') + QLatin1String(SafeLayout::lockFile));
    for (const QString &folder : content.folders)
        QDir().rmdir(root + QLatin1Char('/') + folder);
    QDir().rmdir(root);
}

void SafeRemoval::clearUnfinished(const QString &safesFolder) const
{
    const QStringList names =
        QDir(safesFolder).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        const QString folder = safesFolder + QLatin1Char('/') + name;
        if (isUnfinished(name) && !m_environment.files->removeFolder(folder))
            qWarning() << "SafeRemoval::clearUnfinished"
                       << "Can't remove folder:" << folder;
    }
}
