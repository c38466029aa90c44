#pragma once

#include "PMListItem.h"

#include <QColor>

class QPainter;
class QPixmap;
class QRectF;

/// The colour of an item's tile: one of a few, always the same for the same title.
QColor tileColor(const QString &title);

/// The first letter or digit of a title in upper case; "?" when it has none.
QString tileLetter(const QString &title);

/// Draws an item's tile: for a login the letter of its title, for other kinds their icon.
void paintTile(QPainter &painter, const QRectF &rect, const QString &title, PMListItem::Type type);

/// Draws the icon of a web site as a tile.
/// @param line the colour of its edge
void paintIconTile(QPainter &painter, const QRectF &rect, const QPixmap &icon, const QColor &line);

/// The side of the icon in such a tile.
qreal tileIconSide(const QRectF &tile);
