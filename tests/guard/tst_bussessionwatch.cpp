#include "PrivateBus.h"
#include "linux/BusSessionWatch.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QSignalSpy>
#include <QSocketNotifier>
#include <QtTest>

#include <unistd.h>

Q_DECLARE_METATYPE(LockReason)

namespace {

const QString ownSession = QStringLiteral("/org/freedesktop/login1/session/_3");

} // namespace

/// The login manager as far as the program asks it.
class LoginManager : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    QStringList knownSessions{QStringLiteral("auto")};
    int delayEnd = -1; ///< reads an end when nobody holds the delay
    int delays = 0;

public Q_SLOTS:
    QDBusObjectPath GetSession(const QString &id)
    {
        if (knownSessions.contains(id))
            return QDBusObjectPath(ownSession);
        sendErrorReply(QStringLiteral("org.freedesktop.login1.NoSuchSession"));
        return QDBusObjectPath(QStringLiteral("/"));
    }
    QDBusUnixFileDescriptor Inhibit(const QString &what, const QString &, const QString &,
                                    const QString &mode)
    {
        int ends[2] = {-1, -1};
        if (what != QLatin1String("sleep") || mode != QLatin1String("delay") || pipe(ends) != 0)
            return {};
        ++delays;
        delayEnd = ends[0];
        const QDBusUnixFileDescriptor given(ends[1]);
        close(ends[1]);
        return given;
    }

Q_SIGNALS:
    void PrepareForSleep(bool begins);
};

/// With a bus of its own, on which the test plays login manager and screen saver.
class TestBusSessionWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void screenSaver_data();
    void screenSaver();
    void sessionLocks_data();
    void sessionLocks();
    void sleepWaitsForTheLock();
    void otherNameOfTheSession();
    void worksWithoutBuses();

private:
    QDBusConnection connection(const char *name) { return m_bus.connection(name); }
    void send(const QString &path, const char *interface, const char *signal,
              const QVariantList &arguments = {});

    PrivateBus m_bus;
    std::unique_ptr<LoginManager> m_manager;
    std::unique_ptr<BusSessionWatch> m_watch;
};

void TestBusSessionWatch::initTestCase()
{
    qRegisterMetaType<LockReason>("LockReason");
}

void TestBusSessionWatch::init()
{
    m_manager = std::make_unique<LoginManager>();
    QDBusConnection login = connection("login");
    QVERIFY(login.registerService(QStringLiteral("org.freedesktop.login1")));
    QVERIFY(
        login.registerObject(QStringLiteral("/org/freedesktop/login1"), m_manager.get(),
                             QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
    m_watch = std::make_unique<BusSessionWatch>(connection("session"), connection("system"));
    QVERIFY(QSignalSpy(m_watch.get(), &BusSessionWatch::sessionFound).wait());
}

void TestBusSessionWatch::cleanup()
{
    m_watch.reset();
    for (const char *name : {"session", "system", "login"})
        QDBusConnection::disconnectFromBus(QLatin1String(name));
    m_manager.reset();
}

void TestBusSessionWatch::send(const QString &path, const char *interface, const char *signal,
                               const QVariantList &arguments)
{
    QDBusMessage message =
        QDBusMessage::createSignal(path, QLatin1String(interface), QLatin1String(signal));
    message.setArguments(arguments);
    QVERIFY(connection("login").send(message));
}

void TestBusSessionWatch::screenSaver_data()
{
    QTest::addColumn<QByteArray>("interface");
    for (const char *name :
         {"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver", "org.cinnamon.ScreenSaver",
          "org.mate.ScreenSaver", "org.xfce.ScreenSaver"})
        QTest::newRow(name) << QByteArray(name);
}

void TestBusSessionWatch::screenSaver()
{
    QFETCH(QByteArray, interface);
    QSignalSpy happened(m_watch.get(), &SessionWatch::happened);
    const QString path = QStringLiteral("/ScreenSaver");
    send(path, interface, "ActiveChanged", {false});
    send(path, interface, "ActiveChanged", {true});
    QVERIFY(happened.wait());
    QCOMPARE(happened.count(), 1);
    QCOMPARE(happened.first().first().value<LockReason>(), LockReason::ScreenSaver);
}

void TestBusSessionWatch::sessionLocks_data()
{
    QTest::addColumn<QVariantMap>("changed"); // none: the signal to lock
    QTest::addColumn<LockReason>("reason");
    QTest::newRow("asked to lock") << QVariantMap{} << LockReason::SessionLocked;
    QTest::newRow("is locked") << QVariantMap{{QStringLiteral("LockedHint"), true}}
                               << LockReason::SessionLocked;
    QTest::newRow("another user") << QVariantMap{{QStringLiteral("Active"), false}}
                                  << LockReason::UserSwitched;
}

void TestBusSessionWatch::sessionLocks()
{
    QFETCH(QVariantMap, changed);
    QFETCH(LockReason, reason);
    const char session[] = "org.freedesktop.login1.Session";
    const char properties[] = "org.freedesktop.DBus.Properties";
    const QString sessionName = QLatin1String(session);
    QSignalSpy happened(m_watch.get(), &SessionWatch::happened);
    // What happens to another user's session, and good news, do not matter.
    const QString otherSession = QStringLiteral("/org/freedesktop/login1/session/_4");
    send(otherSession, session, "Lock");
    send(otherSession, properties, "PropertiesChanged", {sessionName, changed, QStringList()});
    send(ownSession, properties, "PropertiesChanged",
         {sessionName,
          QVariantMap{{QStringLiteral("LockedHint"), false}, {QStringLiteral("Active"), true}},
          QStringList()});
    if (changed.isEmpty())
        send(ownSession, session, "Lock");
    else
        send(ownSession, properties, "PropertiesChanged", {sessionName, changed, QStringList()});
    QVERIFY(happened.wait());
    QCOMPARE(happened.count(), 1);
    QCOMPARE(happened.first().first().value<LockReason>(), reason);
}

void TestBusSessionWatch::sleepWaitsForTheLock()
{
    QTRY_COMPARE(m_manager->delays, 1);
    QSocketNotifier released(m_manager->delayEnd, QSocketNotifier::Read);
    QSignalSpy releasedSpy(&released, SIGNAL(activated(int)));
    QSignalSpy happened(m_watch.get(), &SessionWatch::happened);
    bool lockedBefore = false;
    connect(m_watch.get(), &SessionWatch::happened, this,
            [&] { lockedBefore = releasedSpy.isEmpty(); });
    Q_EMIT m_manager->PrepareForSleep(true);
    QVERIFY(happened.wait());
    QCOMPARE(happened.first().first().value<LockReason>(), LockReason::Sleep);
    QVERIFY(releasedSpy.wait());
    QVERIFY(lockedBefore);
    released.setEnabled(false);

    // The next sleep is to wait as well, and who was not asked in time is locked now.
    QSignalSpy awake(m_watch.get(), &SessionWatch::awake);
    Q_EMIT m_manager->PrepareForSleep(false);
    QTRY_COMPARE(m_manager->delays, 2);
    QCOMPARE(awake.count(), 1);
    QCOMPARE(happened.count(), 1);
}

void TestBusSessionWatch::otherNameOfTheSession()
{
    qputenv("XDG_SESSION_ID", "3");
    m_manager->knownSessions = QStringList{QStringLiteral("3")};
    BusSessionWatch watch(connection("session"), connection("system"));
    QVERIFY(QSignalSpy(&watch, &BusSessionWatch::sessionFound).wait());
    qunsetenv("XDG_SESSION_ID");
}

void TestBusSessionWatch::worksWithoutBuses()
{
    const QDBusConnection none = QDBusConnection::connectToBus(
        QStringLiteral("unix:path=/nonexistent"), QStringLiteral("none"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no session bus")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no system bus")));
    BusSessionWatch watch(none, none);
}

QTEST_GUILESS_MAIN(TestBusSessionWatch)
#include "tst_bussessionwatch.moc"
