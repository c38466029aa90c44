#pragma once

#include "FieldKind.h"

#include <QString>
#include <QVector>

/// The words of a text in lower case: split at signs, at changes between letters and digits, and at
/// the humps of camel case; without accents.
QStringList wordsOf(const QString &text);

/// What a text about a field says: the kinds that it names, in the order of the text.
struct TextMeaning
{
    struct Part
    {
        FieldKind kind = FieldKind::Unknown;
        int position = 0;
        int words = 0;
        int letters = 0;
    };
    QVector<Part> parts;

    bool names(FieldKind kind) const;
};

/// Reads a text in any of the languages that the program speaks. Longer phrases swallow shorter
/// ones inside them: a "gift card number" is no card number.
TextMeaning meaningOf(const QString &text);

/// Which part of a form a caption names: signing in, signing up, a newsletter, a search.
enum class CaptionKind {
    None,
    SignIn,
    SignUp,
    ChangePassword,
    Newsletter,
    Card,
    Birth,
    Code,
    GoOn
};
CaptionKind captionKindOf(const QString &text);
