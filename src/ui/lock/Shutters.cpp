#include "Shutters.h"

#include "style/SvgIcon.h"
#include "style/Theme.h"

#include <QPainter>

namespace {

const int padlockSize = 36;

} // namespace

Shutters::Shutters(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
{
}

void Shutters::setProgress(qreal progress)
{
    m_progress = progress;
    setVisible(progress < 1);
    update();
}

void Shutters::paintGround(QPainter &painter, const QRectF &area)
{
    QLinearGradient ground(area.topLeft(), area.bottomLeft());
    ground.setColorAt(0, QColor(0x174a63));
    ground.setColorAt(1, QColor(0x0f2f42));
    painter.fillRect(area, ground);
}

void Shutters::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const qreal half = height() / 2.0;
    const qreal shift = half * m_progress;
    if (m_progress > 0) {
        // What lies behind comes up while the gap widens.
        QColor veil = m_theme.palette().color(Palette::Window);
        veil.setAlphaF(1 - m_progress * m_progress);
        painter.fillRect(QRectF(0, half - shift, width(), 2 * shift), veil);
        painter.setOpacity(1 - m_progress * m_progress);
        QRectF padlock(0, 0, padlockSize, padlockSize);
        padlock.moveCenter(QPointF(width() / 2.0, half));
        painter.setClipRect(QRectF(0, half - shift, width(), 2 * shift));
        paintSvg(painter, padlock, QStringLiteral("lock-open"),
                 m_theme.palette().color(Palette::Accent));
        painter.setClipping(false);
        painter.setOpacity(1);
    }
    const auto drawHalf = [&](qreal top, qreal offset) {
        painter.save();
        painter.translate(0, offset);
        painter.setClipRect(QRectF(0, top, width(), half));
        paintGround(painter, rect());
        painter.restore();
    };
    drawHalf(0, -shift);
    drawHalf(half, shift);
}
