#include "../Text.h"
#include "../guard/PrivateBus.h"
#include "PMFieldTypes.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QtTest>

#include "Desk.h"

#include <X11/Xatom.h>
#include <X11/extensions/scrnsaver.h>
#include <unistd.h>

namespace {

const QString sessionPath = "/org/freedesktop/login1/session/_3"_s;
const char screenSaver[] = "org.freedesktop.ScreenSaver";
const char loginSession[] = "org.freedesktop.login1.Session";
const char loginManager[] = "org.freedesktop.login1.Manager";

/// The login manager as far as the program asks it.
class LoginManager : public QDBusVirtualObject
{
public:
    int delays = 0;

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &call, const QDBusConnection &bus) override
    {
        QDBusMessage reply = call.createReply();
        if (call.member() == QLatin1String("GetSession")) {
            reply << QVariant::fromValue(QDBusObjectPath(sessionPath));
        } else if (call.member() == QLatin1String("Inhibit")) {
            ++delays;
            const int pipeEnd = dup(STDIN_FILENO);
            reply << QVariant::fromValue(QDBusUnixFileDescriptor(pipeEnd));
            close(pipeEnd);
        }
        return bus.send(reply);
    }
};

/// How long the server has seen no input, by its own clock.
unsigned long idleMs(const XServer &server)
{
    XScreenSaverInfo info = {};
    XScreenSaverQueryInfo(server.client(), server.root(), &info);
    return info.idle;
}

} // namespace

/// The program itself, on a real X server and a bus of its own.

class TestGuardedProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        PMFieldTypes::registerMetaTypes();
        XSetErrorHandler([](Display *, XErrorEvent *) { return 0; }); // windows come and go
        QVERIFY(m_desktop.registerVirtualObject("/org/freedesktop/login1"_s, &m_login));
        QVERIFY(m_desktop.registerService("org.freedesktop.login1"_s));
    }

    /// The shortest limit is a minute, which passes soon by the clock of this server. There is no
    /// bus.
    void locksWhenTheUserIsAway()
    {
        const int speed = 12;
        const XServer server(speed);
        XSetScreenSaver(server.client(), 0, 0, PreferBlanking, AllowExposures);
        const Home home([](GPMAppSettings &settings) {
            settings.setInactivityInterval(1);
            settings.setLockHotkey("sometimes"_s);
        });
        Desk desk(server, "unix:path=/nonexistent"_s, home);
        QVERIFY(desk.unlock());
        QElapsedTimer atWork;
        atWork.start();
        const auto worksOn = [&] {
            desk.movePointer();
            return atWork.elapsed() * speed > 90000;
        };
        QTRY_VERIFY_WITH_TIMEOUT(worksOn(), patience);
        QVERIFY(desk.isOpen());
        QVERIFY(desk.waitForLock());
        QVERIFY2(idleMs(server) > 60000, "locked too early, or the server's clock is not faster");
        const QByteArray log = home.log();
        for (const char *told : {"no session bus", "no system bus", "not a hotkey: \"sometimes\""})
            QCOMPARE(log.count(told), 1);
    }

    void locksWithTheSession()
    {
        const XServer server;
        const Home home([](GPMAppSettings &settings) {
            settings.setAutolockInactive(false);
            settings.setLockHotkey("Ctrl+Alt+L"_s);
        });
        const int delays = m_login.delays;
        Desk desk(server, m_bus.address(), home);
        QVERIFY(desk.unlock());
        QTRY_VERIFY(m_login.delays > delays);
        send("/ScreenSaver"_s, screenSaver, "ActiveChanged", {true});
        QVERIFY(desk.waitForLock());
        QVERIFY(desk.unlock());
        send(sessionPath, loginSession, "Lock", {});
        QVERIFY(desk.waitForLock());
        QVERIFY(desk.unlock());
        send("/org/freedesktop/login1"_s, loginManager, "PrepareForSleep", {true});
        QVERIFY(desk.waitForLock());
        QVERIFY(desk.unlock());
        // From another program, which has the keyboard.
        XSetInputFocus(server.client(), server.root(), RevertToParent, CurrentTime);
        desk.press({XK_Control_L, XK_Alt_L, XK_l});
        QVERIFY(desk.waitForLock());
        QVERIFY(desk.unlock());
        XForceScreenSaver(server.client(), ScreenSaverActive);
        XSync(server.client(), False);
        QVERIFY(desk.waitForLock());
    }

    void keepsSecretsOffTheClipboard()
    {
        const XServer server;
        Display *client = server.client();
        const auto owner = [&](const char *selection) {
            return XGetSelectionOwner(client, XInternAtom(client, selection, False));
        };
        const Home home([](GPMAppSettings &settings) { settings.setAutolockInactive(false); });
        Desk desk(server, m_bus.address(), home);
        const Window other = XCreateSimpleWindow(client, server.root(), 0, 0, 1, 1, 0, 0, 0);
        const auto copy = [&] {
            desk.press({XK_Control_L, XK_Shift_L, XK_c});
            return QTest::qWaitFor(
                [&] { return owner("CLIPBOARD") != None && owner("CLIPBOARD") != other; },
                patience);
        };
        QVERIFY(desk.unlock());
        desk.press({XK_Down});
        QVERIFY(copy());
        XConvertSelection(client, XInternAtom(client, "CLIPBOARD", False),
                          XInternAtom(client, "UTF8_STRING", False), XA_STRING, other, CurrentTime);
        XEvent event = {};
        QVERIFY(QTest::qWaitFor(
            [&] { return XCheckTypedWindowEvent(client, other, SelectionNotify, &event) != 0; }));
        Atom type = None;
        int format = 0;
        unsigned long count = 0;
        unsigned long rest = 0;
        unsigned char *data = nullptr;
        XGetWindowProperty(client, other, XA_STRING, 0, 99, True, AnyPropertyType, &type, &format,
                           &count, &rest, &data);
        QCOMPARE(QByteArray(reinterpret_cast<char *>(data)), secret);
        XFree(data);
        QCOMPARE(owner("PRIMARY"), Window(None));

        // A lock takes it away, unless another program has put something there.
        desk.press({XK_Control_L, XK_l});
        QVERIFY(desk.waitForLock());
        QTRY_COMPARE(owner("CLIPBOARD"), Window(None));
        QVERIFY(desk.unlock());
        desk.press({XK_Down});
        QVERIFY(copy());
        XSetSelectionOwner(client, XInternAtom(client, "CLIPBOARD", False), other, CurrentTime);
        desk.press({XK_Control_L, XK_l});
        QVERIFY(desk.waitForLock());
        QCOMPARE(owner("CLIPBOARD"), other);

        // So does the end: a manager of clipboards is not asked to keep it.
        const Window manager = XCreateSimpleWindow(client, server.root(), 0, 0, 1, 1, 0, 0, 0);
        XSetSelectionOwner(client, XInternAtom(client, "CLIPBOARD_MANAGER", False), manager,
                           CurrentTime);
        QVERIFY(desk.unlock());
        desk.press({XK_Down});
        QVERIFY(copy());
        desk.press({XK_Control_L, XK_q});
        QVERIFY(desk.process.waitForFinished(patience));
        QCOMPARE(desk.process.exitCode(), 0);
        QVERIFY(!XCheckTypedWindowEvent(client, manager, SelectionRequest, &event));
    }

private:
    void send(const QString &path, const char *interface, const char *signal,
              const QVariantList &arguments)
    {
        QDBusMessage message =
            QDBusMessage::createSignal(path, QLatin1String(interface), QLatin1String(signal));
        message.setArguments(arguments);
        QVERIFY(m_desktop.send(message));
    }

    PrivateBus m_bus;
    QDBusConnection m_desktop = m_bus.connection("desktop");
    LoginManager m_login;
};

QTEST_GUILESS_MAIN(TestGuardedProgram)
#include "tst_guardedprogram.moc"
