#include "ImportFile.h"

#include "ImportCsv.h"
#include "ImportJson.h"
#include "PMItemFactory.h"
#include "SecretBytes.h"

#include <QUrl>

#include <algorithm>

namespace {

/// As it is opened: with a scheme.
QString withScheme(const QString &address)
{
    return address.contains(QLatin1String("://")) ? address : QStringLiteral("https://") + address;
}

bool isWebAddress(const QString &address)
{
    const QUrl url(address);
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
}

} // namespace

void setAddresses(ImportEntry &entry, const QStringList &list, QStringList &further)
{
    const auto best = std::find_if(list.begin(), list.end(), [](const QString &address) {
        return isWebAddress(withScheme(address.trimmed()));
    });
    const int chosen = best == list.end() ? 0 : int(best - list.begin());
    for (int i = 0; i < list.size(); ++i) {
        if (i == chosen)
            entry.set("url", list.at(i).trimmed());
        else
            further.append(QStringLiteral("uri: %1").arg(list.at(i).trimmed()));
    }
}

void finishEntry(ImportEntry &entry, const QStringList &further)
{
    if (entry.fault != ImportEntry::None)
        return;
    const bool named = !entry.text("title").trimmed().isEmpty();
    static const QVector<QByteArray> marginal{"title", "favorite", "created", "modified",
                                              "lastAccessed"};
    const bool filled =
        !further.isEmpty() ||
        std::any_of(entry.fields.begin(), entry.fields.end(),
                    [](const auto &field) { return !marginal.contains(field.first); });
    if (!filled && !(named && entry.type == PMListItem::SecureNote)) {
        entry.fault = ImportEntry::Empty;
        return;
    }
    const QString address = entry.text("url").trimmed();
    if (!address.isEmpty()) {
        entry.set("url", withScheme(address));
        entry.addressInNote = !isWebAddress(entry.text("url"));
        if (entry.addressInNote && (!named || entry.type != PMListItem::Login)) {
            entry.set("url", address);
            entry.fault = ImportEntry::NotAWebAddress;
            return;
        }
    }
    if (!named) {
        const QString host = importHost(address);
        entry.set("title", host.isEmpty() ? entry.text("login") : host);
    }
    QStringList note = further;
    if (entry.addressInNote) {
        // The login of an app is worth keeping; there is no page to open.
        entry.set("url", {});
        note.append(QStringLiteral("address: %1").arg(address));
    }
    if (!entry.text("note").isEmpty())
        note.prepend(entry.text("note"));
    // A secure note has its text in a field of its own.
    entry.set("note", {});
    entry.set(entry.type == PMListItem::SecureNote ? "text" : "note", note.join(QLatin1Char('\n')));
}

QString importHost(const QString &address)
{
    const QUrl url = QUrl::fromUserInput(address);
    QString host = url.host().toLower();
    if (host.startsWith(QLatin1String("www.")))
        host.remove(0, 4);
    // Other ports are other programs, as on the machine of a developer.
    return url.port() < 0 ? host : QStringLiteral("%1:%2").arg(host).arg(url.port());
}

QString ImportEntry::text(const char *property) const
{
    for (const auto &field : fields) {
        if (field.first == property)
            return field.second.toString();
    }
    if (!document)
        return {};
    const QLatin1String key(property);
    const QJsonValue secret = document->privateFields.value(key);
    return (secret.isUndefined() ? document->publicFields.value(key) : secret).toString();
}

void ImportEntry::set(const char *property, const QVariant &value)
{
    fields.erase(std::remove_if(fields.begin(), fields.end(),
                                [property](const auto &field) { return field.first == property; }),
                 fields.end());
    const bool isEmpty =
        value.type() == QVariant::String ? value.toString().isEmpty() : !value.isValid();
    if (!isEmpty)
        fields.append({property, value});
}

std::unique_ptr<PMListItem> ImportEntry::toItem() const
{
    std::unique_ptr<PMListItem> item = document ? document->toItem() : makeItem(type);
    for (const auto &field : fields)
        item->setProperty(field.first, field.second);
    return item;
}

ImportFile readImportFile(const QByteArray &bytes, const ImportColumns &columns)
{
    const QByteArray start = bytes.left(64).trimmed();
    if (start.isEmpty()) {
        ImportFile file;
        file.problem = ImportFile::Empty;
        return file;
    }
    return start.startsWith('{') || start.startsWith("\xEF\xBB\xBF{")
               ? readImportJson(bytes)
               : readImportCsv(bytes, columns);
}

void wipeEntries(std::vector<ImportEntry> &entries)
{
    for (ImportEntry &entry : entries) {
        for (auto &field : entry.fields) {
            QString text = field.second.toString();
            field.second.clear();
            wipe(text);
        }
    }
    entries.clear();
}
