#include "SyncFolders.h"

#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

QStringList providerInfoFiles(const QString &roaming, const QString &local, const QString &home)
{
    QStringList files;
    for (const QString &folder : {roaming, local}) {
        if (!folder.isEmpty())
            files.append(QDir::fromNativeSeparators(folder) + QStringLiteral("/Dropbox/info.json"));
    }
    if (!home.isEmpty())
        files.append(home + QStringLiteral("/.dropbox/info.json"));
    return files;
}

QStringList providerInfoFiles()
{
    return providerInfoFiles(qEnvironmentVariable("APPDATA"), qEnvironmentVariable("LOCALAPPDATA"),
                             QDir::homePath());
}

QVector<SyncFolder> parseProviderInfo(const QByteArray &json)
{
    const QJsonObject accounts = QJsonDocument::fromJson(json).object();
    QVector<SyncFolder> folders;
    const auto add = [&](const char *key, SyncFolder::Account account) {
        const QString path =
            accounts.value(QLatin1String(key)).toObject().value(QLatin1String("path")).toString();
        const QString clean = QDir::cleanPath(QDir::fromNativeSeparators(path));
        if (!path.isEmpty() && QDir::isAbsolutePath(clean))
            folders.append({account, clean});
    };
    add("personal", SyncFolder::Account::Personal);
    add("business", SyncFolder::Account::Business);
    return folders;
}

QVector<SyncFolder> providerFolders(FileLayer &files, const QStringList &infoFiles)
{
    for (const QString &path : infoFiles) {
        const std::optional<QByteArray> json = files.read(path);
        if (!json)
            continue;
        QVector<SyncFolder> found;
        const QVector<SyncFolder> named = parseProviderInfo(*json);
        for (const SyncFolder &folder : named) {
            if (QFileInfo(folder.path).isDir())
                found.append(folder);
        }
        if (!found.isEmpty())
            return found;
    }
    return {};
}

QVector<MirroredSafe> mirroredSafes(FileLayer &files, const QString &folder)
{
    QStringList places{folder};
    const QDir directory(folder);
    const QStringList inner =
        directory.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name);
    for (const QString &name : inner)
        places.append(directory.filePath(name));

    QVector<MirroredSafe> safes;
    for (const QString &place : std::as_const(places)) {
        const auto file = [&place](const char *name) {
            return place + QLatin1Char('/') + QLatin1String(name);
        };
        if (!QFileInfo::exists(file(SafeLayout::passId)) ||
            !QFileInfo(file(SafeLayout::content)).isDir())
            continue;
        for (const char *name : {SafeLayout::meta, SafeLayout::restore}) {
            const std::optional<QByteArray> json = files.read(file(name));
            const auto description = json ? parseDescription(*json) : std::nullopt;
            if (!description)
                continue;
            safes.append({place, description->name, description->created});
            break;
        }
    }
    return safes;
}
