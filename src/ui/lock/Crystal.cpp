#include "Crystal.h"

#include <QPainter>
#include <QPropertyAnimation>

namespace {

const QPointF keyHole(128, 111); ///< the middle of its round part in the picture

} // namespace

Crystal::Crystal(int side, QWidget *parent)
    : QWidget(parent)
    , m_picture(QStringLiteral(":/crystal.svg"))
    , m_animation(new QPropertyAnimation(this, "turn", this))
{
    setFixedSize(side, side);
    m_animation->setEasingCurve(QEasingCurve::OutCubic);
    m_animation->setEndValue(1.0);
    connect(m_animation, &QPropertyAnimation::finished, this, &Crystal::unlocked);
}

void Crystal::unlock(int time)
{
    if (time == 0) {
        setTurn(1);
        Q_EMIT unlocked();
        return;
    }
    m_animation->setDuration(time);
    m_animation->start();
}

void Crystal::lock()
{
    m_animation->stop();
    setTurn(0);
}

void Crystal::setTurn(qreal turn)
{
    m_turn = turn;
    update();
}

void Crystal::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF view = m_picture.viewBoxF();
    painter.scale(width() / view.width(), height() / view.height());
    paintPart(painter, QStringLiteral("body"));
    painter.translate(keyHole);
    painter.rotate(90 * m_turn);
    painter.translate(-keyHole);
    paintPart(painter, QStringLiteral("keyhole"));
}

void Crystal::paintPart(QPainter &painter, const QString &id)
{
    m_picture.render(&painter, id, m_picture.boundsOnElement(id));
}
