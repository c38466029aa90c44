#include "TilePainter.h"

#include "SvgIcon.h"
#include "main/ItemKinds.h"

#include <QPainter>
#include <QPixmap>

#include <array>

QColor tileColor(const QString &title)
{
    // White is readable on each of them.
    static const std::array<QRgb, 9> colors = {0xc2491f, 0x2b66d0, 0x0f7d5a, 0x7447c6, 0xc0324a,
                                               0x946000, 0x3a505e, 0x0b7a96, 0x85582f};
    // A hash of our own: Qt's may change between versions, and the colours with it.
    quint32 hash = 2166136261U;
    for (const char letter : title.toUtf8())
        hash = (hash ^ static_cast<uchar>(letter)) * 16777619U;
    return QColor(colors[(hash >> 8) % colors.size()]);
}

QString tileLetter(const QString &title)
{
    for (int i = 0; i < title.size(); ++i) {
        if (title.at(i).isLetterOrNumber())
            return title.mid(i, 1).toUpper();
        if (title.at(i).isHighSurrogate())
            return title.mid(i, 2);
    }
    return QStringLiteral("?");
}

void paintTile(QPainter &painter, const QRectF &rect, const QString &title, PMListItem::Type type)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tileColor(title));
    const qreal radius = rect.width() * 0.22;
    painter.drawRoundedRect(rect, radius, radius);
    if (type == PMListItem::Login) {
        QFont font = painter.font();
        font.setPixelSize(qRound(rect.width() * 0.41));
        font.setWeight(QFont::Bold);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(rect, Qt::AlignCenter, tileLetter(title));
    } else {
        const qreal inset = rect.width() * 0.26;
        paintSvg(painter, rect.adjusted(inset, inset, -inset, -inset), itemKindIcon(type),
                 Qt::white);
    }
    painter.restore();
}

qreal tileIconSide(const QRectF &tile)
{
    return tile.width() * 0.7;
}

void paintIconTile(QPainter &painter, const QRectF &rect, const QPixmap &icon, const QColor &line)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // Icons are made for a light ground, and come in any shape.
    painter.setPen(line);
    painter.setBrush(Qt::white);
    const qreal radius = rect.width() * 0.22;
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    const qreal side = tileIconSide(rect);
    QRectF place({}, QSizeF(icon.size()).scaled(side, side, Qt::KeepAspectRatio));
    place.moveCenter(rect.center());
    painter.drawPixmap(place, icon, QRectF(icon.rect()));
    painter.restore();
}
