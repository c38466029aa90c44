#include "Tile.h"

#include "style/TilePainter.h"

#include <QPainter>

Tile::Tile(int side, QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(side, side);
}

void Tile::setItem(const QString &title, PMListItem::Type type)
{
    m_title = title;
    m_type = type;
    update();
}

void Tile::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintTile(painter, rect(), m_title, m_type);
}
