#include "NumberBox.h"

#include <QPainter>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>

namespace {

const int arrowSize = 14;

} // namespace

NumberBox::NumberBox(const QIcon &up, const QIcon &down, QWidget *parent)
    : QSpinBox(parent)
    , m_up(up)
    , m_down(down)
{
    // A wheel that turns over it on its way must not take the keyboard.
    setFocusPolicy(Qt::StrongFocus);
}

void NumberBox::paintEvent(QPaintEvent *event)
{
    QSpinBox::paintEvent(event);
    QPainter painter(this);
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const auto paint = [&](const QIcon &icon, QStyle::SubControl part, StepEnabledFlag step) {
        QRect arrow(0, 0, arrowSize, arrowSize);
        arrow.moveCenter(style()->subControlRect(QStyle::CC_SpinBox, &option, part, this).center());
        const bool enabled = isEnabled() && stepEnabled().testFlag(step);
        icon.paint(&painter, arrow, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);
    };
    paint(m_up, QStyle::SC_SpinBoxUp, StepUpEnabled);
    paint(m_down, QStyle::SC_SpinBoxDown, StepDownEnabled);
}

void NumberBox::wheelEvent(QWheelEvent *event)
{
    // Scrolling a page must not change a value in passing.
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}
