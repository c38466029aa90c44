#include "WindowShadow.h"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>

namespace {

const int lowering = 5; ///< the light comes from above
const qreal blur = 7.5; ///< the standard deviation of the shadow's edge
const int reach = 20;   ///< how far the edge is felt inside
const int tilePart = WindowShadow::margin + reach;

/// How much of an edge's shadow lies at a distance inside of it.
qreal share(qreal inside)
{
    return 0.5 * (1 + std::erf(inside / (blur * std::sqrt(2.0))));
}

} // namespace

const QImage &WindowShadow::tile(qreal ratio, bool dark)
{
    if (!m_tile.isNull() && qFuzzyCompare(ratio, m_ratio) && dark == m_dark)
        return m_tile;
    m_ratio = ratio;
    m_dark = dark;
    const int side = qCeil((2 * tilePart + 1) * ratio);
    const qreal size = side / ratio;
    m_tile = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
    m_tile.setDevicePixelRatio(ratio);
    const qreal strength = dark ? 160 : 92;
    const auto along = [&](int pixel, qreal shift) {
        const qreal place = (pixel + 0.5) / ratio - shift;
        return share(place - margin) * share(size - margin - place);
    };
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(m_tile.scanLine(y));
        const qreal row = strength * along(y, lowering);
        for (int x = 0; x < side; ++x)
            line[x] = qPremultiply(qRgba(6, 24, 36, qRound(row * along(x, 0))));
    }
    return m_tile;
}

void WindowShadow::paint(QPainter &painter, const QRect &seen, bool dark)
{
    paintShadow(painter, seen, dark);
    paintLine(painter, seen, dark);
}

void WindowShadow::paintLine(QPainter &painter, const QRect &seen, bool dark)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(dark ? QColor(255, 255, 255, 34) : QColor(6, 24, 36, 34), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(seen).adjusted(-0.5, -0.5, 0.5, 0.5), corner + 0.5,
                            corner + 0.5);
}

void WindowShadow::paintShadow(QPainter &painter, const QRect &seen, bool dark)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QImage &image = tile(ratio, dark);
    const QRect outer = seen.adjusted(-margin, -margin, margin, margin);
    // Corners as they are, edges stretched; in device pixels of the tile.
    const qreal part = tilePart * ratio;
    const qreal rest = image.width() - 2 * part;
    const std::array<qreal, 4> from = {0, part, part + rest, part + rest + part};
    const std::array<int, 4> x = {outer.left(), outer.left() + tilePart,
                                  outer.right() + 1 - tilePart, outer.right() + 1};
    const std::array<int, 4> y = {outer.top(), outer.top() + tilePart,
                                  outer.bottom() + 1 - tilePart, outer.bottom() + 1};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            if (row == 1 && column == 1)
                continue;
            painter.drawImage(
                QRectF(QPointF(x[column], y[row]), QPointF(x[column + 1], y[row + 1])), image,
                QRectF(QPointF(from[column], from[row]), QPointF(from[column + 1], from[row + 1])));
        }
    }
}

void WindowShadow::cutCorners(QPainter &painter, const QRect &seen, bool dark)
{
    QPainterPath outside;
    outside.addRect(seen);
    outside.addRoundedRect(seen, corner, corner);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(outside, Qt::black);
    // Below what is left of the content: first the line, then the shadow below it.
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
    paintLine(painter, seen, dark);
    paintShadow(painter, seen, dark);
}
