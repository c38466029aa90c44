#pragma once

#include "FieldClassifiers.h"
#include "FieldPlace.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

#include <functional>

/// The fields of a page's form that receive values.
struct FilledForm
{
    struct Field
    {
        QString opid;
        QString gpmid;
        QString value;
    };

    QString formUid;
    QVector<Field> fields;
    /// Whether one of the values is a password.
    bool hasPassword = false;
};

/// The value for a field, in the shape that it wants; empty when the item has none.
using ValueAt = std::function<QString(const FieldPlace &place)>;

/// Walks the forms of a page, then its fields outside any form (as form "none"), and gives each
/// field that the action fills its value. A form that receives nothing is left out, and so is a
/// field whose value is empty: what the user typed there stays. The page may be of any shape.
QVector<FilledForm> fillForms(const QJsonObject &page, FillAction action, const ValueAt &valueAt);

/// {"formUid", "elements": [{"opid", "gpmid", "value"}]}
QJsonObject toFillInstruction(const FilledForm &form);
