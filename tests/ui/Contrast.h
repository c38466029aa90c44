#pragma once

#include <QColor>

#include <cmath>

/// The least contrast of text that people with weak eyes read, by WCAG 2.1 level AA.
constexpr qreal readableContrast = 4.5;

inline qreal luminance(const QColor &color)
{
    const auto part = [](qreal value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) +
           0.0722 * part(color.blueF());
}

/// The contrast ratio of two colours, 1 to 21, by WCAG 2.1.
inline qreal contrast(const QColor &a, const QColor &b)
{
    const qreal first = luminance(a) + 0.05;
    const qreal second = luminance(b) + 0.05;
    return qMax(first, second) / qMin(first, second);
}
