#include "SafeDescription.h"

#include <QJsonDocument>

namespace {

const QLatin1String versionKey("version");
const QLatin1String nameKey("name");
const QLatin1String createdKey("created");
const QLatin1String modifiedKey("modified");
const QLatin1String hintKey("hint");
const QLatin1String passIdKey("pass_id");

/// A number, or a string that holds one in decimal; 0 for anything else.
qint64 milliseconds(const QJsonValue &value)
{
    return value.isString() ? value.toString().toLongLong() : static_cast<qint64>(value.toDouble());
}

} // namespace

QByteArray SafeDescription::toJson() const
{
    QJsonObject object = unknown;
    object.insert(versionKey, version);
    object.insert(nameKey, name);
    object.insert(createdKey, created);
    object.insert(modifiedKey, modified);
    object.insert(hintKey, hint);
    // An older safe may have it nowhere else.
    if (!passId.isEmpty())
        object.insert(passIdKey, passId);
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

std::optional<SafeDescription> SafeDescription::fromJson(const QJsonObject &object)
{
    SafeDescription description;
    description.unknown = object;
    for (const QLatin1String &key :
         {versionKey, nameKey, createdKey, modifiedKey, hintKey, passIdKey})
        description.unknown.remove(key);
    if (description.unknown.size() == object.size())
        return std::nullopt;

    description.version = object.value(versionKey).toInt(description.version);
    description.name = object.value(nameKey).toString();
    description.created = milliseconds(object.value(createdKey));
    description.modified = milliseconds(object.value(modifiedKey));
    description.hint = object.value(hintKey).toString();
    description.passId = object.value(passIdKey).toString();
    return description;
}
