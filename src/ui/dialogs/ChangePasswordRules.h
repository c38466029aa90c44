#pragma once

#include "PasswordChange.h"

#include <QString>

/// The rules that a change of the master password has to keep, and the words that say so.
namespace ChangePasswordRules {

struct Input
{
    QString oldPassword;
    QString newPassword;
    QString confirm;
    QString hint;
    bool oldRefused = false; ///< the old password was tried as it stands and is wrong
};

/// In the order in which they are filled in and looked at.
enum Field { Old, New, Confirm, Hint, FieldCount };

struct Message
{
    QString text;     ///< empty when there is nothing to say
    int strength = 0; ///< the level when the text tells how strong the password is; 0 for a fault
};

Message message(const Input &input, Field field);

/// The first field that stands against the change; FieldCount when none does.
Field firstFault(const Input &input);

/// How a change has ended: what happened and what to do.
/// @param byUser it was the user who cancelled it, rather than a lock
QString endMessage(PasswordChangeOutcome outcome, const QString &safeName, bool byUser);

/// How a safe stands whose change of password was interrupted, and the way back.
/// @param opened with the new password, of so many items; -1 when the old one was tried
QString interruptedMessage(const QString &safeName, int opened, int total);

} // namespace ChangePasswordRules
