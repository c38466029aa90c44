#include "../Text.h"
#include "CoreTest.h"

class TestGpmAppCore : public CoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { m_core.reset(); }

    void aSafeIsCreatedLockedAndUnlocked()
    {
        QSignalSpy locked(m_core.get(), &GPMAppCore::safeLockedChanged);
        QVERIFY(m_core->createSafe("Mine"_s, "pw"_s, "h"_s));
        const QString id = addLogin("Shop")->id();
        m_core->lockCurrentSafe();
        m_core->lockCurrentSafe();
        QCOMPARE(locked.count(), 2);
        QCOMPARE(locked.at(0).at(0).toBool(), false);
        QCOMPARE(locked.at(1).at(0).toBool(), true);
        QVERIFY(!m_core->modelAddItem(m_core->modelCreateItem(PMListItem::Login)));
        m_core->modelItemDeleted(id); // while locked: nothing to do

        QSignalSpy finished(m_core.get(), &GPMAppCore::unlockFinished);
        m_core->unlockCurrentSafe("wrong"_s);
        QVERIFY(finished.wait());
        QVERIFY(!m_core->currentSafe()->isUnlocked());
        m_core->unlockCurrentSafe("pw"_s);
        QVERIFY(finished.wait());
        QCOMPARE(m_core->currentSafe()->item(id)->title(), "Shop"_s);

        QVERIFY(!m_core->selectSafe(m_home->filePath("none"_s)));
        QVERIFY(!m_core->currentSafe());
    }

    /// As who waits for the lock to switch the safe does.
    void aSafeIsLetGoByItsOwnSignal()
    {
        QVERIFY(m_core->createSafe("Mine"_s, "pw"_s, {}));
        const std::weak_ptr<GPMSafe> safe = m_core->currentSafe();
        bool wasThere = false;
        connect(m_core.get(), &GPMAppCore::lockSettled, this, [&] {
            m_core->selectSafe({});
            wasThere = !safe.expired();
        });
        m_core->lockForUser();
        QVERIFY(wasThere && !m_core->currentSafe());
        QTRY_VERIFY(safe.expired());
    }

    void backupsOfAllSafesRunOnTheTimerAndImport()
    {
        QVERIFY(m_core->createSafe("One"_s, "pw"_s, {}));
        const QString id = addLogin("Shop")->id();
        QVERIFY(m_core->saveCurrentSafe());
        QVERIFY(m_core->createSafe("Two"_s, "pw"_s, {}));
        QSignalSpy finished(&m_core->backups(), &Backups::finished);
        QSignalSpy told(m_core.get(), &GPMAppCore::message);
        m_core->settings().setBackupCheck(QDateTime::currentDateTimeUtc().addDays(-1));
        QVERIFY(finished.wait());
        QCOMPARE(m_core->backups().folder(), m_home->filePath("hidden/backup"_s));
        QVector<BackupEntry> entries = m_core->backups().overview().result().archives;
        QCOMPARE(entries.size(), 2);
        if (entries.first().description.name != QLatin1String("One"))
            std::swap(entries[0], entries[1]);

        QSignalSpy imported(m_core.get(), &GPMAppCore::importFinished);
        m_core->importSafeArchive(entries.first().path);
        m_core->importSafeArchive(entries.last().path); // one at a time
        QVERIFY(imported.wait());
        QCOMPARE(imported.count(), 1);
        const QString folder = imported.first().first().value<ArchiveResult>().path;
        QVERIFY(m_core->selectSafe(folder));
        QVERIFY(m_core->currentSafe()->name().startsWith("One ["_s));
        QVERIFY(m_core->currentSafe()->unlock("pw"_s));
        QVERIFY(m_core->currentSafe()->item(id));
        QVERIFY(told.isEmpty());

        // No room for backups any more: said once, in words.
        m_core->settings().setBackupPath(folder + "/safe.meta/backups"_s);
        m_core->settings().setBackupCheck(QDateTime::currentDateTimeUtc().addDays(-1));
        QVERIFY(told.wait());
        QVERIFY(told.first().at(1).toString().contains("One"_s));
        QVERIFY(told.first().at(1).toString().contains("can't be written"_s));
    }

    void attachmentsGoWithTheLastItemThatHasThem()
    {
        QVERIFY(m_core->createSafe("Mine"_s, "pw"_s, {}));
        const std::shared_ptr<GPMSafe> safe = m_core->currentSafe();
        const auto attach = [&safe] {
            QBuffer bytes;
            bytes.open(QIODevice::ReadOnly);
            return safe->addAttachment(makeItem(PMListItem::Attachment), bytes)->id();
        };
        const QString own = attach();
        const QString shared = attach();
        const QString single = attach();
        PMLogin *parent = addLogin("Parent");
        PMLogin *other = addLogin("Other");
        const QString parentId = parent->id();
        parent->setRefs({own, shared, other->id()});
        other->setRefs({shared, single});
        m_core->modelItemDeleted(parentId);
        m_core->modelItemDeleted(single);
        QCOMPARE(m_core->attachmentsGoingWith({parentId}), QStringList{own});
        m_core->modelItemPurged(single);
        // What was deleted by itself is no longer referred to.
        QCOMPARE(other->refs(), QStringList{shared});
        m_core->modelClearTrash();
        QVERIFY(!safe->item(parentId) && !safe->item(own) && !safe->item(single));
        QVERIFY(safe->item(shared) && safe->item(other->id()));
        const QDir files(safe->folder() + "/attachment"_s);
        QCOMPARE(files.entryList(QDir::Files), QStringList{shared});
        const QString otherId = other->id();
        m_core->lockCurrentSafe();
        QCOMPARE(reopened(otherId, "title"), "Other"_s);
    }

    void privateFilesEndWithTheSafe()
    {
        const auto write = [](QIODevice &device) { return device.write("secret") == 6; };
        QVERIFY(m_core->createSafe("Mine"_s, "pw"_s, {}));
        const auto privateFile = [&] {
            return m_core->privateFiles()
                .create("a.txt"_s, write, m_core->privateFiles().wipes())
                .value_or(QString());
        };
        QString path = privateFile();
        QVERIFY(QFile::exists(path));
        m_core->lockCurrentSafe();
        QVERIFY(!QFile::exists(path));
        path = privateFile();
        m_core->exitPasswordManager();
        QVERIFY(!QFile::exists(path));
        path = privateFile();
        m_core->prepareForSessionEnd();
        QVERIFY(!QFile::exists(path));
        // As a crash leaves it: the next start wipes, whichever safe is opened then.
        path = privateFile();
        const QString data = m_home->filePath("data"_s);
        const GPMAppCore next(
            {m_home->filePath("config"_s), data, m_home->filePath("hidden"_s), freePort()});
        QVERIFY(!QFile::exists(path));
    }

    /// The program ends right after the copy in the cloud folder was to be removed.
    void removesTheCloudCopyBeforeItEnds()
    {
        QVERIFY(m_core->createSafe("Mine"_s, "pw"_s, {}));
        const QString folder = m_core->currentSafe()->folder();
        const QString cloud = m_home->filePath("cloud"_s);
        QVERIFY(QDir().mkpath(cloud));
        for (int i = 0; i < 5; ++i)
            addLogin("Login");
        QVERIFY(m_core->saveCurrentSafe());
        QSignalSpy on(&m_core->cloud(), &CloudSync::turnedOn);
        m_core->cloud().turnOn(folder, cloud);
        QVERIFY(on.wait(20000));
        m_core->cloud().synchronize();
        QTRY_COMPARE_WITH_TIMEOUT(m_core->cloud().status().state, CloudStatus::State::Synchronised,
                                  20000);
        QVERIFY(!QDir(cloud).isEmpty());
        m_core->cloud().turnOff(folder, true);
        m_core->exitPasswordManager();
        QVERIFY(QDir(cloud).isEmpty());
        const SafeFacts facts(m_home->filePath("config/safes.json"_s));
        QVERIFY(facts.folders().contains(folder));
        QVERIFY(facts.of(folder).mirrorFolder.isEmpty());
    }

    void commandsOnItemsReachTheDisk()
    {
        QVERIFY(m_core->createSafe("Mine"_s, "pw"_s, "h"_s));
        const QString kept = addLogin("Kept")->id();
        const QString gone = addLogin("Gone")->id();
        QSignalSpy saved(m_core->currentSafe().get(), &GPMSafe::saved);
        m_core->currentSafe()->item(kept)->setNote("noted"_s);
        m_core->modelItemChanged(kept);
        QTRY_COMPARE(saved.count(), 3);
        QCOMPARE(reopened(kept, "note"), "noted"_s);
        m_core->modelItemDeleted(gone);
        m_core->modelItemDeleted(kept);
        QTRY_COMPARE(saved.count(), 5);
        QCOMPARE(reopened(gone, "deleted"), "true"_s);
        m_core->modelItemRestored(kept);
        QTRY_COMPARE(saved.count(), 6);
        m_core->modelClearTrash();
        QCOMPARE(reopened(gone, "title"), "gone"_s);
        QCOMPARE(reopened(kept, "deleted"), "false"_s);
        m_core->modelItemDeleted(kept);
        m_core->modelRestoreAll();
        QTRY_COMPARE(saved.count(), 8);
        QCOMPARE(reopened(kept, "deleted"), "false"_s);
    }

    void aSaveThatFailsIsTold()
    {
        QVERIFY(m_core->createSafe("Mine"_s, "pw"_s, "h"_s));
        const QString content = m_core->currentSafe()->folder() + "/content"_s;
        QVERIFY(QDir().rename(content, content + ".away"_s));
        QSignalSpy message(m_core.get(), &GPMAppCore::message);
        PMLogin *login = addLogin("Shop");
        QVERIFY(message.wait());
        QVERIFY(message.at(0).at(1).toString().contains(login->id()));
        QVERIFY(!message.at(0).at(1).toString().contains("s3cret"_s));
        QVERIFY(QDir().rename(content + ".away"_s, content));
        const QString id = login->id();
        m_core->lockCurrentSafe();
        m_core->settleLocks();
        QCOMPARE(reopened(id, "title"), "Shop"_s);
    }

    void aHomeThatCannotBeWrittenTo()
    {
        // A file stands where the folders should be made.
        const QString blocked = m_home->filePath("blocked"_s);
        QFile file(blocked);
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString inside = blocked + "/x"_s;
        GPMAppCore core(GPMAppCore::Places{inside, inside, inside, freePort()});
        core.startServer();
        QVERIFY(!core.createSafe("n"_s, "p"_s, "h"_s));
        QVERIFY(!core.currentSafe());
        QVERIFY(!core.settings().storeSettings());
        QCOMPARE(file.size(), 0);
    }
};

QTEST_MAIN(TestGpmAppCore)
#include "tst_gpmappcore.moc"
