#pragma once

#include "FieldKind.h"
#include "FormField.h"

/// What one field says of itself, before its neighbours are looked at.
struct FieldReading
{
    FieldKind kind = FieldKind::Unknown;
    /// The kinds that the text names from which the kind was taken, in its order.
    QVector<FieldKind> named;
    /// Kinds that its other texts name: they make a vague kind plain.
    QVector<FieldKind> also;
    /// Whether a person reads anything at the field.
    bool hasText = false;
    /// Whether only what stands behind it tells its kind, which may belong to the next field.
    bool isFromBehind = false;
    /// Whether the page itself says the kind by "autocomplete".
    bool isTold = false;
    /// Whether what it asks for is said to be of something that the program knows nothing of.
    bool isOfOther = false;
    /// Whether it speaks of who receives something.
    bool isOfRecipient = false;
    /// Whether the first text that a person reads at it has words, and none that is known.
    bool isStrange = false;

    bool says(FieldKind wanted) const
    {
        return kind == wanted || named.contains(wanted) || also.contains(wanted);
    }
};

/// @param next the text before the next field, which is not of this one
/// @param language of the page, as a tag in lower case; empty when it is not known
FieldReading readField(const FormField &field, const QString &next, const QString &language);
