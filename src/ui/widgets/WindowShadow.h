#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

class QPainter;

/// The shadow and the round corners of a window with a frame of our own.
class WindowShadow
{
public:
    static constexpr int margin = 24;
    static constexpr int corner = 10;

    /// Paints the shadow, and a hair of light or shade that keeps the window apart, around what is
    /// seen of a window.
    void paint(QPainter &painter, const QRect &seen, bool dark);

    /// Cuts the four corners out of what was painted of a window and puts the shadow there.
    void cutCorners(QPainter &painter, const QRect &seen, bool dark);

private:
    void paintShadow(QPainter &painter, const QRect &seen, bool dark);
    static void paintLine(QPainter &painter, const QRect &seen, bool dark);
    const QImage &tile(qreal ratio, bool dark);

    QImage m_tile;
    qreal m_ratio = 0;
    bool m_dark = false;
};
