#pragma once

#include "FieldKind.h"
#include "FieldPhrases.h"

#include <QVector>

/// Phrases that speak for one kind.
template <typename Kind>
struct WordRow
{
    Kind kind;
    /// Separated by "|". One with "=" before it counts only as the whole text.
    const char *phrases;
    /// Tags such as "pt" or "pt-br", separated by spaces, where a phrase means this in these only.
    const char *languages = "";
};

/// What texts at a field say.
const QVector<WordRow<FieldKind>> &fieldWords();

/// What captions say of a form or a part of one.
const QVector<WordRow<CaptionKind>> &captionWords();
