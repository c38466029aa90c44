#include "SvgIcon.h"

#include <QFile>
#include <QIconEngine>
#include <QPaintDevice>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <utility>

namespace {

QByteArray iconSource(const QString &name, const QColor &color)
{
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray svg = file.readAll();
    svg.replace("currentColor", color.name().toLatin1());
    svg.replace("stroke-width=\"2\"", "stroke-width=\"1.75\"");
    return svg;
}

class SvgIconEngine : public QIconEngine
{
public:
    SvgIconEngine(QString name, std::function<QColor()> color)
        : m_name(std::move(name))
        , m_color(std::move(color))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        if (mode == QIcon::Disabled)
            painter->setOpacity(painter->opacity() * 0.45);
        QRect square = rect;
        if (rect.width() > rect.height())
            square.setWidth(rect.height());
        paintSvg(*painter, square, m_name, m_color());
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new SvgIconEngine(m_name, m_color); }

private:
    QString m_name;
    std::function<QColor()> m_color;
};

} // namespace

QPixmap svgPixmap(const QString &name, const QColor &color, int size)
{
    const QString key =
        QStringLiteral("svg:%1:%2:%3").arg(name, color.name(), QString::number(size));
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap(size, size);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(iconSource(name, color));
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QIcon programIcon()
{
    QSvgRenderer crystal(QStringLiteral(":/crystal.svg"));
    QIcon icon;
    for (const int size : {16, 20, 22, 24, 32, 40, 44, 48, 64, 72, 96, 128, 256}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        crystal.render(&painter);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

QIcon svgIcon(const QString &name, std::function<QColor()> color)
{
    return QIcon(new SvgIconEngine(name, std::move(color)));
}

void paintSvg(QPainter &painter, const QRectF &rect, const QString &name, const QColor &color)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    const qreal side = qMin(rect.width(), rect.height());
    const QPixmap pixmap = svgPixmap(name, color, qRound(side * ratio));
    QRectF target(0, 0, side, side);
    target.moveCenter(rect.center());
    // On whole device pixels the picture stays sharp.
    target.moveTopLeft(QPointF(qRound(target.x() * ratio), qRound(target.y() * ratio)) / ratio);
    painter.drawPixmap(target, pixmap, pixmap.rect());
}
