#include "SelectBox.h"

#include "Controls.h"
#include "style/Style.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>

SelectBox::SelectBox(const QIcon &chevron, QWidget *parent)
    : QComboBox(parent)
    , m_chevron(chevron)
{
    setCursor(Qt::PointingHandCursor);
    // The delegate of combo boxes does not take the style sheet's measures.
    setItemDelegate(new QStyledItemDelegate(this));
}

void SelectBox::setFrontIcon(const QIcon &icon)
{
    m_front = icon;
    setStyleProperty(*this, "front", true);
}

void SelectBox::paintEvent(QPaintEvent *event)
{
    QComboBox::paintEvent(event);
    QPainter painter(this);
    const int side = Style::iconSize;
    const int top = (height() - side) / 2;
    const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    m_chevron.paint(&painter, width() - side - 10, top, side, side, Qt::AlignCenter, mode);
    m_front.paint(&painter, 10, top, side, side, Qt::AlignCenter, mode);
}

void SelectBox::wheelEvent(QWheelEvent *event)
{
    // Scrolling a page must not change a value in passing.
    event->ignore();
}
