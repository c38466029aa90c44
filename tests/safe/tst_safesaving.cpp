#include "GpmSafeTest.h"

/// What goes to the disk, and when.
class TestSafeSaving : public GpmSafeTest
{
    Q_OBJECT

    /// The sample, on a disk that can fail.
    SafeEnvironment on(const std::shared_ptr<FaultyFiles> &files) const
    {
        copySampleSafe(m_folder);
        SafeEnvironment environment;
        environment.files = files;
        return environment;
    }

private Q_SLOTS:
    void init() { start(); }

    void oneFailingWriteKeepsItsItemChanged()
    {
        const auto files = std::make_shared<FaultyFiles>();
        GPMSafe safe(on(files));
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        const std::vector<PMListItem *> items = safe.items();
        for (std::size_t i = 0; i < 3; ++i)
            items[i]->setNote("changed"_s);
        const QByteArray second = contentOf(content(items[1]->id()));
        files->failAt = 2;
        QVERIFY(!safe.saveChanges());
        QVERIFY(!items[0]->isChanged());
        QVERIFY(items[1]->isChanged());
        QVERIFY(!items[2]->isChanged());
        QCOMPARE(contentOf(content(items[1]->id())), second);
        QVERIFY(safe.saveChanges());
        QVERIFY(!items[1]->isChanged());
    }

    void whoHearsOfAFailedSaveAtALockFindsItLocked()
    {
        const auto files = std::make_shared<FaultyFiles>();
        GPMSafe safe(on(files));
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        safe.items().front()->setNote("changed"_s);
        QVector<bool> unlockedThen;
        connect(&safe, &GPMSafe::saved,
                [&](bool good) { unlockedThen.append(good || safe.isUnlocked()); });
        files->failAt = 1;
        safe.lock();
        QCOMPARE(unlockedThen, QVector<bool>{false});
    }

    void savingInTheBackgroundKeepsLaterEdits()
    {
        copySampleSafe(m_folder);
        GPMSafe safe;
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        PMListItem *item = safe.item(loginId);
        QSignalSpy saved(&safe, &GPMSafe::saved);
        item->setNote("first"_s);
        safe.saveChangesAsync();
        item->setNote("second"_s);
        QVERIFY(saved.wait());
        QVERIFY(item->isChanged());
        safe.saveChangesAsync();
        safe.lock(); // at once, with the write under way
        QVERIFY(safe.unlock(samplePassword));
        QCOMPARE(safe.item(loginId)->note(), "second"_s);
    }

    void unlockInTheBackground()
    {
        copySampleSafe(m_folder);
        qRegisterMetaType<SafeUnlock::Outcome>();
        GPMSafe safe;
        QVERIFY(safe.open(m_folder));
        QSignalSpy finished(&safe, &GPMSafe::unlockFinished);
        QSignalSpy progress(&safe, &GPMSafe::unlockProgress);
        const auto outcome = [&finished] {
            return finished.takeFirst().at(0).value<SafeUnlock::Outcome>();
        };

        safe.unlockAsync("wrong"_s);
        QVERIFY(finished.wait());
        QCOMPARE(outcome(), SafeUnlock::Outcome::WrongPassword);

        safe.unlockAsync(samplePassword);
        QVERIFY(progress.wait());
        safe.cancelUnlock();
        QVERIFY(finished.wait());
        QCOMPARE(outcome(), SafeUnlock::Outcome::Cancelled);
        QVERIFY(!safe.isUnlocked());

        safe.unlockAsync("wrong"_s);
        safe.unlockAsync(samplePassword); // takes the place of the first
        QVERIFY(finished.wait());
        QCOMPARE(outcome(), SafeUnlock::Outcome::Unlocked);
        QCOMPARE(safe.itemCount(), 22);
        QVERIFY(finished.isEmpty());
        safe.lock();
        safe.unlockAsync(samplePassword);
        safe.lock(); // nobody is to be let in after this
        QVERIFY(!finished.wait(200));
        QVERIFY(!safe.isUnlocked());
    }

    void deletedForGood()
    {
        const auto files = std::make_shared<FaultyFiles>();
        GPMSafe safe(on(files));
        QVERIFY(safe.open(m_folder) && safe.unlock(samplePassword));
        const QString attachment = "00000000-0000-000b-0000-000000001234"_s;
        const QMap<QString, QByteArray> before = snapshot(m_folder);

        files->failAt = 1;
        QVERIFY(!safe.removeItems({loginId, attachment}));
        QVERIFY(safe.item(loginId));
        QCOMPARE(snapshot(m_folder), before);

        // A file that cannot be removed keeps its item, and so does not bring it back unnoticed.
        files->failAt = files->operations + 2;
        QVERIFY(!safe.removeItems({loginId}));
        QVERIFY(safe.item(loginId));

        // What an interrupted change of password left of an item goes with it.
        writeFile(content(loginId + ".3"_s), "left behind");
        QVERIFY(safe.removeItems({loginId}));
        QVERIFY(safe.removeItems({attachment}));
        QCOMPARE(safe.itemCount(), 20);
        QCOMPARE(contentOf(m_folder + "/safe.deleted"_s),
                 (loginId + QLatin1Char('\n') + attachment + QLatin1Char('\n')).toUtf8());
        QMap<QString, QByteArray> expected = before;
        expected.remove("content/"_s + loginId);
        expected.remove("content/"_s + attachment);
        expected.remove("attachment/"_s + attachment);
        QMap<QString, QByteArray> now = snapshot(m_folder);
        now.remove("safe.deleted"_s);
        QCOMPARE(now, expected);
    }

    void attachmentsOfTheirOwn()
    {
        GPMSafe safe;
        QVERIFY(safe.init(m_folder, "p"_s, "n"_s, "h"_s));
        QBuffer bytes;
        bytes.setData(QByteArray(100000, 'z'));
        bytes.open(QIODevice::ReadOnly);
        const PMListItem *item = safe.addAttachment(makeItem(PMListItem::Attachment), bytes);
        QVERIFY(item);
        safe.lock();
        QVERIFY(safe.unlock("p"_s));
        QBuffer back;
        back.open(QIODevice::WriteOnly);
        QVERIFY(safe.readAttachment(safe.items().front()->id(), back));
        QCOMPARE(back.data(), QByteArray(100000, 'z'));
        QVERIFY(!safe.readAttachment("none"_s, back));
    }
};

QTEST_GUILESS_MAIN(TestSafeSaving)
#include "tst_safesaving.moc"
