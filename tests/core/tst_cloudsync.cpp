#include "../Text.h"
#include "CloudComputer.h"

class TestCloudSync : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    std::unique_ptr<Computer> m_one;
    std::unique_ptr<Computer> m_two;
    QString m_mirror;

    QString path(const char *name) const { return m_temporary->filePath(QLatin1String(name)); }

    /// Both computers have the safe, which lies in the cloud folder.
    void share()
    {
        m_one->create();
        m_mirror = m_one->turnOn().folder;
        QTRY_COMPARE_WITH_TIMEOUT(m_one->state(), State::Synchronised, quickly);
        QVERIFY(m_two->import(m_mirror).good());
        QVERIFY(m_two->safe->unlock(samplePassword));
        QTRY_COMPARE_WITH_TIMEOUT(m_two->state(), State::Synchronised, quickly);
    }

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(path("cloud")));
        m_one = std::make_unique<Computer>(path("one"), path("cloud"));
        m_two = std::make_unique<Computer>(path("two"), path("cloud"));
    }
    void cleanup()
    {
        m_one.reset();
        m_two.reset();
    }

    void bringsWhatOneComputerDoesToTheOther()
    {
        share();
        QSignalSpy came(&m_two->sync, &CloudSync::itemsCame);
        const QString id = m_one->add("first"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_two->title(id), "first"_s, quickly);
        QTRY_COMPARE_WITH_TIMEOUT(came.count(), 1, quickly);
        QCOMPARE(came.first(), (QVariantList{1, 0}));
        QVERIFY(m_one->safe->removeItems({id}));
        QTRY_VERIFY_WITH_TIMEOUT(!m_two->safe->item(id), quickly);
        QTRY_COMPARE_WITH_TIMEOUT(came.last(), (QVariantList{0, 1}), quickly);
        QVERIFY(m_one->sync.status().last.isValid());

        // Known at the next start, too.
        const QString folder = m_two->safe->folder();
        m_two.reset();
        SafeFacts facts(path("two/safes.json"));
        QCOMPARE(facts.of(folder).mirrorFolder, m_mirror);
        QVERIFY(facts.of(folder).lastSynchronised.isValid());
    }

    void tellsOnceOfWhatComesInPortions()
    {
        CloudNews news(0);
        QSignalSpy came(&news, &CloudNews::came);
        news.add(2, 0);
        news.add(3, 1);
        QTRY_COMPARE_WITH_TIMEOUT(came.count(), 1, quickly);
        QCOMPARE(came.first(), (QVariantList{5, 1}));
        news.add(1, 0);
        news.drop();
        news.add(0, 0);
        QVERIFY(!came.wait(0));
    }

    /// The same safe came to the other computer by another way than the cloud folder.
    void joinsTheMirrorThatIsThere()
    {
        m_one->create();
        const QString first = m_one->add("first"_s);
        QVERIFY(m_one->safe->saveChanges());
        const QString copy = path("two/copied");
        writeSafe(copy, snapshot(m_one->safe->folder()));
        const QString second = m_one->add("second"_s);
        const MirrorChoice made = m_one->turnOn();
        QVERIFY(made.good() && !made.joins);
        QTRY_COMPARE_WITH_TIMEOUT(m_one->state(), State::Synchronised, quickly);

        m_two->safe = m_two->safes.open(copy);
        m_two->sync.setSafe(m_two->safe);
        QVERIFY(m_two->safe->unlock(samplePassword));
        const MirrorChoice joined = m_two->turnOn();
        QVERIFY(joined.good() && joined.joins);
        QCOMPARE(joined.folder, made.folder);
        QTRY_COMPARE_WITH_TIMEOUT(m_two->title(second), "second"_s, quickly);
        QCOMPARE(m_two->safe->itemCount(), 2);
        QCOMPARE(m_two->title(first), "first"_s);

        // A second copy on one computer would be merged with the first behind the user's back.
        m_two->safe = m_two->safes.open(m_one->safe->folder());
        m_two->sync.setSafe(m_two->safe);
        QCOMPARE(m_two->turnOn().fault, MirrorChoice::Fault::Taken);
    }

    void asksForANewPasswordAndTakesItOver()
    {
        share();
        const QString id = m_one->add("first"_s);
        QTRY_VERIFY_WITH_TIMEOUT(m_two->safe->item(id), quickly);
        QSignalSpy needed(&m_two->sync, &CloudSync::passwordNeeded);
        QSignalSpy taken(&m_two->sync, &CloudSync::passwordTaken);
        const auto take = [&](const QString &password) {
            m_two->sync.takePassword(password);
            if (taken.isEmpty())
                taken.wait(quickly);
            return taken.takeLast().first().value<CloudSync::Taking>();
        };
        QCOMPARE(take(newPassword), CloudSync::Taking::NotNeeded);
        QTRY_VERIFY_WITH_TIMEOUT(m_one->state() == State::Synchronised, quickly);
        QVERIFY(m_one->safe->changePassword(newPassword));
        m_one->sync.synchronize();
        QTRY_COMPARE_WITH_TIMEOUT(needed.count(), 1, quickly);
        QVERIFY(m_two->sync.needsPassword());

        // It goes on under the old one as long as the user likes.
        m_two->safe->item(id)->setTitle("typed meanwhile"_s);
        m_two->safe->touchItem(*m_two->safe->item(id));
        m_two->safe->saveChangesAsync();
        QCOMPARE(take("wrong"_s), CloudSync::Taking::Wrong);
        QVERIFY(m_two->safe->isPassword(samplePassword));
        QCOMPARE(take(newPassword), CloudSync::Taking::Taken);
        QVERIFY(m_two->safe->isPassword(newPassword));
        QTRY_COMPARE_WITH_TIMEOUT(m_one->title(id), "typed meanwhile"_s, quickly);
        QTRY_COMPARE_WITH_TIMEOUT(m_two->state(), State::Synchronised, quickly);
        QCOMPARE(needed.count(), 1);

        const QString folder = m_two->safe->folder();
        m_two.reset();
        GPMSafe reopened;
        QVERIFY(reopened.open(folder) && !reopened.unlock(samplePassword));
        QVERIFY(reopened.unlock(newPassword));
        QCOMPARE(reopened.item(id)->title(), "typed meanwhile"_s);
        QVERIFY(reopened.unreadableFiles().isEmpty());
        QCOMPARE(m_one->safe->itemCount(), 1);
    }

    /// The answer about one safe's password comes when another safe is the current one.
    void neverGivesAPasswordToAnotherSafe()
    {
        const auto shareAndChange = [this](const QString &password) {
            share();
            QTRY_COMPARE_WITH_TIMEOUT(m_one->state(), State::Synchronised, quickly);
            QVERIFY(m_one->safe->changePassword(password));
            m_one->sync.synchronize();
            QTRY_VERIFY_WITH_TIMEOUT(m_two->sync.needsPassword(), quickly);
        };
        shareAndChange(newPassword);
        const std::shared_ptr<GPMSafe> first = m_two->safe;
        const QString mirror = m_mirror;
        shareAndChange("a third password 3"_s);
        QVERIFY(m_mirror != mirror);
        m_two->sync.setSafe(first);
        QTRY_VERIFY_WITH_TIMEOUT(m_two->sync.needsPassword(), quickly);
        QSignalSpy taken(&m_two->sync, &CloudSync::passwordTaken);
        // Only the check reads it now: the meeting is over.
        m_two->disk->slowFile = mirror + "/safe.passid"_s;
        m_two->sync.takePassword(newPassword);
        m_two->sync.setSafe(m_two->safe);
        QTRY_VERIFY_WITH_TIMEOUT(m_two->sync.needsPassword(), quickly);
        m_two->disk->ready.release();
        QTRY_COMPARE_WITH_TIMEOUT(taken.count(), 1, quickly);
        QCOMPARE(taken.first().first().value<CloudSync::Taking>(), CloudSync::Taking::NotNeeded);
        QVERIFY(!m_two->safe->isChangingPassword());
        QVERIFY(m_two->safe->isPassword(samplePassword));
    }

    /// Each trouble is told once until it is over, and nothing is lost by it.
    void tellsTroubleOnce()
    {
        share();
        QSignalSpy troubled(&m_one->sync, &CloudSync::troubled);
        const QString away = path("away");
        QVERIFY(QDir().rename(m_mirror, away));
        const QString id = m_one->add("first"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_one->state(), State::FolderMissing, quickly);
        m_one->add("second"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!m_one->safe->item(id)->isChanged(), quickly);
        QVERIFY(m_one->sync.status().needsAttention());
        QVERIFY(QDir().rename(away, m_mirror));
        m_one->disk->folder = m_mirror;
        m_one->sync.synchronize();
        QTRY_COMPARE_WITH_TIMEOUT(m_one->state(), State::FolderNotWritten, quickly);
        m_one->disk->folder.clear();
        m_one->sync.synchronize();
        QTRY_COMPARE_WITH_TIMEOUT(m_one->state(), State::Synchronised, quickly);
        QTRY_VERIFY_WITH_TIMEOUT(m_two->safe->item(id), quickly);
        QCOMPARE(troubled.count(), 2);
        QVERIFY(QDir().rename(m_mirror, away));
        m_one->sync.synchronize();
        QTRY_COMPARE_WITH_TIMEOUT(m_one->state(), State::FolderMissing, quickly);
        QCOMPARE(troubled.count(), 3);
    }

    void waitsForWhatHasNotArrived()
    {
        share();
        const QString id = m_one->add("first"_s);
        QTRY_VERIFY_WITH_TIMEOUT(m_two->safe->item(id), quickly);
        QTRY_COMPARE_WITH_TIMEOUT(m_one->state(), State::Synchronised, quickly);
        const QString file = m_mirror + "/content/"_s + id;
        const QByteArray whole = contentOf(file);
        writeFile(file, whole.left(whole.size() / 2));
        m_two->sync.synchronize();
        QTRY_COMPARE_WITH_TIMEOUT(m_two->state(), State::Waiting, quickly);
        QCOMPARE(m_two->sync.status().waiting, QStringList{"first"_s});
        writeFile(file, whole);
        m_two->sync.synchronize();
        QTRY_COMPARE_WITH_TIMEOUT(m_two->state(), State::Synchronised, quickly);
        QCOMPARE(m_two->title(id), "first"_s);
    }

    void turnsOff()
    {
        share();
        const QString folder = m_two->safe->folder();
        m_two->sync.turnOff(folder, false);
        QCOMPARE(m_two->state(), State::Off);
        QVERIFY(QFileInfo(m_mirror + "/safe.meta"_s).exists());
        QSignalSpy removed(&m_one->sync, &CloudSync::copyRemoved);
        // In the middle of the meeting that a change leads to.
        connect(
            &m_one->sync, &CloudSync::statusChanged, this,
            [this] {
                if (m_one->state() == State::Running)
                    m_one->sync.turnOff(m_one->safe->folder(), true);
            },
            Qt::QueuedConnection);
        const QString id = m_one->add("first"_s);
        QVERIFY(removed.wait(quickly));
        QCOMPARE(removed.first().at(1).toBool(), true);
        QVERIFY(!QFileInfo::exists(m_mirror));
        QVERIFY(m_one->safe->item(id) && !m_two->safe->item(id));
        QCOMPARE(m_one->state(), State::Off);
    }

    /// The program ended, or its computer, in the middle of the removal.
    void removesAtTheNextStartWhatTheEndCutOff_data()
    {
        QTest::addColumn<bool>("used");
        QTest::newRow("nobody wants it") << false;
        QTest::newRow("mirrored there again") << true;
    }
    void removesAtTheNextStartWhatTheEndCutOff()
    {
        QFETCH(const bool, used);
        share();
        const QString folder = m_one->safe->folder();
        const QString away = path("away");
        writeFiles(away, snapshot(m_mirror));
        m_one->sync.turnOff(folder, true);
        m_one->sync.finish();
        m_one.reset();
        writeFiles(m_mirror, snapshot(away));
        QVERIFY(QFile::remove(m_mirror + "/safe.passid"_s));
        if (used) {
            SafeFacts facts(path("one/safes.json"));
            facts.change(folder, [this](SafeFact &fact) { fact.mirrorFolder = m_mirror; });
        }
        m_one = std::make_unique<Computer>(path("one"), path("cloud"));
        m_one->sync.finish();
        QCOMPARE(QFileInfo::exists(m_mirror), used);
    }

    void findsFoldersAndSafesOfBothAccounts()
    {
        share();
        QVERIFY(QDir().mkpath(path("business")));
        const QJsonObject info{{"personal"_s, QJsonObject{{"path"_s, path("cloud")}}},
                               {"business"_s, QJsonObject{{"path"_s, path("business")}}}};
        writeFile(path("info.json"), QJsonDocument(info).toJson());
        writeFile(path("broken.json"), "{ \"personal\": ");
        Computer three(path("three"), path("business"),
                       {path("none.json"), path("broken.json"), path("info.json")});
        QSignalSpy changed(&three.folders, &CloudFolders::changed);
        three.folders.look();
        QVERIFY(changed.wait(quickly));
        QCOMPARE(three.folders.found().accounts.size(), 2);
        QCOMPARE(three.folders.found().offers.size(), 1);
        QCOMPARE(three.folders.found().offers.first().name, "Work"_s);

        // What it knows is not offered again, wherever it lies; what it makes is not offered.
        QVERIFY(three.import(three.folders.found().offers.first().path).good());
        three.create();
        QCOMPARE(three.turnOn().folder.section(QLatin1Char('/'), 0, -2), path("business"));
        three.folders.look();
        QTRY_VERIFY_WITH_TIMEOUT(!three.folders.isLooking() && changed.count() > 2, quickly);
        QVERIFY(three.folders.found().offers.isEmpty());
    }

    void offersNoSafeThatHasNotAnsweredYet_data()
    {
        QTest::addColumn<bool>("isNoted");
        QTest::newRow("known by its time") << true;
        QTest::newRow("nothing noted of it") << false;
    }
    void offersNoSafeThatHasNotAnsweredYet()
    {
        QFETCH(bool, isNoted);
        share();
        const QString folder = m_one->safe->folder();
        m_one.reset();
        if (!isNoted)
            QVERIFY(QFile::remove(path("one/safes.json")));
        auto disk = std::make_shared<FullDisk>();
        SafeEnvironment world{systemRandom, systemTime, disk, 1000, {}, 0};
        disk->slowFile = folder + "/safe.meta"_s;
        GPMAppSettings settings(path("one"), path("one"));
        KnownSafes safes(settings, path("one/safes"), world);
        QVERIFY(safes.entries().at(0).looking);
        CloudFolders folders(safes, {});
        folders.add(path("cloud"));
        QSignalSpy changed(&folders, &CloudFolders::changed);
        QVERIFY(changed.wait(quickly));
        QVERIFY(safes.entries().at(0).looking);
        QVERIFY(folders.found().offers.isEmpty());
        disk->ready.release(1000);
    }
};

QTEST_GUILESS_MAIN(TestCloudSync)
#include "tst_cloudsync.moc"
