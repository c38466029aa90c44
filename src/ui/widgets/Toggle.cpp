#include "Toggle.h"

#include "style/Style.h"
#include "style/Theme.h"

#include <QPainter>

namespace {

const QSize usualSize(34, 20);
const int focusSpace = 3;

} // namespace

Toggle::Toggle(const Theme &theme, QWidget *parent)
    : QCheckBox(parent)
    , m_theme(theme)
{
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&theme, &Theme::changed, this, QOverload<>::of(&QWidget::update));
}

QSize Toggle::sizeHint() const
{
    const int space = 2 * focusSpace;
    return {Style::scaled(usualSize.width()) + space, Style::scaled(usualSize.height()) + space};
}

bool Toggle::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void Toggle::paintEvent(QPaintEvent *)
{
    const Palette &palette = m_theme.palette();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(rect()).adjusted(focusSpace, focusSpace, -focusSpace, -focusSpace);
    const qreal radius = body.height() / 2;
    if (hasFocus()) {
        painter.setPen(QPen(palette.color(Palette::Accent), 1.5));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius + 2, radius + 2);
    }
    painter.setPen(Qt::NoPen);
    if (!isEnabled())
        painter.setOpacity(0.45);
    painter.setBrush(palette.color(isChecked() ? Palette::Accent : Palette::Muted));
    painter.drawRoundedRect(body, radius, radius);
    QRectF knob(0, 0, body.height() - 4, body.height() - 4);
    knob.moveCenter(body.center());
    if (isChecked())
        knob.moveRight(body.right() - 2);
    else
        knob.moveLeft(body.left() + 2);
    painter.setBrush(palette.color(isChecked() ? Palette::OnAccent : Palette::Window));
    painter.drawEllipse(knob);
}
