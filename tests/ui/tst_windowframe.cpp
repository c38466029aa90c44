#include "UiTesting.h"
#include "lock/SecureWindow.h"
#include "main/MainView.h"
#include "style/Theme.h"
#include "widgets/FrameChoice.h"
#include "widgets/FramedDialog.h"
#include "widgets/WindowMover.h"
#include "widgets/WindowResizer.h"
#include "widgets/WindowShadow.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QToolButton>

namespace {

struct Window
{
    Window()
    {
        theme.setReducedMotion(true);
        window = std::make_unique<SecureWindow>(test.core, theme, new MainView(test.core, theme));
        window->show();
    }

    /// A press, moves and a release, at the places of the window's own coordinates.
    static void drag(QWidget &target, const QPoint &from, const QPoint &to)
    {
        const QPoint start = target.mapToGlobal(from);
        QWidget *pressed = target.childAt(from);
        pressed = pressed ? pressed : &target;
        const auto send = [&](QEvent::Type type, const QPoint &global, Qt::MouseButton button) {
            // The window moves below the pointer.
            QMouseEvent event(type, pressed->mapFromGlobal(global),
                              pressed->window()->mapFromGlobal(global), global, button,
                              type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                              Qt::NoModifier);
            QApplication::sendEvent(pressed, &event);
        };
        send(QEvent::MouseButtonPress, start, Qt::LeftButton);
        send(QEvent::MouseMove, start + (to - from) / 2, Qt::NoButton);
        send(QEvent::MouseMove, start + to - from, Qt::NoButton);
        send(QEvent::MouseButtonRelease, start + to - from, Qt::LeftButton);
    }

    TestCore test;
    Theme theme;
    std::unique_ptr<SecureWindow> window;
};

} // namespace

class TestWindowFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choice_data()
    {
        QTest::addColumn<bool>("compositor");
        QTest::addColumn<int>("frame");
        QTest::newRow("xcb") << true << int(FrameChoice::Shadow);
        QTest::newRow("xcb") << false << int(FrameChoice::Line);
        QTest::newRow("wayland") << true << int(FrameChoice::System);
        QTest::newRow("wayland-egl") << true << int(FrameChoice::System);
        QTest::newRow("windows") << false << int(FrameChoice::Adopted);
        QTest::newRow("offscreen") << false << int(FrameChoice::Line);
        QTest::newRow("eglfs") << false << int(FrameChoice::System);
    }
    void choice()
    {
        QFETCH(bool, compositor);
        QFETCH(int, frame);
        const QString platform = QLatin1String(QTest::currentDataTag());
        QCOMPARE(int(FrameChoice::choose(platform, compositor)), frame);
    }

    void edgesKeepTheSmallestSize_data()
    {
        QTest::addColumn<Qt::Edges>("edges");
        QTest::addColumn<QPoint>("offset");
        QTest::addColumn<QRect>("expected");
        const auto row = [](const char *name, Qt::Edges edges, QPoint offset, QRect expected) {
            QTest::newRow(name) << edges << offset << expected;
        };
        row("right", Qt::RightEdge, {20, 99}, {100, 100, 420, 300});
        row("right, too far", Qt::RightEdge, {-300, 0}, {100, 100, 200, 300});
        row("left", Qt::LeftEdge, {-20, 0}, {80, 100, 420, 300});
        row("left, too far", Qt::LeftEdge, {300, 0}, {300, 100, 200, 300});
        row("top, too far", Qt::TopEdge, {0, 300}, {100, 300, 400, 100});
        row("bottom left", Qt::BottomEdge | Qt::LeftEdge, {10, 10}, {110, 100, 390, 310});
    }
    void edgesKeepTheSmallestSize()
    {
        QFETCH(Qt::Edges, edges);
        QFETCH(QPoint, offset);
        QTEST(WindowResizer::dragged(QRect(100, 100, 400, 300), edges, offset, QSize(200, 100)),
              "expected");
    }

    void shadowFadesAndCornersAreRound()
    {
        for (const qreal ratio : {1.0, 1.5, 3.0}) {
            const QSize size(300, 200);
            QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
            image.setDevicePixelRatio(ratio);
            image.fill(Qt::transparent);
            const int margin = WindowShadow::margin;
            const QRect seen = QRect(QPoint(), size).adjusted(margin, margin, -margin, -margin);
            WindowShadow shadow;
            QPainter painter(&image);
            shadow.paint(painter, seen, false);
            painter.fillRect(seen, Qt::red);
            shadow.cutCorners(painter, seen, false);
            painter.end();
            const auto alpha = [&](int x, int y) {
                return qAlpha(image.pixel(qFloor((x + 0.5) * ratio), qFloor((y + 0.5) * ratio)));
            };
            const int bottom = seen.bottom();
            QVERIFY(alpha(150, 0) <= 2 && alpha(0, 100) <= 2 && alpha(150, 199) <= 4);
            // Deepest at the window, and below it rather than above.
            QVERIFY(alpha(150, bottom + 4) > alpha(150, bottom + 12));
            QVERIFY(alpha(150, bottom + 12) > alpha(150, bottom + 20));
            QVERIFY(alpha(150, bottom + 4) > alpha(150, seen.top() - 4));
            QCOMPARE(alpha(150, bottom), 255);
            for (const QPoint &corner : {seen.topLeft(), seen.bottomRight()})
                QVERIFY(alpha(corner.x(), corner.y()) < 128);
        }
    }

    void stripMovesAndMaximises()
    {
        Window shown;
        SecureWindow &window = *shown.window;
        window.move(50, 60);
        Window::drag(window, {200, 20}, {240, 50});
        QCOMPARE(window.pos(), QPoint(90, 90));
        // Below the strip nothing moves.
        Window::drag(window, {200, 60}, {240, 90});
        QCOMPARE(window.pos(), QPoint(90, 90));

        QTest::mouseDClick(&window, Qt::LeftButton, {}, {200, 20});
        QVERIFY(window.isMaximized());
        auto *maximise = find<QToolButton>(window, "maximiseButton");
        QCOMPARE(maximise->accessibleName(), "Restore"_s);
        maximise->click();
        QVERIFY(!window.isMaximized());
        QCOMPARE(maximise->accessibleName(), "Maximise"_s);

        QContextMenuEvent event(QContextMenuEvent::Mouse, {200, 20}, window.mapToGlobal({200, 20}));
        QApplication::sendEvent(&window, &event);
        auto *menu = find<QMenu>(window, "windowMenu");
        QVERIFY(menu);
        menu->actions().value(1)->trigger();
        menu->close();
        QVERIFY(window.isMaximized());
    }

    void gripsResize()
    {
        Window shown;
        SecureWindow &window = *shown.window;
        window.setGeometry(40, 40, 1100, 700);
        const int right = window.width() - 1;
        const int bottom = window.height() - 1;
        Window::drag(window, {right, 300}, {right + 30, 300});
        QCOMPARE(window.geometry(), QRect(40, 40, 1130, 700));
        Window::drag(window, {0, 0}, {-10, -20});
        QCOMPARE(window.geometry(), QRect(30, 20, 1140, 720));
        Window::drag(window, {500, window.height() - 1}, {500, -bottom});
        QCOMPARE(window.height(), window.minimumHeight());
    }

    void fullWindowsHaveNoFrame()
    {
        Window shown;
        SecureWindow &window = *shown.window;
        QVERIFY(window.contentsRect() != window.rect());
        for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowFullScreen}) {
            window.setWindowState(state);
            QCOMPARE(window.contentsRect(), window.rect());
            QCOMPARE(window.content().geometry(), window.rect());
            QVERIFY(!find<QWidget>(window, "windowGrip")->isVisible());
            window.setWindowState(Qt::WindowNoState);
            QCOMPARE(window.content().geometry(), window.contentsRect());
            QVERIFY(find<QWidget>(window, "windowGrip")->isVisible());
        }
    }

    void controlsInTheStripKeepTheMouse()
    {
        Window shown;
        QVERIFY(shown.test.createSafe());
        SecureWindow &window = *shown.window;
        QTRY_COMPARE(window.openProgress(), 1.0);
        // Wide enough for the search to stand beside the buttons rather than below.
        window.resize(1000, 680);
        auto *search = find<QLineEdit>(window, "searchField");
        QTRY_VERIFY(search->width() < window.width() / 2);
        window.move(50, 60);
        const QPoint place = search->mapTo(&window, search->rect().center());
        QVERIFY(place.y() < WindowMover::stripHeight);
        Window::drag(window, place, place + QPoint(40, 0));
        QCOMPARE(window.pos(), QPoint(50, 60));
        // Nor do controls lie below the buttons.
        auto *titleBar = find<QWidget>(window, "titleBar");
        for (QToolButton *button : titleBar->findChildren<QToolButton *>()) {
            const QPoint centre = button->mapTo(&window, button->rect().center());
            QCOMPARE(window.childAt(centre), button);
            titleBar->hide();
            const QWidget *below = window.childAt(centre);
            QVERIFY(!below || below->focusPolicy() == Qt::NoFocus);
            titleBar->show();
        }
    }

    void dialogs()
    {
        Theme theme;
        FramedDialog dialog("Settings"_s, theme, nullptr);
        dialog.body().addWidget(new QLineEdit);
        dialog.resize(500, 300);
        dialog.setMinimumSize(300, 200);
        dialog.show();
        // The line around it comes on top.
        QCOMPARE(dialog.contentsRect().size(), QSize(500, 300));
        Window::drag(dialog, {dialog.width() - 1, dialog.height() - 1}, {0, 0});
        QCOMPARE(dialog.contentsRect().size(), QSize(300, 200));
        dialog.setWindowTitle("Changed"_s);
        QCOMPARE(find<QLabel>(dialog, "titleText")->text(), "Changed"_s);
        QSignalSpy rejected(&dialog, &QDialog::rejected);
        find<QToolButton>(dialog, "closeButton")->click();
        QCOMPARE(rejected.count(), 1);
    }

    void geometryOfAScreenThatIsGone()
    {
        Window first;
        first.window->setGeometry(5000, 4000, 1200, 700);
        const QByteArray state = first.window->saveGeometry();
        Window later;
        later.window->restoreGeometry(state);
        const QRect screen = later.window->screen()->availableGeometry();
        // The strip by which it is dragged is within reach.
        QRect strip = later.window->geometry();
        strip.setHeight(WindowMover::stripHeight);
        strip &= screen;
        QVERIFY(strip.width() >= 100 && strip.height() >= 20);
        QVERIFY(later.window->width() >= later.window->minimumWidth());
    }
};

QTEST_MAIN(TestWindowFrame)
#include "tst_windowframe.moc"
