#include "StrengthMeter.h"

#include "PasswordStrength.h"
#include "style/Style.h"
#include "style/Theme.h"

#include <QFontMetrics>
#include <QPainter>

namespace {

const int bars = 4;
const int barWidth = 44;
const int barHeight = 3;
const int barGap = 3;
const int badgeGap = 12;
const int badgePadding = 9;
const int badgeHeight = 20;

} // namespace

StrengthMeter::StrengthMeter(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
{
    connect(&theme, &Theme::changed, this, QOverload<>::of(&QWidget::update));
}

void StrengthMeter::hideWord()
{
    m_showsWord = false;
    updateGeometry();
    update();
}

void StrengthMeter::setLevel(int level)
{
    m_level = level;
    setAccessibleName(level > 0 ? passwordStrengthLabel(level) : QString());
    updateGeometry();
    update();
}

QFont StrengthMeter::badgeFont() const
{
    QFont small = font();
    small.setPixelSize(Style::scaled(11));
    small.setWeight(QFont::DemiBold);
    return small;
}

QSize StrengthMeter::sizeHint() const
{
    const int allBars = bars * barWidth + (bars - 1) * barGap;
    if (!m_showsWord)
        return {allBars, 2 * barHeight};
    // The widest word, so that the width stays while one types.
    int word = 0;
    for (int level = 1; level <= bars; ++level)
        word =
            qMax(word, QFontMetrics(badgeFont()).horizontalAdvance(passwordStrengthLabel(level)));
    return {allBars + badgeGap + word + 2 * badgePadding, Style::scaled(badgeHeight)};
}

void StrengthMeter::paintEvent(QPaintEvent *)
{
    if (m_level == 0)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const Palette &palette = m_theme.palette();
    const QColor color = palette.strength(m_level);
    const qreal top = (height() - barHeight) / 2.0;
    for (int bar = 0; bar < bars; ++bar) {
        painter.setBrush(bar < m_level ? color : palette.color(Palette::Line));
        painter.drawRoundedRect(QRectF(bar * (barWidth + barGap), top, barWidth, barHeight), 1.5,
                                1.5);
    }

    if (!m_showsWord)
        return;
    const QString word = passwordStrengthLabel(m_level);
    const int badgeSide = Style::scaled(badgeHeight);
    const QFont font = badgeFont();
    const int width = QFontMetrics(font).horizontalAdvance(word) + 2 * badgePadding;
    const QRectF badge(bars * barWidth + (bars - 1) * barGap + badgeGap,
                       (height() - badgeSide) / 2.0, width, badgeSide);
    painter.setBrush(palette.tint(color));
    painter.drawRoundedRect(badge, badgeSide / 2.0, badgeSide / 2.0);
    painter.setPen(color);
    painter.setFont(font);
    painter.drawText(badge, Qt::AlignCenter, word);
}
