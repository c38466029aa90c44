#pragma once

#include "FieldKind.h"
#include "FormField.h"
#include "PatternTests.h"

#include <QVector>

/// A field that receives a value, among the fields of its form.
struct FieldPlace
{
    const QVector<FormField> &fields;
    /// What each of them receives.
    const QVector<FieldKind> &kinds;
    int at;
    /// Of the page, as in "en-GB"; may be empty.
    QString language;
    /// Of the whole page.
    PatternTests &patterns;

    const FormField &field() const { return fields.at(at); }
    FieldKind kind() const { return kinds.at(at); }
};
