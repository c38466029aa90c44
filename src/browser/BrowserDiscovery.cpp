#include "BrowserDiscovery.h"

#include "ExtensionOrigins.h"
#include "InstalledExtensions.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

/// A browser as Linux has it. Lists end with a null.
struct LinuxBrowser
{
    const char *kind;
    const char *name;
    const char *programs[4]; ///< in the folders of programs
    const char *flatpak;     ///< its name there
    const char *profiles[4]; ///< below the user's home
};

const LinuxBrowser linuxBrowsers[] = {
    {"chrome",
     "Google chrome",
     {"google-chrome-stable", "google-chrome"},
     "com.google.Chrome",
     {".config/google-chrome", ".var/app/com.google.Chrome/config/google-chrome"}},
    {"chromium",
     "Chromium",
     {"chromium", "chromium-browser"},
     "org.chromium.Chromium",
     {".config/chromium", "snap/chromium/common/chromium",
      ".var/app/org.chromium.Chromium/config/chromium"}},
    {"firefox",
     "Firefox",
     {"firefox", "firefox-esr"},
     "org.mozilla.firefox",
     {".mozilla/firefox", ".config/mozilla/firefox", "snap/firefox/common/.mozilla/firefox",
      ".var/app/org.mozilla.firefox/.mozilla/firefox"}},
};

QString firstExisting(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

QString programOf(const LinuxBrowser &browser, const BrowserPlaces &places)
{
    QStringList folders =
        places.environment(QStringLiteral("PATH")).split(QLatin1Char(':'), Qt::SkipEmptyParts);
    folders << QStringLiteral("/usr/bin") << QStringLiteral("/usr/local/bin")
            << QStringLiteral("/opt/google/chrome") << QStringLiteral("/snap/bin");
    QStringList paths;
    for (const char *program : browser.programs) {
        for (const QString &folder : qAsConst(folders)) {
            if (program)
                paths.append(places.root + folder + QLatin1Char('/') + QLatin1String(program));
        }
    }
    for (const QString &flatpak : {places.root + QStringLiteral("/var/lib/flatpak"),
                                   places.home + QStringLiteral("/.local/share/flatpak")})
        paths.append(flatpak + QStringLiteral("/exports/bin/") + QLatin1String(browser.flatpak));
    return firstExisting(paths);
}

QString extensionOf(const LinuxBrowser &browser, const BrowserPlaces &places)
{
    for (const char *folder : browser.profiles) {
        if (!folder)
            continue;
        const QString path = places.home + QLatin1Char('/') + QLatin1String(folder);
        const QString version = qstrcmp(browser.kind, "firefox") == 0
                                    ? InstalledExtensions::versionInFirefox(path)
                                    : InstalledExtensions::versionInChromium(path);
        if (!version.isEmpty())
            return version;
    }
    return {};
}

QVector<BrowserInfo> findOnLinux(const BrowserPlaces &places)
{
    QVector<BrowserInfo> found;
    for (const LinuxBrowser &browser : linuxBrowsers) {
        BrowserInfo info;
        info.kind = QLatin1String(browser.kind);
        info.name = QLatin1String(browser.name);
        info.executable = programOf(browser, places);
        if (info.executable.isEmpty())
            continue;
        info.extensionVersion = extensionOf(browser, places);
        found.append(info);
    }
    return found;
}

QVector<BrowserInfo> findOnWindows(const BrowserPlaces &places)
{
    using namespace BrowserDiscovery;
    QVector<BrowserInfo> found;
    const QString standard = defaultBrowser(places);
    const auto add = [&](const char *kind, const char *name, const QString &executable,
                         const QString &version) {
        if (!executable.isEmpty())
            found.append({QLatin1String(kind), QLatin1String(name), executable, version,
                          standard == QLatin1String(kind)});
    };
    add("chrome", "Google chrome", chromeExecutable(places), chromeExtensionVersion(places));
    add("firefox", "Firefox", firefoxExecutable(places), firefoxExtensionVersion(places));
    return found;
}

} // namespace

BrowserPlaces
BrowserPlaces::system(const std::function<QString(const QString &key)> &currentUserRegistry)
{
    BrowserPlaces places;
    places.home = QStandardPaths::standardLocations(QStandardPaths::HomeLocation).value(0);
    places.environment = [](const QString &name) {
        return qEnvironmentVariable(name.toLatin1().constData());
    };
    places.currentUserRegistry = currentUserRegistry;
    return places;
}

QVector<BrowserInfo> BrowserDiscovery::find(const BrowserPlaces &places)
{
    return places.isWindows ? findOnWindows(places) : findOnLinux(places);
}

QString BrowserDiscovery::chromeExecutable(const BrowserPlaces &places)
{
    return firstExisting(
        {places.environment(QStringLiteral("PROGRAMFILES")) +
             QStringLiteral("/Google/Chrome/Application/chrome.exe"),
         places.home + QStringLiteral("/AppData/Local/Google/Chrome/Application/chrome.exe"),
         places.home + QStringLiteral("/App/Data/Local/Google/Chrome/chrome.exe")});
}

QString BrowserDiscovery::firefoxExecutable(const BrowserPlaces &places)
{
    return firstExisting({places.environment(QStringLiteral("PROGRAMFILES")) +
                          QStringLiteral("/Mozilla Firefox/firefox.exe")});
}

QString BrowserDiscovery::chromeExtensionVersion(const BrowserPlaces &places)
{
    if (places.home.isEmpty()) {
        qWarning() << "Can't find standart location";
        return {};
    }
    return InstalledExtensions::versionInChromium(
        places.home + QStringLiteral("/AppData/Local/Google/Chrome/User Data"));
}

QString BrowserDiscovery::firefoxExtensionVersion(const BrowserPlaces &places)
{
    const QString folder =
        QDir::fromNativeSeparators(places.environment(QStringLiteral("APPDATA"))) +
        QStringLiteral("/Mozilla/Firefox/Profiles");
    const QStringList profiles = QDir(folder).entryList({QStringLiteral("*.default*")}, QDir::Dirs);
    for (const QString &profile : profiles) {
        const QString version =
            InstalledExtensions::versionInFirefoxProfile(folder + QLatin1Char('/') + profile);
        if (!version.isEmpty())
            return version;
    }
    return {};
}

QString BrowserDiscovery::defaultBrowser(const BrowserPlaces &places)
{
    const QString command = places.currentUserRegistry(
        QStringLiteral("Software\\Classes\\http\\shell\\open\\command\\"));
    const struct
    {
        const char *program;
        const char *kind;
    } kinds[] = {
        {"chrome.exe", "chrome"}, {"firefox.exe", "firefox"}, {"iexplore.exe", "iexplorer"}};
    for (const auto &entry : kinds) {
        if (command.contains(QLatin1String(entry.program)))
            return QLatin1String(entry.kind);
    }
    return {};
}

QString BrowserDiscovery::kindOfDesktopFile(const QString &name)
{
    for (const char *kind : {"chromium", "chrome", "firefox"}) {
        if (name.contains(QLatin1String(kind), Qt::CaseInsensitive))
            return QLatin1String(kind);
    }
    return {};
}

QStringList BrowserDiscovery::installCommand(const BrowserInfo &browser)
{
    return installCommand(browser, QStringLiteral(GLACERON_CHROME_STORE),
                          QStringLiteral(GLACERON_FIREFOX_PACKAGE));
}

QStringList BrowserDiscovery::installCommand(const BrowserInfo &browser, const QString &chromeStore,
                                             const QString &firefoxPackage)
{
    const QString address = browser.isFirefox() ? firefoxPackage : chromeStore;
    if (address.isEmpty())
        return {};
    if (browser.isFirefox())
        return {browser.executable, address};
    return {browser.executable, address + knownExtensionIds().first(),
            QStringLiteral("--new-window")};
}
