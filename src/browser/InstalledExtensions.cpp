#include "InstalledExtensions.h"

#include "ExtensionOrigins.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>

namespace {

const QLatin1String extensionName("Glaceron Password Manager");
const qint64 largestFile = 64 * 1024 * 1024;

/// Empty for all that is no JSON object.
QJsonObject readObject(const QString &path)
{
    QFile file(path);
    if (file.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

/// Empty when the manifest is that of another extension.
QString versionOfManifest(const QJsonObject &manifest)
{
    if (manifest.value(QLatin1String("name")).toString() != extensionName)
        return {};
    return manifest.value(QLatin1String("version")).toString();
}

/// What the settings of a profile say of an extension that may lie anywhere.
QString versionInSettings(const QJsonObject &settings)
{
    const QJsonObject extensions = settings.value(QLatin1String("extensions"))
                                       .toObject()
                                       .value(QLatin1String("settings"))
                                       .toObject();
    for (const QString &id : knownExtensionIds()) {
        const QJsonObject entry = extensions.value(id).toObject();
        // Switched off by the user; "state" says so in older profiles.
        if (!entry.value(QLatin1String("disable_reasons")).toArray().isEmpty() ||
            entry.value(QLatin1String("state")).toInt(1) == 0)
            continue;
        const QString path = entry.value(QLatin1String("path")).toString();
        QString version;
        if (QDir::isAbsolutePath(path))
            version = versionOfManifest(readObject(path + QStringLiteral("/manifest.json")));
        if (version.isEmpty())
            version = versionOfManifest(entry.value(QLatin1String("manifest")).toObject());
        if (!version.isEmpty())
            return version;
    }
    return {};
}

QString versionInChromiumProfile(const QString &profile)
{
    for (const QString &id : knownExtensionIds()) {
        const QString version =
            InstalledExtensions::versionInFolder(profile + QStringLiteral("/Extensions/") + id);
        if (!version.isEmpty())
            return version;
    }
    for (const char *file : {"Secure Preferences", "Preferences"}) {
        const QString version =
            versionInSettings(readObject(profile + QLatin1Char('/') + QLatin1String(file)));
        if (!version.isEmpty())
            return version;
    }
    return {};
}

} // namespace

QString InstalledExtensions::versionInFolder(const QString &folder)
{
    const QStringList versions = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : versions) {
        const QString version = versionOfManifest(
            readObject(folder + QLatin1Char('/') + name + QStringLiteral("/manifest.json")));
        if (!version.isEmpty())
            return version;
    }
    return {};
}

QString InstalledExtensions::versionInChromium(const QString &userData)
{
    const QStringList profiles = QDir(userData).entryList(
        {QStringLiteral("Default"), QStringLiteral("Profile *")}, QDir::Dirs);
    for (const QString &profile : profiles) {
        const QString version = versionInChromiumProfile(userData + QLatin1Char('/') + profile);
        if (!version.isEmpty())
            return version;
    }
    return {};
}

QString InstalledExtensions::versionInFirefoxProfile(const QString &profile)
{
    const QJsonArray addons = readObject(profile + QStringLiteral("/extensions.json"))
                                  .value(QLatin1String("addons"))
                                  .toArray();
    for (const QJsonValue &value : addons) {
        const QJsonObject addon = value.toObject();
        const QJsonObject locale = addon.value(QLatin1String("defaultLocale")).toObject();
        if (locale.value(QLatin1String("name")).toString() == extensionName)
            return addon.value(QLatin1String("version")).toString();
    }
    return {};
}

QString InstalledExtensions::versionInFirefox(const QString &folder)
{
    QSettings profiles(folder + QStringLiteral("/profiles.ini"), QSettings::IniFormat);
    const QStringList groups = profiles.childGroups();
    for (const QString &group : groups) {
        if (!group.startsWith(QLatin1String("Profile")))
            continue;
        profiles.beginGroup(group);
        const QString path = profiles.value(QStringLiteral("Path")).toString();
        const bool isRelative = profiles.value(QStringLiteral("IsRelative"), 1).toInt() != 0;
        profiles.endGroup();
        const QString version =
            versionInFirefoxProfile(isRelative ? folder + QLatin1Char('/') + path : path);
        if (!path.isEmpty() && !version.isEmpty())
            return version;
    }
    return {};
}
