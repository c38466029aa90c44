#include "MoveInDelegate.h"

#include "MoveInModel.h"
#include "style/Style.h"
#include "style/SvgIcon.h"
#include "style/Theme.h"

#include <QPainter>

MoveInDelegate::MoveInDelegate(const Theme &theme, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_theme(theme)
{
}

int MoveInDelegate::rowHeight()
{
    return Style::scaled(36);
}

void MoveInDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    const Palette &palette = m_theme.palette();
    const QRect cell = option.rect;
    painter->save();
    if (option.state.testFlag(QStyle::State_Selected))
        painter->fillRect(cell, palette.color(Palette::Soft));
    painter->setPen(palette.color(Palette::Line));
    painter->drawLine(cell.bottomLeft(), cell.bottomRight());
    if (index.column() == MoveInModel::Chosen) {
        paintMark(*painter, cell, index);
        // The row that has the keyboard is marked at its front.
        if (option.state.testFlag(QStyle::State_Selected))
            painter->fillRect(QRect(cell.left(), cell.top(), 3, cell.height()),
                              palette.color(Palette::Accent));
    } else {
        QFont font = option.font;
        if (index.column() == MoveInModel::Becomes)
            font.setPixelSize(Style::smallTextSize);
        const int role = index.data(MoveInModel::ColorRole).toInt();
        const QRect text = cell.adjusted(0, 0, -Style::gap, 0);
        painter->setFont(font);
        painter->setPen(palette.color(static_cast<Palette::Role>(role)));
        painter->drawText(
            text, Qt::AlignLeft | Qt::AlignVCenter,
            QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, text.width()));
    }
    painter->restore();
}

void MoveInDelegate::paintMark(QPainter &painter, const QRect &cell, const QModelIndex &index) const
{
    const Palette &palette = m_theme.palette();
    QRectF place(0, 0, Style::iconSize, Style::iconSize);
    place.moveCenter(QRectF(cell).center());
    if (index.data(MoveInModel::FaultRole).toBool())
        paintSvg(painter, place, QStringLiteral("alert-triangle"), palette.color(Palette::Weak));
    else if (index.data(Qt::CheckStateRole).toInt() == Qt::Checked)
        paintSvg(painter, place, QStringLiteral("square-check"), palette.color(Palette::Accent));
    else
        paintSvg(painter, place, QStringLiteral("square"), palette.color(Palette::Muted));
}
