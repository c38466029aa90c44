#include "SyncMirror.h"

#include "SafeDescriptionFile.h"
#include "SafeLayout.h"
#include "SyncFiles.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace {

/// Through a link, somebody else's file would be overwritten.
bool isFree(const QString &path)
{
    return !QFileInfo(path).isSymLink();
}

} // namespace

SyncMirror::SyncMirror(std::shared_ptr<FileLayer> files, SafeFolder safe, SafeFolder mirror)
    : m_files(std::move(files))
    , m_safe(std::move(safe))
    , m_mirror(std::move(mirror))
{
}

bool SyncMirror::enableSynchronization(FileLayer &files, const QString &mirrorFolder)
{
    const SafeFolder mirror(mirrorFolder);
    if (files.makeFolder(mirror.path(SafeLayout::content)) &&
        files.makeFolder(mirror.path(SafeLayout::attachment)))
        return true;
    qWarning() << "GPMSafe::enableSynchronization"
               << "Can't create safe synchronization directory:" << mirrorFolder;
    return false;
}

bool SyncMirror::commitNewOrChanged(const Item &item, const WorkControl &control)
{
    const char operation[] = "GPMSafe::commitNewOrChanged";
    const QString source = m_safe.contentPath(item.name);
    if (!QFileInfo::exists(source))
        return fail(operation, "Can't find item's file in safe content directory:", source);
    if (!isThere(operation))
        return false;
    const QString folder = m_mirror.path(SafeLayout::content);
    if (!QFileInfo(folder).isDir() && !m_files->makeFolder(folder))
        return fail(operation, "Sync content directory doesn't exist or not accessible:", folder);
    // An item that is there has its bytes.
    if (!item.attachmentHash.isEmpty() && !commitAttachment(item, control))
        return false;
    const QString target = m_mirror.contentPath(item.name);
    if (isFree(target) && copySynced(*m_files, source, target, item.hash, control))
        return true;
    return !control.isCancelled() && fail(operation, "Can't sync item's file:", target);
}

bool SyncMirror::commitAttachment(const Item &item, const WorkControl &control)
{
    const QString target = m_mirror.attachmentPath(item.name);
    const bool good = m_files->makeFolder(m_mirror.path(SafeLayout::attachment)) &&
                      isFree(target) &&
                      copySynced(*m_files, m_safe.attachmentPath(item.name), target,
                                 item.attachmentHash, control);
    return good || (!control.isCancelled() &&
                    fail("GPMSafe::commitNewOrChanged",
                         "Can't commit attachment content to sync directory:", target));
}

bool SyncMirror::commitDeleted(const QStringList &fileNames)
{
    for (const QString &name : fileNames) {
        // The bytes first: what is left over by an interruption is found by its item's file.
        for (const char *folder : {SafeLayout::attachment, SafeLayout::content}) {
            const QString path = m_mirror.path(folder) + QLatin1Char('/') + name;
            if (QFileInfo::exists(path) && !m_files->remove(path))
                return fail("GPMSafe::commitDeleted",
                            "Can't commit delete operation to sync directory:", path);
        }
    }
    return true;
}

bool SyncMirror::commitMetaChange()
{
    const char operation[] = "GPMSafe::commitMetaChange";
    if (!isThere(operation))
        return false;
    const auto description = readDescription(*m_files, m_safe.root());
    const QString target = m_mirror.path(SafeLayout::meta);
    return (description && isFree(target) && isFree(m_mirror.path(SafeLayout::restore)) &&
            writeDescription(*m_files, m_mirror.root(), description->toJson())) ||
           fail(operation, "Can't commit meta file changes to sync directory:", target);
}

bool SyncMirror::commitPassIdChange()
{
    const char operation[] = "GPMSafe::commitPassIdChange";
    if (!isThere(operation))
        return false;
    const auto passId = m_files->read(m_safe.path(SafeLayout::passId));
    const QString target = m_mirror.path(SafeLayout::passId);
    return (passId && isFree(target) && m_files->writeBytes(target, *passId)) ||
           fail(operation, "Can't commit pass id changes to sync directory:", target);
}

bool SyncMirror::isThere(const char *operation)
{
    return QDir(m_mirror.root()).exists() ||
           fail(operation, "Sync directory doesn't exist:", m_mirror.root());
}

bool SyncMirror::fail(const char *operation, const char *message, const QString &path)
{
    if (!m_hasFailed)
        qWarning() << operation << message << path;
    m_hasFailed = true;
    return false;
}
