#include "ItemDelegate.h"

#include "ExpiryText.h"
#include "ItemExpiry.h"
#include "ItemListModel.h"
#include "SiteIcons.h"
#include "style/Style.h"
#include "style/SvgIcon.h"
#include "style/Theme.h"
#include "style/TilePainter.h"

#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <utility>

namespace {

const int starSize = 16;
const int inset = 6;
const int badgeHeight = 18;
const int badgeTextSize = 11;

QFont sized(QFont font, int pixels, QFont::Weight weight)
{
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

} // namespace

ItemDelegate::ItemDelegate(const Theme &theme, SiteIcons *icons, QObject *parent, Clock clock)
    : ItemDelegate(theme, icons, {}, parent, std::move(clock))
{
}

ItemDelegate::ItemDelegate(const Theme &theme, SiteIcons *icons, const Measures &measures,
                           QObject *parent, Clock clock)
    : QStyledItemDelegate(parent)
    , m_theme(theme)
    , m_icons(icons)
    , m_measures(measures)
    , m_clock(std::move(clock))
{
}

ItemDelegate::Fonts::Fonts(const QFont &usual, int size)
    : base(usual)
    , textSize(size)
    , title(sized(usual, size, QFont::DemiBold))
    , second(sized(usual, Style::smallTextSize, QFont::Normal))
    , badge(sized(usual, Style::scaled(badgeTextSize), QFont::DemiBold))
    , titleMetrics(title)
    , secondMetrics(second)
    , badgeMetrics(badge)
{
}

void ItemDelegate::prepareFonts(const QFont &base) const
{
    if (!m_fonts || m_fonts->base != base || m_fonts->textSize != Style::textSize)
        m_fonts.emplace(base, Style::textSize);
}

QSize ItemDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {0, Style::scaled(m_measures.row)};
}

void ItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    prepareFonts(option.font);
    const QRect row = option.rect.adjusted(inset, 0, -inset, 0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintGround(*painter, row, option);

    const int side = Style::scaled(m_measures.tile);
    QRectF tile(row.left() + 12, 0, side, side);
    tile.moveTop(row.top() + (row.height() - side) / 2.0);
    painter->setFont(option.font);
    paintTile(*painter, tile, index);

    QRect texts = row.adjusted(24 + side, 8, -12, -8);
    if (const int mark = paintMark(*painter, row, option, index))
        texts.setRight(row.right() - 12 - mark - 8);
    paintTexts(*painter, texts, index);
    painter->restore();
}

int ItemDelegate::paintMark(QPainter &painter, const QRect &row, const QStyleOptionViewItem &,
                            const QModelIndex &index) const
{
    if (!index.data(ItemListModel::FavoriteRole).toBool())
        return 0;
    const QRectF star(row.right() - 12 - starSize, row.center().y() - starSize / 2.0, starSize,
                      starSize);
    paintSvg(painter, star, QStringLiteral("star-filled"), m_theme.palette().color(Palette::Star));
    return starSize;
}

void ItemDelegate::paintGround(QPainter &painter, const QRect &row,
                               const QStyleOptionViewItem &option) const
{
    const Palette &palette = m_theme.palette();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    if (!selected && !option.state.testFlag(QStyle::State_MouseOver))
        return;
    QPainterPath shape;
    shape.addRoundedRect(row, Style::corner, Style::corner);
    QColor ground = palette.color(Palette::Soft);
    if (!selected)
        ground.setAlphaF(0.5);
    painter.fillPath(shape, ground);
    if (!selected)
        return;
    painter.save();
    painter.setClipPath(shape);
    painter.fillRect(QRect(row.left(), row.top(), 3, row.height()), palette.color(Palette::Accent));
    painter.restore();
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter.setPen(palette.color(Palette::Accent));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(row).adjusted(0.5, 0.5, -0.5, -0.5), Style::corner,
                                Style::corner);
    }
}

void ItemDelegate::paintTile(QPainter &painter, const QRectF &tile, const QModelIndex &index) const
{
    const auto type = static_cast<PMListItem::Type>(index.data(ItemListModel::TypeRole).toInt());
    const int side = qRound(tileIconSide(tile) * painter.device()->devicePixelRatioF());
    const QPixmap icon = m_icons
                             ? m_icons->icon(index.data(ItemListModel::IconRole).toString(), side,
                                             index.data(ItemListModel::DomainRole).toString())
                             : QPixmap();
    if (icon.isNull())
        ::paintTile(painter, tile, index.data().toString(), type);
    else
        paintIconTile(painter, tile, icon, m_theme.palette().color(Palette::Line));
}

int ItemDelegate::paintBadge(QPainter &painter, const QRect &area, const QModelIndex &index) const
{
    const QDate last = index.data(ItemListModel::ExpiryRole).toDate();
    const QDate today = m_clock().toLocalTime().date();
    const QString text = last.isValid() ? expiryText(last, today) : QString();
    if (text.isEmpty())
        return 0;
    const int width = m_fonts->badgeMetrics.horizontalAdvance(text) + 2 * Style::spacing;
    const int height = Style::scaled(badgeHeight);
    const QRect badge(area.right() - width + 1, area.center().y() - height / 2, width, height);
    const Palette &palette = m_theme.palette();
    const QColor color = palette.color(isExpired(last, today) ? Palette::Terrible : Palette::Weak);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.tint(color));
    painter.drawRoundedRect(badge, height / 2.0, height / 2.0);
    painter.setFont(m_fonts->badge);
    painter.setPen(color);
    painter.drawText(badge, Qt::AlignCenter, text);
    return width + Style::spacing;
}

void ItemDelegate::paintText(QPainter &painter, const QRect &area, const QString &text,
                             const QFont &font, const QFontMetrics &metrics,
                             Palette::Role role) const
{
    painter.setFont(font);
    painter.setPen(m_theme.palette().color(role));
    // Laid out once, both to be measured and to be painted: rows are painted at every key stroke.
    QTextLayout layout(text.simplified(), font, painter.device());
    layout.setCacheEnabled(true);
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(area.width());
    layout.endLayout();
    if (!line.isValid())
        return;
    if (line.naturalTextWidth() > area.width()) {
        painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(layout.text(), Qt::ElideRight, area.width()));
        return;
    }
    line.draw(&painter, QPointF(area.left(), area.top() + (area.height() - line.height()) / 2));
}

void ItemDelegate::paintTexts(QPainter &painter, const QRect &area, const QModelIndex &index) const
{
    const QString second = index.data(ItemListModel::SecondaryTextRole).toString();
    QRect upper = area;
    QRect lower = area;
    if (!second.isEmpty()) {
        upper.setHeight(area.height() / 2);
        lower.setTop(upper.bottom() + 1);
    }
    const int badge = paintBadge(painter, lower, index);
    lower.setRight(lower.right() - badge);
    if (second.isEmpty())
        upper = lower;
    else
        paintText(painter, lower, second, m_fonts->second, m_fonts->secondMetrics, Palette::Muted);
    paintText(painter, upper, index.data().toString(), m_fonts->title, m_fonts->titleMetrics,
              Palette::Text);
}
