#include "KnownSafes.h"
#include "SafeTesting.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

/// The list when all folders have answered anew.
QVector<KnownSafes::Entry> entriesNow(const KnownSafes &known)
{
    known.entries();
    if (!QTest::qWaitFor([&known] { return !known.isLooking(); }, patientMs))
        return {};
    return known.entries();
}

/// What is told in the end.
template <typename Answer, typename Ask>
Answer answerTo(const Ask &ask)
{
    std::optional<Answer> answer;
    ask([&answer](Answer told) { answer = told; });
    if (!QTest::qWaitFor([&answer] { return answer.has_value(); }, patientMs))
        qFatal("no answer");
    return *answer;
}

KnownSafes::Found addTo(KnownSafes &known, const QString &folder)
{
    return answerTo<KnownSafes::Found>([&](const auto &tell) { known.add(folder, tell); });
}

KnownSafes::Found locate(KnownSafes &known, const QString &gone, const QString &folder)
{
    return answerTo<KnownSafes::Found>([&](const auto &tell) { known.locate(gone, folder, tell); });
}

bool rename(KnownSafes &known, const QString &folder, const QString &name)
{
    return answerTo<bool>([&](const auto &tell) { known.rename(folder, name, nullptr, tell); });
}

} // namespace

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
            KnownSafes known(settings, safes, patient());
            first = known.create(QStringLiteral("One"), QStringLiteral("p"), QStringLiteral("h"))
                        ->folder();
            known.create(QStringLiteral("Two"), QStringLiteral("p"), QStringLiteral("h"));
            known.remember(first);
        }
        GPMAppSettings settings(config, home.path());
        KnownSafes known(settings, safes, patient());
        QVector<KnownSafes::Entry> entries = known.entries();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries.at(0).name, QStringLiteral("One"));
        QCOMPARE(entries.at(0).hint, QStringLiteral("h"));
        QVERIFY(known.open(first));

        QVERIFY(QDir(first).removeRecursively());
        QVERIFY(!known.open(first));
        entries = entriesNow(known);
        QCOMPARE(entries.size(), 2);
        QVERIFY(!entries.at(0).available);
        QVERIFY(entries.at(1).available);
    }

    void aDriveThatDoesNotAnswerKeepsItsOwnRowAlone()
    {
        const QTemporaryDir home;
        const QString far = home.filePath(QStringLiteral("far"));
        const QString near = home.filePath(QStringLiteral("near"));
        const auto files = std::make_shared<HangingFiles>(far);
        GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
        {
            KnownSafes known(settings, home.filePath(QStringLiteral("safes")));
            known.create(QStringLiteral("Near"), QStringLiteral("p"), {}, near);
            known.create(QStringLiteral("Far"), QStringLiteral("p"), QStringLiteral("h"), far);
        }
        SafeEnvironment environment;
        environment.files = files;
        {
            KnownSafes known(settings, home.filePath(QStringLiteral("safes")), environment);
            QTRY_VERIFY(known.entries().size() == 2 && known.entries().at(1).available);
            const KnownSafes::Entry waiting = known.entries().at(0);
            QVERIFY(waiting.looking && !waiting.available);
            QCOMPARE(waiting.name, QStringLiteral("Far")); // as it was remembered
            QVERIFY(!known.open(far));
            QVERIFY(known.isLate(far));
            // What it says when it is taken off the list meanwhile comes too late.
            known.remove(far);
            files->release();
            QTRY_VERIFY(!known.isLooking());
            QCOMPARE(entriesNow(known).size(), 1);
        }
        settings.setRecentList({far, near});
        const auto again = std::make_shared<HangingFiles>(far);
        environment.files = again;
        KnownSafes known(settings, home.filePath(QStringLiteral("safes")), environment);
        QVERIFY(known.entries().at(0).looking);
        QSignalSpy changed(&known, &KnownSafes::changed);
        again->release();
        QTRY_VERIFY(!changed.isEmpty() && known.entries().at(0).available);
        QCOMPARE(known.entries().at(0).hint, QStringLiteral("h"));
        {
            // Nobody waits for it at the end.
            environment.files = std::make_shared<HangingFiles>(far);
            const KnownSafes ending(settings, home.filePath(QStringLiteral("safes")), environment);
            QVERIFY(ending.entries().at(0).looking);
        }
        QVERIFY(!LooseWork::settle(0));
        static_cast<HangingFiles &>(*environment.files).release();
        QVERIFY(LooseWork::settle(patientMs));
    }

    void aFolderThatIsAlwaysLateIsUsableAllTheSame()
    {
        const QTemporaryDir home;
        const QString far = home.filePath(QStringLiteral("far"));
        copySampleSafe(far);
        GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
        settings.setRecentList({far});
        const auto files = std::make_shared<HangingFiles>(far);
        SafeEnvironment environment;
        environment.files = files;
        environment.lookWaitMs = 0;
        KnownSafes known(settings, home.filePath(QStringLiteral("safes")), environment);
        QVERIFY(!known.open(far));
        std::shared_ptr<GPMSafe> opened;
        connect(&known, &KnownSafes::answered, &known, [&](const QString &folder) {
            if (folder != far)
                return;
            files->hangAgain(); // the next look would be late, too
            opened = known.open(far);
        });
        files->release();
        QTRY_VERIFY(opened);
        QCOMPARE(opened->folder(), far);

        const QString meta = far + QStringLiteral("/safe.meta");
        writeFile(meta, contentOf(meta).replace("the usual", "another"));
        QVERIFY(known.openAsFound(far));
        // Who points to it, or gives it another name, does not hold the event loop.
        int answers = 0;
        known.add(far, [&](KnownSafes::Found found) {
            answers += found == KnownSafes::Found::KnownAlready;
        });
        known.rename(far, QStringLiteral("New name"), nullptr, [&](bool done) { answers += done; });
        QTRY_VERIFY(files->isAsked());
        QCOMPARE(answers, 0);
        files->release();
        QTRY_COMPARE(answers, 2);
        QTRY_VERIFY(!known.isLooking());
        QCOMPARE(known.entries().at(0).name, QStringLiteral("New name"));
        QVERIFY(contentOf(meta).contains("another"));
        known.beginDeletion(far);
        QVERIFY(!known.openAsFound(far));
        files->release();
    }

    void safesSurviveTheLossOfTheSettings()
    {
        const QTemporaryDir home;
        const QString safes = home.filePath(QStringLiteral("safes"));
        QString folder;
        {
            GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
            KnownSafes known(settings, safes, patient());
            folder = known.create(QStringLiteral("One"), QStringLiteral("p"), QStringLiteral("h"))
                         ->folder();
            QCOMPARE(known.entries().size(), 1);
        }
        QVERIFY(QDir().mkpath(safes + QStringLiteral("/no safe")));
        GPMAppSettings settings(home.filePath(QStringLiteral("other config")), home.path());
        SafeEnvironment environment = patient();
        const auto files = std::make_shared<HangingFiles>(folder);
        files->release();
        environment.files = files;
        KnownSafes known(settings, safes, environment);
        QCOMPARE(known.entries().size(), 1);
        QCOMPARE(known.entries().at(0).name, QStringLiteral("One"));
        QCOMPARE(known.entries().at(0).folder, folder);

        // What changes there is seen later, too.
        const QString meta = folder + QStringLiteral("/safe.meta");
        const QByteArray content = contentOf(meta);
        writeFile(meta, "unreadable");
        QVERIFY(!entriesNow(known).at(0).available);
        writeFile(meta, content);
        QVERIFY(entriesNow(known).at(0).available);

        // A look that has begun before does not bring back what is no more.
        files->hangAgain();
        known.entries();
        QTRY_VERIFY(files->isAsked());
        QVERIFY(QDir(folder).removeRecursively());
        known.forget(folder);
        const QSignalSpy answered(&known, &KnownSafes::answered);
        files->release();
        QTRY_VERIFY(!known.isLooking());
        for (const QList<QVariant> &answer : answered)
            QCOMPARE(answer.at(0).toString(), safes);
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
        KnownSafes known(settings, home.filePath(QStringLiteral("safes")), patient());
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
        KnownSafes known(settings, home.filePath(QStringLiteral("link")), patient());
        QCOMPARE(known.entries().size(), 1);
        QCOMPARE(addTo(known, home.filePath(QStringLiteral("link/safe/"))),
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
            KnownSafes known(settings, safes, patient());
            QCOMPARE(addTo(known, elsewhere), KnownSafes::Found::Taken);
            QCOMPARE(known.entries().size(), 2);
            known.remove(safes + QStringLiteral("/one"));
            known.remove(elsewhere);
            QVERIFY(known.entries().isEmpty());
        }
        GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
        KnownSafes known(settings, safes, patient());
        QVERIFY(known.entries().isEmpty());
        QVERIFY(QFile::exists(elsewhere + QStringLiteral("/safe.passid")));
        QCOMPARE(addTo(known, safes + QStringLiteral("/one")), KnownSafes::Found::Taken);
        QCOMPARE(known.entries().size(), 1);
        QVERIFY(known.entries().at(0).available);
        QCOMPARE(addTo(known, home.path()), KnownSafes::Found::NoSafe);
        QCOMPARE(addTo(known, home.filePath(QStringLiteral("x"))), KnownSafes::Found::NotThere);
    }

    void aSafeIsFoundAgainAndNoOtherTakesItsPlace()
    {
        const QTemporaryDir home;
        const QString before = home.filePath(QStringLiteral("before"));
        const QString after = home.filePath(QStringLiteral("after"));
        GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
        KnownSafes known(settings, home.filePath(QStringLiteral("safes")), patient());
        known.create(QStringLiteral("One"), QStringLiteral("p"), QStringLiteral("h"), before);
        known.facts().change(before, [](SafeFact &fact) { fact.itemCount = 7; });
        copySampleSafe(home.filePath(QStringLiteral("another")));
        QVERIFY(QDir().rename(before, after));
        QCOMPARE(known.entries().at(0).name, QStringLiteral("One"));
        QVERIFY(!entriesNow(known).at(0).available);

        QCOMPARE(locate(known, before, home.filePath(QStringLiteral("another"))),
                 KnownSafes::Found::AnotherSafe);
        QCOMPARE(locate(known, before, home.path()), KnownSafes::Found::NoSafe);
        QCOMPARE(known.entries().at(0).folder, before);
        QCOMPARE(locate(known, before, after), KnownSafes::Found::Taken);
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
        addTo(known, folder);
        QVERIFY(rename(known, folder, QStringLiteral("Röm & Co")));
        QCOMPARE(known.entries().at(0).name, QStringLiteral("Röm & Co"));
        files->failAt = files->operations + 1;
        files->andAllBehind = true;
        QVERIFY(!rename(known, folder, QStringLiteral("Full disk")));
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
        KnownSafes blocked(settings, home.filePath(QStringLiteral("blocked")), patient());
        QVERIFY(!blocked.create(QStringLiteral("n"), QStringLiteral("p"), QStringLiteral("h")));
    }
};

QTEST_GUILESS_MAIN(TestKnownSafes)
#include "tst_knownsafes.moc"
