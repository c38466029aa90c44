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

qint64 number(const QJsonObject &object, QLatin1String key, qint64 otherwise)
{
    return static_cast<qint64>(object.value(key).toDouble(static_cast<double>(otherwise)));
}

} // namespace

void SyncRecord::addDeletions(const Deletions &more)
{
    for (auto each = more.begin(); each != more.end(); ++each) {
        Deletion &known = deletions[each.key()];
        known.time = std::max(known.time, each->time);
        known.revived = std::max(known.revived, each->revived);
    }
}

QByteArray SyncRecord::toJson() const
{
    QJsonArray fileList;
    for (auto file = files.begin(); file != files.end(); ++file) {
        fileList.append(QJsonObject{{nameKey, file.key()},
                                    {hashKey, file->hash},
                                    {lengthKey, file->local.length},
                                    {timeKey, file->local.time},
                                    {mirrorTimeKey, file->mirror.time},
                                    {modifiedKey, file->modified}});
    }
    QJsonArray deletedList;
    for (auto deleted = deletions.begin(); deleted != deletions.end(); ++deleted)
        deletedList.append(QJsonObject{
            {nameKey, deleted.key()}, {timeKey, deleted->time}, {revivedKey, deleted->revived}});
    const QJsonObject object{{versionKey, writtenVersion},
                             {filesKey, fileList},
                             {deletedKey, deletedList},
                             {descriptionKey, QString::fromUtf8(description)},
                             {passIdKey, passId}};
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
                                   number(file, modifiedKey, 0)});
    }
    const QJsonArray deletedList = object.value(deletedKey).toArray();
    for (const QJsonValue &value : deletedList) {
        const QJsonObject deleted = value.toObject();
        const QString id = deleted.value(nameKey).toString();
        if (!id.isEmpty() && deleted.value(timeKey).isDouble())
            record.addDeletions(
                {{id, {number(deleted, timeKey, 0), number(deleted, revivedKey, 0)}}});
    }
    return record;
}
