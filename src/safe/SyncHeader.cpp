#include "SyncHeader.h"

#include "SafeCrypto.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"
#include "SyncDescription.h"
#include "SyncFileName.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMutexLocker>

#include <algorithm>

namespace {

const qint64 longestArrival = 86400000; // ms

/// Whether a file in the mirror that is not whole may still become so.
bool mayArrive(const QString &path)
{
    const auto stamp = stampOf(path);
    return stamp && stamp->time + longestArrival > fileClock();
}

/// The versions of an item that this side has had together with the mirror.
SyncHistory historyOf(const SyncRecord &record, const QString &id)
{
    const QString prefix = QLatin1String(SafeLayout::content) + QLatin1Char('/') + id;
    const auto file = record.files.lowerBound(prefix);
    const bool found = file != record.files.end() && file.key().startsWith(prefix);
    return found ? joined(file->earlier, {file->modified}) : SyncHistory();
}

} // namespace

SyncHeader::SyncHeader(SyncWork &work, SyncMirror &mirror)
    : m_work(work)
    , m_mirror(mirror)
    , m_mirrorFiles(QDir(work.mirror.root()).entryList(QDir::Files))
{
}

QString SyncHeader::inMirror(const QString &name) const
{
    return m_work.mirror.root() + QLatin1Char('/') + name;
}

QStringList SyncHeader::copiesOf(const char *name) const
{
    QStringList copies;
    for (const QString &file : m_mirrorFiles) {
        if (isConflictCopyOf(file, QLatin1String(name)))
            copies.append(file);
    }
    return copies;
}

SyncState SyncHeader::read()
{
    const auto bytes = readPlainFile(m_work.files(), m_work.mirror.path(SafeLayout::meta));
    const auto description = bytes ? parseDescription(*bytes) : std::nullopt;
    const auto own = readDescription(m_work.files(), m_work.safe.folder.root());
    if (description && own && description->created != own->created)
        return SyncState::OtherSafe;
    m_passId = comparePassIds();
    if (m_passId == PassId::Other)
        return SyncState::NewPasswordNeeded;
    if (m_passId == PassId::Arriving || !readDeletions())
        return SyncState::Waiting;
    return SyncState::Done;
}

bool SyncHeader::replacesPassword() const
{
    return m_passId == PassId::Send && QFileInfo::exists(m_work.mirror.path(SafeLayout::passId));
}

SyncHeader::PassId SyncHeader::comparePassIds()
{
    const QString path = m_work.mirror.path(SafeLayout::passId);
    const auto mirror = readPlainFile(m_work.files(), path);
    if (!mirror && !QFileInfo::exists(path))
        return PassId::Send;
    // Who has a later one sends it again when ours is back.
    if (!mirror || encryptedLength(*mirror) != encryptedPassIdLength)
        return mayArrive(path) ? PassId::Arriving : PassId::Send;
    const SafeFolder &safe = m_work.safe.folder;
    if (mirror == m_work.files().read(safe.path(SafeLayout::passId)))
        return PassId::Equal;
    if (checkPassId(m_work.password(), QString::fromLatin1(*mirror)))
        return PassId::Take;
    // It is this computer that changed it when the mirror has what was met, then or before, or
    // what was in force.
    const QString hash = hashOf(*mirror);
    const bool isEarlier = hash == m_work.record.passId ||
                           m_work.record.earlierPassIds.contains(hash) ||
                           mirror == m_work.files().read(safe.path(SafeLayout::passIdBackup));
    if (!isEarlier)
        m_work.result.otherPassId = *mirror;
    return isEarlier ? PassId::Send : PassId::Other;
}

bool SyncHeader::readDeletions()
{
    const auto readTold = [this](const QString &name) -> std::optional<SyncRecord> {
        const auto text = readPlainFile(m_work.files(), inMirror(name));
        // Encrypted, so that nobody can delete items who cannot open the safe.
        const auto json =
            text ? decryptString(m_work.password(), QString::fromLatin1(*text)) : std::nullopt;
        return json ? SyncRecord::fromJson(*json) : std::nullopt;
    };
    const QString name = QLatin1String(SafeLayout::mirrorDeletions);
    if (m_mirrorFiles.contains(name)) {
        const auto told = readTold(name);
        // What is whole and does not open is of another password. Who knows more deletions tells
        // of them again when ours are there.
        const QByteArray text =
            readPlainFile(m_work.files(), inMirror(name)).value_or(QByteArray());
        if (!told && encryptedLength(text) == 0 && mayArrive(inMirror(name)))
            return false;
        if (told)
            m_work.record.addDeletions(told->deletions);
        m_sentDeletions = told ? std::make_optional(told->deletions) : std::nullopt;
    }
    const QStringList copies = copiesOf(SafeLayout::mirrorDeletions);
    for (const QString &copy : copies) {
        if (const auto told = readTold(copy)) {
            m_work.record.addDeletions(told->deletions);
            m_merged.append(inMirror(copy));
        }
    }
    return true;
}

void SyncHeader::noteDeletions(const SyncListing &local)
{
    const QString path = m_work.safe.folder.path(SafeLayout::deletedList);
    const QStringList listed = QString::fromUtf8(m_work.files().read(path).value_or(QByteArray()))
                                   .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (listed.isEmpty())
        return;
    SyncRecord &record = m_work.record;
    const qint64 listTime =
        std::min(m_work.now(), QFileInfo(path).lastModified().toMSecsSinceEpoch());
    for (const QString &id : listed) {
        const SyncHistory met = historyOf(record, id);
        const auto told = m_work.safe.deleted.find(id);
        const bool isTold = told != m_work.safe.deleted.end();
        if (SyncListing::hasItem(local.content, id) ||
            (!isTold && met.isEmpty() && record.deletions.contains(id)))
            continue;
        // One that was deleted while nobody looked has the time of the list.
        const SyncHistory seen = isTold ? joined(met, told->seen) : met;
        const qint64 latest =
            std::max(seen.isEmpty() ? 0 : seen.last(), record.deletions.value(id).revived + 1);
        record.addDeletions({{id, {std::max(isTold ? told->time : listTime, latest), 0, seen}}});
    }
}

bool SyncHeader::write()
{
    if (!syncPassId() || !syncDescription() || !sendDeletions())
        return false;
    clearCopies();
    return true;
}

bool SyncHeader::syncPassId()
{
    const QString own = m_work.safe.folder.path(SafeLayout::passId);
    // An interrupted round must not put a new pass id beside items of the old password.
    if (m_passId == PassId::Send &&
        (m_work.result.state != SyncState::Done || !m_mirror.commitPassIdChange()))
        return m_work.fail(SyncSide::Mirror);
    if (m_passId == PassId::Take) {
        const auto taken = readPlainFile(m_work.files(), m_work.mirror.path(SafeLayout::passId));
        if (!taken || !m_work.files().writeBytes(own, *taken))
            return m_work.fail(SyncSide::Local, own);
    }
    const auto bytes = m_work.files().read(own);
    if (!bytes)
        return m_work.fail(SyncSide::Local, own);
    m_work.record.setPassId(hashOf(*bytes));
    return true;
}

std::optional<SafeDescription> SyncHeader::readMirrorDescription(const SafeDescription &own)
{
    const auto readOne = [this](const QString &path) {
        const auto bytes = readPlainFile(m_work.files(), path);
        return bytes ? parseDescription(*bytes) : std::nullopt;
    };
    auto description = readOne(m_work.mirror.path(SafeLayout::meta));
    const auto met = parseDescription(m_work.record.description);
    for (const char *name : {SafeLayout::meta, SafeLayout::restore}) {
        const QStringList copies = copiesOf(name);
        for (const QString &copy : copies) {
            const auto other = readOne(inMirror(copy));
            // One of another safe is none of ours.
            if (!other || other->created != own.created)
                continue;
            description = description ? mergeDescriptions(*description, *other, met) : other;
            m_merged.append(inMirror(copy));
        }
    }
    return description;
}

bool SyncHeader::syncDescription()
{
    const QString root = m_work.safe.folder.root();
    const auto own = readDescription(m_work.files(), root);
    if (!own)
        return true;
    const auto other = readMirrorDescription(*own);
    const SafeDescription merged =
        other ? mergeDescriptions(*own, *other, parseDescription(m_work.record.description)) : *own;
    const QByteArray json = merged.toJson();
    if (json != own->toJson()) {
        const QMutexLocker locker(m_work.safe.mutex.get());
        if (!writeDescription(m_work.files(), root, json))
            return m_work.fail(SyncSide::Local, m_work.safe.folder.path(SafeLayout::meta));
        m_work.result.descriptionTaken = true;
    }
    const auto bytes = readPlainFile(m_work.files(), m_work.mirror.path(SafeLayout::meta));
    const auto there = bytes ? parseDescription(*bytes) : std::nullopt;
    if ((!there || there->toJson() != json) && !m_mirror.commitMetaChange())
        return m_work.fail(SyncSide::Mirror);
    m_work.record.description = json;
    return true;
}

bool SyncHeader::sendDeletions()
{
    SyncRecord told;
    told.deletions = m_work.record.deletions;
    if (m_sentDeletions == told.deletions && m_passId != PassId::Send)
        return true;
    // What an item's deletion leaves over has to be kept before the others hear of it.
    if (m_work.result.state != SyncState::Done)
        return false;
    QString text;
    const QString path = m_work.mirror.path(SafeLayout::mirrorDeletions);
    return (!QFileInfo(path).isSymLink() &&
            encryptString(m_work.password(), told.toJson(), text, m_work.safe.environment.random) &&
            m_work.files().writeBytes(path, text.toLatin1())) ||
           m_work.fail(SyncSide::Mirror, path);
}

void SyncHeader::clearCopies()
{
    // A pass id tells nothing that its password does not.
    const QStringList copies = copiesOf(SafeLayout::passId);
    for (const QString &copy : copies) {
        const auto bytes = readPlainFile(m_work.files(), inMirror(copy));
        if (bytes && encryptedLength(*bytes) == encryptedPassIdLength)
            m_merged.append(inMirror(copy));
    }
    for (const QString &path : std::as_const(m_merged))
        m_work.files().remove(path);
}
