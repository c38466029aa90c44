#include "SafeDescriptionFile.h"

#include "SafeLayout.h"

#include <QDebug>
#include <QFile>
#include <QJsonDocument>

static const char operation[] = "GPMSafe::readMetaFile";

std::optional<SafeDescription> parseDescription(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    return document.isObject() ? SafeDescription::fromJson(document.object()) : std::nullopt;
}

static std::optional<SafeDescription> readFile(FileLayer &files, const QString &path)
{
    qDebug() << operation << "Open safe meta file:" << path;
    if (!QFile::exists(path)) {
        qDebug() << operation << "Safe meta file not found:" << path;
        return std::nullopt;
    }
    const std::optional<QByteArray> bytes = files.read(path);
    if (!bytes) {
        qWarning() << operation << "Can't read safe meta file:" << path;
        return std::nullopt;
    }
    const QJsonDocument document = QJsonDocument::fromJson(*bytes);
    if (!document.isObject() || document.object().isEmpty()) {
        qWarning() << operation << "Safe meta file bad content:" << path;
        return std::nullopt;
    }
    std::optional<SafeDescription> description = SafeDescription::fromJson(document.object());
    if (!description)
        qWarning() << operation << "Can't parse meta file:" << path;
    return description;
}

std::optional<SafeDescription> readDescription(FileLayer &files, const QString &folder)
{
    for (const char *name : {SafeLayout::oldMeta, SafeLayout::meta}) {
        auto description = readFile(files, folder + QLatin1Char('/') + QLatin1String(name));
        if (description)
            return description;
    }
    return std::nullopt;
}

bool writeDescription(FileLayer &files, const QString &folder, const QByteArray &json)
{
    const auto mode = QIODevice::WriteOnly | QIODevice::Text;
    const auto path = [&folder](const char *name) {
        return folder + QLatin1Char('/') + QLatin1String(name);
    };
    files.writeBytes(path(SafeLayout::restore), json, mode);
    // Read before the other one, so it must never be the older of the two.
    if (QFile::exists(path(SafeLayout::oldMeta)))
        files.writeBytes(path(SafeLayout::oldMeta), json, mode);
    return files.writeBytes(path(SafeLayout::meta), json, mode);
}
