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
        /// Whether in prose a word beside it says that it is of something the program knows nothing
        /// of: the name "of the project", the "agent's" phone. In code, whether the last word does.
        bool isOfOther = false;
    };
    QVector<Part> parts;
    /// Whether prose speaks of who receives something: the user, or somebody else.
    bool isOfRecipient = false;

    bool names(FieldKind kind) const;
};

/// Where a text comes from: names in code say nothing of whose a thing is.
enum class TextSort { Code, Prose };

/// Reads a text on a page in the language, a tag in lower case, or in any when that is empty.
/// Longer phrases swallow shorter ones inside them: a "gift card number" is no card number.
TextMeaning meaningOf(const QString &text, TextSort sort, const QString &language);

/// Without what stands in brackets, unless that is all.
QString withoutAsides(const QString &text);

/// Whether prose has words of which nothing is known.
bool hasStrangeWords(const QString &text);

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
