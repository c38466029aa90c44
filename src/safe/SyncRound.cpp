#include "SyncRound.h"

#include "FolderLock.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QFileInfo>

#include <utility>

namespace {

const char operation[] = "GPMSafeSyncHelper::synchronize";
const int largestPortion = 200; // items that the window's thread takes over at a time

} // namespace

/// The state of a round under way.
class SyncRound::Run
{
public:
    Run(const Safe &safe, const SafeFolder &mirror, WorkControl &control)
        : m_work{safe, mirror, control}
        , m_mirror(safe.environment.files, safe.folder, mirror)
        , m_header(m_work, m_mirror)
    {
    }

    SyncResult run();

private:
    SyncState prepare();
    void readRecord();
    void saveRecord();

    SyncWork m_work;
    SyncMirror m_mirror;
    SyncHeader m_header;
    std::optional<SyncVersions> m_versions;
    std::optional<SyncRecord> m_recordBefore; ///< as it is on the disk
};

SyncRound::SyncRound(Safe safe, const QString &mirrorFolder)
    : m_safe(std::move(safe))
    , m_mirror(mirrorFolder)
{
}

SyncResult SyncRound::run(WorkControl &control)
{
    FolderLock lock(m_safe.folder.path(SafeLayout::lockFile));
    if (!lock.lock(0, control)) {
        SyncResult result;
        result.state = control.isCancelled()    ? SyncState::Cancelled
                       : lock.isHeldByAnother() ? SyncState::Busy
                                                : SyncState::SafeNotWritten;
        return result;
    }
    return Run(m_safe, m_mirror, control).run();
}

SyncResult SyncRound::Run::run()
{
    m_work.result.state = prepare();
    if (m_work.result.state != SyncState::Done)
        return m_work.result;
    SyncItems items(m_work, m_mirror, *m_versions);
    const QStringList ids = m_versions->openIds();
    m_work.result.waiting = m_versions->waitingIds(ids);
    m_work.control.setTotal(ids.size());
    for (const QString &id : ids) {
        if (m_work.control.isCancelled() || m_work.result.taken.size() >= largestPortion) {
            m_work.result.state = SyncState::Cancelled;
            break;
        }
        items.merge(id);
        m_work.control.advance(1);
    }
    // What the other side still needs stays until everything that replaces it is there.
    items.finish(m_header.write());
    m_versions->forgetUnread();
    saveRecord();
    if (m_work.result.state == SyncState::Done && !m_work.result.waiting.isEmpty())
        m_work.result.state = SyncState::Waiting;
    return m_work.result;
}

SyncState SyncRound::Run::prepare()
{
    auto mirror = isOwnMirror(m_work.mirror) ? SyncListing::of(m_work.mirror, true) : std::nullopt;
    if (!mirror)
        return SyncState::MirrorMissing;
    auto local = SyncListing::of(m_work.safe.folder, false);
    if (!local)
        return SyncState::SafeNotWritten;
    readRecord();
    const SyncState state = m_header.read();
    if (state != SyncState::Done)
        return state;
    m_header.noteDeletions(*local);
    m_versions.emplace(m_work, *local, *mirror);
    if (m_header.replacesPassword()) {
        // A change of password that was interrupted: until the user has brought it to an end, or
        // put the old one back, the mirror keeps what opens.
        const QString id = m_versions->unreadableHere();
        if (!id.isEmpty()) {
            qWarning() << operation << "Items of two passwords, nothing is sent:" << id;
            return SyncState::Busy;
        }
    }
    return SyncState::Done;
}

void SyncRound::Run::readRecord()
{
    const QString path = m_work.safe.folder.path(SafeLayout::syncRecord);
    const std::optional<QByteArray> bytes = m_work.files().read(path);
    const auto record = bytes ? SyncRecord::fromJson(*bytes) : std::nullopt;
    if (record) {
        m_work.record = *record;
        m_recordBefore = *record;
    } else if (QFileInfo::exists(path)) {
        qWarning() << operation << "Synchronisation record is made anew:" << path;
    }
}

void SyncRound::Run::saveRecord()
{
    const QString path = m_work.safe.folder.path(SafeLayout::syncRecord);
    const bool isNew = !(m_recordBefore && m_work.record == *m_recordBefore);
    if (isNew && !m_work.files().writeBytes(path, m_work.record.toJson()))
        m_work.fail(SyncSide::Local, path);
}
