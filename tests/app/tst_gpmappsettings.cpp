#include "../Text.h"
#include "GPMAppSettings.h"
#include "StartArguments.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// JSON written with single quotes.
QByteArray json(const char *text)
{
    return QByteArray(text).replace('\'', '"');
}

} // namespace

class TestGpmAppSettings : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_folder;
    const QDateTime m_now{QDate(2026, 11, 21), QTime(8, 9, 10, 123), Qt::UTC};

    QString path() const { return m_folder + "/config.json"_s; }
    QString hidden() const { return m_temporary->filePath(".app"_s); }
    std::unique_ptr<GPMAppSettings> load() const
    {
        return std::make_unique<GPMAppSettings>(m_folder, hidden(), [this] { return m_now; });
    }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray &text) const
    {
        QDir().mkpath(m_folder);
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_folder = m_temporary->filePath("config/of/app"_s);
    }

    void firstStart()
    {
        QTest::ignoreMessage(QtWarningMsg, "Can't load app settings. Uses defaults");
        const auto settings = load();
        QVERIFY(settings->firstStart());
        QCOMPARE(settings->backupCount(), 10);
        QCOMPARE(settings->inactivityInterval(), 3);
        QCOMPARE(settings->pluginHotkey(), QString());
        QCOMPARE(settings->backupPath(), QDir::toNativeSeparators(hidden() + "/backup"_s));
        QCOMPARE(settings->backupCheck(), m_now);
        QCOMPARE(settings->loginMode(), GPMAppSettings::FillAndSubmit);
        QCOMPARE(settings->pluginLoginMode(), GPMAppSettings::PluginFill);
        QVERIFY(!QDir(m_folder).exists());
    }

    void theFileHasItsKeysInOrder()
    {
        {
            const auto settings = load();
            settings->setBackupPath("/b \"q\""_s);
            settings->setRecentList({"/one"_s, "/two"_s});
            settings->setLoginMode(GPMAppSettings::Fill);
            settings->setInstanceId("0123"_s);
            settings->setFirstStart(false);
            QVERIFY(settings->storeSettings());
        }
        QCOMPARE(content(),
                 json("{'config':'gpm','version':1,'recent_list':['/one','/two'],"
                      "'clear_clipboard':true,'inactivity_interval':3,'autolock_inactive':true,"
                      "'autolock_screensaver':true,'enable_backup':true,'backup_count':10,"
                      "'backup_path':'/b \\'q\\'','check_updates':true,'lock_hotkey':'',"
                      "'plugin_hotkey':'','language_file':'','first_start':false,"
                      "'backup_check':1795248550123,'login_mode':'Fill',"
                      "'plugin_login_mode':'PluginFill','plugin_open_mode':'Current',"
                      "'backup_interval':'Daily','instance_id':'0123'}"));
        QCOMPARE(QFile::permissions(path()),
                 QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
    }

    void everyValueSurvivesARestart()
    {
        {
            const auto settings = load();
            settings->setEnableBackup(false);
            settings->setBackupInterval(GPMAppSettings::Month);
            settings->setBackupPath(m_temporary->filePath("new/backups"_s));
            settings->setBackupCount(3);
            settings->setClearClipboard(false);
            settings->setAutolockScreensaver(false);
            settings->setAutolockInactive(false);
            settings->setInactivityInterval(15);
            settings->setCheckUpdates(false);
            settings->setLockHotkey("Ctrl+Alt+L"_s);
            settings->setPluginHotkey("Ctrl+Alt+P"_s);
            settings->setLoginMode(GPMAppSettings::Fill);
            settings->setPluginOpenMode(GPMAppSettings::NewWindow);
            settings->setPluginLoginMode(GPMAppSettings::PluginFillAndSubmit);
            settings->setLanguageFile("passwordmanager_de"_s);
            settings->setFirstStart(false);
            settings->setBackupCheck(m_now.addMSecs(1));
            settings->setInstanceId("abc"_s);
            settings->setRecentList({"/x"_s});
            QVERIFY(settings->storeSettings());
        }
        const QByteArray stored = content();
        const auto settings = load();
        QVERIFY(QDir(m_temporary->filePath("new/backups"_s)).exists());
        QCOMPARE(settings->pluginOpenMode(), GPMAppSettings::NewWindow);
        QCOMPARE(settings->backupCheck(), m_now.addMSecs(1));
        QVERIFY(settings->storeSettings());
        QCOMPARE(content(), stored);
    }

    void partialFiles_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("refused"); // each of them with a line in the log
        QTest::newRow("marker alone") << json("{'config':'gpm'}") << 0;
        QTest::newRow("wrong types")
            << json("{'backup_count':'x','first_start':3,'recent_list':{},'login_mode':0,"
                    "'backup_check':'now','backup_path':7,'instance_id':[]}")
            << 7;
        QTest::newRow("unknown names")
            << json("{'login_mode':'Never','plugin_open_mode':'newtab','backup_interval':'Hourly'}")
            << 3;
        QTest::newRow("one hotkey twice")
            << json("{'lock_hotkey':'Ctrl+Alt+L','plugin_hotkey':'ctrl+alt+l'}") << 1;
        QTest::newRow("numbers that none can hold")
            << json("{'inactivity_interval':1e300,'backup_count':2.5,'backup_check':-1e300}") << 3;
    }
    void partialFiles()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, refused);
        write(text);
        static int warnings;
        warnings = 0;
        const QtMessageHandler before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &) { ++warnings; });
        const auto settings = load();
        qInstallMessageHandler(before);
        QCOMPARE(warnings, refused);
        QCOMPARE(settings->inactivityInterval(), 3);
        QCOMPARE(settings->backupPath(), QString());
        QVERIFY(settings->backupCheck().isNull());
        QCOMPARE(settings->backupCount(), 10);
        QVERIFY(settings->firstStart());
        QCOMPARE(settings->loginMode(), GPMAppSettings::FillAndSubmit);
        QCOMPARE(settings->pluginOpenMode(), GPMAppSettings::Current);
        QVERIFY(settings->recentList().isEmpty());
    }

    void whatCannotBeReadIsKeptAside_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("of another program") << json("{'config':'other','backup_count':3}");
        QTest::newRow("list") << QByteArray("[1,2]");
        QTest::newRow("empty object") << QByteArray("{}");
        QTest::newRow("cut") << json("{'config':'gpm','backup_count':3");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("deep") << QByteArray(200000, '[');
        QTest::newRow("binary") << QByteArray::fromHex("00ff00fe7b7d");
    }
    void whatCannotBeReadIsKeptAside()
    {
        QFETCH(QByteArray, text);
        write(text);
        QTest::ignoreMessage(QtWarningMsg, "Can't load app settings. Uses defaults");
        const auto settings = load();
        QCOMPARE(settings->backupCount(), 10);
        QCOMPARE(content(), text);
        QVERIFY(settings->storeSettings());
        QVERIFY(settings->storeSettings());
        QVERIFY(content().startsWith(json("{'config':'gpm'")));
        const QStringList files = QDir(m_folder).entryList(QDir::Files);
        QCOMPARE(files.size(), 2);
        QFile aside(m_folder + QLatin1Char('/') + files.last());
        QVERIFY(aside.open(QIODevice::ReadOnly));
        QCOMPARE(aside.readAll(), text);
    }

    void aFolderThatCannotBeMadeIsReported()
    {
        QFile blocked(m_temporary->filePath("config"_s));
        QVERIFY(blocked.open(QIODevice::WriteOnly));
        QVERIFY(!load()->storeSettings());
        QCOMPARE(blocked.size(), 0);
    }

    void trayArgument_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("hidden");
        const auto row = [](const char *text, bool hidden) {
            QTest::newRow(text) << QString::fromLatin1(text).split(QLatin1Char(' ')) << hidden;
        };
        row("tray", false); // the program's own path
        row("app", false);
        row("app tray", true);
        row("app --tray", true);
        row("app -tray", true);
        row("app /tray", true);
        row("app --t-r-a-y", true);
        row("app other --tray", true);
        row("app TRAY", false);
        row("app trays", false);
    }
    void trayArgument()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, hidden);
        QCOMPARE(startsInTray(arguments), hidden);
    }
};

QTEST_GUILESS_MAIN(TestGpmAppSettings)
#include "tst_gpmappsettings.moc"
