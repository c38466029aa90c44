#include "LoginCapture.h"

#include "FormReader.h"
#include "KeywordScore.h"
#include "LoginClassifiers.h"
#include "PageFields.h"

#include <QHash>
#include <QJsonArray>
#include <QVector>

namespace {

/// The value with the highest score so far.
struct Best
{
    QString value;
    float score = 0.0F;

    void offer(const QString &other, float otherScore)
    {
        if (otherScore <= score)
            return;
        value = other;
        score = otherScore;
    }
};

bool isSignUpForm(const QString &title, const QVector<FormField> &fields)
{
    static const QStringList titleWords = {QStringLiteral("регистрация"), QStringLiteral("signup"),
                                           QStringLiteral("sign-up"), QStringLiteral("registr")};
    // In code nobody writes Cyrillic.
    static const QStringList codeWords = titleWords.mid(1);
    if (containsAny({title}, titleWords))
        return true;
    for (const FormField &field : fields) {
        if (containsAny(field.attributeTexts(), codeWords))
            return true;
    }
    return false;
}

/// The password that stands in two fields, as a new one does beside its confirmation; empty when
/// none does.
QString repeatedPassword(const QVector<FormField> &passwords)
{
    QHash<QString, int> counts;
    for (const FormField &field : passwords)
        ++counts[field.value()];
    for (const FormField &field : passwords) {
        const QString value = field.value();
        if (!value.isEmpty() && counts.value(value) > 1)
            return value;
    }
    return {};
}

/// Finds by what a person reads at the fields what is not known yet.
void readSurroundings(const QJsonObject &form, const QVector<FormField> &fields, bool isRepeated,
                      CapturedLogin &login)
{
    const auto around = FormSurroundings::of(form, form);
    const QVector<FieldKind> kinds = readForm(fields, around);
    const bool asksForNew = isRepeated || kinds.contains(FieldKind::NewPassword);
    for (int i = 0; i < fields.size(); ++i) {
        const FormField &field = fields.at(i);
        if (!field.isVisible())
            continue;
        const FieldKind kind = kinds.at(i);
        if (kind == FieldKind::UserName || kind == FieldKind::Email) {
            if (login.userName.isEmpty())
                login.userName = field.value();
        } else if (kind == FieldKind::Password && field.isPassword() && asksForNew) {
            if (field.value() != login.password || !isRepeated)
                login.oldPassword = field.value();
        } else if ((kind == FieldKind::Password || kind == FieldKind::NewPassword) &&
                   field.isPassword() && !isRepeated) {
            if (login.password.isEmpty() || kind == FieldKind::NewPassword)
                login.password = field.value();
        }
    }
    // Who chooses a password and is not asked for a name has an account already.
    login.isSignUp = login.isSignUp || (asksForNew && !kinds.contains(FieldKind::Password) &&
                                        !login.userName.isEmpty());
}

} // namespace

CapturedLogin captureLogin(const QJsonObject &form)
{
    PageLimits left;
    const auto fields = fieldsOf(form.value(QLatin1String("fields")).toArray(), left);

    Best userName;
    Best password;
    QVector<FormField> passwords;
    bool hasHints = false;
    for (const FormField &field : fields) {
        hasHints = hasHints || field.hasHints();
        if (visibleFieldScore(field) <= 0.0F || !field.hasValue())
            continue;
        userName.offer(field.value(), loginNameScore(field));
        password.offer(field.value(), namedPasswordScore(field));
        if (field.isPassword())
            passwords.append(field);
    }
    CapturedLogin login;
    login.userName = userName.value;
    login.password = password.value;
    login.isSignUp = isSignUpForm(form.value(QLatin1String("title")).toString(), fields);
    const QString repeated = repeatedPassword(passwords);
    if (!repeated.isEmpty())
        login.password = repeated;
    if (hasHints)
        readSurroundings(form, fields, !repeated.isEmpty(), login);
    return login;
}
