#pragma once

#include <QObject>
#include <QPoint>

class QWidget;

/// Drags a window by whatever lies in the strip at its top and does not take the mouse itself.
/// There a double click maximises and a right click opens the window's menu.
class WindowMover : public QObject
{
    Q_OBJECT

public:
    static constexpr int stripHeight = 38;

    WindowMover(QWidget &window, bool maximises);

    static void minimise(QWidget &window);
    static void toggleMaximised(QWidget &window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Drag
    {
        bool pressed = false;
        bool moving = false; ///< by ourselves, where the window manager cannot
        QPoint from;
        QPoint window;
    };

    bool inStrip(const QPoint &position) const;
    bool onMouse(QEvent &event);
    void startMove(const QPoint &global);
    void showMenu(const QPoint &global);

    QWidget &m_window;
    Drag m_drag;
    bool m_maximises;
};
