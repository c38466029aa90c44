#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>

/// Value types of item fields. The text encodings are those of the item document.
namespace PMFieldTypes {
Q_NAMESPACE

enum class PasswordStrength { Terrible = 1, Weak = 2, Good = 3, Strong = 4 };
Q_ENUM_NS(PasswordStrength)

enum class LoginFillType { GlobalSettings = 1, FillAndSubmit = 2, OnlyFill = 3 };
Q_ENUM_NS(LoginFillType)

enum class Gender { Undefined = 0, Male = 1, Female = 2 };
Q_ENUM_NS(Gender)

/// A calendar date; parts that are not known are 0.
struct Date
{
    int year = 0;
    int month = 0;
    int day = 0;

    bool isEmpty() const { return year == 0 && month == 0 && day == 0; }

    /// "YYYYMMDD"; an empty date is "00000000".
    QString toText() const;

    /// The empty date when the text is anything but eight ASCII digits with a month up to 12 and a
    /// day up to 31.
    static Date fromText(const QString &text);

    bool operator==(const Date &other) const
    {
        return year == other.year && month == other.month && day == other.day;
    }
    bool operator!=(const Date &other) const { return !(*this == other); }
};

/// A telephone number with its international dialling code, without the plus sign.
struct Phone
{
    QString code;
    QString number;

    bool isEmpty() const { return code.isEmpty() && number.isEmpty(); }

    /// "+code;number"; an empty phone is "+;".
    QString toText() const;

    /// The empty phone when the text does not begin with a plus sign or has no semicolon.
    static Phone fromText(const QString &text);

    bool operator==(const Phone &other) const
    {
        return code == other.code && number == other.number;
    }
    bool operator!=(const Phone &other) const { return !(*this == other); }
};

/// Makes the two structures known to the meta-type system as "PMFieldTypesDate" and
/// "PMFieldTypesPhone", so that variants of them compare by value. Called once at start-up, before
/// the first item is made.
void registerMetaTypes();

} // namespace PMFieldTypes

Q_DECLARE_METATYPE(PMFieldTypes::Date)
Q_DECLARE_METATYPE(PMFieldTypes::Phone)
