#include "BrowserWatch.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <map>
#include <memory>

namespace {

const QString id = QStringLiteral("ieciiloegilkonbpcplcagbpkoohnoib");
const QByteArray ours = R"({"name":"Glaceron Password Manager","version":"1.2.3"})";
const QByteArray another = R"({"name":"glaceron password manager","version":"9"})";
const QByteArray addons =
    R"({"addons":[{"version":"8","defaultLocale":{"name":"Other"}},7,{"version":"1.2.3",)"
    R"("defaultLocale":{"name":"Glaceron Password Manager"}}]})";

const QString chromeData = QStringLiteral("AppData/Local/Google/Chrome/User Data/");

} // namespace

/// A made tree of files stands for the computer.
class TestBrowserDiscovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void chromeOnWindows_data();
    void chromeOnWindows();
    void firefoxOnWindows_data();
    void firefoxOnWindows();
    void programsOnWindows();
    void defaultOnWindows_data();
    void defaultOnWindows();
    void linuxBrowsers_data();
    void linuxBrowsers();
    void installPages();
    void watchTellsOfChanges();
    void watchEndsWithoutTheDesktop_data();
    void watchEndsWithoutTheDesktop();

private:
    void write(const QString &path, const QByteArray &content = "x") const;

    std::unique_ptr<QTemporaryDir> m_folder;
    BrowserPlaces m_places;
    std::map<QString, QString> m_environment;
    QString m_registry;
};

void TestBrowserDiscovery::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_places = {};
    m_places.home = m_folder->filePath(QStringLiteral("home"));
    m_places.root = m_folder->path();
    m_places.environment = [this](const QString &name) { return m_environment[name]; };
    m_places.currentUserRegistry = [this](const QString &key) {
        return key == QLatin1String("Software\\Classes\\http\\shell\\open\\command\\") ? m_registry
                                                                                       : QString();
    };
    m_environment = {
        {QStringLiteral("PROGRAMFILES"), m_folder->filePath(QStringLiteral("Programs"))},
        {QStringLiteral("APPDATA"), m_folder->filePath(QStringLiteral("Roaming"))}};
    m_registry.clear();
}

void TestBrowserDiscovery::write(const QString &path, const QByteArray &content) const
{
    const QString full = m_folder->filePath(path);
    QDir().mkpath(QFileInfo(full).path());
    QFile file(full);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Can't write a file");
}

void TestBrowserDiscovery::chromeOnWindows_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("version");
    const QString folder = QStringLiteral("Default/Extensions/") + id;
    const QString manifest = folder + QStringLiteral("/1.2.3_0/manifest.json");
    const auto settings = [](const QByteArray &entry) {
        return R"({"extensions":{"settings":{")" + id.toLatin1() + R"(":)" + entry + "}}}";
    };
    QTest::newRow("second version") << manifest << ours << "1.2.3";
    QTest::newRow("another name") << manifest << another << "";
    QTest::newRow("no JSON") << manifest << ours.chopped(1) << "";
    QTest::newRow("no object") << manifest << QByteArray("[1]") << "";
    QTest::newRow("another id") << "Default/Extensions/abc/1.2.3_0/manifest.json" << ours << "";
    QTest::newRow("another profile")
        << QStringLiteral("Profile 2/Extensions/%1/1.2.3_0/manifest.json").arg(id) << ours
        << "1.2.3";
    QTest::newRow("unpacked") << "Default/Secure Preferences"
                              << settings(R"({"manifest":)" + ours + R"(,"path":"C:\\x"})")
                              << "1.2.3";
    QTest::newRow("unpacked, by its folder")
        << "Profile 1/Preferences" << settings(R"({"disable_reasons":[],"path":"UNPACKED"})")
        << "1.2.3";
    QTest::newRow("switched off") << "Default/Preferences"
                                  << settings(R"({"state":0,"manifest":)" + ours + "}") << "";
    QTest::newRow("switched off, as newer ones say")
        << "Default/Preferences" << settings(R"({"disable_reasons":[1],"path":"UNPACKED"})") << "";
    QTest::newRow("wrong types") << "Default/Preferences" << settings("[7]") << "";
    QTest::newRow("nothing") << "Default/x" << QByteArray() << "";
}

void TestBrowserDiscovery::chromeOnWindows()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, content);
    write(QStringLiteral("home/") + chromeData + QStringLiteral("Default/Extensions/") + id +
              QStringLiteral("/1.0_0/manifest.json"),
          another);
    write(QStringLiteral("unpacked/manifest.json"), ours);
    content.replace("UNPACKED", m_folder->filePath(QStringLiteral("unpacked")).toLatin1());
    write(QStringLiteral("home/") + chromeData + path, content);
    QTEST(BrowserDiscovery::chromeExtensionVersion(m_places), "version");

    m_places.home.clear();
    QTest::ignoreMessage(QtWarningMsg, "Can't find standart location");
    QCOMPARE(BrowserDiscovery::chromeExtensionVersion(m_places), QString());
}

void TestBrowserDiscovery::firefoxOnWindows_data()
{
    QTest::addColumn<QString>("profile");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("version");
    QTest::newRow("release") << "k3j.default-release" << addons << "1.2.3";
    QTest::newRow("plain") << "k3j.default" << addons << "1.2.3";
    QTest::newRow("of another name") << "k3j.work" << addons << "";
    QTest::newRow("no object") << "k3j.default"
                               << "[" + addons + "]"
                               << "";
    QTest::newRow("cut off") << "k3j.default" << addons.chopped(3) << "";
    QTest::newRow("not among them") << "k3j.default" << QByteArray(R"({"addons":[]})") << "";
}

void TestBrowserDiscovery::firefoxOnWindows()
{
    QFETCH(QString, profile);
    QFETCH(QByteArray, content);
    write(QStringLiteral("Roaming/Mozilla/Firefox/Profiles/a.default/x"));
    write(QStringLiteral("Roaming/Mozilla/Firefox/Profiles/%1/extensions.json").arg(profile),
          content);
    QTEST(BrowserDiscovery::firefoxExtensionVersion(m_places), "version");
}

void TestBrowserDiscovery::programsOnWindows()
{
    m_places.isWindows = true;
    QVERIFY(BrowserDiscovery::find(m_places).isEmpty());
    // The last place first, so that each is seen to come before the one behind it.
    for (const char *path : {"home/App/Data/Local/Google/Chrome/chrome.exe",
                             "home/AppData/Local/Google/Chrome/Application/chrome.exe",
                             "Programs/Google/Chrome/Application/chrome.exe"}) {
        write(QLatin1String(path));
        QCOMPARE(BrowserDiscovery::chromeExecutable(m_places),
                 m_folder->filePath(QLatin1String(path)));
    }
    write(QStringLiteral("Programs/Mozilla Firefox/firefox.exe"));
    write(QStringLiteral("Roaming/Mozilla/Firefox/Profiles/a.default/extensions.json"), addons);
    m_registry = QStringLiteral("\"C:\\Mozilla Firefox\\firefox.exe\" -osint -url \"%1\"");
    const QVector<BrowserInfo> found = BrowserDiscovery::find(m_places);
    QCOMPARE(found.size(), 2);
    QVERIFY(found.at(0).name == QLatin1String("Google chrome") && !found.at(0).hasExtension() &&
            !found.at(0).isDefault);
    QVERIFY(found.at(1).isFirefox() && found.at(1).hasExtension() && found.at(1).isDefault);
    QCOMPARE(found.at(1).executable,
             m_folder->filePath(QStringLiteral("Programs/Mozilla Firefox/firefox.exe")));
}

void TestBrowserDiscovery::defaultOnWindows_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("kind");
    QTest::newRow("Chrome") << R"("C:\Google\Chrome\chrome.exe" -- "%1")"
                            << "chrome";
    QTest::newRow("Firefox") << R"(C:\firefox.exe)"
                             << "firefox";
    QTest::newRow("Internet Explorer") << R"("C:\iexplore.exe" %1)"
                                       << "iexplorer";
    QTest::newRow("another") << R"("C:\opera.exe" "%1")"
                             << "";
    QTest::newRow("none") << ""
                          << "";
}

void TestBrowserDiscovery::defaultOnWindows()
{
    QFETCH(QString, command);
    m_registry = command;
    QTEST(BrowserDiscovery::defaultBrowser(m_places), "kind");
}

void TestBrowserDiscovery::linuxBrowsers_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("profileFile");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("version");
    const QByteArray unpacked = R"({"extensions":{"settings":{")" + id.toLatin1() +
                                R"(":{"path":"/gone","manifest":)" + ours + "}}}}";
    const QString store = QStringLiteral("Default/Extensions/%1/1.2.3_0/manifest.json").arg(id);
    QTest::newRow("Chromium") << "usr/bin/chromium"
                              << ".config/chromium/Profile 1/Preferences" << unpacked << "chromium"
                              << "1.2.3";
    QTest::newRow("Chromium as a snap")
        << "snap/bin/chromium" << QStringLiteral("snap/chromium/common/chromium/") + store << ours
        << "chromium"
        << "1.2.3";
    QTest::newRow("Chrome as a Flatpak")
        << "home/.local/share/flatpak/exports/bin/com.google.Chrome"
        << QStringLiteral(".var/app/com.google.Chrome/config/google-chrome/") + store << ours
        << "chrome"
        << "1.2.3";
    QTest::newRow("Chrome") << "opt/google/chrome/google-chrome"
                            << ".config/google-chrome/Default/Preferences" << QByteArray("{")
                            << "chrome"
                            << "";
    QTest::newRow("Firefox") << "own/bin/firefox-esr"
                             << ".mozilla/firefox/odd name.work/extensions.json" << addons
                             << "firefox"
                             << "1.2.3";
    QTest::newRow("Firefox that no list of profiles names")
        << "usr/bin/firefox"
        << ".mozilla/firefox/elsewhere/extensions.json" << addons << "firefox"
        << "";
}

void TestBrowserDiscovery::linuxBrowsers()
{
    QFETCH(QString, program);
    QFETCH(QString, profileFile);
    QFETCH(QByteArray, content);
    m_environment[QStringLiteral("PATH")] = QStringLiteral("/own/bin:/usr/bin");
    QVERIFY(BrowserDiscovery::find(m_places).isEmpty());
    write(program);
    write(QStringLiteral("home/") + profileFile, content);
    write(QStringLiteral("home/.mozilla/firefox/profiles.ini"),
          "[Profile0]\nName=none\n[Profile1]\nName=work\nIsRelative=1\nPath=odd name.work\n");
    const QVector<BrowserInfo> found = BrowserDiscovery::find(m_places);
    QCOMPARE(found.size(), 1);
    QTEST(found.at(0).kind, "kind");
    QTEST(found.at(0).extensionVersion, "version");
    QCOMPARE(found.at(0).executable, m_folder->filePath(program));
}

void TestBrowserDiscovery::installPages()
{
    BrowserInfo chrome;
    chrome.kind = QStringLiteral("chrome");
    chrome.executable = QStringLiteral("/bin/chrome");
    const QString store = QStringLiteral("https://store.example/");
    QCOMPARE(BrowserDiscovery::installCommand(chrome, store, {}),
             (QStringList{chrome.executable, store + id, QStringLiteral("--new-window")}));
    QVERIFY(BrowserDiscovery::installCommand(chrome, {}, store).isEmpty());
    BrowserInfo firefox = chrome;
    firefox.kind = QStringLiteral("firefox");
    QCOMPARE(BrowserDiscovery::installCommand(firefox, {}, store),
             (QStringList{firefox.executable, store}));
}

void TestBrowserDiscovery::watchTellsOfChanges()
{
    write(QStringLiteral("usr/bin/chromium"));
    write(QStringLiteral("usr/bin/firefox"));
    BrowserWatch watch(m_places,
                       {QStringLiteral("/bin/echo"), QStringLiteral("firefox-esr.desktop")});
    QSignalSpy changed(&watch, &BrowserWatch::changed);
    watch.look();
    QVERIFY(!watch.hasLooked());
    QVERIFY(changed.wait());
    QCOMPARE(watch.browsers().size(), 2);
    QVERIFY(!watch.browsers().at(0).isDefault && watch.browsers().at(1).isDefault);

    write(QStringLiteral("home/.config/chromium/Default/Extensions/%1/1/manifest.json").arg(id),
          ours);
    watch.look();
    QVERIFY(changed.wait());
    QVERIFY(watch.browsers().at(0).hasExtension());
    QCOMPARE(changed.size(), 2);
}

void TestBrowserDiscovery::watchEndsWithoutTheDesktop_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::newRow("no such program") << QStringList(QStringLiteral("/no/such/program"));
    QTest::newRow("one that hangs") << QStringList{QStringLiteral("sleep"), QStringLiteral("60")};
}

void TestBrowserDiscovery::watchEndsWithoutTheDesktop()
{
    QFETCH(QStringList, command);
    write(QStringLiteral("usr/bin/chromium"));
    BrowserWatch watch(m_places, command, std::chrono::milliseconds(100));
    QSignalSpy changed(&watch, &BrowserWatch::changed);
    watch.look();
    QVERIFY(changed.wait());
    QCOMPARE(watch.browsers().size(), 1);
    QVERIFY(!watch.browsers().at(0).isDefault);
}

QTEST_GUILESS_MAIN(TestBrowserDiscovery)
#include "tst_browserdiscovery.moc"
