#include "CapsIndicator.h"

#include <QPainter>

namespace {

const int dotSize = 7;
const int dotSpace = 13;

} // namespace

CapsIndicator::CapsIndicator(QWidget *parent)
    : QLabel(parent)
{
    setProperty("tone", QStringLiteral("small"));
    setContentsMargins(dotSpace, 0, 0, 0);
    setOn(false);
}

void CapsIndicator::setOn(bool on)
{
    m_on = on;
    setText(on ? tr("CAPS ON") : tr("CAPS OFF"));
    update();
}

void CapsIndicator::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_on ? QColor(0xff5d6c) : QColor(0x4b7f99));
    painter.drawEllipse(QRectF(0, (height() - dotSize) / 2.0, dotSize, dotSize));
}
