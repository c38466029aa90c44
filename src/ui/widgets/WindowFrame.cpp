#include "WindowFrame.h"

#include "WindowMover.h"
#include "WindowResizer.h"
#include "WindowSystem.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QPainter>
#include <QWidget>

#include <functional>
#include <utility>

namespace {

const int gripOutside = 8;
const int gripInside = 4;

/// A corner of the window, above everything in it.
class Corner : public QWidget
{
public:
    using Cut = std::function<void(QPainter &)>;

    Corner(QWidget &window, Cut cut)
        : QWidget(&window)
        , m_cut(std::move(cut))
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFixedSize(WindowShadow::corner, WindowShadow::corner);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.translate(-pos());
        m_cut(painter);
    }

private:
    Cut m_cut;
};

class FrameMessages : public QAbstractNativeEventFilter
{
public:
    bool nativeEventFilter(const QByteArray &, void *message, long *result) override
    {
        std::intptr_t answer = 0;
        if (!WindowSystem::answerFrameMessage(message, &answer))
            return false;
        *result = static_cast<long>(answer);
        return true;
    }
};

} // namespace

WindowFrame::WindowFrame(QWidget &window, Kind kind)
    : QObject(&window)
    , m_window(window)
    , m_kind(kind)
    , m_frame(FrameChoice::current())
{
    if (!isOurs())
        return;
    m_window.setWindowFlag(Qt::FramelessWindowHint);
    // Even before there is a compositor: it may come later than a program that starts by itself.
    m_translucent = QGuiApplication::platformName() == QLatin1String("xcb");
    m_window.setAttribute(Qt::WA_TranslucentBackground, m_translucent);
    for (int i = 0; i < 4; ++i)
        m_corners.append(new Corner(m_window, [this](QPainter &painter) {
            m_shadow.cutCorners(painter, m_window.contentsRect(), isDark());
        }));
    if (m_kind == Resizable && m_frame != FrameChoice::Adopted)
        m_resizer = new WindowResizer(m_window);
    new WindowMover(m_window, m_kind == Resizable);
    m_tell.setSingleShot(true);
    m_tell.setInterval(0);
    connect(&m_tell, &QTimer::timeout, this, &WindowFrame::tellSystem);
    m_window.installEventFilter(this);
    follow();
}

QSize WindowFrame::addition() const
{
    return {2 * border(), 2 * border()};
}

int WindowFrame::border() const
{
    if (m_frame == FrameChoice::Shadow)
        return WindowShadow::margin;
    return m_frame == FrameChoice::Line ? 1 : 0;
}

bool WindowFrame::fillsScreen() const
{
    return (m_window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0;
}

bool WindowFrame::isDark() const
{
    return m_window.palette().color(QPalette::Window).lightness() < 128;
}

void WindowFrame::choose()
{
    // The compositor may have come or gone since.
    const FrameChoice::Frame frame = FrameChoice::current();
    if (frame == m_frame || frame == FrameChoice::System)
        return;
    m_frame = frame;
    follow();
}

void WindowFrame::follow()
{
    const int width = fillsScreen() ? 0 : border();
    m_window.setContentsMargins(width, width, width, width);
    const bool round = m_frame == FrameChoice::Shadow && !fillsScreen();
    for (QWidget *corner : std::as_const(m_corners))
        corner->setVisible(round);
    if (m_resizer)
        m_resizer->setVisible(!fillsScreen());
    place();
    m_window.update();
    Q_EMIT changed();
}

void WindowFrame::place()
{
    const QRect seen = m_window.contentsRect();
    const int side = WindowShadow::corner;
    const QPoint places[] = {seen.topLeft(),
                             {seen.right() + 1 - side, seen.top()},
                             {seen.left(), seen.bottom() + 1 - side},
                             {seen.right() + 1 - side, seen.bottom() + 1 - side}};
    for (int i = 0; i < m_corners.size(); ++i) {
        m_corners[i]->move(places[i]);
        m_corners[i]->raise();
    }
    // Beside a shadow nothing of the content has to give way.
    const bool shadow = m_frame == FrameChoice::Shadow;
    if (m_resizer)
        m_resizer->place(seen, qMin(gripOutside, border()), shadow ? 0 : gripInside);
    m_tell.start();
}

void WindowFrame::raise()
{
    if (isOurs())
        place();
}

void WindowFrame::tellSystem()
{
    if (!m_window.testAttribute(Qt::WA_WState_Created))
        return;
    const auto id = static_cast<std::uintptr_t>(m_window.internalWinId());
    if (m_frame == FrameChoice::Adopted) {
        static const auto *messages = [] {
            auto *filter = new FrameMessages;
            QGuiApplication::instance()->installNativeEventFilter(filter);
            return filter;
        }();
        Q_UNUSED(messages)
        WindowSystem::adoptFrame(id, m_kind == Resizable);
        return;
    }
    if (!m_translucent)
        return;
    const qreal ratio = m_window.devicePixelRatioF();
    const int width =
        fillsScreen() || m_frame != FrameChoice::Shadow ? 0 : qRound(WindowShadow::margin * ratio);
    WindowSystem::setShadowMargins(id, {width, width, width, width}, qRound(gripOutside * ratio),
                                   qRound(m_window.width() * ratio),
                                   qRound(m_window.height() * ratio));
}

void WindowFrame::paint()
{
    QPainter painter(&m_window);
    const QColor ground = m_window.palette().color(QPalette::Window);
    const QRect seen = m_window.contentsRect();
    if (m_frame == FrameChoice::Shadow && !fillsScreen())
        m_shadow.paint(painter, seen, isDark());
    if (m_frame == FrameChoice::Line && !fillsScreen())
        painter.fillRect(m_window.rect(), isDark() ? ground.lighter(190) : ground.darker(130));
    painter.fillRect(seen, ground);
}

bool WindowFrame::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Paint:
        paint();
        break;
    case QEvent::Resize:
        place();
        break;
    case QEvent::WindowStateChange:
        follow();
        break;
    case QEvent::Show:
    case QEvent::WindowActivate:
        choose();
        break;
    case QEvent::WinIdChange:
        m_tell.start();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
