#pragma once

#include "FieldPlace.h"
#include "PMFieldTypes.h"

/// The date of a card as the field asks for it, by its kind, placeholder, label, pattern or length:
/// "09/29", "09/2029", "2029-09", "0929". "09/29" when it asks for nothing. Empty without a year
/// and a month.
QString expiryText(const PMFieldTypes::Date &date, const FieldPlace &place);

/// The date of a birth as the field asks for it: "1990-02-01", "01.02.1990", "02/01/1990"; as the
/// language of the page writes dates when it asks for nothing. Empty for an incomplete date.
QString birthText(const PMFieldTypes::Date &date, const FieldPlace &place);

enum class DatePart { Day, Month, Year };

/// The three parts of a date in the order in which the field's words show them, as "DD.MM.YYYY"
/// does. Empty when they show none.
QVector<DatePart> datePartsOf(const FormField &field);

/// A year as the field asks for it: with two figures or with four.
QString yearText(int year, const FormField &field);

/// A month as the field asks for it: the option that means it, its name in the page's language
/// where the field shows one, else two figures.
QString monthText(int month, const FieldPlace &place);

/// Two figures: "09".
QString twoFigures(int number);
