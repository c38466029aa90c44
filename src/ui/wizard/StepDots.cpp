#include "StepDots.h"

#include "style/Theme.h"

#include <QPainter>

namespace {

const int dot = 8;
const int dash = 26;
const int gap = 8;

} // namespace

StepDots::StepDots(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
{
    setFixedHeight(dot);
    connect(&theme, &Theme::changed, this, QOverload<>::of(&QWidget::update));
}

void StepDots::setStep(int step, int count)
{
    m_step = step;
    m_count = count;
    setAccessibleName(tr("Step %1 of %2").arg(step + 1).arg(count));
    update();
}

void StepDots::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const Palette &palette = m_theme.palette();
    qreal x = (width() - (m_count - 1) * (dot + gap) - dash) / 2.0;
    for (int i = 0; i < m_count; ++i) {
        painter.setBrush(palette.color(i <= m_step ? Palette::Accent : Palette::Line));
        const int length = i == m_step ? dash : dot;
        painter.drawRoundedRect(QRectF(x, 0, length, dot), dot / 2.0, dot / 2.0);
        x += length + gap;
    }
}
