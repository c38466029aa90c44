#include "LoginClassifiers.h"

#include "FormField.h"
#include "KeywordScore.h"

float passwordScore(const FormField &field)
{
    // Pages do write "pasword".
    static const QStringList keywords = {QStringLiteral("password"), QStringLiteral("passwd"),
                                         QStringLiteral("pasword"), QStringLiteral("пароль")};
    if (visiblePasswordScore(field) > 0.0F)
        return 1.0F;
    if (!field.hasType({QStringLiteral("text")}))
        return 0.0F;
    return keywordScore(field.attributeAndLabelTexts(), keywords);
}

float namedPasswordScore(const FormField &field)
{
    static const QStringList keywords = {QStringLiteral("password"), QStringLiteral("pass"),
                                         QStringLiteral("psswd")};
    if (visiblePasswordScore(field) <= 0.0F)
        return 0.0F;
    return keywordScore(field.attributeAndLabelTexts(), keywords);
}

float visiblePasswordScore(const FormField &field)
{
    return field.isVisible() && field.hasType({QStringLiteral("password")}) ? 1.0F : 0.0F;
}

float loginNameScore(const FormField &field)
{
    static const QStringList keywords = {QStringLiteral("login"),  QStringLiteral("username"),
                                         QStringLiteral("user"),   QStringLiteral("email"),
                                         QStringLiteral("e-mail"), QStringLiteral("mail"),
                                         QStringLiteral("phone"),  QStringLiteral("uname")};
    static const QStringList types = {QStringLiteral("text"), QStringLiteral("email"),
                                      QStringLiteral("number")};
    if (!field.isVisible() || !field.hasType(types))
        return 0.0F;
    return keywordScore(field.attributeAndLabelTexts(), keywords);
}

float visibleFieldScore(const FormField &field)
{
    static const QStringList types = {QStringLiteral("text"), QStringLiteral("email"),
                                      QStringLiteral("number"), QStringLiteral("password")};
    return field.isVisible() && field.hasType(types) ? 1.0F : 0.0F;
}
