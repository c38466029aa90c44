#include "QuickDelegate.h"

#include "QuickItems.h"
#include "style/Style.h"
#include "style/Theme.h"

#include <QPainter>

namespace {

const int inset = 16;
const int firstHeading = 33;
const int heading = 40;
const int textUp = 8; ///< of a heading above the first row below it
const int markSize = 11;
const ItemDelegate::Measures measures{50, 30};

bool isHeading(const QModelIndex &index)
{
    return index.data(QuickItems::GroupRole).isValid();
}

QFont smaller(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    font.setWeight(QFont::Normal);
    return font;
}

} // namespace

QuickDelegate::QuickDelegate(const Theme &theme, SiteIcons *icons, QObject *parent)
    : ItemDelegate(theme, icons, measures, parent)
{
}

QString QuickDelegate::heading(const QModelIndex &index) const
{
    using Group = QuickItems::Group;
    const auto group = static_cast<Group>(index.data(QuickItems::GroupRole).toInt());
    if (group == Group::Page)
        return tr("For %1").arg(m_host);
    if (group == Group::MostUsed)
        return tr("Most used");
    switch (index.data(ItemListModel::TypeRole).toInt()) {
    case PMListItem::CreditCard:
        return tr("Cards");
    case PMListItem::Identity:
        return tr("Identities");
    default:
        return tr("Logins");
    }
}

QSize QuickDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (!isHeading(index))
        return ItemDelegate::sizeHint(option, index);
    return {0, Style::scaled(index.row() == 0 ? firstHeading : ::heading)};
}

void QuickDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    if (!isHeading(index)) {
        ItemDelegate::paint(painter, option, index);
        return;
    }
    painter->save();
    painter->setFont(smaller(option.font, Style::smallTextSize));
    painter->setPen(theme().palette().color(Palette::Muted));
    QRect area = option.rect.adjusted(inset, 0, -inset, -Style::scaled(textUp));
    const QFontMetrics metrics = painter->fontMetrics();
    if (index.data(QuickItems::GroupRole).toInt() == static_cast<int>(QuickItems::Group::Page)) {
        const QString count = QString::number(index.data(QuickItems::CountRole).toInt());
        painter->drawText(area, Qt::AlignRight | Qt::AlignBottom | Qt::AlignAbsolute, count);
        area.setRight(area.right() - metrics.horizontalAdvance(count) - Style::spacing);
    }
    painter->drawText(area, Qt::AlignLeft | Qt::AlignBottom | Qt::AlignAbsolute,
                      metrics.elidedText(heading(index), Qt::ElideMiddle, area.width()));
    painter->restore();
}

int QuickDelegate::paintMark(QPainter &painter, const QRect &row,
                             const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const bool isLogin = index.data(ItemListModel::TypeRole).toInt() == PMListItem::Login;
    if (!option.state.testFlag(QStyle::State_Selected) || (!m_filling && !isLogin))
        return 0;
    const QString text = QStringLiteral("\u23CE ") + (m_filling ? tr("Fill") : tr("Open"));
    const QFont font = smaller(option.font, Style::scaled(markSize));
    const QFontMetrics metrics(font);
    const int width = metrics.horizontalAdvance(text) + 12;
    const int height = metrics.height() + 6;
    const QRectF mark(row.right() - 10 - width + 0.5, row.center().y() - height / 2 + 0.5, width,
                      height);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(theme().palette().color(Palette::Line));
    painter.drawRoundedRect(mark, 5, 5);
    painter.setFont(font);
    painter.setPen(theme().palette().color(Palette::Muted));
    painter.drawText(mark, Qt::AlignCenter, text);
    return width;
}
