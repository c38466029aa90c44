#pragma once

#include <QJsonObject>
#include <QStringList>

/// What is known of the form around its fields.
struct FormSurroundings
{
    /// What a person reads on the form: its buttons, its title, the headings, the page's title.
    QStringList captions;
    /// Of the page, as a tag in lower case; empty when it is not known.
    QString language;

    /// @param page what is reported of the page as a whole: its title and its language
    static FormSurroundings of(const QJsonObject &form, const QJsonObject &page);
};
