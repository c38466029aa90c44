#include "../Text.h"
#include "FakeActivity.h"
#include "GPMAppSettings.h"
#include "LockGuard.h"

#include <QTemporaryDir>
#include <QtTest>

#include <limits>

using Reasons = QVector<LockReason>;

Q_DECLARE_METATYPE(LockReason)

namespace {

const quint32 lastTick = std::numeric_limits<quint32>::max();

/// A guard over a safe that locks when it says so.
struct Guarded
{
    explicit Guarded(int minutes = 3)
    {
        settings.setInactivityInterval(minutes);
        QObject::connect(&guard, &LockGuard::lockDue, &guard, [this](LockReason reason) {
            reasons.append(reason);
            unlocked = false;
        });
    }

    /// Both clocks go on, then the checks are made as the timer makes them.
    void check(qint64 tickMs = 1000, qint64 clockMs = 1000)
    {
        state.tick += static_cast<quint32>(tickMs);
        now = now.addMSecs(clockMs);
        guard.checkInactivity();
        guard.checkScreenSaverRunning();
        guard.checkBackupJob();
    }

    QTemporaryDir folder;
    GPMAppSettings settings{folder.path(), folder.path()};
    const std::shared_ptr<FakeActivity::State> user = std::make_shared<FakeActivity::State>();
    FakeActivity::State &state = *user;
    QDateTime now{QDate(2026, 3, 1), QTime(12, 0), Qt::UTC};
    bool unlocked = true;
    LockGuard guard{settings, [this] { return unlocked; }, std::make_unique<FakeActivity>(user),
                    [this] { return now; }};
    Reasons reasons;
};

/// What is logged while it lives.
class LoggedLines
{
public:
    LoggedLines()
        : m_before(qInstallMessageHandler([](QtMsgType, const QMessageLogContext &,
                                             const QString &line) { lines.append(line); }))
    {
        lines.clear();
    }
    ~LoggedLines() { qInstallMessageHandler(m_before); }

    static QStringList lines;

private:
    QtMessageHandler m_before;
};

QStringList LoggedLines::lines;

} // namespace

class TestLockGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inactivity_data()
    {
        QTest::addColumn<int>("minutes");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<quint32>("tick");
        QTest::addColumn<quint32>("idle");
        QTest::addColumn<bool>("locks");

        const quint32 tick = 5000000;
        QTest::newRow("exactly the limit") << 5 << true << tick << 300000U << false;
        QTest::newRow("a millisecond more") << 5 << true << tick << 300001U << true;
        QTest::newRow("just used") << 5 << true << tick << 0U << false;
        QTest::newRow("switched off") << 5 << false << tick << 3000000U << false;
        QTest::newRow("input before the wrap, at the limit")
            << 5 << true << 100U << 300000U << false;
        QTest::newRow("input before the wrap, over it") << 5 << true << 100U << 300001U << true;
        QTest::newRow("the last tick") << 1 << true << lastTick << 60001U << true;
        QTest::newRow("wrap to zero") << 1 << true << 0U << 59000U << false;
        // A limit that makes no sense counts as three minutes.
        QTest::newRow("zero, at the limit") << 0 << true << tick << 180000U << false;
        QTest::newRow("zero, over it") << 0 << true << tick << 180001U << true;
        QTest::newRow("negative, at the limit") << -5 << true << tick << 180000U << false;
        QTest::newRow("negative, over it") << -5 << true << tick << 180001U << true;
        QTest::newRow("longest, not yet") << 71582 << true << tick << 3000000U << false;
        QTest::newRow("longest, over it") << 71582 << true << tick << 4294920001U << true;
        QTest::newRow("longer than can be measured") << 71583 << true << tick << 180001U << true;
        QTest::newRow("huge") << std::numeric_limits<int>::max() << true << tick << 180001U << true;
    }
    void inactivity()
    {
        QFETCH(int, minutes);
        QFETCH(bool, enabled);
        QFETCH(quint32, tick);
        QFETCH(quint32, idle);
        QFETCH(bool, locks);
        Guarded guarded(minutes);
        guarded.settings.setAutolockInactive(enabled);
        guarded.state.tick = tick;
        guarded.state.idleMs = idle;
        guarded.check(0);
        QCOMPARE(guarded.reasons, locks ? Reasons{LockReason::Inactivity} : Reasons{});
    }

    void sleep_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<qint64>("tickMs");
        QTest::addColumn<qint64>("clockMs");
        QTest::addColumn<bool>("locks");

        const qint64 limit = 180000;
        QTest::newRow("a late timer") << true << qint64(30000) << qint64(30000) << false;
        QTest::newRow("as long as the limit") << true << limit << limit << false;
        QTest::newRow("longer") << true << limit + 1 << limit + 1 << true;
        QTest::newRow("switched off") << false << limit + 1 << limit + 1 << false;
        QTest::newRow("ticks stood still") << true << qint64(1000) << limit + 1 << true;
        QTest::newRow("clock stood still") << true << limit + 1 << qint64(0) << true;
        QTest::newRow("clock set back") << true << qint64(1000) << qint64(-3600000) << false;
        QTest::newRow("slept while the clock was set back")
            << true << limit + 1 << qint64(-3600000) << true;
    }
    void sleep()
    {
        QFETCH(bool, enabled);
        QFETCH(qint64, tickMs);
        QFETCH(qint64, clockMs);
        QFETCH(bool, locks);
        Guarded guarded;
        guarded.settings.setAutolockInactive(enabled);
        guarded.state.tick = lastTick - 2000; // the sleep goes over the wrap
        guarded.check();
        QVERIFY(guarded.reasons.isEmpty());
        // The key that woke the computer is input: it does not look idle.
        guarded.check(tickMs, clockMs);
        QCOMPARE(guarded.reasons, locks ? Reasons{LockReason::Sleep} : Reasons{});
    }

    void sleepIsToldOnce()
    {
        Guarded guarded;
        guarded.check();
        guarded.check(200000, 200000);
        guarded.unlocked = true;
        guarded.check();
        QCOMPARE(guarded.reasons, Reasons{LockReason::Sleep});

        // A sleep while the safe was locked, or while the check was off, is past when it is
        // unlocked.
        guarded.unlocked = false;
        guarded.settings.setAutolockInactive(false);
        guarded.check(200000, 200000);
        guarded.settings.setAutolockInactive(true);
        guarded.unlocked = true;
        guarded.check();
        QCOMPARE(guarded.reasons, Reasons{LockReason::Sleep});
    }

    void screenSaver()
    {
        Guarded guarded;
        guarded.check();
        guarded.state.screenSaver = true;
        guarded.settings.setAutolockScreensaver(false);
        guarded.check();
        guarded.guard.onSessionEvent(LockReason::ScreenSaver);
        QCOMPARE(guarded.reasons, Reasons{});
        guarded.settings.setAutolockScreensaver(true);
        guarded.check();
        QCOMPARE(guarded.reasons, Reasons{LockReason::ScreenSaver});
        guarded.unlocked = true;
        guarded.guard.onSessionEvent(LockReason::ScreenSaver);
        QCOMPARE(guarded.reasons.size(), 2);
    }

    void sessionEvents_data()
    {
        QTest::addColumn<LockReason>("reason");
        QTest::newRow("locked") << LockReason::SessionLocked;
        QTest::newRow("switched") << LockReason::UserSwitched;
        QTest::newRow("sleep") << LockReason::Sleep;
    }
    void sessionEvents()
    {
        QFETCH(LockReason, reason);
        Guarded guarded;
        guarded.settings.setAutolockInactive(false);
        guarded.settings.setAutolockScreensaver(false);
        guarded.guard.onSessionEvent(reason);
        QCOMPARE(guarded.reasons, Reasons{reason});
        QVERIFY(!guarded.unlocked);
        // An unlocking may be under way: it is to be stopped, too.
        guarded.guard.onSessionEvent(reason);
        QCOMPARE(guarded.reasons, (Reasons{reason, reason}));
    }

    void locksOnceAndSaysSoOnce()
    {
        Guarded guarded;
        guarded.state.idleMs = 180001;
        guarded.state.screenSaver = true;
        LoggedLines log;
        guarded.check();
        guarded.check();
        guarded.guard.onSessionEvent(LockReason::SessionLocked);
        QCOMPARE(log.lines, QStringList{"Locked due user inactivity"_s});
        QCOMPARE(guarded.reasons, (Reasons{LockReason::Inactivity, LockReason::SessionLocked}));

        // Unlocked again while the screen saver runs: the next check locks once more.
        guarded.unlocked = true;
        guarded.state.idleMs = 0;
        guarded.check();
        guarded.check();
        QCOMPARE(log.lines.mid(1), QStringList{"Screensaver activated"_s});
    }

    void failingQueriesAreSkippedAndSaidOnce()
    {
        Guarded guarded;
        guarded.state.tells = false;
        guarded.state.idleMs = 1000000;
        guarded.state.screenSaver = true;
        LoggedLines log;
        for (int check = 0; check < 30; ++check)
            guarded.check();
        QCOMPARE(log.lines, QStringList{QStringLiteral(
                                "LockGuard: the system does not tell when the last input was")});
        QCOMPARE(guarded.reasons, Reasons{});
        QVERIFY(!guarded.guard.seesInput());
        guarded.state.tells = true;
        guarded.check();
        QVERIFY(guarded.guard.seesInput());
        QCOMPARE(guarded.reasons, Reasons{LockReason::Inactivity});
        guarded.state.tells = false;
        for (int check = 0; check < 30; ++check)
            guarded.check();
        QCOMPARE(log.lines.size(), 2); // with that of the lock
    }

    void knowsWhatTheSystemTellsWhileSwitchedOff()
    {
        Guarded guarded;
        guarded.settings.setAutolockInactive(false);
        guarded.state.tells = false;
        LoggedLines log;
        for (int check = 0; check < 30; ++check)
            guarded.check();
        QVERIFY(!guarded.guard.seesInput());
        QCOMPARE(log.lines, QStringList());
    }

    void backupIsCheckedLast()
    {
        Guarded guarded;
        guarded.state.idleMs = 180001;
        QVector<bool> unlockedAtBackup;
        guarded.guard.setBackupCheck([&] { unlockedAtBackup.append(guarded.unlocked); });
        guarded.check();
        guarded.check();
        QCOMPARE(unlockedAtBackup, (QVector<bool>{false, false}));
    }
};

QTEST_GUILESS_MAIN(TestLockGuard)
#include "tst_lockguard.moc"
