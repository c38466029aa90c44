#include "../Text.h"
#include "InstanceChannel.h"

#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

// The other instance is another process: this program with the folder as its argument.

class TestInstanceChannel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSecondInstanceHandsOver()
    {
        const QTemporaryDir folder;
        InstanceChannel first;
        QVERIFY(first.acquire(folder.path()));
        QSignalSpy messages(&first, &InstanceChannel::messageReceived);
        for (int i = 0; i < 2; ++i) {
            QProcess second;
            second.start(QCoreApplication::applicationFilePath(), {"--second"_s, folder.path()});
            QTRY_COMPARE(second.state(), QProcess::NotRunning);
            QCOMPARE(second.exitCode(), 0);
        }
        QCOMPARE(messages.count(), 2);
        QCOMPARE(messages.at(0).at(0).toString(), "Some Ünï name"_s);
    }

    void anInstanceThatDoesNotAnswer()
    {
        const QTemporaryDir folder;
        InstanceChannel first;
        QVERIFY(first.acquire(folder.path()));
        // This loop does not run meanwhile.
        QProcess second;
        second.start(QCoreApplication::applicationFilePath(),
                     {"--second"_s, folder.path(), "50"_s});
        QVERIFY(second.waitForFinished());
        QCOMPARE(second.exitCode(), 1);
    }

    void whatACrashedInstanceLeftIsNoObstacle()
    {
        const QTemporaryDir folder;
        QProcess crashing;
        crashing.start(QCoreApplication::applicationFilePath(), {"--hold"_s, folder.path()});
        QVERIFY(crashing.waitForReadyRead());
        InstanceChannel next;
        QVERIFY(!next.acquire(folder.path()));
        crashing.kill();
        QVERIFY(crashing.waitForFinished());
        QVERIFY(next.acquire(folder.path()));
        InstanceChannel third;
        QVERIFY(!third.acquire(folder.path()));
    }

    void aFolderThatCannotBeWrittenToHasNoOther()
    {
        const QTemporaryDir folder;
        QFile blocked(folder.filePath("blocked"_s));
        QVERIFY(blocked.open(QIODevice::WriteOnly));
        InstanceChannel first;
        QVERIFY(first.acquire(blocked.fileName() + "/config"_s));
    }
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    InstanceChannel channel;
    if (arguments.value(1) == QLatin1String("--second")) {
        if (channel.acquire(arguments.value(2)))
            return 2;
        const int timeout = arguments.value(3, "5000"_s).toInt();
        return channel.send("Some Ünï name"_s, timeout) ? 0 : 1;
    }
    if (arguments.value(1) == QLatin1String("--hold")) {
        if (!channel.acquire(arguments.value(2)))
            return 2;
        puts("held");
        fflush(stdout);
        return QCoreApplication::exec();
    }
    TestInstanceChannel test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_instancechannel.moc"
