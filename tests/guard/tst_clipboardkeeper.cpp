#include "../Text.h"
#include "ClipboardKeeper.h"

// Qt's headers first: those of X define words that they use.
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QtTest>

#include "../XServer.h"

#include <atomic>
#include <poll.h>
#include <thread>

/// On a real X server, where another client looks at what the program offers.

namespace {

const QString secret = "pass phrase"_s;
const QString hint = "x-kde-passwordManagerHint"_s;

/// A program that has the clipboard and gives its text to who asks; without a text it is stuck.
class OtherOwner
{
public:
    explicit OtherOwner(const QByteArray &text)
        : m_display(XOpenDisplay(nullptr))
        , m_window(
              XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 1, 1, 0, 0, 0))
    {
        XSetSelectionOwner(m_display, XInternAtom(m_display, "CLIPBOARD", False), m_window,
                           CurrentTime);
        XSync(m_display, False);
        if (!text.isEmpty())
            m_thread = std::thread([this, text] { answer(text); });
    }
    ~OtherOwner()
    {
        m_end = true;
        if (m_thread.joinable())
            m_thread.join();
        XCloseDisplay(m_display);
    }

    Window window() const { return m_window; }

private:
    void answer(const QByteArray &text)
    {
        while (!m_end) {
            XEvent event = {};
            pollfd server = {ConnectionNumber(m_display), POLLIN, 0};
            if (!XPending(m_display) && poll(&server, 1, 10) <= 0)
                continue;
            XNextEvent(m_display, &event);
            if (event.type != SelectionRequest)
                continue;
            const XSelectionRequestEvent &request = event.xselectionrequest;
            XChangeProperty(m_display, request.requestor, request.property, request.target, 8,
                            PropModeReplace, reinterpret_cast<const unsigned char *>(text.data()),
                            text.size());
            XEvent reply = {};
            reply.xselection = {SelectionNotify,
                                0,
                                False,
                                m_display,
                                request.requestor,
                                request.selection,
                                request.target,
                                request.property,
                                request.time};
            XSendEvent(m_display, request.requestor, False, 0, &reply);
            XFlush(m_display);
        }
    }

    Display *m_display;
    Window m_window;
    std::thread m_thread;
    std::atomic<bool> m_end = false;
};

QClipboard &clipboard()
{
    return *QGuiApplication::clipboard();
}

} // namespace

class TestClipboardKeeper : public QObject
{
    Q_OBJECT

public:
    explicit TestClipboardKeeper(XServer &server)
        : m_server(server)
    {
    }

private Q_SLOTS:
    void init()
    {
        m_timers.clear();
        clipboard().clear();
        clipboard().clear(QClipboard::Selection);
    }

    void copyIsMarkedAndStaysOffTheSelection()
    {
        ClipboardKeeper keeper(m_later);
        keeper.copy(secret, true);
        QCOMPARE(offered("UTF8_STRING"), secret.toUtf8());
        QCOMPARE(offered("x-kde-passwordManagerHint"), QByteArray("secret"));
        QCOMPARE(owner("PRIMARY"), Window(None));
        keeper.clear();
        QCOMPARE(offered("UTF8_STRING"), QByteArray());
    }

    void selectedTextStaysOffTheSelection_data()
    {
        QTest::addColumn<bool>("isNote");
        QTest::newRow("line") << false;
        QTest::newRow("note") << true;
    }
    void selectedTextStaysOffTheSelection()
    {
        QFETCH(bool, isNote);
        const QString text = "revealed"_s;
        QLineEdit line(text);
        QPlainTextEdit note(text);
        QWidget &field = isNote ? static_cast<QWidget &>(note) : line;
        QWidget &clicked = isNote ? *note.viewport() : field;
        const auto selectByMouse = [&] {
            QTest::mouseDClick(&clicked, Qt::LeftButton, {}, QPoint(12, 12));
            QTest::mouseRelease(&clicked, Qt::LeftButton, {}, QPoint(12, 12));
        };
        field.show();
        QVERIFY(QTest::qWaitForWindowExposed(&field));
        // What a program does that keeps none: the check below can fail.
        selectByMouse();
        QCOMPARE(clipboard().text(QClipboard::Selection), text);
        QVERIFY(owner("PRIMARY") != Window(None));

        ClipboardKeeper keeper(m_later);
        line.deselect();
        note.moveCursor(QTextCursor::End);
        selectByMouse();
        QCOMPARE(isNote ? note.textCursor().selectedText() : line.selectedText(), text);
        QCOMPARE(clipboard().text(QClipboard::Selection), QString());
        QCOMPARE(owner("PRIMARY"), Window(None));
    }

    void otherCopiesAreMarkedAndCleared()
    {
        ClipboardKeeper keeper(m_later);
        bool clearLater = true;
        keeper.adoptOtherCopies([&clearLater] { return clearLater; });
        QSignalSpy copied(&keeper, &ClipboardKeeper::copied);
        QLineEdit field(secret);
        field.selectAll();
        field.copy();
        QCOMPARE(copied.count(), 1);
        QCOMPARE(offered("x-kde-passwordManagerHint"), QByteArray("secret"));
        QCOMPARE(offered("UTF8_STRING"), secret.toUtf8());
        QCOMPARE(m_timers.size(), 1);
        m_timers.first()();
        QCOMPARE(clipboard().text(), QString());

        clearLater = false;
        field.copy();
        QCOMPARE(m_timers.size(), 1);
        QVERIFY(clipboard().mimeData()->hasFormat(hint));
    }

    void clearsAfterItsTime_data()
    {
        QTest::addColumn<QStringList>("copies");
        QTest::addColumn<QString>("replacedBy");
        QTest::addColumn<int>("timer");
        QTest::addColumn<QString>("left");

        const QString a = "a"_s;
        const QString b = "b"_s;
        QTest::newRow("the only copy") << QStringList{a} << QString() << 0 << QString();
        QTest::newRow("the older timer takes the newer copy")
            << QStringList{a, b} << QString() << 0 << QString();
        QTest::newRow("replaced") << QStringList{a} << b << 0 << b;
        QTest::newRow("replaced by the same in capitals") << QStringList{a} << "A"_s << 0 << "A"_s;
    }
    void clearsAfterItsTime()
    {
        QFETCH(QStringList, copies);
        QFETCH(QString, replacedBy);
        QFETCH(int, timer);
        QFETCH(QString, left);
        ClipboardKeeper keeper(m_later);
        QSignalSpy cleared(&keeper, &ClipboardKeeper::cleared);
        for (const QString &text : copies)
            keeper.copy(text, true);
        if (!replacedBy.isEmpty())
            clipboard().setText(replacedBy);
        m_timers.at(timer)();
        QCOMPARE(clipboard().text(), left);
        // The text is forgotten: a further timer has nothing to do.
        clipboard().setText(copies.last());
        m_timers.last()();
        QCOMPARE(clipboard().text(), copies.last());
        QCOMPARE(cleared.count(), 1);
    }

    void otherOwner_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("cleared");
        QTest::newRow("keeps the same text") << secret << true;
        QTest::newRow("another text") << "shopping list"_s << false;
        QTest::newRow("does not answer") << QString() << false;
    }
    void otherOwner()
    {
        QFETCH(QString, text);
        QFETCH(bool, cleared);
        ClipboardKeeper keeper(m_later);
        keeper.adoptOtherCopies([] { return true; });
        keeper.copy(secret, true);
        QSignalSpy changed(&clipboard(), &QClipboard::dataChanged);
        OtherOwner other(text.toUtf8());
        QVERIFY(changed.wait());
        QCOMPARE(m_timers.size(), 1);
        QElapsedTimer time;
        time.start();
        m_timers.first()();
        QVERIFY(time.elapsed() < 4000); // half a minute, were Qt asked
        QCOMPARE(owner("CLIPBOARD") != other.window(), cleared);
    }

private:
    Atom atom(const char *name) { return XInternAtom(m_server.client(), name, False); }
    Window owner(const char *selection)
    {
        return XGetSelectionOwner(m_server.client(), atom(selection));
    }
    /// What another client gets from the clipboard in a format; empty where it is not offered.
    QByteArray offered(const char *format)
    {
        Display *client = m_server.client();
        const Window window = XCreateSimpleWindow(client, m_server.root(), 0, 0, 1, 1, 0, 0, 0);
        const Atom target = atom("GLACERON_TEST");
        XConvertSelection(client, atom("CLIPBOARD"), atom(format), target, window, CurrentTime);
        XEvent event = {};
        const auto answered = [&] {
            return XCheckTypedWindowEvent(client, window, SelectionNotify, &event) != 0;
        };
        QByteArray bytes;
        if (QTest::qWaitFor(answered) && event.xselection.property != None) {
            Atom type = None;
            int width = 0;
            unsigned long count = 0;
            unsigned long rest = 0;
            unsigned char *data = nullptr;
            XGetWindowProperty(client, window, target, 0, 1024, True, AnyPropertyType, &type,
                               &width, &count, &rest, &data);
            bytes = QByteArray(reinterpret_cast<char *>(data), static_cast<int>(count));
            XFree(data);
        }
        XDestroyWindow(client, window);
        return bytes;
    }

    XServer &m_server;
    QVector<std::function<void()>> m_timers;
    ClipboardKeeper::Later m_later = [this](int ms, const QObject *,
                                            const std::function<void()> &action) {
        QCOMPARE(ms, 60000);
        m_timers.append(action);
    };
};

int main(int argc, char *argv[])
{
    XServer server;
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    QApplication application(argc, argv);
    TestClipboardKeeper test(server);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_clipboardkeeper.moc"
