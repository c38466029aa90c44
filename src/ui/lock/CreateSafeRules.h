#pragma once

#include <QString>

/// The rules that a new safe has to keep, and the words that say so.
namespace CreateSafeRules {

struct Input
{
    QString name;
    QString password;
    QString confirm;
    QString hint;
};

enum Field { Name, Password, Confirm, Hint, FieldCount };

struct Message
{
    QString text;     ///< empty when there is nothing to say
    int strength = 0; ///< the level when the text tells how strong the password is; 0 for a fault
};

Message message(const Input &input, Field field);

/// Whether the safe can be made: everything is filled in and the confirmation is the password.
/// A hint that gives the password away is warned of, not refused: the user decides.
bool canCreate(const Input &input);

} // namespace CreateSafeRules
