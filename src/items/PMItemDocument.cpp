#include "PMItemDocument.h"

#include "PMFieldTypes.h"
#include "PMItemFactory.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QVariant>

#include <array>

using PMFieldTypes::Date;
using PMFieldTypes::Phone;

namespace {

const int writtenVersion = 2;

const QLatin1String versionKey("version");
const QLatin1String typeKey("type");
const QLatin1String publicKey("public");
const QLatin1String privateKey("private");

QMetaEnum typeEnum()
{
    return QMetaEnum::fromType<PMListItem::Type>();
}

QStringList names(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

const QStringList &commonFieldNames()
{
    static const QStringList list =
        names("id type created modified lastAccessed useCount favorite deleted note title "
              "secondaryText refs filename hash icon url");
    return list;
}

// QVariant::toString of a date-time drops the zone and the milliseconds; a document keeps both.
QJsonValue encodeDateTime(const QDateTime &moment)
{
    return moment.isNull() ? QString() : moment.toUTC().toString(Qt::ISODateWithMs);
}

QJsonValue encode(const QMetaProperty &property, const QVariant &value)
{
    if (property.isEnumType()) {
        const char *key = property.enumerator().valueToKey(value.toInt());
        return QString::fromLatin1(key);
    }
    const int type = property.userType();
    if (type == qMetaTypeId<Date>())
        return value.value<Date>().toText();
    if (type == qMetaTypeId<Phone>())
        return value.value<Phone>().toText();
    if (type == QMetaType::QDateTime)
        return encodeDateTime(value.toDateTime());
    return QJsonValue::fromVariant(value);
}

/// An invalid variant when a text that is not that of the empty value gives the empty value.
template <typename Structure>
QVariant decodeStructure(const QString &text)
{
    const Structure value = Structure::fromText(text);
    const bool understood = !value.isEmpty() || text.isEmpty() || text == Structure().toText();
    return understood ? QVariant::fromValue(value) : QVariant();
}

/// An invalid variant when the value is none of the property's.
QVariant decode(const QMetaProperty &property, const QJsonValue &value)
{
    if (property.isEnumType()) {
        bool known = false;
        const QByteArray name = value.toString().toLatin1();
        const int number = property.enumerator().keyToValue(name.constData(), &known);
        return known ? QVariant(number) : QVariant();
    }
    const int type = property.userType();
    if (type == QMetaType::Int)
        return value.isDouble() ? QVariant(value.toInt()) : QVariant();
    if (type == QMetaType::Bool)
        return value.isBool() ? QVariant(value.toBool()) : QVariant();
    if (type == QMetaType::QStringList) {
        if (!value.isArray())
            return {};
        QStringList list;
        const QJsonArray entries = value.toArray();
        for (const QJsonValue &entry : entries) {
            if (entry.isString())
                list.append(entry.toString());
        }
        return list;
    }
    if (!value.isString())
        return {};
    const QString text = value.toString();
    if (type == qMetaTypeId<Date>())
        return decodeStructure<Date>(text);
    if (type == qMetaTypeId<Phone>())
        return decodeStructure<Phone>(text);
    if (type == QMetaType::QDateTime) {
        const QDateTime moment = QDateTime::fromString(text, Qt::ISODateWithMs).toUTC();
        return moment.isValid() || text.isEmpty() ? QVariant(moment) : QVariant();
    }
    return text;
}

QMetaProperty propertyOf(const PMListItem &item, const QString &name)
{
    const QMetaObject *meta = item.metaObject();
    return meta->property(meta->indexOfProperty(name.toLatin1().constData()));
}

QJsonValue defaultValue(const PMListItem &item, const QMetaProperty &property)
{
    const std::unique_ptr<PMListItem> fresh = makeItem(item.type());
    return encode(property, property.read(fresh.get()));
}

QJsonObject encodeFields(const PMListItem &item, const QStringList &fieldNames,
                         const QStringList &except, const QJsonObject &unknown)
{
    QJsonObject fields = unknown;
    for (const QString &name : fieldNames) {
        const QMetaProperty property = propertyOf(item, name);
        if (!property.isValid() || except.contains(name))
            continue;
        const QJsonValue value = encode(property, property.read(&item));
        // What was not understood on reading stays until there is a value in its place.
        const bool keepsUnknown = unknown.contains(name) && value == defaultValue(item, property);
        if (!keepsUnknown)
            fields.insert(name, value);
    }
    return fields;
}

/// Sets the fields that the item knows and returns the others, with those whose value it does not
/// understand.
QJsonObject applyFields(PMListItem &item, const QJsonObject &fields)
{
    QJsonObject unknown;
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        const QMetaProperty property = propertyOf(item, field.key());
        if (!property.isValid() || field.key() == QLatin1String("objectName")) {
            unknown.insert(field.key(), field.value());
            continue;
        }
        if (field.key() == typeKey)
            continue;
        const QVariant value = decode(property, field.value());
        if (value.isValid())
            property.write(&item, value);
        else
            unknown.insert(field.key(), field.value());
    }
    return unknown;
}

} // namespace

const QStringList &secretFieldNames(PMListItem::Type type)
{
    static const std::array<QStringList, PMListItem::UndefinedItem + 1> lists = {
        names("password login fillType strength url"),
        names("number expire bankPhone bankSite bank cardholder code cardType"),
        names("address phone pin iban swift number routing accountType name bankName"),
        names("firstName lastName birthDate email country phone phoneCell phoneBusiness zipCode "
              "state city addressLine1 addressLine2 website skype jobTitle company gender"),
        names("fullName nationality passportType birthPlace birthDate number authority issuedDate "
              "country expireDate"),
        names("name number"),
        names("fullName adress height birthDate number licenseClass conditions state country "
              "expireDate gender"),
        names("text"),
        names("password username server"),
        names("licenseKey version"),
        {},
        {},
    };
    const auto index = static_cast<std::size_t>(type);
    return index < lists.size() ? lists[index] : lists.back();
}

PMItemDocument PMItemDocument::fromItem(const PMListItem &item)
{
    const QStringList &secret = secretFieldNames(item.type());
    const PMListItem::UnknownKeys &unknown = item.unknownKeys();
    return {item.type(), encodeFields(item, commonFieldNames(), secret, unknown.publicFields),
            encodeFields(item, secret, {}, unknown.privateFields), unknown.document};
}

bool PMItemDocument::applyTo(PMListItem &item) const
{
    if (item.type() != type)
        return false;
    const QJsonObject unknownPublic = applyFields(item, publicFields);
    const QJsonObject unknownPrivate = applyFields(item, privateFields);
    item.setUnknownKeys({unknown, unknownPublic, unknownPrivate});
    return true;
}

std::unique_ptr<PMListItem> PMItemDocument::toItem() const
{
    std::unique_ptr<PMListItem> item = makeItem(type);
    if (!item || !applyTo(*item))
        return nullptr;
    item->markSaved(item->revision());
    return item;
}

std::optional<QByteArray> PMItemDocument::toJson(const Encrypt &encrypt) const
{
    QJsonObject document = unknown;
    document.insert(versionKey, writtenVersion);
    document.insert(publicKey, publicFields);
    document.insert(typeKey, QString::fromLatin1(typeEnum().valueToKey(type)));
    if (!privateFields.isEmpty() && encrypt) {
        QByteArray plain = QJsonDocument(privateFields).toJson(QJsonDocument::Compact);
        const std::optional<QString> secret = encrypt(plain);
        plain.fill('\0');
        if (!secret)
            return std::nullopt;
        document.insert(privateKey, *secret);
    } else if (!privateFields.isEmpty()) {
        document.insert(privateKey, privateFields);
    }
    return QJsonDocument(document).toJson(QJsonDocument::Compact);
}

std::optional<PMItemDocument> PMItemDocument::fromJson(const QByteArray &json,
                                                       const Decrypt &decrypt)
{
    const QJsonDocument parsed = QJsonDocument::fromJson(json);
    if (!parsed.isObject())
        return std::nullopt;
    QJsonObject object = parsed.object();
    if (object.value(versionKey).toInt() < writtenVersion || !object.value(publicKey).isObject() ||
        !object.value(typeKey).isString())
        return std::nullopt;

    bool known = false;
    const QByteArray typeName = object.value(typeKey).toString().toLatin1();
    const int type = typeEnum().keyToValue(typeName.constData(), &known);
    if (!known || type == PMListItem::UndefinedItem)
        return std::nullopt;

    PMItemDocument document;
    document.type = static_cast<PMListItem::Type>(type);
    document.publicFields = object.value(publicKey).toObject();
    const QJsonValue secret = object.value(privateKey);
    if (secret.isObject()) {
        document.privateFields = secret.toObject();
    } else if (secret.isString()) {
        std::optional<QByteArray> plain = decrypt ? decrypt(secret.toString()) : std::nullopt;
        if (!plain)
            return std::nullopt;
        const QJsonDocument fields = QJsonDocument::fromJson(*plain);
        plain->fill('\0');
        if (!fields.isObject())
            return std::nullopt;
        document.privateFields = fields.object();
    } else if (!secret.isUndefined()) {
        return std::nullopt;
    }
    for (const QLatin1String &key : {versionKey, typeKey, publicKey, privateKey})
        object.remove(key);
    document.unknown = object;
    return document;
}
