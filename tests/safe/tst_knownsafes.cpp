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

    void aSafeIsMadeOnlyWhereNothingElseLies_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("free");
        QTest::newRow("new") << QStringLiteral("new") << true;
        QTest::newRow("empty") << QStringLiteral("empty") << true;
        QTest::newRow("a hidden file in it") << QStringLiteral("hidden") << false;
        QTest::newRow("a file") << QStringLiteral("hidden/.x") << false;
        QTest::newRow("below nothing") << QStringLiteral("no/such") << false;
    }

    void aSafeIsMadeOnlyWhereNothingElseLies()
    {
        QFETCH(QString, folder);
        QFETCH(bool, free);
        const QTemporaryDir home;
        QVERIFY(QDir().mkpath(home.filePath(QStringLiteral("empty"))));
        QVERIFY(QDir().mkpath(home.filePath(QStringLiteral("hidden"))));
        writeFile(home.filePath(QStringLiteral("hidden/.x")), "x");
        GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
        KnownSafes known(settings, home.filePath(QStringLiteral("safes")));
        const QMap<QString, QByteArray> before = snapshot(home.filePath(QStringLiteral("hidden")));
        const auto safe = known.create(QStringLiteral("n"), QStringLiteral("p"),
                                       QStringLiteral("h"), home.filePath(folder));
        QCOMPARE(safe != nullptr, free);
        QCOMPARE(known.entries().size(), free ? 1 : 0);
        QCOMPARE(snapshot(home.filePath(QStringLiteral("hidden"))), before);
        if (free)
            QCOMPARE(known.entries().at(0).folder, home.filePath(folder));
    }

    void oneFolderStandsInTheListOnce()
    {
        const QTemporaryDir home;
        const QString safe = home.filePath(QStringLiteral("real/safe"));
        copySampleSafe(safe);
        QVERIFY(QFile::link(home.filePath(QStringLiteral("real")),
                            home.filePath(QStringLiteral("link"))));
        GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
        settings.setRecentList(
            {safe, home.filePath(QStringLiteral("link/safe")), safe + QLatin1Char('/')});
        KnownSafes known(settings, home.filePath(QStringLiteral("link")));
        QCOMPARE(known.entries().size(), 1);
        QCOMPARE(known.add(home.filePath(QStringLiteral("link/safe/"))),
                 KnownSafes::Found::KnownAlready);
        QCOMPARE(known.entries().size(), 1);
        QCOMPARE(settings.recentList(), QStringList{safe});
        QCOMPARE(known.listed(home.filePath(QStringLiteral("link/safe"))), safe);
    }

    void aSafeThatIsTakenOffTheListStaysAway()
    {
        const QTemporaryDir home;
        const QString safes = home.filePath(QStringLiteral("safes"));
        const QString elsewhere = home.filePath(QStringLiteral("elsewhere"));
        copySampleSafe(safes + QStringLiteral("/one"));
        copySampleSafe(elsewhere);
        {
            GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
            KnownSafes known(settings, safes);
            QCOMPARE(known.add(elsewhere), KnownSafes::Found::Taken);
            QCOMPARE(known.entries().size(), 2);
            known.remove(safes + QStringLiteral("/one"));
            known.remove(elsewhere);
            QVERIFY(known.entries().isEmpty());
        }
        GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
        KnownSafes known(settings, safes);
        QVERIFY(known.entries().isEmpty());
        QVERIFY(QFile::exists(elsewhere + QStringLiteral("/safe.passid")));
        QCOMPARE(known.add(safes + QStringLiteral("/one")), KnownSafes::Found::Taken);
        QCOMPARE(known.entries().size(), 1);
        QVERIFY(known.entries().at(0).available);
        QCOMPARE(known.add(home.path()), KnownSafes::Found::NoSafe);
        QCOMPARE(known.add(home.filePath(QStringLiteral("x"))), KnownSafes::Found::NotThere);
    }

    void aSafeIsFoundAgainAndNoOtherTakesItsPlace()
    {
        const QTemporaryDir home;
        const QString before = home.filePath(QStringLiteral("before"));
        const QString after = home.filePath(QStringLiteral("after"));
        GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
        KnownSafes known(settings, home.filePath(QStringLiteral("safes")));
        known.create(QStringLiteral("One"), QStringLiteral("p"), QStringLiteral("h"), before);
        known.facts().change(before, [](SafeFact &fact) { fact.itemCount = 7; });
        copySampleSafe(home.filePath(QStringLiteral("another")));
        QVERIFY(QDir().rename(before, after));
        QCOMPARE(known.entries().at(0).name, QStringLiteral("One"));
        QVERIFY(!known.entries().at(0).available);

        QCOMPARE(known.locate(before, home.filePath(QStringLiteral("another"))),
                 KnownSafes::Found::AnotherSafe);
        QCOMPARE(known.locate(before, home.path()), KnownSafes::Found::NoSafe);
        QCOMPARE(known.entries().at(0).folder, before);
        QCOMPARE(known.locate(before, after), KnownSafes::Found::Taken);
        QCOMPARE(known.entries().size(), 1);
        QVERIFY(known.entries().at(0).available);
        QCOMPARE(known.facts().of(after).itemCount, 7);
        QCOMPARE(settings.recentList(), QStringList{after});
    }

    void aLockedSafeIsRenamedAndItsPasswordChecked()
    {
        const QTemporaryDir home;
        const QString folder = home.filePath(QStringLiteral("safe"));
        copySampleSafe(folder);
        SafeEnvironment environment;
        auto files = std::make_shared<FaultyFiles>();
        environment.files = files;
        GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
        KnownSafes known(settings, home.filePath(QStringLiteral("safes")), environment);
        known.add(folder);
        QVERIFY(known.rename(folder, QStringLiteral("Röm & Co")));
        QCOMPARE(known.entries().at(0).name, QStringLiteral("Röm & Co"));
        files->failAt = files->operations + 1;
        files->andAllBehind = true;
        QVERIFY(!known.rename(folder, QStringLiteral("Full disk")));
        QCOMPARE(known.entries().at(0).name, QStringLiteral("Röm & Co"));

        QVERIFY(known.checkPassword(folder, samplePassword).result());
        QVERIFY(!known.checkPassword(folder, QStringLiteral("wrong")).result());
        QVERIFY(!known.checkPassword(home.path(), samplePassword).result());
        QVERIFY(known.open(folder)->unlock(samplePassword));
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
