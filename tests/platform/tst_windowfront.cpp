#include "WindowFront.h"

#include <QtTest>

#include "../XServer.h"

#include <X11/Xatom.h>

/// On a real X server, where another client gets what a window manager would.
class TestWindowFront : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksTheWindowManager_data();
    void asksTheWindowManager();
    void withoutAWayItSaysSo();

private:
    Atom atom(const char *name) { return XInternAtom(m_server.client(), name, False); }

    XServer m_server;
};

void TestWindowFront::asksTheWindowManager_data()
{
    QTest::addColumn<QByteArray>("compositor");
    QTest::newRow("X11") << QByteArray();
    QTest::newRow("X11 beside Wayland") << QByteArray("wayland-0");
}

void TestWindowFront::asksTheWindowManager()
{
    QFETCH(QByteArray, compositor);
    qputenv("WAYLAND_DISPLAY", compositor);
    Display *client = m_server.client();
    XSelectInput(client, m_server.root(), SubstructureRedirectMask);
    const Window window = XCreateSimpleWindow(client, m_server.root(), 0, 0, 9, 9, 0, 0, 0);
    // The time of the user's last input, which belongs to another window.
    const Window other = XCreateSimpleWindow(client, m_server.root(), 0, 0, 9, 9, 0, 0, 0);
    XSelectInput(client, other, PropertyChangeMask);
    XChangeProperty(client, other, XA_WM_NAME, XA_STRING, 8, PropModeAppend, nullptr, 0);
    XEvent used = {};
    XWindowEvent(client, other, PropertyChangeMask, &used);

    QVERIFY(putWindowInFront(window));
    XEvent asked = {};
    QVERIFY(XCheckTypedEvent(client, ClientMessage, &asked));
    QCOMPARE(asked.xclient.message_type, atom("_NET_ACTIVE_WINDOW"));
    QCOMPARE(asked.xclient.window, window);
    QCOMPARE(asked.xclient.data.l[0], 1L);
    const auto time = static_cast<Time>(asked.xclient.data.l[1]);
    QVERIFY(time >= used.xproperty.time);

    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char *data = nullptr;
    XGetWindowProperty(client, window, atom("_NET_WM_USER_TIME"), 0, 1, False, XA_CARDINAL, &type,
                       &format, &count, &rest, &data);
    QCOMPARE(count, 1UL);
    QCOMPARE(*reinterpret_cast<unsigned long *>(data), time);
    XFree(data);
}

void TestWindowFront::withoutAWayItSaysSo()
{
    qunsetenv("DISPLAY");
    QVERIFY(!putWindowInFront(1));
}

QTEST_GUILESS_MAIN(TestWindowFront)
#include "tst_windowfront.moc"
