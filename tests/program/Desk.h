#pragma once

#include "GPMAppSettings.h"
#include "KnownSafes.h"
#include "PMLogin.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QtTest>

#include "../XServer.h"

#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <sched.h>

const QString program = QStringLiteral("Glaceron Password Manager");
const QString openTitle = QStringLiteral("Personal - ") + program;
const QString password = QStringLiteral("winter garden");
const QByteArray secret("tide 7 lantern");
const int smallestWidth = 600; ///< of the window; the splash screen, with the same title, is less
const int patience = 20000;    ///< for a program under the sanitizers

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
