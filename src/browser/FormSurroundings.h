#pragma once

#include <QJsonObject>
#include <QStringList>

/// What is known of the form around its fields.
struct FormSurroundings
{
    /// What a person reads on the form: its buttons, its title, the headings, the page's title.
    QStringList captions;

    static FormSurroundings of(const QJsonObject &form, const QString &pageTitle);
};
