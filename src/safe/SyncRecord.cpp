#include "SyncRecord.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

const int writtenVersion = 1;

const QLatin1String versionKey("version");
const QLatin1String filesKey("files");
const QLatin1String deletedKey("deleted");
const QLatin1String descriptionKey("description");
const QLatin1String passIdKey("passId");
const QLatin1String nameKey("name");
const QLatin1String hashKey("hash");
const QLatin1String lengthKey("length");
const QLatin1String timeKey("time");
const QLatin1String mirrorTimeKey("mirrorTime");
const QLatin1String modifiedKey("modified");
const QLatin1String revivedKey("revived");
const QLatin1String earlierKey("earlier");
const QLatin1String seenKey("seen");
const QLatin1String unreadKey("unread");
const QLatin1String sinceKey("since");
const QLatin1String waitsKey("waits");
const QLatin1String stuckKey("stuck");
const QLatin1String earlierPassIdsKey("earlierPassIds");
const QLatin1String formerKey("former");

const int longestHistory = 32;
const int mostUnread = 10000;

qint64 number(const QJsonObject &object, QLatin1String key, qint64 otherwise)
{
    return static_cast<qint64>(object.value(key).toDouble(static_cast<double>(otherwise)));
}

void insertHistory(QJsonObject &object, QLatin1String key, const SyncHistory &history)
{
    QJsonArray times;
    for (const qint64 time : history)
        times.append(time);
    if (!times.isEmpty())
        object.insert(key, times);
}

SyncHistory readHistory(const QJsonObject &object, QLatin1String key)
{
    SyncHistory history;
    const QJsonArray times = object.value(key).toArray();
    for (const QJsonValue &time : times) {
        if (time.isDouble())
            history.append(static_cast<qint64>(time.toDouble()));
    }
    return joined(history, {});
}

QStringList readTexts(const QJsonValue &list)
{
    QStringList texts;
    const QJsonArray values = list.toArray();
    for (const QJsonValue &value : values)
        texts.append(value.toString());
    return texts;
}

} // namespace

SyncHistory joined(const SyncHistory &history, const SyncHistory &more)
{
    SyncHistory all = history + more;
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    return all.mid(std::max(0, all.size() - longestHistory));
}

SyncHistory before(const SyncHistory &history, qint64 modified)
{
    const auto end = std::lower_bound(history.begin(), history.end(), modified);
    return history.mid(0, static_cast<int>(end - history.begin()));
}

void SyncRecord::setPassId(const QString &hash)
{
    if (!passId.isEmpty() && hash != passId) {
        earlierPassIds.removeAll(passId);
        earlierPassIds.append(passId);
        earlierPassIds = earlierPassIds.mid(std::max(0, earlierPassIds.size() - longestHistory));
    }
    passId = hash;
}

void SyncRecord::addDeletions(const Deletions &more)
{
    for (auto each = more.begin(); each != more.end(); ++each) {
        Deletion &known = deletions[each.key()];
        known.time = std::max(known.time, each->time);
        known.revived = std::max(known.revived, each->revived);
        known.seen = joined(known.seen, each->seen);
    }
}

QByteArray SyncRecord::toJson() const
{
    QJsonArray fileList;
    for (auto file = files.begin(); file != files.end(); ++file) {
        QJsonObject entry{{nameKey, file.key()},
                          {hashKey, file->hash},
                          {lengthKey, file->local.length},
                          {timeKey, file->local.time},
                          {mirrorTimeKey, file->mirror.time},
                          {modifiedKey, file->modified}};
        insertHistory(entry, earlierKey, file->earlier);
        fileList.append(entry);
    }
    QJsonArray deletedList;
    for (auto deleted = deletions.begin(); deleted != deletions.end(); ++deleted) {
        QJsonObject entry{
            {nameKey, deleted.key()}, {timeKey, deleted->time}, {revivedKey, deleted->revived}};
        insertHistory(entry, seenKey, deleted->seen);
        deletedList.append(entry);
    }
    QJsonArray unreadList;
    for (auto file = unread.begin(); file != unread.end() && unreadList.size() < mostUnread; ++file)
        unreadList.append(QJsonObject{{nameKey, file.key()},
                                      {hashKey, file->hash},
                                      {lengthKey, file->stamp.length},
                                      {mirrorTimeKey, file->stamp.time},
                                      {sinceKey, file->since},
                                      {waitsKey, file->waits},
                                      {stuckKey, file->stuck}});
    QJsonObject formerLists;
    for (auto each = former.begin(); each != former.end(); ++each)
        formerLists.insert(each.key(), QJsonArray::fromStringList(each.value()));
    const QJsonObject object{{versionKey, writtenVersion},
                             {filesKey, fileList},
                             {deletedKey, deletedList},
                             {descriptionKey, QString::fromUtf8(description)},
                             {passIdKey, passId},
                             {unreadKey, unreadList},
                             {formerKey, formerLists},
                             {earlierPassIdsKey, QJsonArray::fromStringList(earlierPassIds)}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<SyncRecord> SyncRecord::fromJson(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    if (object.value(versionKey).toInt() != writtenVersion || !object.value(filesKey).isArray() ||
        !object.value(deletedKey).isArray())
        return std::nullopt;
    SyncRecord record;
    record.description = object.value(descriptionKey).toString().toUtf8();
    record.passId = object.value(passIdKey).toString();
    record.earlierPassIds = readTexts(object.value(earlierPassIdsKey));
    const QJsonObject formerLists = object.value(formerKey).toObject();
    for (auto each = formerLists.begin(); each != formerLists.end(); ++each)
        record.former.insert(each.key(), readTexts(each.value()));
    const QJsonArray unreadList = object.value(unreadKey).toArray();
    for (const QJsonValue &value : unreadList) {
        const QJsonObject file = value.toObject();
        record.unread.insert(file.value(nameKey).toString(),
                             {file.value(hashKey).toString(),
                              {number(file, lengthKey, -1), number(file, mirrorTimeKey, 0)},
                              number(file, sinceKey, 0),
                              file.value(waitsKey).toBool(),
                              file.value(stuckKey).toBool()});
    }
    const QJsonArray fileList = object.value(filesKey).toArray();
    for (const QJsonValue &value : fileList) {
        const QJsonObject file = value.toObject();
        const QString name = file.value(nameKey).toString();
        const QString hash = file.value(hashKey).toString();
        if (name.isEmpty() || hash.isEmpty())
            continue;
        const qint64 length = number(file, lengthKey, -1);
        record.files.insert(name, {hash,
                                   {length, number(file, timeKey, 0)},
                                   {length, number(file, mirrorTimeKey, 0)},
                                   number(file, modifiedKey, 0),
                                   readHistory(file, earlierKey)});
    }
    const QJsonArray deletedList = object.value(deletedKey).toArray();
    for (const QJsonValue &value : deletedList) {
        const QJsonObject deleted = value.toObject();
        const QString id = deleted.value(nameKey).toString();
        if (!id.isEmpty() && deleted.value(timeKey).isDouble())
            record.addDeletions({{id,
                                  {number(deleted, timeKey, 0), number(deleted, revivedKey, 0),
                                   readHistory(deleted, seenKey)}}});
    }
    return record;
}
