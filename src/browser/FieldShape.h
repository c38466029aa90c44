#pragma once

#include "FieldPlace.h"

/// Whether the text is not longer than the field takes.
bool fits(const FormField &field, const QString &text);

/// The first of the texts, which all say the same, that fits the field and its own pattern; the
/// first of all when its pattern takes none and it fits.
QString firstThatGoes(const FieldPlace &place, const QStringList &texts);

/// The figures of a text.
QString digitsOf(const QString &text);

/// The digits in a mask such as "(000) 000-0000"; empty when the mask has room for more or fewer.
QString inMask(const QString &mask, const QString &digits);

/// The part of the text for one of several fields of the same kind side by side, each as long as
/// the field takes; the part of the same place where the fields do not say how long they are.
/// Empty when the field stands alone or is no part.
QString partAt(const FieldPlace &place, const QStringList &parts);

/// The option that means one of the words, by what a person reads or else by its value; the words
/// are compared whole, without case and accents. Empty when none does.
QString optionFor(const FormField &field, const QStringList &words);

/// An option as an answer: its text, or its value where the text is none or was cut.
QString answerOf(const FormField::Option &option);
