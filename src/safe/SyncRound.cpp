#include "SyncRound.h"

#include "FolderLock.h"
#include "SafeCrypto.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"
#include "SyncDescription.h"
#include "SyncFileName.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QMutexLocker>

#include <algorithm>
#include <utility>

namespace {

const char operation[] = "GPMSafeSyncHelper::synchronize";
const int shortestPassId = 1000; // what is shorter has not arrived whole

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

} // namespace

SyncRound::SyncRound(Safe safe, const QString &mirrorFolder)
    : m_safe(std::move(safe))
    , m_mirror(mirrorFolder)
{
}

SyncResult SyncRound::run(WorkControl &control)
{
    FolderLock lock(m_safe.folder.path(SafeLayout::lockFile));
    if (!lock.lock(0, control)) {
        m_result.state = lock.isHeldByAnother() ? SyncState::Busy : SyncState::SafeNotWritten;
        return m_result;
    }
    m_result.state = prepare();
    if (m_result.state != SyncState::Done)
        return m_result;
    const QStringList ids = m_versions->openIds();
    for (const QString &id : ids) {
        if (control.isCancelled()) {
            m_result.state = SyncState::Cancelled;
            break;
        }
        carryOut(id);
    }
    const bool headerSynced = syncPassId() && syncDescription() && sendDeletions();
    // What the other side still needs stays until everything that replaces it is there.
    removeSuperseded(headerSynced);
    saveRecord();
    if (m_result.state == SyncState::Done && !m_result.waiting.isEmpty())
        m_result.state = SyncState::Waiting;
    return m_result;
}

SyncState SyncRound::prepare()
{
    auto mirror = SyncListing::of(m_mirror);
    if (!mirror)
        return SyncState::MirrorMissing;
    auto local = SyncListing::of(m_safe.folder);
    if (!local)
        return SyncState::SafeNotWritten;
    const auto bytes = files().read(m_mirror.path(SafeLayout::meta));
    const auto description = bytes ? parseDescription(*bytes) : std::nullopt;
    const auto own = readDescription(files(), m_safe.folder.root());
    if (description && own && description->created != own->created)
        return SyncState::OtherSafe;
    readRecord();
    m_passId = comparePassIds();
    if (m_passId == PassId::Other)
        return SyncState::NewPasswordNeeded;
    if (m_passId == PassId::Arriving || !readMirrorDeletions())
        return SyncState::Waiting;
    noteDeletions(*local);
    m_versions.emplace(m_safe.environment, m_safe.password,
                       SyncVersions::Side{m_safe.folder, *local},
                       SyncVersions::Side{m_mirror, *mirror}, m_record);
    return SyncState::Done;
}

void SyncRound::readRecord()
{
    const QString path = m_safe.folder.path(SafeLayout::syncRecord);
    const std::optional<QByteArray> bytes = files().read(path);
    const auto record = bytes ? SyncRecord::fromJson(*bytes) : std::nullopt;
    if (record) {
        m_record = *record;
        m_recordBefore = *record;
    } else if (QFileInfo::exists(path)) {
        qWarning() << operation << "Synchronisation record is made anew:" << path;
    }
}

SyncRound::PassId SyncRound::comparePassIds()
{
    const auto mirror = files().read(m_mirror.path(SafeLayout::passId));
    if (!mirror)
        return QFileInfo::exists(m_mirror.path(SafeLayout::passId)) ? PassId::Arriving
                                                                    : PassId::Send;
    if (mirror == files().read(m_safe.folder.path(SafeLayout::passId)))
        return PassId::Equal;
    if (mirror->size() < shortestPassId)
        return PassId::Arriving;
    if (checkPassId(m_safe.password->view(), QString::fromLatin1(*mirror)))
        return PassId::Take;
    // It is this computer that changed it when the mirror has what was met, or what was in force.
    const bool isEarlier = hashOf(*mirror) == m_record.passId ||
                           mirror == files().read(m_safe.folder.path(SafeLayout::passIdBackup));
    return isEarlier ? PassId::Send : PassId::Other;
}

bool SyncRound::readMirrorDeletions()
{
    const QString path = m_mirror.path(SafeLayout::mirrorDeletions);
    const QStringList names = QDir(m_mirror.root()).entryList(QDir::Files);
    for (const QString &name : names) {
        const bool isCopy = isConflictCopyOf(name, QLatin1String(SafeLayout::mirrorDeletions));
        if (!isCopy && name != QLatin1String(SafeLayout::mirrorDeletions))
            continue;
        const auto text = files().read(m_mirror.root() + QLatin1Char('/') + name);
        // Encrypted, so that nobody can delete items who cannot open the safe.
        const auto json = text ? decryptString(m_safe.password->view(), QString::fromLatin1(*text))
                               : std::nullopt;
        const auto told = json ? SyncRecord::fromJson(*json) : std::nullopt;
        if (!told) {
            // Under the password before, it says nothing that this side has not met or will meet.
            if (!isCopy && m_passId != PassId::Send)
                return false;
            continue;
        }
        m_record.addDeletions(told->deletions);
        if (isCopy)
            files().remove(m_mirror.root() + QLatin1Char('/') + name);
        else
            m_sentDeletions = told->deletions;
    }
    return true;
}

void SyncRound::noteDeletions(const SyncListing &local)
{
    const QString path = m_safe.folder.path(SafeLayout::deletedList);
    const qint64 now = m_safe.environment.clock().toMSecsSinceEpoch();
    const QStringList listed = QString::fromUtf8(files().read(path).value_or(QByteArray()))
                                   .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (listed.isEmpty())
        return;
    const qint64 listTime = std::min(now, QFileInfo(path).lastModified().toMSecsSinceEpoch());
    const auto modifiedWhenMet = [this](const QString &id) -> std::optional<qint64> {
        const auto &met = std::as_const(m_record).files;
        const auto file = met.lowerBound(contentPath(id));
        const bool found = file != met.end() && file.key().startsWith(contentPath(id));
        return found ? std::make_optional(file->modified) : std::nullopt;
    };
    const auto note = [&](const QString &id, qint64 time) {
        const qint64 revived = m_record.deletions.value(id).revived;
        m_record.addDeletions(
            {{id, {std::max({time, modifiedWhenMet(id).value_or(0), revived + 1}), 0}}});
    };
    const auto isThere = [&local](const QString &id) {
        const auto file = local.content.lowerBound(id);
        return file != local.content.end() && file.key().startsWith(id);
    };
    for (const QString &id : listed) {
        if (isThere(id))
            continue;
        // One that was deleted while nobody looked has the time of the list.
        if (m_safe.deleted.contains(id))
            note(id, m_safe.deleted.value(id));
        else if (modifiedWhenMet(id) || !m_record.deletions.contains(id))
            note(id, listTime);
    }
}

void SyncRound::carryOut(const QString &id)
{
    const SyncVersions::Item item = m_versions->read(id);
    const SyncActions actions = planSync(item.plan);
    if (actions.waiting)
        m_result.waiting.append(id);
    if (!actions.winner && !actions.deletionWins)
        return;
    if (makeCopies(item, actions) && writeWinner(item, actions)) {
        if (item.plan.deleted && actions.winner)
            m_record.deletions[id].revived = *item.plan.deleted;
        m_merged.append({item, actions});
    }
}

bool SyncRound::makeCopies(const SyncVersions::Item &item, const SyncActions &actions)
{
    return std::all_of(actions.copies.begin(), actions.copies.end(),
                       [&](const SyncActions::Copy &copy) { return makeCopy(item, copy); });
}

bool SyncRound::makeCopy(const SyncVersions::Item &item, const SyncActions::Copy &copy)
{
    const ItemFileName name{copy.id, 0};
    const auto isThere = [&copy](const SyncListing &listing) {
        const auto file = listing.content.lowerBound(copy.id);
        return file != listing.content.end() && file.key().startsWith(copy.id);
    };
    if (isThere(m_versions->local().listing) || isThere(m_versions->mirror().listing))
        return true;
    PMItemDocument document = item.documents.value(copy.source.version.hash);
    QJsonObject &fields = document.publicFields;
    const QString hash = fields.value(QStringLiteral("hash")).toString();
    fields.insert(QStringLiteral("id"), copy.id);
    fields.insert(QStringLiteral("deleted"), true);
    fields.insert(QStringLiteral("title"),
                  syncCopyTitle(fields.value(QStringLiteral("title")).toString(),
                                timeOf(copy.source.version.modified), timeOf(copy.winnerModified)));
    const bool isAttachment = document.type == PMListItem::Attachment;
    const QMutexLocker locker(m_safe.mutex.get());
    if (isAttachment && !copySynced(files(), item.attachments.value(hash),
                                    m_safe.folder.attachmentPath(name), hash))
        return fail(SyncSide::Local, m_safe.folder.attachmentPath(name));
    if (!writeItemFile(m_safe.environment, m_safe.folder.contentPath(name), m_safe.password->view(),
                       document))
        return fail(SyncSide::Local, m_safe.folder.contentPath(name));
    m_result.taken.append({name, document});
    ++m_result.copies;
    return true;
}

bool SyncRound::writeWinner(const SyncVersions::Item &item, const SyncActions &actions)
{
    // The bytes of an attachment go first: an item that is there has them.
    if (!writeBytes(SyncSide::Local, item, actions) || !writeBytes(SyncSide::Mirror, item, actions))
        return false;
    if (actions.toLocal) {
        if (!writeTo(SyncSide::Local, actions))
            return false;
        m_result.taken.append({actions.target, item.documents.value(actions.winner->version.hash)});
        m_result.received += actions.winner->side == SyncSide::Mirror ? 1 : 0;
    }
    if (!actions.toMirror)
        return true;
    ++m_result.sent;
    return writeTo(SyncSide::Mirror, actions);
}

bool SyncRound::writeBytes(SyncSide side, const SyncVersions::Item &item,
                           const SyncActions &actions)
{
    if (!actions.winner)
        return true;
    const PMItemDocument document = item.documents.value(actions.winner->version.hash);
    if (document.type != PMListItem::Attachment)
        return true;
    const QString hash = document.publicFields.value(QStringLiteral("hash")).toString();
    const QString path = in(folder(side), attachmentPath(actions.target.text()));
    const QString there = fileHash(path);
    if (there == hash)
        return true;
    if (side == SyncSide::Mirror && !there.isEmpty()) {
        m_result.waiting.append(item.plan.id);
        return false;
    }
    const QMutexLocker locker(mutexOf(side));
    return copySynced(files(), item.attachments.value(hash), path, hash) || fail(side, path);
}

bool SyncRound::writeTo(SyncSide side, const SyncActions &actions)
{
    const QMutexLocker locker(mutexOf(side));
    const QString name = actions.target.text();
    const QString target = in(folder(side), contentPath(name));
    const auto &listing =
        side == SyncSide::Local ? m_versions->local().listing : m_versions->mirror().listing;
    const auto seen = listing.content.find(name);
    const auto expected =
        seen == listing.content.end() ? std::nullopt : std::make_optional(seen.value());
    // Somebody has written it since it was read: the next round sees that.
    if (stampOf(target) != expected)
        return false;
    const SyncVersion &winner = actions.winner->version;
    const QString source = in(folder(actions.winner->side), contentPath(winner.fileName));
    return copySynced(files(), source, target, winner.hash) || fail(side, target);
}

bool SyncRound::syncPassId()
{
    const SyncSide to = m_passId == PassId::Take ? SyncSide::Local : SyncSide::Mirror;
    const QString own = m_safe.folder.path(SafeLayout::passId);
    const QString other = m_mirror.path(SafeLayout::passId);
    const auto bytes = files().read(m_passId == PassId::Take ? other : own);
    if (!bytes)
        return fail(SyncSide::Local, own);
    const QString target = to == SyncSide::Local ? own : other;
    // An interrupted round must not put a new pass id beside items of the old password.
    if (m_passId == PassId::Send && m_result.state != SyncState::Done)
        return false;
    if (m_passId != PassId::Equal && !files().writeBytes(target, *bytes))
        return fail(to, target);
    m_record.passId = hashOf(*bytes);
    return true;
}

bool SyncRound::syncDescription()
{
    const auto own = readDescription(files(), m_safe.folder.root());
    if (!own)
        return true;
    const auto bytes = files().read(m_mirror.path(SafeLayout::meta));
    const auto other = bytes ? parseDescription(*bytes) : std::nullopt;
    const SafeDescription merged =
        other ? mergeDescriptions(*own, *other, parseDescription(m_record.description)) : *own;
    const QByteArray json = merged.toJson();
    if (json != own->toJson()) {
        const QMutexLocker locker(m_safe.mutex.get());
        if (!writeDescription(files(), m_safe.folder.root(), json))
            return fail(SyncSide::Local, m_safe.folder.path(SafeLayout::meta));
        m_result.descriptionTaken = true;
    }
    if ((!other || json != other->toJson()) && !writeDescription(files(), m_mirror.root(), json))
        return fail(SyncSide::Mirror, m_mirror.path(SafeLayout::meta));
    m_record.description = json;
    return true;
}

bool SyncRound::sendDeletions()
{
    SyncRecord told;
    told.deletions = m_record.deletions;
    SyncRecord before;
    before.deletions = m_sentDeletions;
    const QByteArray json = told.toJson();
    if (json == before.toJson() && m_passId != PassId::Send)
        return true;
    // What an item's deletion leaves over has to be kept before the others hear of it.
    if (m_result.state != SyncState::Done)
        return false;
    QString text;
    const QString path = m_mirror.path(SafeLayout::mirrorDeletions);
    return (encryptString(m_safe.password->view(), json, text, m_safe.environment.random) &&
            files().writeBytes(path, text.toLatin1())) ||
           fail(SyncSide::Mirror, path);
}

void SyncRound::removeSuperseded(bool headerSynced)
{
    for (const Merged &merged : std::as_const(m_merged)) {
        const SyncActions &actions = merged.actions;
        const bool removes = actions.deletionWins || !actions.removeLocal.isEmpty() ||
                             !actions.removeMirror.isEmpty();
        if (removes && !headerSynced)
            continue;
        const QString keep = actions.winner ? actions.target.text() : QString();
        const bool gone = removeFiles(SyncSide::Mirror, actions.removeMirror, keep) &&
                          removeFiles(SyncSide::Local, actions.removeLocal, keep);
        if (!gone)
            continue;
        if (actions.deletionWins && !actions.removeLocal.isEmpty())
            m_result.removed.append(merged.item.plan.id);
        remember(merged.item, actions);
    }
}

bool SyncRound::removeFiles(SyncSide side, const QStringList &names, const QString &keep)
{
    const QMutexLocker locker(mutexOf(side));
    for (const QString &name : names) {
        if (name == keep)
            continue;
        for (const QString &path :
             {in(folder(side), contentPath(name)), in(folder(side), attachmentPath(name))}) {
            if (QFileInfo::exists(path) && !files().remove(path))
                return fail(side, path);
        }
    }
    return true;
}

void SyncRound::remember(const SyncVersions::Item &item, const SyncActions &actions)
{
    for (const QString &prefix : {contentPath(item.plan.id), attachmentPath(item.plan.id)}) {
        auto file = m_record.files.lowerBound(prefix);
        while (file != m_record.files.end() && file.key().startsWith(prefix))
            file = m_record.files.erase(file);
    }
    if (!actions.winner)
        return;
    const SyncVersion &winner = actions.winner->version;
    const auto note = [&](const QString &path, const QString &hash) {
        const auto local = stampOf(in(m_safe.folder, path));
        const auto mirror = stampOf(in(m_mirror, path));
        if (local && mirror)
            m_record.files.insert(path, {hash, *local, *mirror, winner.modified});
    };
    note(contentPath(actions.target.text()), winner.hash);
    const PMItemDocument document = item.documents.value(winner.hash);
    if (document.type == PMListItem::Attachment)
        note(attachmentPath(actions.target.text()),
             document.publicFields.value(QStringLiteral("hash")).toString());
}

void SyncRound::saveRecord()
{
    const QString path = m_safe.folder.path(SafeLayout::syncRecord);
    const bool isNew = !(m_recordBefore && m_record == *m_recordBefore);
    if (isNew && !files().writeBytes(path, m_record.toJson()))
        fail(SyncSide::Local, path);
}

bool SyncRound::fail(SyncSide side, const QString &path)
{
    // Once: a full disk fails every file.
    const SyncState state =
        side == SyncSide::Local ? SyncState::SafeNotWritten : SyncState::MirrorNotWritten;
    if (m_result.state == SyncState::Done) {
        qWarning() << operation << "Can't write:" << path;
        m_result.state = state;
    }
    return false;
}

QMutex *SyncRound::mutexOf(SyncSide side) const
{
    // A slow mirror must not hold up those who write to the safe.
    return side == SyncSide::Local ? m_safe.mutex.get() : nullptr;
}

const SafeFolder &SyncRound::folder(SyncSide side) const
{
    return side == SyncSide::Local ? m_safe.folder : m_mirror;
}
