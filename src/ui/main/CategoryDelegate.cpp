#include "CategoryDelegate.h"

#include "CategoryModel.h"
#include "style/Style.h"
#include "style/SvgIcon.h"
#include "style/Theme.h"

#include <QPainter>

namespace {

const int rowHeight = 30;
const int groupGap = 19;
const int inset = 10;

} // namespace

CategoryDelegate::CategoryDelegate(const Theme &theme, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_theme(theme)
{
}

QSize CategoryDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const bool startsGroup = index.data(CategoryModel::StartsGroupRole).toBool();
    return {0, Style::scaled(rowHeight) + (startsGroup ? groupGap : 0)};
}

QRect CategoryDelegate::rowRect(const QRect &item, const QModelIndex &index)
{
    const bool startsGroup = index.data(CategoryModel::StartsGroupRole).toBool();
    return item.adjusted(inset, startsGroup ? groupGap : 0, -inset, 0);
}

void CategoryDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    const Palette &palette = m_theme.palette();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QRect row = rowRect(option.rect, index);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (index.data(CategoryModel::StartsGroupRole).toBool()) {
        const int line = option.rect.top() + groupGap / 2;
        painter->fillRect(QRect(row.left() + 6, line, row.width() - 12, 1),
                          palette.color(Palette::SidebarSelection));
    }
    if (selected || option.state.testFlag(QStyle::State_MouseOver)) {
        QColor ground = palette.color(Palette::SidebarSelection);
        if (!selected)
            ground.setAlphaF(0.5);
        painter->setPen(Qt::NoPen);
        painter->setBrush(ground);
        painter->drawRoundedRect(row, 6, 6);
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter->setPen(palette.color(Palette::SidebarMuted));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(row).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    }

    const QColor text = palette.color(selected ? Palette::White : Palette::SidebarText);
    const int side = Style::iconSize;
    const int left = m_folded ? (row.width() - side) / 2 : 10;
    paintSvg(*painter, QRectF(row.left() + left, row.center().y() - side / 2.0 + 0.5, side, side),
             index.data(CategoryModel::IconNameRole).toString(), text);
    if (!m_folded)
        paintTexts(*painter, row, option.font, index, selected);
    painter->restore();
}

void CategoryDelegate::paintTexts(QPainter &painter, const QRect &row, QFont font,
                                  const QModelIndex &index, bool selected) const
{
    const Palette &palette = m_theme.palette();
    const QColor text = palette.color(selected ? Palette::White : Palette::SidebarText);
    font.setPixelSize(Style::textSize);
    font.setWeight(selected ? QFont::DemiBold : QFont::Normal);
    painter.setFont(font);
    painter.setPen(text);
    painter.drawText(row.adjusted(19 + Style::iconSize, 0, -Style::scaled(44), 0),
                     Qt::AlignVCenter | Qt::AlignLeft, index.data().toString());
    font.setPixelSize(Style::scaled(11));
    painter.setFont(font);
    painter.setPen(selected ? text : palette.color(Palette::SidebarMuted));
    painter.drawText(row.adjusted(0, 0, -10, 0), Qt::AlignVCenter | Qt::AlignRight,
                     index.data(CategoryModel::CountRole).toString());
}
