#include "../Text.h"
#include "GPMAppSettings.h"
#include "HotkeyText.h"
#include "Hotkeys.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "../XServer.h"

#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

/// On a real X server, where another client presses keys and holds combinations.

namespace {

const QString lockKeys = "Ctrl+Alt+L"_s;

struct Program
{
    explicit Program(const QString &lockText = lockKeys, const QString &pluginText = {})
    {
        settings.setLockHotkey(lockText);
        settings.setPluginHotkey(pluginText);
        hotkeys.start();
    }

    QTemporaryDir folder;
    GPMAppSettings settings{folder.path(), folder.path()};
    Hotkeys hotkeys{settings, SystemHotkeys::create()};
    QSignalSpy lock{&hotkeys, &Hotkeys::lockPressed};
    QSignalSpy plugin{&hotkeys, &Hotkeys::pluginPressed};
    QSignalSpy taken{&hotkeys, &Hotkeys::taken};
};

} // namespace

class TestHotkeys : public QObject
{
    Q_OBJECT

public:
    explicit TestHotkeys(XServer &server)
        : m_server(server)
    {
    }

private Q_SLOTS:
    void text_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("key");

        using Keys = SystemHotkeys;
        const auto row = [](const char *text, int modifiers, int key) {
            QTest::newRow(text) << QString::fromLatin1(text) << modifiers << key;
        };
        row("Ctrl+Alt+L", Keys::Control | Keys::Alt, 'l');
        row("Meta+Shift+1", Keys::Meta | Keys::Shift, '1');
        row("Ctrl+Space", Keys::Control, ' ');
        row("Ctrl++", Keys::Control, '+');
        row("Alt+Ins", Keys::Alt, Keys::Insert);
        row("F12", 0, Keys::F1 + 11);
        row("Shift+F24", Keys::Shift, Keys::F24);
        row("Pause", 0, Keys::Pause);
        // Nobody could type any more.
        row("L", 0, 0);
        row("Shift+L", 0, 0);
        row("Return", 0, 0);
        row("", 0, 0);
        row("Ctrl", 0, 0);
        row("Ctrl+Nonsense", 0, 0);
        row("Ctrl+K, Ctrl+L", 0, 0);
    }
    void text()
    {
        QFETCH(QString, text);
        QFETCH(int, modifiers);
        QFETCH(int, key);
        const std::optional<SystemHotkeys::Combination> combination = hotkeyCombination(text);
        QCOMPARE(combination.has_value(), key != 0);
        QCOMPARE(hotkeySequence(text).isEmpty(), key == 0);
        if (combination) {
            QCOMPARE(int(combination->modifiers), modifiers);
            QCOMPARE(int(combination->key), key);
        }
    }

    void pressed_data()
    {
        QTest::addColumn<unsigned>("locks");
        QTest::newRow("as it is") << 0U;
        QTest::newRow("Caps Lock on") << unsigned(LockMask);
        QTest::newRow("Num Lock on") << unsigned(Mod2Mask);
        QTest::newRow("both on") << unsigned(LockMask | Mod2Mask);
    }
    void pressed()
    {
        QFETCH(unsigned, locks);
        Program program(lockKeys, "F9"_s);
        XkbLockModifiers(m_server.client(), XkbUseCoreKbd, LockMask | Mod2Mask, locks);
        press({XK_F9});
        QVERIFY(program.plugin.wait());
        QCOMPARE(program.lock.count(), 0);
        press({XK_Control_L, XK_Alt_L, XK_l});
        QVERIFY(program.lock.wait());
        XkbLockModifiers(m_server.client(), XkbUseCoreKbd, LockMask | Mod2Mask, 0);
        // Others are let through: the key that is waited for comes after them.
        press({XK_Control_L, XK_l});
        press({XK_Control_L, XK_Alt_L, XK_Shift_L, XK_l});
        press({XK_F9});
        QVERIFY(program.plugin.wait());
        QCOMPARE(program.lock.count(), 1);
    }

    void heldKeysCountOnce()
    {
        Program program(lockKeys, "F9"_s);
        Display *client = m_server.client();
        const KeyCode key = XKeysymToKeycode(client, XK_F9);
        XkbSetAutoRepeatRate(client, XkbUseCoreKbd, 20, 10);
        XTestFakeKeyEvent(client, key, True, CurrentTime);
        XSync(client, False);
        QVERIFY(program.plugin.wait());
        QVERIFY(!program.plugin.wait(200)); // in which it would repeat many times
        XTestFakeKeyEvent(client, key, False, CurrentTime);
        XkbSetAutoRepeatRate(client, XkbUseCoreKbd, 660, 40);
        press({XK_F9});
        QVERIFY(program.plugin.wait());
        QCOMPARE(program.plugin.count(), 2);
    }

    void followsTheSettings()
    {
        Program program;
        program.settings.setLockHotkey("Ctrl+F7"_s);
        press({XK_Control_L, XK_Alt_L, XK_l});
        press({XK_Control_L, XK_F7});
        QVERIFY(program.lock.wait());
        QCOMPARE(program.lock.count(), 1);
        program.settings.setLockHotkey({});
        program.settings.setPluginHotkey("Ctrl+F8"_s);
        press({XK_Control_L, XK_F7});
        press({XK_Control_L, XK_F8});
        QVERIFY(program.plugin.wait());
        QCOMPARE(program.lock.count(), 1);
        QCOMPARE(program.taken.count(), 0);
    }

    void takenByAnotherProgram()
    {
        Display *other = m_server.client();
        const KeyCode code = XKeysymToKeycode(other, XK_l);
        XGrabKey(other, code, ControlMask | Mod1Mask, m_server.root(), False, GrabModeAsync,
                 GrabModeAsync);
        XSync(other, False);
        // At the start the log says it: nobody has just chosen the combination.
        Program program;
        QCOMPARE(program.taken.count(), 0);
        program.settings.setLockHotkey("Ctrl+F7"_s);
        QCOMPARE(program.taken.count(), 0);
        program.settings.setLockHotkey(lockKeys);
        QCOMPARE(program.taken.count(), 1);
        QCOMPARE(program.taken.first().first().toString(), lockKeys);

        // The other program keeps what it has, and once it lets go the combination can be had.
        press({XK_Control_L, XK_Alt_L, XK_l});
        XEvent event = {};
        QVERIFY(QTest::qWaitFor([&] { return XCheckTypedEvent(other, KeyPress, &event) != 0; }));
        QCOMPARE(program.lock.count(), 0);
        XUngrabKey(other, code, ControlMask | Mod1Mask, m_server.root());
        XSync(other, False);
        program.settings.setLockHotkey({});
        program.settings.setLockHotkey(lockKeys);
        QCOMPARE(program.taken.count(), 1);
        press({XK_Control_L, XK_Alt_L, XK_l});
        QVERIFY(program.lock.wait());
    }

    void senseless()
    {
        QTest::ignoreMessage(QtWarningMsg, "Hotkeys: not a hotkey: \"sometimes\"");
        Program program("sometimes"_s, "F9"_s);
        press({XK_F9});
        QVERIFY(program.plugin.wait());
        QCOMPARE(program.taken.count(), 0);
    }

private:
    void press(const QVector<KeySym> &keys)
    {
        Display *client = m_server.client();
        for (const KeySym key : keys)
            XTestFakeKeyEvent(client, XKeysymToKeycode(client, key), True, CurrentTime);
        for (const KeySym key : keys)
            XTestFakeKeyEvent(client, XKeysymToKeycode(client, key), False, CurrentTime);
        XSync(client, False);
    }

    XServer &m_server;
};

int main(int argc, char *argv[])
{
    XServer server;
    QCoreApplication application(argc, argv);
    TestHotkeys test(server);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_hotkeys.moc"
