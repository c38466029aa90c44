#include "ItemExport.h"

#include "CsvText.h"
#include "ImportJson.h"
#include "SecretBytes.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const int formatVersion = 1;

/// What the columns of browsers hold; see the first of readImportFile().
struct Column
{
    const char *header;
    const char *property;
    bool isSecret;
};
const Column columns[] = {{"name", "title", false},
                          {"url", "url", true},
                          {"username", "login", true},
                          {"password", "password", true},
                          {"note", "note", false}};

/// Writes a text and wipes it.
bool put(QIODevice &device, QByteArray text)
{
    const bool good = device.write(text) == text.size();
    wipe(text);
    return good;
}

bool writeCsv(QIODevice &device, const std::vector<ItemExport::Item> &items,
              const WorkControl &control)
{
    QStringList cells;
    for (const Column &column : columns)
        cells.append(QLatin1String(column.header));
    bool good = put(device, csvLine(cells));
    for (const ItemExport::Item &item : items) {
        if (!good || control.isCancelled())
            return false;
        if (!ItemExport::canHold(ItemExport::Csv, item.document.type))
            continue;
        cells.clear();
        for (const Column &column : columns) {
            const QJsonObject &fields =
                column.isSecret ? item.document.privateFields : item.document.publicFields;
            cells.append(fields.value(QLatin1String(column.property)).toString());
        }
        good = put(device, csvLine(cells));
    }
    return good;
}

QByteArray jsonOf(const ItemExport::Item &item)
{
    PMItemDocument document = item.document;
    // Ids of items that are not in the file.
    document.publicFields.remove(QStringLiteral("refs"));
    if (!item.attachments.isEmpty())
        document.unknown.insert(QStringLiteral("attachments"),
                                QJsonArray::fromStringList(item.attachments));
    return document.toJson({}).value_or(QByteArray());
}

} // namespace

bool ItemExport::canHold(Format format, PMListItem::Type type)
{
    return format == Csv ? type == PMListItem::Login : type != PMListItem::Attachment;
}

bool ItemExport::writeTo(QIODevice &device, const WorkControl &control) const
{
    if (format == Csv)
        return writeCsv(device, items, control);
    const QJsonObject head{{QStringLiteral("format"), QLatin1String(ownJsonFormat)},
                           {QStringLiteral("version"), formatVersion},
                           {QStringLiteral("safe"), safeName},
                           {QStringLiteral("exported"), moment.toUTC().toString(Qt::ISODate)}};
    QByteArray start = QJsonDocument(head).toJson(QJsonDocument::Compact);
    start.chop(1); // the last brace
    bool good = put(device, start + ",\"items\":[");
    const char *between = "\n";
    for (const Item &item : items) {
        if (!good || control.isCancelled())
            return false;
        if (!canHold(format, item.document.type))
            continue;
        good = device.write(between) > 0 && put(device, jsonOf(item));
        between = ",\n";
    }
    return good && put(device, "\n]}\n");
}

bool ItemExport::write(FileLayer &files, const QString &path, const WorkControl &control) const
{
    const bool written = files.write(path, [&](QIODevice &device) {
        return writeTo(device, control) && !control.isCancelled();
    });
    if (!written && !control.isCancelled())
        qWarning() << "ItemExport::write"
                   << "Can't write file:" << path;
    return written;
}
