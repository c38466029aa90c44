#include "KnownSafes.h"
#include "SafeTesting.h"

#include <QTemporaryDir>
#include <QtTest>

class TestKnownSafes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listSurvivesARestartAndAMissingFolder()
    {
        const QTemporaryDir home;
        const QString config = home.filePath(QStringLiteral("config"));
        const QString safes = home.filePath(QStringLiteral("data/safes"));
        QString first;
        {
            GPMAppSettings settings(config, home.path());
            KnownSafes known(settings, safes);
            first = known.create(QStringLiteral("One"), QStringLiteral("p"), QStringLiteral("h"))
                        ->folder();
            known.create(QStringLiteral("Two"), QStringLiteral("p"), QStringLiteral("h"));
            known.remember(first);
        }
        GPMAppSettings settings(config, home.path());
        KnownSafes known(settings, safes);
        QVector<KnownSafes::Entry> entries = known.entries();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries.at(0).name, QStringLiteral("One"));
        QCOMPARE(entries.at(0).hint, QStringLiteral("h"));
        QVERIFY(known.open(first));

        QVERIFY(QDir(first).removeRecursively());
        QVERIFY(!known.open(first));
        entries = known.entries();
        QCOMPARE(entries.size(), 2);
        QVERIFY(!entries.at(0).available);
        QVERIFY(entries.at(1).available);
    }

    void safesSurviveTheLossOfTheSettings()
    {
        const QTemporaryDir home;
        const QString safes = home.filePath(QStringLiteral("safes"));
        QString folder;
        {
            GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
            KnownSafes known(settings, safes);
            folder = known.create(QStringLiteral("One"), QStringLiteral("p"), QStringLiteral("h"))
                         ->folder();
            QCOMPARE(known.entries().size(), 1);
        }
        QVERIFY(QDir().mkpath(safes + QStringLiteral("/no safe")));
        GPMAppSettings settings(home.filePath(QStringLiteral("other config")), home.path());
        const KnownSafes known(settings, safes);
        QCOMPARE(known.entries().size(), 1);
        QCOMPARE(known.entries().at(0).name, QStringLiteral("One"));
        QCOMPARE(known.entries().at(0).folder, folder);
    }

    void aSafeThatCannotBeMadeLeavesNothing()
    {
        const QTemporaryDir home;
        GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
        SafeEnvironment environment;
        auto files = std::make_shared<FaultyFiles>();
        files->failAt = 1;
        environment.files = files;
        KnownSafes known(settings, home.filePath(QStringLiteral("safes")), environment);
        QVERIFY(!known.create(QStringLiteral("n"), QStringLiteral("p"), QStringLiteral("h")));
        QVERIFY(QDir(home.filePath(QStringLiteral("safes"))).isEmpty());
        QVERIFY(known.entries().isEmpty());

        // A file stands where the folder of the safes should be made.
        writeFile(home.filePath(QStringLiteral("blocked")), "x");
        KnownSafes blocked(settings, home.filePath(QStringLiteral("blocked")));
        QVERIFY(!blocked.create(QStringLiteral("n"), QStringLiteral("p"), QStringLiteral("h")));
    }
};

QTEST_GUILESS_MAIN(TestKnownSafes)
#include "tst_knownsafes.moc"
