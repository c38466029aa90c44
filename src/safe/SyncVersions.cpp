#include "SyncVersions.h"

#include "SafeCrypto.h"
#include "SafeLayout.h"
#include "SyncFileName.h"

#include <QCryptographicHash>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {

const qint64 stuckAfterMs = 24LL * 60 * 60 * 1000;

QString pathIn(const char *folder, const QString &fileName)
{
    return QLatin1String(folder) + QLatin1Char('/') + fileName;
}

qint64 modifiedOf(const PMItemDocument &document)
{
    const QString text = document.publicFields.value(QStringLiteral("modified")).toString();
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODateWithMs);
    return moment.isValid() ? moment.toMSecsSinceEpoch() : 0;
}

/// What makes two documents the same to the user. Lives in memory only: it would tell who guesses
/// that he was right.
QByteArray contentOf(const PMItemDocument &document)
{
    PMItemDocument same = document;
    for (const char *field : {"id", "hash", "lastAccessed", "useCount"})
        same.publicFields.remove(QLatin1String(field));
    std::optional<QByteArray> json = same.toJson({});
    if (!json)
        return {};
    const QByteArray sum = QCryptographicHash::hash(*json, QCryptographicHash::Sha256);
    wipe(*json);
    return sum;
}

/// Another item's file put in the place of this one's is none of its versions.
bool isOf(const PMItemDocument &document, const QString &id)
{
    const QString named = document.publicFields.value(QStringLiteral("id")).toString();
    return named.isEmpty() || named.compare(id, Qt::CaseInsensitive) == 0;
}

/// Calls `use` for each file of an item, of whatever generation.
template <typename Use>
void forEachFile(const QMap<QString, FileStamp> &files, const QString &id, Use use)
{
    for (auto file = files.lowerBound(id); file != files.end() && file.key().startsWith(id); ++file)
        use(file.key(), file.value());
}

QString idOf(const QString &fileName)
{
    const auto name = SyncFileName::parse(fileName);
    return name ? name->item.id : QString();
}

} // namespace

SyncVersions::SyncVersions(SyncWork &work, SyncListing local, SyncListing mirror)
    : m_work(work)
    , m_local(std::move(local))
    , m_mirror(std::move(mirror))
{
    const auto passId = work.files().read(work.safe.folder.path(SafeLayout::passId));
    m_passwordIsMet = passId && hashOf(*passId) == work.record.passId;
}

bool SyncVersions::isSettled(const QString &path, SyncSide side, const FileStamp &now) const
{
    const auto file = m_work.record.files.constFind(path);
    return file != m_work.record.files.constEnd() &&
           (side == SyncSide::Local ? file->local : file->mirror) == now;
}

const SyncRecord::Unread *SyncVersions::unread(const QString &fileName,
                                               const FileStamp &stamp) const
{
    const auto known = m_work.record.unread.constFind(fileName);
    const bool same =
        m_passwordIsMet && known != m_work.record.unread.constEnd() && known->stamp == stamp;
    return same ? &known.value() : nullptr;
}

bool SyncVersions::isOld(const SyncRecord::Unread &file) const
{
    return m_work.now() - file.since >= stuckAfterMs;
}

QStringList SyncVersions::openIds() const
{
    QSet<QString> ids;
    const auto isLeft = [this](const char *folder, const QString &name, const FileStamp &stamp) {
        if (folder != SafeLayout::content)
            return false;
        const SyncRecord::Unread *known = unread(name, stamp);
        return known && known->stuck == isOld(*known);
    };
    const auto compare = [&](const char *folder, const QMap<QString, FileStamp> &local,
                             const QMap<QString, FileStamp> &mirror) {
        for (auto file = local.begin(); file != local.end(); ++file) {
            const QString path = pathIn(folder, file.key());
            const auto other = mirror.find(file.key());
            const bool left = other != mirror.end() && isLeft(folder, file.key(), other.value());
            if (!left &&
                (other == mirror.end() || !isSettled(path, SyncSide::Local, file.value()) ||
                 !isSettled(path, SyncSide::Mirror, other.value())))
                ids.insert(idOf(file.key()));
        }
        for (auto file = mirror.begin(); file != mirror.end(); ++file) {
            if (!local.contains(file.key()) && !isLeft(folder, file.key(), file.value()))
                ids.insert(idOf(file.key()));
        }
    };
    compare(SafeLayout::content, m_local.content, m_mirror.content);
    compare(SafeLayout::attachment, m_local.attachment, m_mirror.attachment);
    const SyncRecord::Deletions &deletions = m_work.record.deletions;
    for (auto each = deletions.begin(); each != deletions.end(); ++each) {
        if (each->counts() && (SyncListing::hasItem(m_local.content, each.key()) ||
                               SyncListing::hasItem(m_mirror.content, each.key())))
            ids.insert(each.key());
    }
    QStringList sorted(ids.begin(), ids.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

QStringList SyncVersions::waitingIds(const QStringList &open) const
{
    QStringList ids;
    const auto &files = m_work.record.unread;
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString id = idOf(file.key());
        if (file->waits && m_mirror.content.contains(file.key()) && !ids.contains(id) &&
            !std::binary_search(open.begin(), open.end(), id))
            ids.append(id);
    }
    return ids;
}

bool SyncVersions::isAsMet(const QString &id)
{
    const auto deletion = m_work.record.deletions.constFind(id);
    if (deletion != m_work.record.deletions.constEnd() && deletion->counts())
        return false;
    return isAsMet(SafeLayout::content, m_local.content, m_mirror.content, id) &&
           isAsMet(SafeLayout::attachment, m_local.attachment, m_mirror.attachment, id);
}

bool SyncVersions::isAsMet(const char *folder, const QMap<QString, FileStamp> &local,
                           const QMap<QString, FileStamp> &mirror, const QString &id)
{
    int here = 0;
    int there = 0;
    bool same = true;
    const auto check = [&](SyncSide side, const QString &name, const FileStamp &stamp) {
        ++(side == SyncSide::Local ? here : there);
        const QString path = pathIn(folder, name);
        const auto met = m_work.record.files.find(path);
        if (!same || met == m_work.record.files.end() || met->local.length != stamp.length) {
            same = false;
            return;
        }
        FileStamp &known = side == SyncSide::Local ? met->local : met->mirror;
        if (known == stamp)
            return;
        const QString file = m_work.folder(side).root() + QLatin1Char('/') + path;
        same = hashOfFile(m_work.files(), file, m_work.control) == met->hash;
        if (same)
            known = settled(stamp, listing(side).taken);
    };
    forEachFile(local, id, [&](const QString &name, const FileStamp &stamp) {
        check(SyncSide::Local, name, stamp);
    });
    forEachFile(mirror, id, [&](const QString &name, const FileStamp &stamp) {
        check(SyncSide::Mirror, name, stamp);
    });
    return same && here == there;
}

SyncVersions::Item SyncVersions::read(const QString &id) const
{
    Item item;
    item.plan.id = id;
    const QString prefix = pathIn(SafeLayout::content, id);
    const SyncRecord &record = m_work.record;
    for (auto file = record.files.lowerBound(prefix);
         file != record.files.end() && file.key().startsWith(prefix); ++file)
        item.plan.met = SyncItem::Met{file->hash, file->modified, file->earlier};
    item.plan.former = record.former.value(id);
    const auto deletion = record.deletions.find(id);
    if (deletion != record.deletions.end() && deletion->counts())
        item.plan.deleted = SyncItem::Deletion{deletion->time, deletion->seen};
    readAttachments(SyncSide::Local, id, item);
    readAttachments(SyncSide::Mirror, id, item);
    item.plan.local = readSide(SyncSide::Local, id, item);
    item.plan.mirror = readSide(SyncSide::Mirror, id, item);
    return item;
}

void SyncVersions::readAttachments(SyncSide side, const QString &id, Item &item) const
{
    const QString folder = m_work.folder(side).path(SafeLayout::attachment) + QLatin1Char('/');
    forEachFile(listing(side).attachment, id, [&](const QString &name, const FileStamp &stamp) {
        if (isTooLong(stamp, true))
            return;
        const QString path = folder + name;
        const QString met = pathIn(SafeLayout::attachment, name);
        const QString hash = isSettled(met, side, stamp)
                                 ? m_work.record.files.value(met).hash
                                 : hashOfFile(m_work.files(), path, m_work.control);
        if (hash.isEmpty())
            return;
        item.attachmentHashes.insert(path, hash);
        if (!item.attachments.contains(hash))
            item.attachments.insert(hash, path);
    });
}

QVector<SyncVersion> SyncVersions::readSide(SyncSide side, const QString &id, Item &item) const
{
    QVector<SyncVersion> versions;
    forEachFile(listing(side).content, id, [&](const QString &name, const FileStamp &stamp) {
        versions.append(readFile(side, name, stamp, item));
    });
    return versions;
}

SyncVersion SyncVersions::readFile(SyncSide side, const QString &fileName, const FileStamp &stamp,
                                   Item &item) const
{
    const auto name = SyncFileName::parse(fileName);
    SyncVersion version;
    version.fileName = fileName;
    version.item = name->item;
    version.conflictCopy = name->conflictCopy;
    if (side == SyncSide::Mirror) {
        if (const SyncRecord::Unread *known = unread(fileName, stamp)) {
            version.hash = known->hash;
            version.stuck = isOld(*known);
            return version;
        }
    }
    if (isTooLong(stamp, false))
        return version;
    const QString path =
        m_work.folder(side).path(SafeLayout::content) + QLatin1Char('/') + fileName;
    version.hash = hashOfFile(m_work.files(), path, m_work.control);
    if (version.hash.isEmpty())
        return version;
    if (!item.documents.contains(version.hash)) {
        auto document = readItemFile(m_work.files(), path, m_work.password());
        if (document && (side == SyncSide::Local || isOf(*document, item.plan.id)) &&
            hashOfFile(m_work.files(), path, m_work.control) == version.hash)
            item.documents.insert(version.hash, *document);
    }
    const auto document = item.documents.constFind(version.hash);
    if (document == item.documents.constEnd()) {
        const auto known = m_work.record.unread.constFind(fileName);
        version.stuck = side == SyncSide::Mirror && known != m_work.record.unread.constEnd() &&
                        known->hash == version.hash && isOld(*known);
        return version;
    }
    const QString bytes = document->publicFields.value(QStringLiteral("hash")).toString();
    version.readable = document->type != PMListItem::Attachment || item.attachments.contains(bytes);
    version.modified = modifiedOf(*document);
    version.content = contentOf(*document);
    return version;
}

void SyncVersions::noteUnread(const Item &item, bool waits)
{
    auto &files = m_work.record.unread;
    for (const SyncVersion &version : item.plan.mirror) {
        const auto known = files.constFind(version.fileName);
        const bool same = known != files.constEnd() && known->hash == version.hash;
        // One whose bytes have not arrived is tried again.
        const bool isRead = version.readable || item.documents.contains(version.hash);
        if (isRead || m_work.control.isCancelled()) {
            files.remove(version.fileName);
            continue;
        }
        const qint64 since = same ? std::min(known->since, m_work.now()) : m_work.now();
        files.insert(version.fileName,
                     {version.hash,
                      settled(m_mirror.content.value(version.fileName), m_mirror.taken), since,
                      waits, version.stuck});
    }
}

void SyncVersions::forgetUnread()
{
    auto &files = m_work.record.unread;
    for (auto file = files.begin(); file != files.end();)
        file = m_mirror.content.contains(file.key()) ? std::next(file) : files.erase(file);
}

QString SyncVersions::unreadableHere() const
{
    QString before;
    for (auto file = m_local.content.begin(); file != m_local.content.end(); ++file) {
        const QString id = idOf(file.key());
        if (id == before)
            continue;
        before = id;
        Item item;
        const QVector<SyncVersion> versions = readSide(SyncSide::Local, id, item);
        if (item.documents.isEmpty() && !m_work.control.isCancelled())
            return id;
    }
    return {};
}
