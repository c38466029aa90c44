#include "Platform.h"

#include <QtTest>

#include "../XServer.h"

#include <X11/XKBlib.h>
#include <X11/keysym.h>

/// On a real X server, where another client has the keyboard.
class TestKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterGoesDownInTheWindowThatHasTheKeyboard();
    void capsLock();
    void worksWithoutAServer();

private:
    XServer m_server;
    std::unique_ptr<Platform> m_platform = Platform::create();
};

void TestKeyboard::enterGoesDownInTheWindowThatHasTheKeyboard()
{
    Display *client = m_server.client();
    XSetInputFocus(client, PointerRoot, RevertToNone, CurrentTime);
    XSync(client, False);
    QVERIFY(!m_platform->pressEnterKey());

    const Window window = XCreateSimpleWindow(client, m_server.root(), 0, 0, 9, 9, 0, 0, 0);
    XSelectInput(client, window, KeyPressMask | KeyReleaseMask | StructureNotifyMask);
    XMapWindow(client, window);
    XEvent event = {};
    XWindowEvent(client, window, StructureNotifyMask, &event);
    XSetInputFocus(client, window, RevertToNone, CurrentTime);
    XSync(client, False);
    QVERIFY(m_platform->pressEnterKey());
    QVERIFY(XCheckTypedWindowEvent(client, window, KeyPress, &event));
    QCOMPARE(XLookupKeysym(&event.xkey, 0), KeySym(XK_Return));
    QCOMPARE(event.xkey.state, 0U);
    // Nor does the server hold the key down: it would repeat.
    QVERIFY(!XCheckTypedWindowEvent(client, window, KeyRelease, &event));
    char keys[32] = {};
    XQueryKeymap(client, keys);
    QCOMPARE(QByteArray(keys, sizeof keys), QByteArray(sizeof keys, 0));
}

void TestKeyboard::capsLock()
{
    Display *client = m_server.client();
    for (const unsigned state : {0U, unsigned(Mod2Mask), unsigned(LockMask)}) {
        XkbLockModifiers(client, XkbUseCoreKbd, LockMask | Mod2Mask, state);
        XSync(client, False);
        QCOMPARE(m_platform->capsLockOn(), state == LockMask);
    }
}

void TestKeyboard::worksWithoutAServer()
{
    qunsetenv("DISPLAY");
    QVERIFY(!m_platform->pressEnterKey());
    QVERIFY(!m_platform->capsLockOn());
}

QTEST_GUILESS_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
