#pragma once

#include <QLocale>

/// The country that editors suggest.
struct EditorDefaults
{
    QString country; ///< its English name
    QString code;    ///< its dialling code without the plus sign

    /// By the country of a locale; the United States when the country table does not have it. Says
    /// in the log what it is.
    static EditorDefaults fromLocale(const QLocale &locale);
};
