#pragma once

#include "PMFieldTypes.h"

#include <QLocale>

#include <optional>

/// Dates as people write them.
namespace DateText {

/// "29 February 1984", in the order of the locale, without the day of the week. What is no day of
/// the calendar comes as its eight digits; the empty date as the empty text.
QString day(const PMFieldTypes::Date &date, const QLocale &locale);

/// "01 / 2027"
QString month(const PMFieldTypes::Date &date);

/// "January 2027"
QString monthName(const PMFieldTypes::Date &date, const QLocale &locale);

/// The locale's own way of writing a day in figures, to show what can be typed: "29.02.1984".
QString example(const QLocale &locale);

/// Reads a day: with the name of the month, in figures in the order of the locale with anything
/// between them, year first, or as eight digits. The empty text is the empty date. Nothing for any
/// other text.
std::optional<PMFieldTypes::Date> parseDay(const QString &text, const QLocale &locale);

/// Reads a month and a year of two or four digits, in this order or the year first, or with the
/// month's name. The day of the result is 0.
std::optional<PMFieldTypes::Date> parseMonth(const QString &text, const QLocale &locale);

} // namespace DateText
