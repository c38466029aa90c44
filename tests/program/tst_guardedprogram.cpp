#include "../guard/PrivateBus.h"
#include "GPMAppSettings.h"
#include "KnownSafes.h"
#include "PMFieldTypes.h"
#include "PMLogin.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QtTest>

#include "../XServer.h"

#include <X11/Xatom.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/scrnsaver.h>
#include <X11/keysym.h>
#include <sched.h>
#include <unistd.h>

namespace {

const QString program = QStringLiteral("Glaceron Password Manager");
const QString openTitle = QStringLiteral("Personal - ") + program;
const QString password = QStringLiteral("winter garden");
const QByteArray secret("tide 7 lantern");
const QString sessionPath = QStringLiteral("/org/freedesktop/login1/session/_3");
const char screenSaver[] = "org.freedesktop.ScreenSaver";
const char loginSession[] = "org.freedesktop.login1.Session";
const char loginManager[] = "org.freedesktop.login1.Manager";
const int smallestWidth = 600; ///< of the window; the splash screen, with the same title, is less
const int patience = 20000;    ///< for a program under the sanitizers

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

/// What stands in a user's home: a safe with one login, and settings.
class Home
{
public:
    explicit Home(const std::function<void(GPMAppSettings &)> &choose)
    {
        const QString config = path(".config/Glaceron/");
        GPMAppSettings settings(config, path("."));
        settings.setFirstStart(false);
        settings.setEnableBackup(false);
        choose(settings);
        KnownSafes safes(settings, path(".local/share/Glaceron/") + QStringLiteral("/safes"));
        const std::shared_ptr<GPMSafe> safe =
            safes.create(QStringLiteral("Personal"), password, QStringLiteral("the season"));
        auto login = std::make_unique<PMLogin>();
        login->setTitle(QStringLiteral("Shop"));
        login->setPassword(QString::fromLatin1(secret));
        safe->addItem(std::move(login));
        if (!safe->saveChanges() || !settings.storeSettings())
            qFatal("No safe to test with");
    }

    QByteArray log() const
    {
        QByteArray lines;
        QDirIterator files(path("") + QStringLiteral("/.") + program + QStringLiteral("/log"),
                           QDir::Files);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.open(QIODevice::ReadOnly))
                lines += file.readAll();
        }
        return lines;
    }

    QString path(const char *folder) const
    {
        const QString below = m_folder.filePath(QLatin1String(folder));
        return below.endsWith(QLatin1Char('/')) ? below + program : below;
    }

private:
    QTemporaryDir m_folder;
};

/// In a network of its own where that is allowed, since other programs use the port.
class OwnNetwork : public QProcess
{
protected:
    void setupChildProcess() override { (void)unshare(CLONE_NEWNET); }
};

/// The program on a screen, with another client that plays user and window manager.
class Desk
{
public:
    Desk(const XServer &server, const QString &bus, const Home &home)
        : m_client(server.client())
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_SESSION_ID"})
            environment.remove(QLatin1String(name));
        const auto set = [&environment](const char *name, const QString &value) {
            environment.insert(QLatin1String(name), value);
        };
        set("HOME", home.path("."));
        set("XDG_RUNTIME_DIR", home.path("."));
        set("QT_QPA_PLATFORM", QStringLiteral("xcb"));
        set("DBUS_SESSION_BUS_ADDRESS", bus);
        set("DBUS_SYSTEM_BUS_ADDRESS", bus);
        // What is never given back before the end of the process is no leak.
        set("ASAN_OPTIONS", QStringLiteral("detect_leaks=0"));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QStringLiteral(PROGRAM), QStringList());
    }
    ~Desk()
    {
        process.kill();
        process.waitForFinished();
    }

    bool isOpen() const { return window(openTitle) != None; }
    bool isLocked() const { return window(program) != None; }

    bool unlock()
    {
        if (!QTest::qWaitFor([this] { return takeKeyboard(program); }, patience))
            return false;
        type(password);
        press({XK_Return});
        const auto open = [this] {
            movePointer();
            return takeKeyboard(openTitle);
        };
        return QTest::qWaitFor(open, patience);
    }

    bool waitForLock() const
    {
        return QTest::qWaitFor([this] { return isLocked(); }, patience);
    }

    void press(const QVector<KeySym> &keys) const
    {
        for (const bool down : {true, false}) {
            for (const KeySym key : keys)
                XTestFakeKeyEvent(m_client, XKeysymToKeycode(m_client, key), down, CurrentTime);
        }
        XSync(m_client, False);
    }

    void movePointer()
    {
        m_step = -m_step;
        XTestFakeRelativeMotionEvent(m_client, m_step, 0, CurrentTime);
        XSync(m_client, False);
    }

    OwnNetwork process;

private:
    bool takeKeyboard(const QString &title) const
    {
        const Window found = window(title);
        if (found == None)
            return false;
        XSetInputFocus(m_client, found, RevertToParent, CurrentTime);
        XSync(m_client, False);
        Window focused = None;
        int revert = 0;
        XGetInputFocus(m_client, &focused, &revert);
        return focused == found;
    }

    void type(const QString &text) const
    {
        for (const QChar letter : text)
            press({letter.unicode()});
    }

    /// The visible window with a title.
    Window window(const QString &title) const
    {
        Window root = None;
        Window parent = None;
        Window *windows = nullptr;
        unsigned count = 0;
        XQueryTree(m_client, DefaultRootWindow(m_client), &root, &parent, &windows, &count);
        QVector<Window> found;
        bool splash = false; // it goes before the window is ready
        for (unsigned i = 0; i < count; ++i) {
            XWindowAttributes look = {};
            if (XGetWindowAttributes(m_client, windows[i], &look) == 0 ||
                look.map_state != IsViewable || titleOf(windows[i]) != title)
                continue;
            splash = splash || look.width < smallestWidth;
            found.append(windows[i]);
        }
        const Window result = splash ? None : found.value(0, None);
        XFree(windows);
        return result;
    }

    QString titleOf(Window window) const
    {
        Atom type = None;
        int format = 0;
        unsigned long count = 0;
        unsigned long rest = 0;
        unsigned char *data = nullptr;
        XGetWindowProperty(m_client, window, XInternAtom(m_client, "_NET_WM_NAME", False), 0, 99,
                           False, AnyPropertyType, &type, &format, &count, &rest, &data);
        const QString title = QString::fromUtf8(reinterpret_cast<char *>(data));
        if (data)
            XFree(data);
        return title;
    }

    Display *m_client;
    int m_step = 1;
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
    void initTestCase();
    void locksWhenTheUserIsAway();
    void locksWithTheSession();
    void keepsSecretsOffTheClipboard();

private:
    void send(const QString &path, const char *interface, const char *signal,
              const QVariantList &arguments);

    PrivateBus m_bus;
    QDBusConnection m_desktop = m_bus.connection("desktop");
    LoginManager m_login;
};

void TestGuardedProgram::initTestCase()
{
    PMFieldTypes::registerMetaTypes();
    XSetErrorHandler([](Display *, XErrorEvent *) { return 0; }); // windows come and go
    QVERIFY(m_desktop.registerVirtualObject(QStringLiteral("/org/freedesktop/login1"), &m_login));
    QVERIFY(m_desktop.registerService(QStringLiteral("org.freedesktop.login1")));
}

void TestGuardedProgram::send(const QString &path, const char *interface, const char *signal,
                              const QVariantList &arguments)
{
    QDBusMessage message =
        QDBusMessage::createSignal(path, QLatin1String(interface), QLatin1String(signal));
    message.setArguments(arguments);
    QVERIFY(m_desktop.send(message));
}

/// The shortest limit is a minute, which passes soon by the clock of this server. There is no bus.
void TestGuardedProgram::locksWhenTheUserIsAway()
{
    const int speed = 20;
    const XServer server(speed);
    XSetScreenSaver(server.client(), 0, 0, PreferBlanking, AllowExposures);
    const Home home([](GPMAppSettings &settings) {
        settings.setInactivityInterval(1);
        settings.setLockHotkey(QStringLiteral("sometimes"));
    });
    Desk desk(server, QStringLiteral("unix:path=/nonexistent"), home);
    QVERIFY(desk.unlock());
    QElapsedTimer atWork;
    atWork.start();
    const auto worksOn = [&] {
        desk.movePointer();
        return atWork.elapsed() * speed > 90000;
    };
    QTRY_VERIFY(worksOn());
    QVERIFY(desk.isOpen());
    QVERIFY(desk.waitForLock());
    QVERIFY2(idleMs(server) > 60000, "locked too early, or the server's clock is not faster");
    const QByteArray log = home.log();
    for (const char *told : {"no session bus", "no system bus", "not a hotkey: \"sometimes\""})
        QCOMPARE(log.count(told), 1);
}

void TestGuardedProgram::locksWithTheSession()
{
    const XServer server;
    const Home home([](GPMAppSettings &settings) {
        settings.setAutolockInactive(false);
        settings.setLockHotkey(QStringLiteral("Ctrl+Alt+L"));
    });
    const int delays = m_login.delays;
    Desk desk(server, m_bus.address(), home);
    QVERIFY(desk.unlock());
    QTRY_VERIFY(m_login.delays > delays);
    send(QStringLiteral("/ScreenSaver"), screenSaver, "ActiveChanged", {true});
    QVERIFY(desk.waitForLock());
    QVERIFY(desk.unlock());
    send(sessionPath, loginSession, "Lock", {});
    QVERIFY(desk.waitForLock());
    QVERIFY(desk.unlock());
    send(QStringLiteral("/org/freedesktop/login1"), loginManager, "PrepareForSleep", {true});
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

void TestGuardedProgram::keepsSecretsOffTheClipboard()
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
            [&] { return owner("CLIPBOARD") != None && owner("CLIPBOARD") != other; }, patience);
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

QTEST_GUILESS_MAIN(TestGuardedProgram)
#include "tst_guardedprogram.moc"
