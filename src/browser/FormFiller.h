#pragma once

#include <QJsonObject>
#include <QString>
#include <QVector>

class FormField;

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

/// One row of a dispatcher: the fields that take a value, and the value.
struct FieldRule
{
    float (*score)(const FormField &field) = nullptr;
    QString value;
    bool isPassword = false;
};

/// Decides what a field receives: the value of the first rule that scores above 0.0. With a gate,
/// only a field that the gate accepts is asked about.
struct FieldDispatcher
{
    float (*gate)(const FormField &field) = nullptr;
    QVector<FieldRule> rules;
};

/// Walks the forms of a page, then its fields outside any form (as form "none"), and gives each
/// field what the dispatcher decides. A form that receives nothing is left out, and so is a field
/// whose value is empty: what the user typed there stays. The page may be of any shape.
QVector<FilledForm> fillForms(const QJsonObject &page, const FieldDispatcher &dispatcher);

/// {"formUid", "elements": [{"opid", "gpmid", "value"}]}
QJsonObject toFillInstruction(const FilledForm &form);
