#include "SyncVersions.h"

#include "SafeCrypto.h"
#include "SafeLayout.h"
#include "SyncFileName.h"

#include <QCryptographicHash>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {

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

} // namespace

SyncVersions::SyncVersions(SafeEnvironment environment, std::shared_ptr<const SecretBytes> password,
                           Side local, Side mirror, const SyncRecord &record)
    : m_environment(std::move(environment))
    , m_password(std::move(password))
    , m_local(std::move(local))
    , m_mirror(std::move(mirror))
    , m_record(record)
{
}

bool SyncVersions::isSettled(const QString &path, FileStamp SyncRecord::File::*stamp,
                             const FileStamp &now) const
{
    const auto file = m_record.files.find(path);
    return file != m_record.files.end() && (*file).*stamp == now;
}

QStringList SyncVersions::openIds() const
{
    QSet<QString> ids;
    const auto add = [&ids](const QString &fileName) {
        if (const auto name = SyncFileName::parse(fileName))
            ids.insert(name->item.id);
    };
    const auto compare = [&](const char *folder, const QMap<QString, FileStamp> &local,
                             const QMap<QString, FileStamp> &mirror) {
        for (auto file = local.begin(); file != local.end(); ++file) {
            const QString path = pathIn(folder, file.key());
            const auto other = mirror.find(file.key());
            if (other == mirror.end() || !isSettled(path, &SyncRecord::File::local, file.value()) ||
                !isSettled(path, &SyncRecord::File::mirror, other.value()))
                add(file.key());
        }
        for (auto file = mirror.begin(); file != mirror.end(); ++file) {
            if (!local.contains(file.key()))
                add(file.key());
        }
    };
    compare(SafeLayout::content, m_local.listing.content, m_mirror.listing.content);
    compare(SafeLayout::attachment, m_local.listing.attachment, m_mirror.listing.attachment);
    for (auto each = m_record.deletions.begin(); each != m_record.deletions.end(); ++each) {
        const auto isThere = [&each](const Side &side) {
            const auto file = side.listing.content.lowerBound(each.key());
            return file != side.listing.content.end() && file.key().startsWith(each.key());
        };
        if (each->counts() && (isThere(m_local) || isThere(m_mirror)))
            ids.insert(each.key());
    }
    QStringList sorted(ids.begin(), ids.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

SyncVersions::Item SyncVersions::read(const QString &id) const
{
    Item item;
    item.plan.id = id;
    const QString prefix = pathIn(SafeLayout::content, id);
    for (auto file = m_record.files.lowerBound(prefix);
         file != m_record.files.end() && file.key().startsWith(prefix); ++file)
        item.plan.met = SyncItem::Met{file->hash, file->modified};
    const auto deletion = m_record.deletions.find(id);
    if (deletion != m_record.deletions.end() && deletion->counts())
        item.plan.deleted = deletion->time;
    readAttachments(m_local, id, item);
    readAttachments(m_mirror, id, item);
    item.plan.local = readSide(m_local, true, id, item);
    item.plan.mirror = readSide(m_mirror, false, id, item);
    return item;
}

void SyncVersions::readAttachments(const Side &side, const QString &id, Item &item) const
{
    const auto &files = side.listing.attachment;
    for (auto file = files.lowerBound(id); file != files.end() && file.key().startsWith(id);
         ++file) {
        const QString path =
            side.folder.path(SafeLayout::attachment) + QLatin1Char('/') + file.key();
        const QString hash = fileHash(path);
        if (!hash.isEmpty() && !item.attachments.contains(hash))
            item.attachments.insert(hash, path);
    }
}

QVector<SyncVersion> SyncVersions::readSide(const Side &side, bool isLocal, const QString &id,
                                            Item &item) const
{
    QVector<SyncVersion> versions;
    const auto &files = side.listing.content;
    for (auto file = files.lowerBound(id); file != files.end() && file.key().startsWith(id);
         ++file) {
        const auto name = SyncFileName::parse(file.key());
        // Conflict copies are the mirror's affair; in the safe they would be the user's own files.
        if (!name || (isLocal && name->conflictCopy))
            continue;
        const QString path = side.folder.path(SafeLayout::content) + QLatin1Char('/') + file.key();
        SyncVersion version;
        version.fileName = file.key();
        version.item = name->item;
        version.conflictCopy = name->conflictCopy;
        version.hash = fileHash(path);
        if (!item.documents.contains(version.hash)) {
            auto document = readItemFile(*m_environment.files, path, m_password->view());
            if (document && fileHash(path) == version.hash)
                item.documents.insert(version.hash, *document);
        }
        const auto document = item.documents.find(version.hash);
        if (document != item.documents.end()) {
            const QString bytes = document->publicFields.value(QStringLiteral("hash")).toString();
            version.readable =
                document->type != PMListItem::Attachment || item.attachments.contains(bytes);
            version.modified = modifiedOf(*document);
            version.content = contentOf(*document);
        }
        versions.append(version);
    }
    return versions;
}
