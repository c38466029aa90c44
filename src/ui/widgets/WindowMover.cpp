#include "WindowMover.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QWindow>

#include <utility>

WindowMover::WindowMover(QWidget &window, bool maximises)
    : QObject(&window)
    , m_window(window)
    , m_maximises(maximises)
{
    m_window.installEventFilter(this);
}

void WindowMover::minimise(QWidget &window)
{
    window.setWindowState(window.windowState() | Qt::WindowMinimized);
}

void WindowMover::toggleMaximised(QWidget &window)
{
    window.setWindowState(window.windowState() ^ Qt::WindowMaximized);
}

bool WindowMover::inStrip(const QPoint &position) const
{
    const QRect seen = m_window.contentsRect();
    return QRect(seen.x(), seen.y(), seen.width(), stripHeight).contains(position);
}

bool WindowMover::eventFilter(QObject *watched, QEvent *event)
{
    // They arrive at the window when no control below the pointer wanted them.
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return onMouse(*event);
    case QEvent::ContextMenu: {
        const auto &menu = static_cast<QContextMenuEvent &>(*event);
        if (menu.reason() != QContextMenuEvent::Mouse || !inStrip(menu.pos()))
            return false;
        showMenu(menu.globalPos());
        return true;
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool WindowMover::onMouse(QEvent &event)
{
    const auto &mouse = static_cast<QMouseEvent &>(event);
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        if (mouse.button() != Qt::LeftButton || !inStrip(mouse.pos()))
            return false;
        m_drag = {true, false, mouse.globalPos(), m_window.pos()};
        return true;
    case QEvent::MouseMove:
        if (!m_drag.pressed)
            return false;
        // Not at the first pixel: the window manager would take the second click of two.
        if (!m_drag.moving && (mouse.globalPos() - m_drag.from).manhattanLength() >=
                                  QApplication::startDragDistance())
            startMove(mouse.globalPos());
        if (m_drag.moving)
            m_window.move(m_drag.window + mouse.globalPos() - m_drag.from);
        return true;
    case QEvent::MouseButtonDblClick:
        if (mouse.button() != Qt::LeftButton || !m_maximises || !inStrip(mouse.pos()))
            return false;
        m_drag = {};
        toggleMaximised(m_window);
        return true;
    default:
        return std::exchange(m_drag, {}).pressed;
    }
}

void WindowMover::startMove(const QPoint &global)
{
    QWindow *handle = m_window.windowHandle();
    // The window manager snaps while it drags.
    if (handle && handle->startSystemMove()) {
        m_drag = {};
        return;
    }
    if (m_window.isMaximized()) {
        // It comes off the edges of the screen below the pointer.
        const double share = double(global.x() - m_window.x()) / qMax(1, m_window.width());
        m_window.showNormal();
        m_drag.window = QPoint(global.x() - qRound(share * m_window.width()),
                               global.y() - m_window.contentsRect().y() - stripHeight / 2);
        m_drag.from = global;
    }
    m_drag.moving = true;
}

void WindowMover::showMenu(const QPoint &global)
{
    auto *menu = new QMenu(&m_window);
    menu->setObjectName(QStringLiteral("windowMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (m_maximises) {
        menu->addAction(tr("Minimise"), this, [this] { minimise(m_window); });
        menu->addAction(m_window.isMaximized() ? tr("Restore") : tr("Maximise"), this,
                        [this] { toggleMaximised(m_window); });
        menu->addSeparator();
    }
    menu->addAction(tr("Close"), &m_window, &QWidget::close);
    menu->popup(global);
}
