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

/// What has cancelled a change.
enum class Stop {
    User,
    Lock,
    Program, ///< which had to write the safe at once, as at the end of a session
};

/// How a change has ended: what happened and what to do.
/// @param stop counts for one that was cancelled
QString endMessage(PasswordChangeOutcome outcome, const QString &safeName, Stop stop);

/// Why a change does not begin while another one runs.
QString anotherRunsMessage();

/// How a safe stands whose change of password was interrupted, and the way back.
/// @param opened with the new password, of so many items; -1 when the old one was tried
QString interruptedMessage(const QString &safeName, int opened, int total);

} // namespace ChangePasswordRules
