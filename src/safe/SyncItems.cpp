#include "SyncItems.h"

#include "SafeLayout.h"
#include "TrashCopy.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMutexLocker>

#include <algorithm>

namespace {

QString contentPath(const QString &fileName)
{
    return QLatin1String(SafeLayout::content) + QLatin1Char('/') + fileName;
}

QString attachmentPath(const QString &fileName)
{
    return QLatin1String(SafeLayout::attachment) + QLatin1Char('/') + fileName;
}

QString in(const SafeFolder &folder, const QString &path)
{
    return folder.root() + QLatin1Char('/') + path;
}

QDateTime timeOf(qint64 time)
{
    return QDateTime::fromMSecsSinceEpoch(time, Qt::UTC);
}

QString attachmentHashOf(const PMItemDocument &document)
{
    return document.type == PMListItem::Attachment
               ? document.publicFields.value(QStringLiteral("hash")).toString()
               : QString();
}

} // namespace

SyncItems::SyncItems(SyncWork &work, SyncMirror &mirror, SyncVersions &versions)
    : m_work(work)
    , m_mirror(mirror)
    , m_versions(versions)
{
}

void SyncItems::merge(const QString &id)
{
    if (m_versions.isAsMet(id) || m_work.control.isCancelled())
        return;
    const SyncVersions::Item item = m_versions.read(id);
    // What could not be looked at is not judged.
    const bool hidden =
        std::any_of(item.plan.local.begin(), item.plan.local.end(),
                    [](const SyncVersion &version) { return version.hash.isEmpty(); });
    if (m_work.control.isCancelled())
        return;
    const SyncActions actions = hidden ? SyncActions() : planSync(item.plan);
    m_versions.noteUnread(item, actions.waiting);
    if (actions.waiting || hidden)
        m_work.result.waiting.append(id);
    if (!actions.winner && !actions.deletionWins)
        return;
    Merged merged{id, actions, {}, {}};
    if (item.plan.met)
        merged.earlier = joined(item.plan.met->earlier, {item.plan.met->modified});
    if (!makeCopies(item, actions) || !bringHere(item, merged) || !bringThere(item, merged))
        return;
    if (item.plan.deleted && actions.winner)
        m_work.record.deletions[id].revived = item.plan.deleted->time;
    m_merged.append(merged);
}

bool SyncItems::makeCopies(const SyncVersions::Item &item, const SyncActions &actions)
{
    return std::all_of(actions.copies.begin(), actions.copies.end(),
                       [&](const SyncActions::Copy &copy) { return makeCopy(item, copy); });
}

bool SyncItems::makeCopy(const SyncVersions::Item &item, const SyncActions::Copy &copy)
{
    const ItemFileName name{copy.id, 0};
    if (SyncListing::hasItem(m_versions.listing(SyncSide::Local).content, copy.id) ||
        SyncListing::hasItem(m_versions.listing(SyncSide::Mirror).content, copy.id))
        return true;
    PMItemDocument document = item.documents.value(copy.source.version.hash);
    const QString title = document.publicFields.value(QStringLiteral("title")).toString();
    toTrashCopy(
        document, copy.id,
        syncCopyTitle(title, timeOf(copy.source.version.modified), timeOf(copy.winnerModified)));
    const SafeFolder &safe = m_work.safe.folder;
    const QString hash = attachmentHashOf(document);
    if (!hash.isEmpty() && !copySynced(m_work.files(), item.attachments.value(hash),
                                       safe.attachmentPath(name), hash, m_work.control))
        return m_work.fail(SyncSide::Local, safe.attachmentPath(name));
    const QString path = safe.contentPath(name);
    {
        const QMutexLocker locker(m_work.safe.mutex.get());
        if (!writeItemFile(m_work.safe.environment, path, m_work.password(), document))
            return m_work.fail(SyncSide::Local, path);
    }
    m_work.result.taken.append({name, document});
    ++m_work.result.copies;
    // Also to the mirror before anything is replaced: this computer may not come back.
    const QString fileHash = hashOfFile(m_work.files(), path, m_work.control);
    if (!m_mirror.commitNewOrChanged({name, fileHash, hash}, m_work.control))
        return m_work.fail(SyncSide::Mirror);
    return true;
}

QString SyncItems::attachmentAt(SyncSide side, const SyncVersions::Item &item,
                                const Merged &merged) const
{
    const QString path = in(m_work.folder(side), attachmentPath(merged.actions.target.text()));
    return item.attachmentHashes.value(path);
}

bool SyncItems::bringHere(const SyncVersions::Item &item, Merged &merged)
{
    const SyncActions &actions = merged.actions;
    if (!actions.winner)
        return true;
    const SyncVersion &winner = actions.winner->version;
    const PMItemDocument document = item.documents.value(winner.hash);
    const QString name = actions.target.text();
    merged.attachmentHash = attachmentHashOf(document);
    // The bytes of an attachment go first: an item that is there has them.
    if (!merged.attachmentHash.isEmpty() &&
        attachmentAt(SyncSide::Local, item, merged) != merged.attachmentHash) {
        const QString path = in(m_work.safe.folder, attachmentPath(name));
        merged.bytesToLocal = true;
        if (!copySynced(m_work.files(), item.attachments.value(merged.attachmentHash), path,
                        merged.attachmentHash, m_work.control))
            return m_work.fail(SyncSide::Local, path);
    }
    if (!actions.toLocal)
        return true;
    // Somebody has written it since it was read: the next round sees that.
    if (!isAsSeen(SyncSide::Local, name))
        return false;
    const QString source = in(m_work.folder(actions.winner->side), contentPath(winner.fileName));
    const QString target = in(m_work.safe.folder, contentPath(name));
    const QMutexLocker locker(m_work.safe.mutex.get());
    if (!copySynced(m_work.files(), source, target, winner.hash, m_work.control))
        return m_work.fail(SyncSide::Local, target);
    const bool renamed = actions.winner->side == SyncSide::Local;
    m_work.result.taken.append({actions.target, document, renamed});
    m_work.result.received += renamed ? 0 : 1;
    return true;
}

bool SyncItems::bringThere(const SyncVersions::Item &item, Merged &merged)
{
    const SyncActions &actions = merged.actions;
    if (!actions.winner)
        return true;
    const QString there = attachmentAt(SyncSide::Mirror, item, merged);
    merged.bytesToMirror = there != merged.attachmentHash;
    const auto &arrived = m_versions.listing(SyncSide::Mirror).attachment;
    if (merged.bytesToMirror && arrived.contains(actions.target.text())) {
        // They may be on their way, or belong to a version that is.
        m_work.result.waiting.append(merged.id);
        return false;
    }
    if (!actions.toMirror && !merged.bytesToMirror)
        return true;
    if (!isAsSeen(SyncSide::Mirror, actions.target.text()))
        return false;
    const SyncMirror::Item change{actions.target, actions.winner->version.hash,
                                  merged.bytesToMirror ? merged.attachmentHash : QString()};
    if (!m_mirror.commitNewOrChanged(change, m_work.control))
        return m_work.fail(SyncSide::Mirror);
    ++m_work.result.sent;
    return true;
}

bool SyncItems::isAsSeen(SyncSide side, const QString &fileName) const
{
    const auto &seen = m_versions.listing(side).content;
    const auto file = seen.find(fileName);
    return stampOf(in(m_work.folder(side), contentPath(fileName))) ==
           (file == seen.end() ? std::nullopt : std::make_optional(file.value()));
}

void SyncItems::finish(bool removes)
{
    for (const Merged &merged : std::as_const(m_merged)) {
        const SyncActions &actions = merged.actions;
        const bool hasMore = actions.deletionWins || !actions.removeLocal.isEmpty() ||
                             !actions.removeMirror.isEmpty();
        if (hasMore && !removes)
            continue;
        if (!m_mirror.commitDeleted(actions.removeMirror)) {
            m_work.fail(SyncSide::Mirror);
            continue;
        }
        if (!removeLocal(actions.removeLocal))
            continue;
        if (actions.deletionWins && !actions.removeLocal.isEmpty())
            m_work.result.removed.append(merged.id);
        remember(merged);
    }
}

bool SyncItems::removeLocal(const QStringList &fileNames)
{
    const QMutexLocker locker(m_work.safe.mutex.get());
    for (const QString &name : fileNames) {
        for (const QString &path : {attachmentPath(name), contentPath(name)}) {
            const QString file = in(m_work.safe.folder, path);
            if (QFileInfo::exists(file) && !m_work.files().remove(file))
                return m_work.fail(SyncSide::Local, file);
        }
    }
    return true;
}

void SyncItems::remember(const Merged &merged)
{
    auto &files = m_work.record.files;
    for (const QString &prefix : {contentPath(merged.id), attachmentPath(merged.id)}) {
        auto file = files.lowerBound(prefix);
        while (file != files.end() && file.key().startsWith(prefix))
            file = files.erase(file);
    }
    const SyncActions &actions = merged.actions;
    if (!actions.winner)
        return;
    const QString name = actions.target.text();
    note(contentPath(name), actions.winner->version.hash, actions.toLocal,
         actions.toMirror || merged.bytesToMirror, merged);
    if (!merged.attachmentHash.isEmpty())
        note(attachmentPath(name), merged.attachmentHash, merged.bytesToLocal, merged.bytesToMirror,
             merged);
}

void SyncItems::note(const QString &path, const QString &hash, bool toLocal, bool toMirror,
                     const Merged &merged)
{
    const bool isContent = path == contentPath(merged.actions.target.text());
    const auto stampFor = [&](SyncSide side, bool written) -> std::optional<FileStamp> {
        // A stamp from before the reading: what changed since then has another one.
        const SyncListing &listing = m_versions.listing(side);
        const auto &files = isContent ? listing.content : listing.attachment;
        const auto file = files.find(merged.actions.target.text());
        if (!written && file != files.end())
            return settled(file.value(), listing.taken);
        const auto now = stampOf(in(m_work.folder(side), path));
        return now ? std::make_optional(unsettled(*now)) : std::nullopt;
    };
    const auto local = stampFor(SyncSide::Local, toLocal);
    const auto mirror = stampFor(SyncSide::Mirror, toMirror);
    if (!local || !mirror)
        return;
    const qint64 modified = merged.actions.winner->version.modified;
    m_work.record.files.insert(path,
                               {hash, *local, *mirror, modified, before(merged.earlier, modified)});
}
