#include "ImportCsv.h"

#include "CsvText.h"
#include "ImportJson.h"
#include "SecretBytes.h"

#include <QHash>
#include <QRegularExpression>

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
constexpr char addresses[] = "*addresses"; ///< one or more, with commas between them
constexpr char group[] = "*group";         ///< its path, from the name of the whole
constexpr char lines[] = "*lines";         ///< goes to the note as it is
constexpr char appended[] = "*note";       ///< goes to the note with its name
constexpr char ignored[] = "*ignored";
// Times in milliseconds since the epoch.
constexpr char createdMs[] = "*created";
constexpr char modifiedMs[] = "*modified";
constexpr char lastAccessedMs[] = "*lastAccessed";

struct CsvFormat
{
    ImportFile::Format format;
    QVector<Column> columns; ///< those that are not named here go to the note with their names
};

const QVector<CsvFormat> csvFormats{{ImportFile::Firefox,
                                     {{"url", "url"},
                                      {"username", "login"},
                                      {"password", "password"},
                                      {"httprealm", appended},
                                      {"formactionorigin", ignored},
                                      {"guid", ignored},
                                      {"timecreated", createdMs, false},
                                      {"timelastused", lastAccessedMs, false},
                                      {"timepasswordchanged", modifiedMs, false}}},
                                    {ImportFile::Bitwarden,
                                     {{"type", kind},
                                      {"name", "title"},
                                      {"notes", "note"},
                                      {"login_uri", addresses},
                                      {"login_username", "login"},
                                      {"login_password", "password"},
                                      {"favorite", "favorite", false},
                                      {"fields", lines, false},
                                      {"reprompt", ignored, false}}},
                                    {ImportFile::KeePassXC,
                                     {{"group", group},
                                      {"title", "title"},
                                      {"username", "login"},
                                      {"password", "password"},
                                      {"url", "url"},
                                      {"notes", "note"},
                                      {"icon", ignored, false},
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

/// Words that columns of unknown formats are often called, and what they mean.
const QHash<QString, QByteArray> &usualNames()
{
    static const QHash<QString, QByteArray> names{
        {QStringLiteral("title"), "title"},       {QStringLiteral("name"), "title"},
        {QStringLiteral("account"), "title"},     {QStringLiteral("url"), "url"},
        {QStringLiteral("website"), "url"},       {QStringLiteral("web site"), "url"},
        {QStringLiteral("address"), "url"},       {QStringLiteral("login_uri"), "url"},
        {QStringLiteral("urls"), "url"},          {QStringLiteral("hostname"), "url"},
        {QStringLiteral("username"), "login"},    {QStringLiteral("user name"), "login"},
        {QStringLiteral("user"), "login"},        {QStringLiteral("login"), "login"},
        {QStringLiteral("login name"), "login"},  {QStringLiteral("email"), "login"},
        {QStringLiteral("password"), "password"}, {QStringLiteral("login_password"), "password"},
        {QStringLiteral("notes"), "note"},        {QStringLiteral("note"), "note"},
        {QStringLiteral("comments"), "note"},     {QStringLiteral("comment"), "note"}};
    return names;
}

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

/// The item's address is the first one of a web page; the others are kept in the note.
void takeAddresses(ImportEntry &entry, const QString &cell, QStringList &further)
{
    // A comma may also be part of an address.
    static const QRegularExpression between(
        QStringLiteral(",(?=[A-Za-z][A-Za-z0-9+.-]*://|[A-Za-z0-9-]+(\\.[A-Za-z0-9-]+)+(,|/|$))"));
    setAddresses(entry, cell.split(between, Qt::SkipEmptyParts), further);
}

void takeTime(ImportEntry &entry, const char *property, const QDateTime &time)
{
    if (time.isValid())
        entry.set(property, time.toUTC());
}

void takeCell(ImportEntry &entry, const QByteArray &meaning, const QString &name,
              const QString &cell, QStringList &further)
{
    if (cell.isEmpty() || meaning == ignored)
        return;
    if (meaning == kind) {
        if (cell == QLatin1String("note"))
            entry.type = PMListItem::SecureNote;
        else if (cell != QLatin1String("login"))
            entry.fault = ImportEntry::UnknownKind;
    } else if (meaning == addresses) {
        takeAddresses(entry, cell, further);
    } else if (meaning == group) {
        const int slash = cell.indexOf(QLatin1Char('/'));
        if (slash >= 0)
            further.append(QStringLiteral("%1: %2").arg(name, cell.mid(slash + 1)));
    } else if (meaning == lines) {
        further.append(cell);
    } else if (meaning == appended) {
        further.append(QStringLiteral("%1: %2").arg(name, cell));
    } else if (meaning == createdMs || meaning == modifiedMs || meaning == lastAccessedMs) {
        const qint64 time = cell.toLongLong();
        if (time > 0)
            takeTime(entry, meaning.constData() + 1, QDateTime::fromMSecsSinceEpoch(time, Qt::UTC));
    } else if (meaning == "created" || meaning == "modified") {
        takeTime(entry, meaning, QDateTime::fromString(cell, Qt::ISODate));
    } else if (meaning == "favorite") {
        if (cell == QLatin1String("1"))
            entry.set(meaning, true);
    } else if (entry.text(meaning).isEmpty()) {
        entry.set(meaning, cell);
    } else {
        further.append(QStringLiteral("%1: %2").arg(name, cell));
    }
}

/// What each column of a file means.
QVector<QByteArray> meanings(const CsvFormat &format, const QStringList &header)
{
    QVector<QByteArray> result;
    for (const QString &name : header) {
        const auto column = std::find_if(
            format.columns.begin(), format.columns.end(),
            [&name](const Column &known) { return name == QLatin1String(known.header); });
        result.append(column == format.columns.end() ? appended : column->meaning);
    }
    return result;
}

ImportEntry readRow(const QVector<QByteArray> &meanings, const QStringList &names,
                    const CsvRecord &record)
{
    ImportEntry entry;
    entry.number = record.row;
    if (record.cells.size() != meanings.size()) {
        entry.fault = ImportEntry::WrongColumns;
        return entry;
    }
    QStringList further;
    for (int i = 0; i < meanings.size(); ++i)
        takeCell(entry, meanings.at(i), names.at(i), record.cells.at(i), further);
    finishEntry(entry, further);
    for (QString &line : further)
        wipe(line);
    return entry;
}

void wipeRecords(std::vector<CsvRecord> &records)
{
    for (CsvRecord &record : records) {
        for (QString &cell : record.cells)
            wipe(cell);
    }
}

ImportFile problem(ImportFile::Problem problem)
{
    ImportFile file;
    file.problem = problem;
    return file;
}

/// Texts have no NUL, unless every other byte is one.
bool isText(const QByteArray &bytes)
{
    const bool isUtf16 = bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
    return isUtf16 || !bytes.contains('\0');
}

ImportFile readRecords(const std::vector<CsvRecord> &records, const ImportColumns &columns)
{
    QStringList names;
    for (const QString &cell : records.front().cells)
        names.append(cell.trimmed());
    const QStringList header = lowered(names);
    const CsvFormat *format = recognise(header);
    if (!format && columns.size() != header.size()) {
        ImportFile file = problem(ImportFile::UnknownColumns);
        file.header = names;
        return file;
    }
    ImportFile file;
    file.format = format ? format->format : ImportFile::ChosenColumns;
    QVector<QByteArray> meant = format ? meanings(*format, header) : columns;
    for (QByteArray &meaning : meant) {
        if (meaning.isEmpty())
            meaning = appended;
    }
    for (std::size_t i = 1; i < records.size(); ++i)
        file.entries.push_back(readRow(meant, names, records[i]));
    return file;
}

} // namespace

ImportFile readImportCsv(const QByteArray &bytes, const ImportColumns &columns)
{
    if (!isText(bytes))
        return problem(ImportFile::NotText);
    std::optional<std::vector<CsvRecord>> records = parseCsv(bytes);
    if (!records)
        return problem(ImportFile::CutShort);
    if (records->empty())
        return problem(ImportFile::Empty);
    ImportFile file = readRecords(*records, columns);
    wipeRecords(*records);
    return file;
}

ImportColumns guessColumns(const QStringList &header)
{
    ImportColumns columns;
    for (const QString &name : header) {
        const QByteArray meaning = usualNames().value(name.trimmed().toLower());
        columns.append(columns.contains(meaning) ? QByteArray() : meaning);
    }
    return columns;
}
