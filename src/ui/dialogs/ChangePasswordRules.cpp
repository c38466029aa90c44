#include "ChangePasswordRules.h"

#include "HintRules.h"
#include "PasswordStrength.h"

#include <QCoreApplication>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(ChangePasswordRules)
};

QString fault(const ChangePasswordRules::Input &input, ChangePasswordRules::Field field)
{
    switch (field) {
    case ChangePasswordRules::Old:
        if (input.oldPassword.isEmpty())
            return Words::tr("Old password can not be empty");
        return input.oldRefused ? Words::tr("Old password is invalid. Try again") : QString();
    case ChangePasswordRules::New:
        if (input.newPassword.isEmpty())
            return Words::tr("New password can not be empty");
        if (input.newPassword == input.oldPassword)
            return Words::tr("New password can not be the same as the old password");
        return {};
    case ChangePasswordRules::Confirm:
        if (input.confirm.isEmpty())
            return Words::tr("Confirm password can not be empty");
        if (input.confirm != input.newPassword)
            return Words::tr("Password does not match");
        return {};
    case ChangePasswordRules::Hint:
        return input.hint.isEmpty() ? Words::tr("Hint can not be empty") : QString();
    case ChangePasswordRules::FieldCount:
        break;
    }
    return {};
}

} // namespace

ChangePasswordRules::Message ChangePasswordRules::message(const Input &input, Field field)
{
    const QString text = fault(input, field);
    // It is warned of, not refused: the user decides.
    if (text.isEmpty() && field == Hint && hintTellsPassword(input.hint, input.newPassword))
        return {Words::tr("The hint gives the password away")};
    if (!text.isEmpty() || field != New)
        return {text};
    const int level = passwordStrengthLevel(input.newPassword);
    return {passwordStrengthLabel(level), level};
}

ChangePasswordRules::Field ChangePasswordRules::firstFault(const Input &input)
{
    int field = Old;
    while (field < FieldCount && fault(input, Field(field)).isEmpty())
        ++field;
    return Field(field);
}

static QString cancelledMessage(const QString &safeName, ChangePasswordRules::Stop stop)
{
    switch (stop) {
    case ChangePasswordRules::Stop::User:
        return Words::tr("The password was not changed. The old one still opens “%1”.")
            .arg(safeName);
    case ChangePasswordRules::Stop::Lock:
        return Words::tr("“%1” was locked before the change was done. The old password still "
                         "opens it.")
            .arg(safeName);
    case ChangePasswordRules::Stop::Program:
        return Words::tr("The change of the password was stopped before it was done, as “%1” had "
                         "to be saved at once. The old password still opens it. You can change it "
                         "anew.")
            .arg(safeName);
    }
    return {};
}

QString ChangePasswordRules::endMessage(PasswordChangeOutcome outcome, const QString &safeName,
                                        Stop stop)
{
    switch (outcome) {
    case PasswordChangeOutcome::Changed:
        return Words::tr("“%1” has its new password. From now on only that one opens it. Backups "
                         "made before still open with the old one.")
            .arg(safeName);
    case PasswordChangeOutcome::Cancelled:
        return cancelledMessage(safeName, stop);
    case PasswordChangeOutcome::Busy:
        return Words::tr("The password was not changed: another program is using the safe. The "
                         "old one still opens it. Wait until the other program is done, then try "
                         "again.");
    case PasswordChangeOutcome::Damaged:
        return Words::tr("The password was not changed: some files of the safe do not open, and "
                         "under a new password they would be lost. The old one still opens the "
                         "safe. Bring these files back from a backup or move them out of the "
                         "folder of the safe, then try again.");
    case PasswordChangeOutcome::NotWritten:
        return Words::tr("The password was not changed: the files of the safe could not be "
                         "written. The old one still opens it. Check the free space and that the "
                         "folder of the safe can be written to, then try again.");
    }
    return {};
}

QString ChangePasswordRules::anotherRunsMessage()
{
    return Words::tr("This new password was not taken: another change of the password is still "
                     "under way. Wait until it is done, then try again.");
}

QString ChangePasswordRules::interruptedMessage(const QString &safeName, int opened, int total)
{
    const QString found =
        opened < 0 ? Words::tr("A change of the password of “%1” was interrupted. The new password "
                               "opens the safe, but perhaps not every item; this old one still "
                               "opens them all.")
                         .arg(safeName)
                   : Words::tr("A change of the password of “%1” was interrupted. The new password "
                               "opens %2 of %3 items; the old one still opens those that were "
                               "there before. Change nothing now: it would be missing when you go "
                               "back.")
                         .arg(safeName)
                         .arg(opened)
                         .arg(total);
    return found + QStringLiteral("\n\n") +
           Words::tr("To go back to the old password, quit the program and open the folder of the "
                     "safe. Keep a copy of “safe.passid” in another place. Then copy "
                     "“safe.passid.bak” over “safe.passid”: every item opens with the old "
                     "password again, and you can change it anew.");
}
