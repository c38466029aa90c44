#include "ImportFile.h"

#include "CsvText.h"
#include "ImportJson.h"
#include "PMItemFactory.h"
#include "SecretBytes.h"

#include <QSet>
#include <QUrl>

#include <algorithm>

namespace {

struct Column
{
    const char *header;  ///< in lower case
    const char *meaning; ///< a property, or one of the words below
    bool needed = true;  ///< whether files of the format always have it
};

// Meanings that are no property.
constexpr char kind[] = "*kind";
constexpr char createdMs[] = "*created"; ///< in milliseconds since the epoch
constexpr char modifiedMs[] = "*modified";
constexpr char appended[] = "*note"; ///< goes to the note with its name
constexpr char ignored[] = "*ignored";

struct CsvFormat
{
    ImportFile::Format format;
    QVector<Column> columns;
};

const QVector<CsvFormat> csvFormats{{ImportFile::Firefox,
                                     {{"url", "url"},
                                      {"username", "login"},
                                      {"password", "password"},
                                      {"httprealm", ignored},
                                      {"formactionorigin", ignored},
                                      {"guid", ignored},
                                      {"timecreated", createdMs, false},
                                      {"timepasswordchanged", modifiedMs, false}}},
                                    {ImportFile::Bitwarden,
                                     {{"type", kind},
                                      {"name", "title"},
                                      {"notes", "note"},
                                      {"login_uri", "url"},
                                      {"login_username", "login"},
                                      {"login_password", "password"},
                                      {"favorite", "favorite", false},
                                      {"folder", appended, false},
                                      {"fields", appended, false},
                                      {"login_totp", appended, false}}},
                                    {ImportFile::KeePassXC,
                                     {{"group", appended},
                                      {"title", "title"},
                                      {"username", "login"},
                                      {"password", "password"},
                                      {"url", "url"},
                                      {"notes", "note"},
                                      {"totp", appended, false},
                                      {"created", "created", false},
                                      {"last modified", "modified", false}}},
                                    {ImportFile::Safari,
                                     {{"title", "title"},
                                      {"url", "url"},
                                      {"username", "login"},
                                      {"password", "password"},
                                      {"notes", "note", false},
                                      {"otpauth", appended}}},
                                    {ImportFile::Chromium,
                                     {{"name", "title"},
                                      {"url", "url"},
                                      {"username", "login"},
                                      {"password", "password"},
                                      {"note", "note", false}}}};

/// The format whose columns a first row has; null when there is none.
const CsvFormat *recognise(const QStringList &header)
{
    for (const CsvFormat &format : csvFormats) {
        const bool fits = std::all_of(
            format.columns.begin(), format.columns.end(), [&header](const Column &column) {
                return !column.needed || header.contains(QLatin1String(column.header));
            });
        if (fits)
            return &format;
    }
    return nullptr;
}

QStringList lowered(const QStringList &cells)
{
    QStringList result;
    for (const QString &cell : cells)
        result.append(cell.trimmed().toLower());
    return result;
}

void setField(ImportEntry &entry, const char *property, const QVariant &value)
{
    if (!value.toString().isEmpty())
        entry.fields.append({property, value});
}

void takeCell(ImportEntry &entry, const Column &column, const QString &cell, QStringList &further)
{
    const QByteArray meaning = column.meaning;
    if (cell.isEmpty() || meaning == ignored)
        return;
    if (meaning == kind) {
        if (cell == QLatin1String("note"))
            entry.type = PMListItem::SecureNote;
        else if (cell != QLatin1String("login"))
            entry.fault = ImportEntry::UnknownKind;
    } else if (meaning == appended) {
        further.append(QStringLiteral("%1: %2").arg(QLatin1String(column.header), cell));
    } else if (meaning == createdMs || meaning == modifiedMs) {
        const qint64 time = cell.toLongLong();
        if (time > 0)
            setField(entry, column.meaning + 1, QDateTime::fromMSecsSinceEpoch(time, Qt::UTC));
    } else if (meaning == "created" || meaning == "modified") {
        const QDateTime time = QDateTime::fromString(cell, Qt::ISODate);
        if (time.isValid())
            setField(entry, column.meaning, time.toUTC());
    } else if (meaning == "favorite") {
        setField(entry, column.meaning, cell == QLatin1String("1"));
    } else {
        setField(entry, column.meaning, cell);
    }
}

ImportEntry readRow(const CsvFormat &format, const QStringList &header, const CsvRecord &record)
{
    ImportEntry entry;
    entry.number = record.line;
    if (record.cells.size() != header.size()) {
        entry.fault = ImportEntry::WrongColumns;
        return entry;
    }
    QStringList further;
    for (const Column &column : format.columns) {
        const int at = header.indexOf(QLatin1String(column.header));
        if (at >= 0)
            takeCell(entry, column, record.cells.at(at), further);
    }
    finishEntry(entry, further);
    return entry;
}

ImportFile readCsv(const QByteArray &bytes)
{
    std::optional<std::vector<CsvRecord>> records = parseCsv(bytes);
    if (!records || records->empty())
        return {};
    const QStringList header = lowered(records->front().cells);
    const CsvFormat *format = recognise(header);
    if (!format)
        return {};
    ImportFile file{format->format, {}};
    for (std::size_t i = 1; i < records->size(); ++i) {
        CsvRecord &record = (*records)[i];
        file.entries.push_back(readRow(*format, header, record));
        for (QString &cell : record.cells)
            wipe(cell);
    }
    return file;
}

QString hostOf(const QString &address)
{
    const QString host = QUrl::fromUserInput(address).host().toLower();
    return host.startsWith(QLatin1String("www.")) ? host.mid(4) : host;
}

/// What makes two entries the same. A separator that no text has keeps the parts apart.
QString identity(PMListItem::Type type, const QString &title, const QString &host,
                 const QString &login, const QString &password)
{
    const QStringList parts = type == PMListItem::Login && !host.isEmpty()
                                  ? QStringList{host, login, password}
                                  : QStringList{title, login, password};
    return QString::number(type) + QChar(0x1f) + parts.join(QChar(0x1f));
}

} // namespace

void finishEntry(ImportEntry &entry, const QStringList &further)
{
    QString address = entry.text("url");
    const bool named = !entry.text("title").isEmpty();
    const bool filled = entry.fields.size() > (named ? 1 : 0) || !further.isEmpty();
    if (entry.fault != ImportEntry::None)
        return;
    if (!filled && !(named && entry.type == PMListItem::SecureNote)) {
        entry.fault = ImportEntry::Empty;
        return;
    }
    if (!address.isEmpty()) {
        if (!address.contains(QLatin1String("://")))
            address.prepend(QLatin1String("https://"));
        const QUrl url(address);
        const bool isWeb =
            url.isValid() && !url.host().isEmpty() &&
            (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
        if (!isWeb) {
            entry.fault = ImportEntry::NotAWebAddress;
            return;
        }
        for (auto &field : entry.fields) {
            if (field.first == "url")
                field.second = address;
        }
    }
    if (!named) {
        const QString host = hostOf(address);
        setField(entry, "title", host.isEmpty() ? entry.text("login") : host);
    }
    QString note = (QStringList{entry.text("note")} + further).join(QLatin1Char('\n')).trimmed();
    // A secure note has its text in a field of its own.
    const char *target = entry.type == PMListItem::SecureNote ? "text" : "note";
    entry.fields.erase(std::remove_if(entry.fields.begin(), entry.fields.end(),
                                      [](const auto &field) { return field.first == "note"; }),
                       entry.fields.end());
    setField(entry, target, note);
    if (entry.type == PMListItem::Login)
        setField(entry, "secondaryText", entry.text("login"));
}

QString ImportEntry::text(const char *property) const
{
    for (const auto &field : fields) {
        if (field.first == property)
            return field.second.toString();
    }
    return {};
}

std::unique_ptr<PMListItem> ImportEntry::toItem() const
{
    std::unique_ptr<PMListItem> item = makeItem(type);
    for (const auto &field : fields)
        item->setProperty(field.first, field.second);
    return item;
}

ImportFile readImportFile(const QByteArray &bytes)
{
    const QByteArray start = bytes.left(64).trimmed();
    return start.startsWith('{') || start.startsWith("\xEF\xBB\xBF{") ? readBitwardenJson(bytes)
                                                                      : readCsv(bytes);
}

std::vector<bool> findDuplicates(const std::vector<ImportEntry> &entries,
                                 const std::vector<PMListItem *> &items)
{
    QSet<QString> known;
    for (const PMListItem *item : items) {
        if (!item->deleted())
            known.insert(identity(item->type(), item->title(), hostOf(item->url()),
                                  item->property("login").toString(),
                                  item->property("password").toString()));
    }
    std::vector<bool> found;
    found.reserve(entries.size());
    for (const ImportEntry &entry : entries) {
        const QString own = identity(entry.type, entry.text("title"), hostOf(entry.text("url")),
                                     entry.text("login"), entry.text("password"));
        found.push_back(entry.fault == ImportEntry::None && known.contains(own));
        if (entry.fault == ImportEntry::None)
            known.insert(own);
    }
    return found;
}
