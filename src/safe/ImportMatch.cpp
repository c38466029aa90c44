#include "ImportMatch.h"

#include "ImportJson.h"

#include <QHash>

#include <algorithm>

namespace {

/// The properties that, beside the title, tell items of a kind apart.
const QVector<QByteArray> &namingProperties(PMListItem::Type type)
{
    static const QVector<QByteArray> lists[] = {{},
                                                {"number"},
                                                {"iban", "number"},
                                                {"firstName", "lastName", "email", "addressLine1"},
                                                {"number"},
                                                {"number"},
                                                {"number"},
                                                {"text"},
                                                {"server", "username", "password"},
                                                {"licenseKey"},
                                                {},
                                                {}};
    return lists[qBound<int>(PMListItem::Login, type, PMListItem::UndefinedItem)];
}

/// Numbers are written with spaces and without.
QString bare(QString text)
{
    return text.remove(QLatin1Char(' '));
}

template <typename Read>
ImportTraits traits(PMListItem::Type type, const Read &read)
{
    ImportTraits result{
        type, read("title"), read("url"), read("login"), read("password"), read("note"), {}};
    for (const QByteArray &property : namingProperties(type))
        result.others.append(read(property));
    return result;
}

/// All but password and note. A separator that no text has keeps the parts apart.
QString keyOf(const ImportTraits &traits)
{
    const QString host = traits.type == PMListItem::Login ? importHost(traits.url) : QString();
    QStringList parts{QString::number(traits.type), host.isEmpty() ? traits.title : host,
                      traits.login};
    for (const QString &other : traits.others)
        parts.append(bare(other));
    return parts.join(QChar(0x1f));
}

/// What is known under one key.
struct Known
{
    QString password;
    QString note;
};

ImportMatch match(const QVector<Known> &known, const ImportTraits &traits)
{
    if (known.isEmpty())
        return ImportMatch::New;
    ImportMatch best = ImportMatch::OtherPassword;
    for (const Known &one : known) {
        if (one.password != traits.password)
            continue;
        if (one.note.contains(traits.note))
            return ImportMatch::AlreadyThere;
        best = ImportMatch::OtherNote;
    }
    return best;
}

} // namespace

ImportTraits ImportTraits::of(const PMListItem &item)
{
    return traits(item.type(),
                  [&item](const char *property) { return item.property(property).toString(); });
}

ImportTraits ImportTraits::of(const ImportEntry &entry)
{
    return traits(entry.type, [&entry](const char *property) { return entry.text(property); });
}

std::vector<ImportMatch> findMatches(const std::vector<ImportEntry> &entries,
                                     const std::vector<ImportTraits> &items)
{
    QHash<QString, QVector<Known>> known;
    for (const ImportTraits &item : items)
        known[keyOf(item)].append({item.password, item.note});
    std::vector<ImportMatch> found;
    found.reserve(entries.size());
    for (const ImportEntry &entry : entries) {
        if (entry.fault != ImportEntry::None) {
            found.push_back(ImportMatch::New);
            continue;
        }
        const ImportTraits own = ImportTraits::of(entry);
        QVector<Known> &same = known[keyOf(own)];
        found.push_back(match(same, own));
        same.append({own.password, own.note});
    }
    return found;
}
