#pragma once

#include "FormField.h"

#include <QVector>

/// How much of a page is read, so that none keeps the program busy: the rest goes unseen. No page
/// has as much that a person fills.
struct PageLimits
{
    int fields = 5000;
    /// The choices of all lists together.
    int options = 10000;
    /// Of the texts of all fields.
    int letters = 400000;
};

/// The fields of a list as the page reports it, whatever it may hold, as far as the limits go.
/// @param left what is left of the limits of the page; what is read is taken from it
QVector<FormField> fieldsOf(const QJsonArray &entries, PageLimits &left);
