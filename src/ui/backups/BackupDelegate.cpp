#include "BackupDelegate.h"

#include "style/Style.h"
#include "style/SvgIcon.h"
#include "style/Theme.h"

#include <QPainter>
#include <QPainterPath>

namespace {

const int rowHeight = 52;
const int pictureSize = 22;

} // namespace

BackupDelegate::BackupDelegate(const Theme &theme, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_theme(theme)
{
}

QSize BackupDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {0, Style::scaled(rowHeight)};
}

void BackupDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    const Palette &palette = m_theme.palette();
    const bool damaged = index.data(DamagedRole).toBool();
    const QRect row = option.rect;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (option.state & (QStyle::State_Selected | QStyle::State_MouseOver)) {
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        QPainterPath ground;
        ground.addRoundedRect(row, Style::corner, Style::corner);
        painter->setClipPath(ground);
        painter->fillRect(row, palette.color(selected ? Palette::Soft : Palette::List));
        if (selected)
            painter->fillRect(QRect(row.left(), row.top(), 3, row.height()),
                              palette.color(Palette::Accent));
        painter->setClipping(false);
    }
    const int side = Style::scaled(pictureSize);
    QRectF picture(row.left() + Style::margin, 0, side, side);
    picture.moveTop(row.top() + (row.height() - side) / 2.0);
    paintSvg(*painter, picture,
             damaged ? QStringLiteral("alert-triangle") : QStringLiteral("archive"),
             palette.color(damaged ? Palette::Weak : Palette::Accent));

    QRect upper =
        row.adjusted(2 * Style::margin + side, Style::spacing, -Style::gap, -Style::spacing);
    QRect lower = upper;
    upper.setHeight(upper.height() / 2);
    lower.setTop(upper.bottom() + 1);
    const auto draw = [&](const QRect &area, const QString &text, int size, QFont::Weight weight,
                          Palette::Role role) {
        QFont font = option.font;
        font.setPixelSize(size);
        font.setWeight(weight);
        painter->setFont(font);
        painter->setPen(palette.color(role));
        painter->drawText(
            area, Qt::AlignLeft | Qt::AlignVCenter,
            QFontMetrics(font).elidedText(text.simplified(), Qt::ElideRight, area.width()));
    };
    draw(upper, index.data().toString(), Style::textSize, QFont::DemiBold, Palette::Text);
    draw(lower, index.data(DetailRole).toString(), Style::smallTextSize, QFont::Normal,
         damaged ? Palette::Weak : Palette::Muted);
    painter->restore();
}
