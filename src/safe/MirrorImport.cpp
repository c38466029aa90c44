#include "MirrorImport.h"

#include "FolderLock.h"
#include "SafeCrypto.h"
#include "SafeDescriptionFile.h"
#include "SafeImport.h"
#include "SafeLayout.h"
#include "SyncFiles.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QUuid>
#include <QtConcurrent>

#include <atomic>
#include <numeric>

namespace {

const char operation[] = "CloudSync::importSafe";
const qint64 chunk = 1024 * 1024;

std::optional<SafeDescription> descriptionOf(FileLayer &files, const SafeFolder &folder)
{
    for (const char *name : {SafeLayout::meta, SafeLayout::restore}) {
        const auto json = files.read(folder.path(name));
        const auto description = json ? parseDescription(*json) : std::nullopt;
        if (description)
            return description;
    }
    return std::nullopt;
}

} // namespace

MirrorImport::MirrorImport(const SafeEnvironment &environment, const QString &safesFolder)
    : m_environment(environment)
    , m_safesFolder(safesFolder)
{
}

ArchiveResult MirrorImport::run(const QString &mirrorFolder, WorkControl &control)
{
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QString newFolder = m_safesFolder + QLatin1Char('/') + id;
    m_work = SafeFolder(SafeImport::workFolder(m_safesFolder, id));
    const Outcome outcome = makeSafe(mirrorFolder, newFolder, control);
    if (outcome == Outcome::Done)
        return {outcome, newFolder};
    if (QDir(m_work.root()).exists() && !m_environment.files->removeFolder(m_work.root()))
        qWarning() << operation << "Can't remove folder:" << m_work.root();
    if (outcome != Outcome::Cancelled)
        qWarning() << operation << "Can't copy the safe from" << mirrorFolder << outcome;
    return {outcome};
}

ArchiveResult::Outcome MirrorImport::makeSafe(const QString &mirrorFolder, const QString &newFolder,
                                              WorkControl &control)
{
    FileLayer &files = *m_environment.files;
    const SafeFolder mirror(mirrorFolder);
    const auto description = descriptionOf(files, mirror);
    const auto passId = files.read(mirror.path(SafeLayout::passId));
    if (!description || !passId || passId->isEmpty())
        return QFileInfo(mirrorFolder).isDir() ? Outcome::NoSafe : Outcome::NotFound;
    // Under half of it the safe would never open.
    if (encryptedLength(*passId) != encryptedPassIdLength)
        return Outcome::NotArrived;
    if (!files.makeFolder(m_safesFolder))
        return Outcome::CannotWrite;
    FolderLock lock(SafeImport::lockPath(m_safesFolder));
    if (!lock.lock(m_environment.lockWaitMs, control))
        return lock.isHeldByAnother() ? Outcome::SafeBusy : Outcome::CannotWrite;
    for (const char *name : {SafeLayout::content, SafeLayout::attachment, SafeLayout::favicon}) {
        if (!files.makeFolder(m_work.path(name)))
            return Outcome::CannotWrite;
    }
    if (const Outcome planned = plan(mirror); planned != Outcome::Done)
        return planned;
    if (const Outcome copied = copyAll(control); copied != Outcome::Done)
        return copied;
    if (!complete(description->toJson(), *passId) || !files.replace(m_work.root(), newFolder))
        return Outcome::CannotWrite;
    return Outcome::Done;
}

ArchiveResult::Outcome MirrorImport::plan(const SafeFolder &mirror)
{
    const auto listing = SyncListing::of(mirror, false);
    if (!listing)
        return Outcome::NotFound;
    const auto add = [&](const char *name, const QMap<QString, FileStamp> &inner) {
        for (auto file = inner.begin(); file != inner.end(); ++file) {
            // Other versions and foreign files are left to the first meeting.
            if (file->length == 0)
                continue;
            const QString tail = QLatin1Char('/') + file.key();
            m_files.append({mirror.path(name) + tail, m_work.path(name) + tail, file->length,
                            name == SafeLayout::attachment});
        }
    };
    add(SafeLayout::attachment, listing->attachment);
    add(SafeLayout::content, listing->content);
    return Outcome::Done;
}

ArchiveResult::Outcome MirrorImport::copyAll(WorkControl &control)
{
    control.setTotal(std::accumulate(m_files.begin(), m_files.end(), qint64(0),
                                     [](qint64 sum, const File &file) { return sum + file.size; }));
    for (const File &file : std::as_const(m_files)) {
        const bool copied = copy(file, control);
        if (control.isCancelled())
            return Outcome::Cancelled;
        if (copied && isWhole(file))
            continue;
        // What arrives here is left to the first meeting, too.
        if (copied && m_environment.files->remove(file.to))
            continue;
        // Somebody has removed or replaced it meanwhile; the first meeting sees what is true.
        if (m_readFailed && !QFileInfo::exists(file.from) && QFileInfo(file.from).dir().exists()) {
            m_readFailed = false;
            continue;
        }
        return m_readFailed ? Outcome::SafeUnreadable : Outcome::CannotWrite;
    }
    return Outcome::Done;
}

bool MirrorImport::copy(const File &file, WorkControl &control)
{
    const std::unique_ptr<QIODevice> source = m_environment.files->open(file.from);
    m_readFailed = !source;
    return source && m_environment.files->writeNew(file.to, [&](QIODevice &target) {
        while (!source->atEnd() && !control.isCancelled()) {
            const QByteArray bytes = source->read(chunk);
            m_readFailed = bytes.isEmpty();
            if (m_readFailed || target.write(bytes) != bytes.size())
                return false;
            control.advance(bytes.size());
        }
        return !control.isCancelled();
    });
}

/// Of the copy: the mirror's file may grow meanwhile.
bool MirrorImport::isWhole(const File &file) const
{
    if (file.isAttachment)
        return isWholeFile(file.to);
    const auto text = m_environment.files->read(file.to);
    return text && encryptedLength(*text) > 0;
}

bool MirrorImport::complete(const QByteArray &description, const QByteArray &passId)
{
    FileLayer &files = *m_environment.files;
    std::atomic<bool> forced{true};
    // The disk likes to do several at once.
    QtConcurrent::blockingMap(m_files, [&](const File &file) {
        if (QFileInfo::exists(file.to) && !files.force(file.to))
            forced = false;
    });
    return forced && files.writeBytes(m_work.path(SafeLayout::passId), passId) &&
           writeDescription(files, m_work.root(), description);
}
