#include "../Text.h"
#include "Logger.h"
#include "MessageHandler.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <thread>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestLogger : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesOfTwoDaysLandInTwoFiles()
    {
        const QTemporaryDir home;
        QDateTime now(QDate(2026, 11, 13), QTime(23, 59, 59));
        Logger logger(home.path(), "Some App"_s, "1.1.32"_s, "Windows 10"_s,
                      [&now] { return now; });
        const QDir folder(home.filePath(".Some App/log"_s));
        QVERIFY(!folder.exists());
        logger.write("late %1 ünï"_s, Logger::Warning);
        now = now.addSecs(1);
        logger.write("early"_s, Logger::Debug);
        QCOMPARE(folder.entryList(QDir::Files),
                 QStringList({"log_2026_11_13.txt"_s, "log_2026_11_14.txt"_s}));
        QCOMPARE(contentOf(folder.filePath("log_2026_11_13.txt"_s)),
                 QByteArray("[1.1.32][Windows 10][32bit][23:59:59] WARNING: late %1 ünï\n"));
        QCOMPARE(contentOf(folder.filePath("log_2026_11_14.txt"_s)),
                 QByteArray("[1.1.32][Windows 10][32bit][00:00:00] DEBUG: early\n"));
    }

    void linesOfTwoThreadsStayWhole()
    {
        const QTemporaryDir home;
        Logger logger(home.path(), "App"_s, "1"_s, "OS"_s);
        const auto writeMany = [&logger](QChar letter) {
            for (int i = 0; i < 200; ++i)
                logger.write(QString(100, letter), Logger::Warning);
        };
        std::thread other(writeMany, QLatin1Char('a'));
        writeMany(QLatin1Char('b'));
        other.join();
        const QList<QByteArray> lines =
            contentOf(logger.filePath(QDateTime::currentDateTime())).split('\n');
        QCOMPARE(lines.size(), 401);
        for (const QByteArray &line : lines.mid(0, 400))
            QVERIFY(line.endsWith(QByteArray(100, 'a')) || line.endsWith(QByteArray(100, 'b')));
    }

    void aHomeThatCannotBeWrittenToIsNoDisaster()
    {
        const QTemporaryDir home;
        QFile blocked(home.filePath(".App"_s));
        QVERIFY(blocked.open(QIODevice::WriteOnly));
        Logger logger(home.path(), "App"_s, "1"_s, "OS"_s);
        logger.write("lost"_s, Logger::Warning);
        QCOMPARE(blocked.size(), 0);
    }

    void messages_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("logged");
        QTest::addColumn<QString>("start");
        QTest::newRow("debug") << int(QtDebugMsg) << false << "Debug: "_s;
        QTest::newRow("info") << int(QtInfoMsg) << false << "Info: "_s;
        QTest::newRow("warning") << int(QtWarningMsg) << true << "Warning: "_s;
        QTest::newRow("critical") << int(QtCriticalMsg) << true << "Critical: "_s;
        QTest::newRow("fatal") << int(QtFatalMsg) << true << "Fatal: "_s;
    }
    void messages()
    {
        QFETCH(int, type);
        QFETCH(bool, logged);
        QFETCH(QString, start);
        const auto messageType = static_cast<QtMsgType>(type);
        QCOMPARE(isLogged(messageType), logged);
        const QMessageLogContext context("a/b.cpp", 12, "void f(int)", "default");
        QCOMPARE(formatMessage(messageType, context, "says %2"_s),
                 start + "says %2 (a/b.cpp:12, void f(int))"_s);
        QCOMPARE(formatMessage(messageType, QMessageLogContext(), "x"_s), start + "x (:0, )"_s);
    }

    void windowsVersions_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("name");
        const auto row = [](int code, const char *name) {
            QTest::addRow("%x", static_cast<unsigned>(code)) << code << QString::fromLatin1(name);
        };
        row(0x90, "Windows 7");
        row(0xB0, "Windows 8.1");
        row(0xC0, "Windows 10");
        row(0xC1, "Windows > 10");
        row(0xD0, "Windows > 10");
        row(0x10, "Windows NT");
        row(0x40, "Windows 2003");
        row(0x80, "Windows Vista");
        row(0x11, "Unknown OS");
        row(0, "Unknown OS");
    }
    void windowsVersions()
    {
        QFETCH(int, code);
        QFETCH(QString, name);
        QCOMPARE(windowsName(code), name);
    }
};

QTEST_GUILESS_MAIN(TestLogger)
#include "tst_logger.moc"
