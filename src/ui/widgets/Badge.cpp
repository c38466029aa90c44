#include "Badge.h"

#include "style/Theme.h"

#include <QPainter>

namespace {

const int sidePadding = 9;
const int edgePadding = 3;

} // namespace

Badge::Badge(const QString &text, Palette::Role role, const Theme &theme, QWidget *parent)
    : QLabel(text, parent)
    , m_role(role)
    , m_theme(theme)
{
    setProperty("tone", QStringLiteral("badge"));
    setContentsMargins(sidePadding, edgePadding, sidePadding, edgePadding);
    connect(&theme, &Theme::changed, this, QOverload<>::of(&QWidget::update));
}

void Badge::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = m_theme.palette().color(m_role);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_theme.palette().tint(color));
    painter.drawRoundedRect(rect(), height() / 2.0, height() / 2.0);
    painter.setPen(color);
    painter.drawText(rect(), Qt::AlignCenter, text());
}
