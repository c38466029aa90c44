#include "../Text.h"
#include "FakeActivity.h"
#include "PrivateBus.h"
#include "linux/BusActivity.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QtTest>

/// The compositor as far as it is asked.
class IdleMonitor : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Mutter.IdleMonitor")

public:
    qulonglong idleMs = 0;
    bool hangs = false;
    int asked = 0;

public Q_SLOTS:
    qulonglong GetIdletime()
    {
        ++asked;
        if (hangs)
            setDelayedReply(true);
        return idleMs;
    }
};

namespace {

struct Session
{
    explicit Session(const QDBusConnection &bus)
        : activity(std::make_unique<FakeActivity>(state), bus)
    {
        state->tells = false; // no X server that knows
    }

    std::shared_ptr<FakeActivity::State> state = std::make_shared<FakeActivity::State>();
    BusActivity activity;
};

} // namespace

class TestBusActivity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatTheCompositorSays()
    {
        IdleMonitor monitor;
        monitor.idleMs = 180001;
        offer(monitor);
        Session session(m_bus.connection("program"));
        QTRY_VERIFY(session.activity.lastInputTick().has_value());
        QCOMPARE(session.activity.tickCount() - *session.activity.lastInputTick(), 180001U);
        session.state->tick += 1000;
        monitor.idleMs = 20;
        QTRY_COMPARE(session.activity.tickCount() - *session.activity.lastInputTick(), 20U);
    }

    void oldAnswersDoNotCount()
    {
        IdleMonitor monitor;
        monitor.idleMs = 10;
        offer(monitor);
        Session session(m_bus.connection("program"));
        QTRY_VERIFY(session.activity.lastInputTick().has_value());
        monitor.hangs = true;
        const int asked = monitor.asked;
        QTRY_VERIFY(!session.activity.lastInputTick() || monitor.asked > asked);
        session.state->tick += 5000;
        QVERIFY(session.activity.lastInputTick().has_value());
        session.state->tick += 1;
        QVERIFY(!session.activity.lastInputTick().has_value());
    }

    void waitsForTheCompositor()
    {
        // A program that starts with the session may come first.
        QDBusConnection bus = m_bus.connection("early");
        m_bus.connection("compositor").unregisterService("org.gnome.Mutter.IdleMonitor"_s);
        Session session(bus);
        QDBusMessage probe =
            QDBusMessage::createMethodCall("org.gnome.Mutter.IdleMonitor"_s, "/"_s, {}, "Any"_s);
        QCOMPARE(bus.call(probe, QDBus::BlockWithGui).type(), QDBusMessage::ErrorMessage);
        QVERIFY(!session.activity.lastInputTick().has_value());
        IdleMonitor monitor;
        monitor.idleMs = 10;
        offer(monitor);
        QTRY_VERIFY(session.activity.lastInputTick().has_value());
    }

private:
    void offer(IdleMonitor &monitor)
    {
        QDBusConnection compositor = m_bus.connection("compositor");
        QVERIFY(compositor.registerObject("/org/gnome/Mutter/IdleMonitor/Core"_s, &monitor,
                                          QDBusConnection::ExportAllSlots));
        QVERIFY(compositor.registerService("org.gnome.Mutter.IdleMonitor"_s));
    }

    PrivateBus m_bus;
};

QTEST_GUILESS_MAIN(TestBusActivity)
#include "tst_busactivity.moc"
