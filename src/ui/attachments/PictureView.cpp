#include "PictureView.h"

#include <QPainter>
#include <QPixmap>

PictureView::PictureView(const QImage &picture, QWidget *parent)
    : QWidget(parent)
    , m_picture(picture)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(240, 160);
}

QSize PictureView::sizeHint() const
{
    return m_picture.size().boundedTo(QSize(760, 520)).expandedTo(minimumSize());
}

void PictureView::resizeEvent(QResizeEvent *)
{
    const QSize room = size() * devicePixelRatioF();
    const QSize wanted = m_picture.size().scaled(room, Qt::KeepAspectRatio);
    const bool fits = wanted.width() >= m_picture.width();
    // Small pictures, as codes to be scanned, stay sharp.
    m_scaled = QPixmap::fromImage(
        fits ? m_picture : m_picture.scaled(wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    m_scaled.setDevicePixelRatio(devicePixelRatioF());
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QSizeF shown = QSizeF(m_scaled.size()) / m_scaled.devicePixelRatio();
    painter.drawPixmap(QPointF((width() - shown.width()) / 2, (height() - shown.height()) / 2),
                       m_scaled);
}
