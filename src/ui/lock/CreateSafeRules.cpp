#include "CreateSafeRules.h"

#include "HintRules.h"
#include "PasswordStrength.h"

#include <QCoreApplication>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("CreateSafeRules", source);
}

} // namespace

CreateSafeRules::Message CreateSafeRules::message(const Input &input, Field field)
{
    switch (field) {
    case Name:
        if (input.name.isEmpty())
            return {text(QT_TRANSLATE_NOOP("CreateSafeRules", "Safe name can not be empty"))};
        return {};
    case Password: {
        if (input.password.isEmpty())
            return {text(QT_TRANSLATE_NOOP("CreateSafeRules", "Password can not be empty"))};
        const int level = passwordStrengthLevel(input.password);
        return {passwordStrengthLabel(level), level};
    }
    case Confirm:
        if (input.confirm.isEmpty())
            return {
                text(QT_TRANSLATE_NOOP("CreateSafeRules", "Confirm password can not be empty"))};
        if (input.confirm != input.password)
            return {text(QT_TRANSLATE_NOOP("CreateSafeRules", "Password does not match"))};
        return {};
    case Hint:
        if (input.hint.isEmpty())
            return {text(QT_TRANSLATE_NOOP("CreateSafeRules", "Hint can not be empty"))};
        if (hintTellsPassword(input.hint, input.password))
            return {text(QT_TRANSLATE_NOOP("CreateSafeRules", "The hint gives the password away"))};
        return {};
    case FieldCount:
        break;
    }
    return {};
}

bool CreateSafeRules::canCreate(const Input &input)
{
    return !input.name.isEmpty() && !input.password.isEmpty() && !input.hint.isEmpty() &&
           input.confirm == input.password;
}
