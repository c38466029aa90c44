#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

/// A browser on this computer.
struct BrowserInfo
{
    QString kind; ///< "chrome", "chromium" or "firefox"
    QString name; ///< as it is shown
    QString executable;
    QString extensionVersion; ///< empty when the extension is not installed
    bool isDefault = false;   ///< opens web links

    bool isFirefox() const { return kind == QLatin1String("firefox"); }
    bool hasExtension() const { return !extensionVersion.isEmpty(); }
};

/// Where browsers are looked for; tests have a made tree. Used from another thread.
struct BrowserPlaces
{
    QString home;                                                   ///< of the user; may be empty
    std::function<QString(const QString &name)> environment;        ///< a variable
    std::function<QString(const QString &key)> currentUserRegistry; ///< a key's default value
    bool isWindows = false;
    QString root = {}; ///< before the system's own paths, as "/usr/bin"

    static BrowserPlaces
    system(const std::function<QString(const QString &key)> &currentUserRegistry);
};

/// Reads files alone; what is missing or cannot be read counts as not there.
namespace BrowserDiscovery {

/// The browsers that are there, in the order in which they are shown.
QVector<BrowserInfo> find(const BrowserPlaces &places);

QString chromeExecutable(const BrowserPlaces &places);
QString firefoxExecutable(const BrowserPlaces &places);

/// The version of the extension in Chrome or Firefox on Windows; empty when it is not installed.
QString chromeExtensionVersion(const BrowserPlaces &places);
QString firefoxExtensionVersion(const BrowserPlaces &places);

/// The kind of the browser that opens web links on Windows: "chrome", "firefox" or "iexplorer";
/// empty when it is another one.
QString defaultBrowser(const BrowserPlaces &places);

/// The kind of browser that a file of the desktop starts, as "firefox-esr.desktop"; empty when it
/// is another one.
QString kindOfDesktopFile(const QString &name);

/// What starts the browser with the page that installs the extension; empty while no such page is
/// known.
QStringList installCommand(const BrowserInfo &browser);

/// The same with pages of one's own.
QStringList installCommand(const BrowserInfo &browser, const QString &chromeStore,
                           const QString &firefoxPackage);

} // namespace BrowserDiscovery
