#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>

#include <functional>

/// One of the icons ":/icons/<name>.svg", drawn sharply at any size and in the colour that the
/// function gives at the time of drawing. In a wide place it keeps to the left. Disabled, it fades.
QIcon svgIcon(const QString &name, std::function<QColor()> color);

/// The same as a picture of size x size device pixels.
QPixmap svgPixmap(const QString &name, const QColor &color, int size);

/// The program's own icon, for windows and the tray, sharp in every usual size.
QIcon programIcon();

class QPainter;
class QRectF;

/// Draws an icon into a rectangle in the painter's coordinates.
void paintSvg(QPainter &painter, const QRectF &rect, const QString &name, const QColor &color);
