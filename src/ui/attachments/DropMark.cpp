#include "DropMark.h"

#include "style/Style.h"
#include "style/Theme.h"

#include <QPainter>

DropMark::DropMark(const QString &text, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_text(text)
    , m_theme(theme)
{
    // What is below goes on taking the drag.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setObjectName(QStringLiteral("dropMark"));
    hide();
}

void DropMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Palette &palette = m_theme.palette();
    QColor veil = palette.color(Palette::Window);
    veil.setAlphaF(0.85);
    painter.fillRect(rect(), veil);
    painter.setPen(QPen(palette.color(Palette::Accent), 2, Qt::DashLine));
    painter.setBrush(palette.color(Palette::Soft));
    painter.drawRoundedRect(QRectF(rect()).adjusted(14, 14, -14, -14), Style::corner,
                            Style::corner);
    painter.setPen(palette.color(Palette::Text));
    painter.drawText(rect(), Qt::AlignCenter, m_text);
}
