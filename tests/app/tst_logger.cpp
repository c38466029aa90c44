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
        Logger logger(home.path(), QStringLiteral("Some App"), QStringLiteral("1.1.32"),
                      QStringLiteral("Windows 10"), [&now] { return now; });
        const QDir folder(home.filePath(QStringLiteral(".Some App/log")));
        QVERIFY(!folder.exists());
        logger.write(QStringLiteral("late %1 ünï"), Logger::Warning);
        now = now.addSecs(1);
        logger.write(QStringLiteral("early"), Logger::Debug);
        QCOMPARE(folder.entryList(QDir::Files),
                 QStringList(
                     {QStringLiteral("log_2026_11_13.txt"), QStringLiteral("log_2026_11_14.txt")}));
        QCOMPARE(contentOf(folder.filePath(QStringLiteral("log_2026_11_13.txt"))),
                 QByteArray("[1.1.32][Windows 10][32bit][23:59:59] WARNING: late %1 ünï\n"));
        QCOMPARE(contentOf(folder.filePath(QStringLiteral("log_2026_11_14.txt"))),
                 QByteArray("[1.1.32][Windows 10][32bit][00:00:00] DEBUG: early\n"));
    }

    void linesOfTwoThreadsStayWhole()
    {
        const QTemporaryDir home;
        Logger logger(home.path(), QStringLiteral("App"), QStringLiteral("1"),
                      QStringLiteral("OS"));
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
        QFile blocked(home.filePath(QStringLiteral(".App")));
        QVERIFY(blocked.open(QIODevice::WriteOnly));
        Logger logger(home.path(), QStringLiteral("App"), QStringLiteral("1"),
                      QStringLiteral("OS"));
        logger.write(QStringLiteral("lost"), Logger::Warning);
        QCOMPARE(blocked.size(), 0);
    }

    void messages_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("logged");
        QTest::addColumn<QString>("start");
        QTest::newRow("debug") << int(QtDebugMsg) << false << QStringLiteral("Debug: ");
        QTest::newRow("info") << int(QtInfoMsg) << false << QStringLiteral("Info: ");
        QTest::newRow("warning") << int(QtWarningMsg) << true << QStringLiteral("Warning: ");
        QTest::newRow("critical") << int(QtCriticalMsg) << true << QStringLiteral("Critical: ");
        QTest::newRow("fatal") << int(QtFatalMsg) << true << QStringLiteral("Fatal: ");
    }
    void messages()
    {
        QFETCH(int, type);
        QFETCH(bool, logged);
        QFETCH(QString, start);
        const auto messageType = static_cast<QtMsgType>(type);
        QCOMPARE(isLogged(messageType), logged);
        const QMessageLogContext context("a/b.cpp", 12, "void f(int)", "default");
        QCOMPARE(formatMessage(messageType, context, QStringLiteral("says %2")),
                 start + QStringLiteral("says %2 (a/b.cpp:12, void f(int))"));
        QCOMPARE(formatMessage(messageType, QMessageLogContext(), QStringLiteral("x")),
                 start + QStringLiteral("x (:0, )"));
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
