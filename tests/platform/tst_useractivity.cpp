#include "UserActivity.h"

#include <QtTest>

#include "../XServer.h"

#include <X11/extensions/XTest.h>

/// On a real X server, where another client moves the mouse.
class TestUserActivity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void idleTimeOfTheWholeSystem();
    void screenSaver();
    void serverGoes();
    void noServer();

private:
    XServer m_server;
};

namespace {

quint32 idleMs(UserActivity &activity)
{
    const std::optional<std::uint32_t> last = activity.lastInputTick();
    return last ? activity.tickCount() - *last : std::numeric_limits<quint32>::max();
}

} // namespace

void TestUserActivity::idleTimeOfTheWholeSystem()
{
    const std::unique_ptr<UserActivity> activity = UserActivity::create();
    const quint32 start = activity->tickCount();
    XTestFakeRelativeMotionEvent(m_server.client(), 1, 1, CurrentTime);
    XSync(m_server.client(), False);
    QTRY_VERIFY(idleMs(*activity) >= 100);
    const quint32 idle = idleMs(*activity);
    const quint32 passed = activity->tickCount() - start;
    QVERIFY2(idle <= passed, qPrintable(QStringLiteral("%1 of %2").arg(idle).arg(passed)));

    const quint32 before = *activity->lastInputTick();
    XTestFakeRelativeMotionEvent(m_server.client(), 1, 1, CurrentTime);
    XSync(m_server.client(), False);
    QTRY_VERIFY(*activity->lastInputTick() - before >= 100);
}

void TestUserActivity::screenSaver()
{
    const std::unique_ptr<UserActivity> activity = UserActivity::create();
    XSetScreenSaver(m_server.client(), 600, 0, PreferBlanking, AllowExposures);
    XSync(m_server.client(), False);
    QCOMPARE(activity->screenSaverRunning(), std::optional<bool>(false));
    XForceScreenSaver(m_server.client(), ScreenSaverActive);
    XSync(m_server.client(), False);
    QCOMPARE(activity->screenSaverRunning(), std::optional<bool>(true));
    XForceScreenSaver(m_server.client(), ScreenSaverReset);
    XSync(m_server.client(), False);
    QCOMPARE(activity->screenSaverRunning(), std::optional<bool>(false));
}

void TestUserActivity::serverGoes()
{
    auto server = std::make_unique<XServer>();
    const std::unique_ptr<UserActivity> activity = UserActivity::create();
    QVERIFY(activity->lastInputTick().has_value());
    server.reset();
    QVERIFY(!activity->lastInputTick().has_value());
    QVERIFY(!activity->screenSaverRunning().has_value());
    QVERIFY(!activity->lastInputTick().has_value());
}

void TestUserActivity::noServer()
{
    qunsetenv("DISPLAY");
    const std::unique_ptr<UserActivity> activity = UserActivity::create();
    QVERIFY(!activity->lastInputTick().has_value());
    QVERIFY(!activity->screenSaverRunning().has_value());
}

QTEST_GUILESS_MAIN(TestUserActivity)
#include "tst_useractivity.moc"
