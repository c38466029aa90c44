#include "ImportJson.h"

#include "PMCreditCard.h"
#include "PMFieldTypes.h"
#include "SecretBytes.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

struct Key
{
    const char *key;
    const char *property; ///< null: known, and not kept
};
using Keys = QVector<Key>;

// Every other key with a value goes to the note with its name.
const Keys entryKeys{
    {"name", "title"},           {"notes", "note"},         {"id", nullptr},
    {"organizationId", nullptr}, {"folderId", nullptr},     {"collectionIds", nullptr},
    {"type", nullptr},           {"reprompt", nullptr},     {"object", nullptr},
    {"favorite", nullptr},       {"fields", nullptr},       {"creationDate", nullptr},
    {"revisionDate", nullptr},   {"deletedDate", nullptr},  {"archivedDate", nullptr},
    {"edit", nullptr},           {"viewPassword", nullptr}, {"key", nullptr},
    {"permissions", nullptr},    {"attachments", nullptr},  {"passwordHistory", nullptr},
    {"login", nullptr},          {"card", nullptr},         {"identity", nullptr},
    {"secureNote", nullptr},     {"sshKey", nullptr}};

const Keys loginKeys{
    {"username", "login"}, {"password", "password"},          {"uris", nullptr},
    {"uri", nullptr},      {"passwordRevisionDate", nullptr}, {"autofillOnPageLoad", nullptr}};

const Keys cardKeys{{"cardholderName", "cardholder"},
                    {"number", nullptr},
                    {"code", "code"},
                    {"brand", nullptr},
                    {"expMonth", nullptr},
                    {"expYear", nullptr}};

const Keys identityKeys{
    {"firstName", "firstName"},   {"lastName", "lastName"}, {"address1", "addressLine1"},
    {"address2", "addressLine2"}, {"city", "city"},         {"state", "state"},
    {"postalCode", "zipCode"},    {"country", "country"},   {"company", "company"},
    {"email", "email"},           {"phone", nullptr}};

QString textOf(const QJsonValue &value)
{
    if (value.isDouble())
        return QString::number(value.toDouble(), 'g', 15);
    if (value.isBool())
        return value.toBool() ? QStringLiteral("true") : QString();
    if (value.isArray() && !value.toArray().isEmpty())
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    if (value.isObject() && !value.toObject().isEmpty())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    return value.toString();
}

void append(QStringList &further, const QString &name, const QJsonValue &value)
{
    const QString text = textOf(value);
    if (!text.isEmpty())
        further.append(QStringLiteral("%1: %2").arg(name, text));
}

void takeKeys(ImportEntry &entry, const QJsonObject &object, const Keys &keys, QStringList &further)
{
    for (auto value = object.begin(); value != object.end(); ++value) {
        const auto key = std::find_if(keys.begin(), keys.end(), [&value](const Key &known) {
            return value.key() == QLatin1String(known.key);
        });
        if (key == keys.end())
            append(further, value.key(), value.value());
        else if (key->property)
            entry.set(key->property, textOf(value.value()));
    }
}

void takeLogin(ImportEntry &entry, const QJsonObject &login, QStringList &further)
{
    takeKeys(entry, login, loginKeys, further);
    QStringList list;
    const QJsonArray uris = login.value(QLatin1String("uris")).toArray();
    for (const QJsonValue &value : uris) {
        const QString uri = value.toObject().value(QLatin1String("uri")).toString();
        if (!uri.isEmpty())
            list.append(uri);
    }
    const QString only = login.value(QLatin1String("uri")).toString();
    if (list.isEmpty() && !only.isEmpty())
        list.append(only);
    setAddresses(entry, list, further);
}

void takeExpiry(ImportEntry &entry, const QJsonObject &card, QStringList &further)
{
    const QJsonValue monthValue = card.value(QLatin1String("expMonth"));
    const QJsonValue yearValue = card.value(QLatin1String("expYear"));
    const int month = textOf(monthValue).toInt();
    const int year = textOf(yearValue).toInt();
    if (year >= 1900 && year <= 9999 && month >= 1 && month <= 12) {
        entry.set("expire", QVariant::fromValue(PMFieldTypes::Date{year, month, 1}));
        return;
    }
    append(further, QStringLiteral("expMonth"), monthValue);
    append(further, QStringLiteral("expYear"), yearValue);
}

void takeCard(ImportEntry &entry, const QJsonObject &card, QStringList &further)
{
    takeKeys(entry, card, cardKeys, further);
    takeExpiry(entry, card, further);
    QString number = textOf(card.value(QLatin1String("number")));
    entry.set("number", number.remove(QLatin1Char(' ')));
    const QString brand = card.value(QLatin1String("brand")).toString();
    const QString plain = brand.toLower();
    if (plain == QLatin1String("visa"))
        entry.set("cardType", PMCreditCard::Visa);
    else if (plain == QLatin1String("mastercard"))
        entry.set("cardType", PMCreditCard::MasterCard);
    else
        append(further, QStringLiteral("brand"), brand);
}

void takeIdentity(ImportEntry &entry, const QJsonObject &identity, QStringList &further)
{
    takeKeys(entry, identity, identityKeys, further);
    const QString phone = identity.value(QLatin1String("phone")).toString();
    if (!phone.isEmpty())
        entry.set("phone", QVariant::fromValue(PMFieldTypes::Phone{{}, phone}));
}

void takeSshKey(ImportEntry &entry, const QJsonObject &sshKey, QStringList &further)
{
    takeKeys(entry, sshKey, {}, further);
}

/// Fields of the user's own, and what the password was before.
void takeLists(const QJsonObject &object, QStringList &further)
{
    const QJsonArray fields = object.value(QLatin1String("fields")).toArray();
    for (const QJsonValue &value : fields) {
        const QJsonObject field = value.toObject();
        further.append(QStringLiteral("%1: %2").arg(field.value(QLatin1String("name")).toString(),
                                                    textOf(field.value(QLatin1String("value")))));
    }
    const QJsonArray former = object.value(QLatin1String("passwordHistory")).toArray();
    for (const QJsonValue &value : former) {
        const QJsonObject one = value.toObject();
        further.append(QStringLiteral("former password (%1): %2")
                           .arg(one.value(QLatin1String("lastUsedDate")).toString().left(10),
                                one.value(QLatin1String("password")).toString()));
    }
}

void takeTime(ImportEntry &entry, const char *property, const QJsonValue &value)
{
    const QDateTime time = QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
    if (time.isValid())
        entry.set(property, time.toUTC());
}

struct Kind
{
    int number;
    PMListItem::Type type;
    const char *key;
    void (*take)(ImportEntry &, const QJsonObject &, QStringList &);
};

const Kind kinds[] = {{1, PMListItem::Login, "login", takeLogin},
                      {2, PMListItem::SecureNote, nullptr, nullptr},
                      {3, PMListItem::CreditCard, "card", takeCard},
                      {4, PMListItem::Identity, "identity", takeIdentity},
                      {5, PMListItem::SecureNote, "sshKey", takeSshKey}};

using Folders = QHash<QString, QString>; ///< names by ids

ImportEntry readEntry(const QJsonObject &object, const Folders &folders)
{
    ImportEntry entry;
    const auto *kind = std::find_if(std::begin(kinds), std::end(kinds), [&object](const Kind &k) {
        return k.number == object.value(QLatin1String("type")).toInt();
    });
    QStringList further;
    takeKeys(entry, object, entryKeys, further);
    if (kind == std::end(kinds)) {
        entry.fault = ImportEntry::UnknownKind;
        return entry;
    }
    entry.type = kind->type;
    if (kind->take)
        kind->take(entry, object.value(QLatin1String(kind->key)).toObject(), further);
    takeLists(object, further);
    append(further, QStringLiteral("folder"),
           folders.value(object.value(QLatin1String("folderId")).toString()));
    if (object.value(QLatin1String("favorite")).toBool())
        entry.set("favorite", true);
    takeTime(entry, "created", object.value(QLatin1String("creationDate")));
    takeTime(entry, "modified", object.value(QLatin1String("revisionDate")));
    finishEntry(entry, further);
    return entry;
}

Folders readFolders(const QJsonObject &document)
{
    Folders folders;
    const QJsonArray list = document.value(QLatin1String("folders")).toArray();
    for (const QJsonValue &value : list) {
        const QJsonObject folder = value.toObject();
        folders.insert(folder.value(QLatin1String("id")).toString(),
                       folder.value(QLatin1String("name")).toString());
    }
    return folders;
}

ImportEntry readOwnEntry(const QJsonObject &object)
{
    ImportEntry entry;
    QJsonObject fields = object;
    const QJsonArray attachments = fields.take(QLatin1String("attachments")).toArray();
    QByteArray json = QJsonDocument(fields).toJson(QJsonDocument::Compact);
    std::optional<PMItemDocument> document = PMItemDocument::fromJson(json, {});
    wipe(json);
    if (!document || document->type == PMListItem::Attachment) {
        entry.fault = ImportEntry::UnknownKind;
        return entry;
    }
    // It becomes another item than the one that it was.
    for (const char *key : {"id", "refs", "deleted"})
        document->publicFields.remove(QLatin1String(key));
    entry.type = document->type;
    entry.document = std::make_shared<const PMItemDocument>(*document);
    QStringList note{entry.text("note")};
    note.removeAll(QString());
    for (const QJsonValue &name : attachments)
        note.append(QStringLiteral("attachment: %1").arg(name.toString()));
    if (!attachments.isEmpty())
        entry.set("note", note.join(QLatin1Char('\n')));
    return entry;
}

} // namespace

ImportFile readImportJson(const QByteArray &bytes)
{
    ImportFile file;
    const QByteArray plain = bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes;
    const QJsonObject document = QJsonDocument::fromJson(plain).object();
    if (document.value(QLatin1String("encrypted")).toBool()) {
        // Its items hold nothing that could be read.
        file.problem = ImportFile::Encrypted;
        return file;
    }
    const QJsonValue items = document.value(QLatin1String("items"));
    if (!items.isArray()) {
        file.problem = ImportFile::UnknownJson;
        return file;
    }
    const bool isOwn = document.value(QLatin1String("format")) == QLatin1String(ownJsonFormat);
    file.format = isOwn ? ImportFile::OwnJson : ImportFile::BitwardenJson;
    const Folders folders = readFolders(document);
    const QJsonArray list = items.toArray();
    for (const QJsonValue &item : list) {
        file.entries.push_back(isOwn ? readOwnEntry(item.toObject())
                                     : readEntry(item.toObject(), folders));
        file.entries.back().number = static_cast<int>(file.entries.size());
    }
    return file;
}
