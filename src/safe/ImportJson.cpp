#include "ImportJson.h"

#include "PMCreditCard.h"
#include "PMFieldTypes.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

struct Key
{
    const char *key;
    const char *property; ///< null: goes to the note with the key as its name
};

const QVector<Key> commonKeys{{"name", "title"}, {"notes", "note"}};

const QVector<Key> loginKeys{{"username", "login"}, {"password", "password"}, {"totp", nullptr}};

const QVector<Key> cardKeys{
    {"cardholderName", "cardholder"}, {"number", "number"}, {"code", "code"}};

const QVector<Key> identityKeys{
    {"firstName", "firstName"},   {"lastName", "lastName"},  {"address1", "addressLine1"},
    {"address2", "addressLine2"}, {"city", "city"},          {"state", "state"},
    {"postalCode", "zipCode"},    {"country", "country"},    {"company", "company"},
    {"email", "email"},           {"title", nullptr},        {"middleName", nullptr},
    {"address3", nullptr},        {"ssn", nullptr},          {"username", nullptr},
    {"passportNumber", nullptr},  {"licenseNumber", nullptr}};

QString textOf(const QJsonValue &value)
{
    return value.isDouble() ? QString::number(value.toDouble(), 'g', 15) : value.toString();
}

void takeKeys(ImportEntry &entry, const QJsonObject &object, const QVector<Key> &keys,
              QStringList &further)
{
    for (const Key &key : keys) {
        const QString value = textOf(object.value(QLatin1String(key.key)));
        if (value.isEmpty())
            continue;
        if (key.property)
            entry.fields.append({key.property, value});
        else
            further.append(QStringLiteral("%1: %2").arg(QLatin1String(key.key), value));
    }
}

void takeLogin(ImportEntry &entry, const QJsonObject &login, QStringList &further)
{
    takeKeys(entry, login, loginKeys, further);
    const QJsonArray uris = login.value(QLatin1String("uris")).toArray();
    for (int i = 0; i < uris.size(); ++i) {
        const QString uri = uris.at(i).toObject().value(QLatin1String("uri")).toString();
        if (uri.isEmpty())
            continue;
        if (entry.text("url").isEmpty())
            entry.fields.append({"url", uri});
        else
            further.append(QStringLiteral("uri: %1").arg(uri));
    }
}

void takeCard(ImportEntry &entry, const QJsonObject &card, QStringList &further)
{
    takeKeys(entry, card, cardKeys, further);
    const int month = textOf(card.value(QLatin1String("expMonth"))).toInt();
    const int year = textOf(card.value(QLatin1String("expYear"))).toInt();
    if (year > 0 && month >= 1 && month <= 12)
        entry.fields.append({"expire", QVariant::fromValue(PMFieldTypes::Date{year, month, 1})});
    const QString brand = card.value(QLatin1String("brand")).toString();
    const QString plain = brand.toLower();
    if (plain == QLatin1String("visa"))
        entry.fields.append({"cardType", PMCreditCard::Visa});
    else if (plain == QLatin1String("mastercard"))
        entry.fields.append({"cardType", PMCreditCard::MasterCard});
    else if (!brand.isEmpty())
        further.append(QStringLiteral("brand: %1").arg(brand));
}

void takeIdentity(ImportEntry &entry, const QJsonObject &identity, QStringList &further)
{
    takeKeys(entry, identity, identityKeys, further);
    const QString phone = identity.value(QLatin1String("phone")).toString();
    if (!phone.isEmpty())
        entry.fields.append({"phone", QVariant::fromValue(PMFieldTypes::Phone{{}, phone})});
}

void takeOwnFields(const QJsonArray &fields, QStringList &further)
{
    for (const QJsonValue &field : fields) {
        const QJsonObject object = field.toObject();
        further.append(QStringLiteral("%1: %2").arg(object.value(QLatin1String("name")).toString(),
                                                    textOf(object.value(QLatin1String("value")))));
    }
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
                      {4, PMListItem::Identity, "identity", takeIdentity}};

ImportEntry readEntry(const QJsonObject &object)
{
    ImportEntry entry;
    const auto *kind = std::find_if(std::begin(kinds), std::end(kinds), [&object](const Kind &k) {
        return k.number == object.value(QLatin1String("type")).toInt();
    });
    QStringList further;
    takeKeys(entry, object, commonKeys, further);
    if (kind == std::end(kinds)) {
        entry.fault = ImportEntry::UnknownKind;
        return entry;
    }
    entry.type = kind->type;
    if (kind->take)
        kind->take(entry, object.value(QLatin1String(kind->key)).toObject(), further);
    takeOwnFields(object.value(QLatin1String("fields")).toArray(), further);
    if (object.value(QLatin1String("favorite")).toBool())
        entry.fields.append({"favorite", true});
    finishEntry(entry, further);
    return entry;
}

} // namespace

ImportFile readBitwardenJson(const QByteArray &bytes)
{
    const QByteArray plain = bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes;
    const QJsonObject document = QJsonDocument::fromJson(plain).object();
    const QJsonValue items = document.value(QLatin1String("items"));
    // The items of an encrypted export hold nothing that could be read.
    if (!items.isArray() || document.value(QLatin1String("encrypted")).toBool())
        return {};
    ImportFile file{ImportFile::BitwardenJson, {}};
    int number = 0;
    for (const QJsonValue &item : items.toArray()) {
        file.entries.push_back(readEntry(item.toObject()));
        file.entries.back().number = ++number;
    }
    return file;
}
