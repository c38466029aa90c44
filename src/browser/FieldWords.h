#pragma once

#include "FieldKind.h"
#include "FieldPhrases.h"

#include <QVector>

/// Phrases of all languages that speak for one kind.
template <typename Kind>
struct WordRow
{
    Kind kind;
    /// Separated by "|". One with "=" before it counts only as the whole text.
    const char *phrases;
};

/// What texts at a field say.
const QVector<WordRow<FieldKind>> &fieldWords();

/// What captions say of a form or a part of one.
const QVector<WordRow<CaptionKind>> &captionWords();
