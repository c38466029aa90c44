#include "SafeLayout.h"
#include "SafeTesting.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// A drive that takes what is written only when it is let.
class SlowDrive : public FaultyFiles
{
public:
    QSemaphore begun;
    QSemaphore mayGoOn;
    QString place; ///< what lies elsewhere is quick
    std::atomic<bool> isFull{false};

    bool write(const QString &path, const Produce &produce, QIODevice::OpenMode mode) override
    {
        if (path.startsWith(place)) {
            begun.release();
            mayGoOn.acquire();
        }
        ++operations;
        return !(isFull && path.startsWith(place)) && FileLayer::write(path, produce, mode);
    }
    void letAll() { mayGoOn.release(1000); }
};

} // namespace

class TestSafeLock : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    std::shared_ptr<SlowDrive> m_drive;
    std::unique_ptr<GPMSafe> m_safe;
    int m_items = 0;

    QString drafts() const { return m_temporary->filePath(QStringLiteral("drafts")); }
    void changeAll(const QString &note)
    {
        for (PMListItem *item : m_safe->items())
            item->setNote(note);
    }
    int itemsWith(const QString &note) const
    {
        const auto items = m_safe->items();
        return static_cast<int>(std::count_if(
            items.begin(), items.end(), [&](const auto *item) { return item->note() == note; }));
    }
    int draftCount() const { return snapshot(drafts()).size(); }

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<SafeUnlock::Outcome>(); }
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_drive = std::make_shared<SlowDrive>();
        m_drive->place = m_temporary->filePath(QStringLiteral("safe"));
        copySampleSafe(m_drive->place);
        SafeEnvironment environment;
        environment.files = m_drive;
        environment.draftsFolder = drafts();
        m_safe = std::make_unique<GPMSafe>(environment);
        QVERIFY(m_safe->open(m_drive->place) && m_safe->unlock(samplePassword));
        m_items = m_safe->itemCount();
    }
    void cleanup()
    {
        m_drive->letAll();
        m_safe.reset();
    }

    /// With a save under way, and edits that are in no save yet.
    void locksAtOnceAndUnlocksBehindTheSaving()
    {
        QSignalSpy reset(m_safe.get(), &GPMSafe::itemsReset);
        QSignalSpy settled(m_safe.get(), &GPMSafe::lockSettled);
        QSignalSpy finished(m_safe.get(), &GPMSafe::unlockFinished);
        changeAll(QStringLiteral("changed"));
        m_safe->saveChangesAsync();
        m_drive->begun.acquire();
        const QString last = m_safe->items().front()->id();
        m_safe->item(last)->setNote(QStringLiteral("changed last"));
        m_safe->lockAsync(); // hangs where it waits for the drive

        QVERIFY(!m_safe->isUnlocked() && m_safe->isSettling());
        QCOMPARE(reset.size(), 1);
        QVERIFY(!m_safe->item(last) && !m_safe->isPassword(samplePassword));
        QVERIFY(!m_safe->addItem(std::make_unique<PMListItem>(PMListItem::SecureNote)));
        m_safe->drafts().keepAsync({DraftStore::newKey(), {}, true, {}});
        m_safe->unlockAsync(samplePassword);
        QVERIFY(settled.isEmpty() && finished.isEmpty());

        m_drive->letAll();
        QVERIFY(finished.wait());
        QCOMPARE(settled.size(), 1);
        QCOMPARE(itemsWith(QStringLiteral("changed")), m_items - 1);
        QCOMPARE(m_safe->item(last)->note(), QStringLiteral("changed last"));
        // Each item once, the last one twice, and the two descriptions of each save.
        QCOMPARE(m_drive->operations.load(), m_items + 1 + 4);
        QCOMPARE(draftCount(), 0);
    }

    void whoWaitsToUnlockCanCancel()
    {
        QSignalSpy finished(m_safe.get(), &GPMSafe::unlockFinished);
        changeAll(QStringLiteral("changed"));
        m_safe->lockAsync();
        m_safe->unlockAsync(samplePassword);
        m_safe->cancelUnlock();
        QVERIFY(finished.wait());
        QCOMPARE(finished.takeFirst().at(0).value<SafeUnlock::Outcome>(),
                 SafeUnlock::Outcome::Cancelled);
        m_drive->letAll();
        m_safe->lock();
        QVERIFY(!m_safe->isUnlocked() && finished.isEmpty());
    }

    void whatCannotBeSavedIsAskedForOrKept_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("drafts");
        QTest::addColumn<bool>("unlocked");
        QTest::addColumn<int>("told");
        QTest::addColumn<QString>("note");
        const QString changed = QStringLiteral("changed");
        QTest::newRow("nobody") << QString() << m_all << false << 1 << QString();
        QTest::newRow("again") << QStringLiteral("again") << 0 << false << 0 << changed;
        QTest::newRow("lose") << QStringLiteral("lose") << 0 << false << 0 << QString();
        QTest::newRow("reopen") << QStringLiteral("reopen") << 0 << true << 0 << changed;
        QTest::newRow("locked meanwhile")
            << QStringLiteral("lock") << m_all << false << 1 << QString();
    }
    void whatCannotBeSavedIsAskedForOrKept()
    {
        QFETCH(QString, answer);
        QFETCH(int, drafts);
        QFETCH(bool, unlocked);
        QFETCH(int, told);
        QFETCH(QString, note);
        m_drive->letAll();
        m_drive->isFull = true;
        changeAll(QStringLiteral("changed"));
        const QString trashed = m_safe->items().front()->id();
        m_safe->item(trashed)->setDeleted(true);
        const QStringList before = m_safe->unreadableFiles();
        QSignalSpy saved(m_safe.get(), &GPMSafe::saved);
        int asked = 0;
        connect(m_safe.get(), &GPMSafe::lockFailed, this, [&] {
            ++asked;
            QVERIFY(!m_safe->isUnlocked());
            if (answer == QStringLiteral("again")) {
                m_drive->isFull = false;
                m_safe->lockAsync(GPMSafe::Unsaved::Ask);
            } else if (answer == QStringLiteral("lose")) {
                m_safe->giveUpChanges();
            } else if (answer == QStringLiteral("reopen")) {
                m_safe->reopen();
            } else if (answer == QStringLiteral("lock")) {
                m_safe->lockAsync();
                m_safe->reopen(); // comes too late
            }
        });
        m_safe->lockAsync(GPMSafe::Unsaved::Ask);
        QSignalSpy finished(m_safe.get(), &GPMSafe::unlockFinished);
        if (unlocked)
            m_safe->unlockAsync(samplePassword);
        QTRY_VERIFY(!m_safe->isSettling());
        // Who waits for an answer gets one, also when there is nothing to unlock any more.
        QTRY_COMPARE(finished.size(), unlocked ? 1 : 0);
        QCOMPARE(asked, 1);
        QCOMPARE(m_safe->isUnlocked(), unlocked);
        QCOMPARE(draftCount(), drafts);
        QCOMPARE(saved.size(), told);
        m_drive->isFull = false;
        if (!unlocked)
            QVERIFY(m_safe->unlock(samplePassword));
        QCOMPARE(itemsWith(QStringLiteral("changed")), note.isEmpty() ? 0 : m_items);
    }

    void theEndDoesNotWaitForADriveThatHangs()
    {
        changeAll(QStringLiteral("changed"));
        m_safe->saveChangesAsync();
        m_drive->begun.acquire();
        m_safe->lockWithin(10);
        QVERIFY(!m_safe->isUnlocked() && !m_safe->isSettling());
        QVERIFY(!m_safe->savedAtLock());
        QCOMPARE(draftCount(), m_items);
    }

    /// A change of password hangs behind its last item, and gets on when nobody waits any more.
    void whatADriveAnswersTooLateDoesNotUnlock()
    {
        const QString other = QStringLiteral("another password");
        m_drive->place += QLatin1Char('/') + QLatin1String(SafeLayout::meta);
        QVERIFY(m_safe->changePasswordAsync(other, QStringLiteral("another hint")));
        QTRY_VERIFY_WITH_TIMEOUT(m_drive->begun.available() > 0, 30000);
        m_safe->lockWithin(10);
        QVERIFY(!m_safe->isSettling() && !m_safe->isChangingPassword());
        m_drive->letAll();
        QTRY_VERIFY_WITH_TIMEOUT(!m_safe->isWriting(), 30000);
        QCoreApplication::processEvents();
        QVERIFY(m_safe->unlock(other) && m_safe->unreadableFiles().isEmpty());
        QVERIFY(!m_safe->isChangeInterrupted());
        QCOMPARE(m_safe->itemCount(), m_items);
        QCOMPARE(QDir(m_safe->folder() + QStringLiteral("/content")).count() - 2, uint(m_items));
    }

private:
    static constexpr int m_all = 21; ///< those that are not in the trash
};

QTEST_GUILESS_MAIN(TestSafeLock)
#include "tst_safelock.moc"
