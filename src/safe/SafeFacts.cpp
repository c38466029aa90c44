#include "SafeFacts.h"

#include "FolderPath.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtConcurrent>

#include <utility>

namespace {

const QLatin1String nameKey("name");
const QLatin1String createdKey("created");
const QLatin1String lastOpenedKey("last_opened");
const QLatin1String itemCountKey("item_count");
const QLatin1String mirrorFolderKey("mirror_folder");
const QLatin1String leavingFolderKey("leaving_folder");
const QLatin1String lastSynchronisedKey("last_synchronised");
const QLatin1String hiddenKey("hidden");

QString momentText(const QDateTime &moment)
{
    return moment.isValid() ? moment.toUTC().toString(Qt::ISODateWithMs) : QString();
}

QDateTime momentOf(const QJsonValue &value)
{
    return QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
}

QJsonObject toObject(const SafeFact &fact)
{
    // As text: a number would lose digits that it does not have today.
    return {{nameKey, fact.name},
            {createdKey, QString::number(fact.created)},
            {lastOpenedKey, momentText(fact.lastOpened)},
            {itemCountKey, fact.itemCount},
            {mirrorFolderKey, fact.mirrorFolder},
            {leavingFolderKey, fact.leavingFolder},
            {lastSynchronisedKey, momentText(fact.lastSynchronised)},
            {hiddenKey, fact.isHidden}};
}

SafeFact toFact(const QJsonObject &object)
{
    SafeFact fact;
    fact.name = object.value(nameKey).toString();
    fact.created = object.value(createdKey).toString().toLongLong();
    fact.lastOpened = momentOf(object.value(lastOpenedKey));
    fact.itemCount = object.value(itemCountKey).toInt(fact.itemCount);
    fact.mirrorFolder = object.value(mirrorFolderKey).toString();
    fact.leavingFolder = object.value(leavingFolderKey).toString();
    fact.lastSynchronised = momentOf(object.value(lastSynchronisedKey));
    fact.isHidden = object.value(hiddenKey).toBool();
    return fact;
}

bool writeFile(FileLayer &files, const QString &path, const QByteArray &json)
{
    const bool good = files.makeFolder(QFileInfo(path).path()) && files.writeBytes(path, json);
    if (!good)
        qWarning() << "SafeFacts::store"
                   << "Can't save facts about safes:" << path;
    return good;
}

} // namespace

bool SafeFact::operator==(const SafeFact &other) const
{
    return name == other.name && created == other.created && lastOpened == other.lastOpened &&
           itemCount == other.itemCount && mirrorFolder == other.mirrorFolder &&
           leavingFolder == other.leavingFolder && lastSynchronised == other.lastSynchronised &&
           isHidden == other.isHidden;
}

SafeFacts::SafeFacts(const QString &filePath, std::shared_ptr<FileLayer> files, QObject *parent)
    : QObject(parent)
    , m_filePath(filePath)
    , m_files(std::move(files))
{
    m_writer.setMaxThreadCount(1);
    m_storing.setSingleShot(true);
    m_storing.setInterval(0);
    connect(&m_storing, &QTimer::timeout, this, &SafeFacts::storeSoon);
    load();
}

SafeFacts::~SafeFacts()
{
    if (m_storing.isActive())
        store();
    m_writer.waitForDone();
}

void SafeFacts::load()
{
    if (!QFile::exists(m_filePath))
        return;
    const std::optional<QByteArray> bytes = m_files->read(m_filePath);
    const QJsonDocument document = QJsonDocument::fromJson(bytes.value_or(QByteArray()));
    if (!document.isObject()) {
        qWarning() << "SafeFacts::load"
                   << "Can't read facts about safes, start anew:" << m_filePath;
        return;
    }
    const QJsonObject object = document.object();
    for (auto it = object.begin(); it != object.end(); ++it) {
        m_keys.remember(it.key());
        m_rows.insert(m_keys.key(it.key()), {it.key(), toFact(it.value().toObject())});
    }
}

QByteArray SafeFacts::toJson() const
{
    QJsonObject object;
    for (const Row &row : m_rows)
        object.insert(row.folder, toObject(row.fact));
    return QJsonDocument(object).toJson();
}

SafeFact SafeFacts::of(const QString &folder) const
{
    return m_rows.value(m_keys.key(folder)).fact;
}

void SafeFacts::learn(const QString &folder, const QString &canonical)
{
    const QString former = m_keys.key(folder);
    m_keys.learn(folder, canonical);
    const QString key = m_keys.key(folder);
    // What was known by a canonical path stays with that, when a link leads elsewhere now.
    if (key == former || former != keyOf(QDir::cleanPath(folder)) || m_rows.contains(key) ||
        !m_rows.contains(former))
        return;
    m_rows.insert(key, {canonical, m_rows.take(former).fact});
    m_storing.start();
    Q_EMIT changed(canonical);
}

QStringList SafeFacts::folders() const
{
    QStringList folders;
    for (const Row &row : m_rows)
        folders.append(row.folder);
    folders.sort();
    return folders;
}

void SafeFacts::change(const QString &folder, const Change &change)
{
    const QString key = m_keys.key(folder);
    SafeFact fact = m_rows.value(key).fact;
    change(fact);
    if (fact == m_rows.value(key).fact)
        return;
    const QString canonical = m_keys.canonical(folder);
    m_rows.insert(key, {canonical, fact});
    m_storing.start();
    Q_EMIT changed(canonical);
}

void SafeFacts::forget(const QString &folder)
{
    if (m_rows.remove(m_keys.key(folder)) == 0)
        return;
    m_storing.start();
    Q_EMIT changed(m_keys.canonical(folder));
}

void SafeFacts::move(const QString &from, const QString &to)
{
    const SafeFact fact = of(from);
    forget(from);
    change(to, [&fact](SafeFact &moved) { moved = fact; });
}

bool SafeFacts::store()
{
    m_storing.stop();
    m_writer.waitForDone();
    return writeFile(*m_files, m_filePath, toJson());
}

void SafeFacts::storeSoon()
{
    QtConcurrent::run(&m_writer, [files = m_files, path = m_filePath, json = toJson()] {
        writeFile(*files, path, json);
    });
}
