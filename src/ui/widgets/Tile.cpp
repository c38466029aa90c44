#include "Tile.h"

#include "style/Theme.h"
#include "style/TilePainter.h"

#include <QPainter>

Tile::Tile(int side, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
{
    setFixedSize(side, side);
}

void Tile::setItem(const QString &title, PMListItem::Type type, const QPixmap &icon)
{
    m_title = title;
    m_type = type;
    m_icon = icon;
    update();
}

int Tile::iconSide() const
{
    return qRound(tileIconSide(rect()) * devicePixelRatioF());
}

void Tile::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (m_icon.isNull())
        paintTile(painter, rect(), m_title, m_type);
    else
        paintIconTile(painter, rect(), m_icon, m_theme.palette().color(Palette::Line));
}
