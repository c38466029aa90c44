#include "LoginRoles.h"

#include "FieldPhrases.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int mostNewsletterFields = 3;
constexpr int mostBesideLogin = 2;
constexpr int longestCode = 8;
/// The rank of a field that is called a user name.
constexpr int surelyUserName = 6;

CaptionKind purposeOf(const FormSurroundings &around)
{
    static const QVector<CaptionKind> purposes = {CaptionKind::SignIn, CaptionKind::SignUp,
                                                  CaptionKind::ChangePassword,
                                                  CaptionKind::Newsletter, CaptionKind::Code};
    for (const QString &caption : around.captions) {
        const CaptionKind kind = captionKindOf(caption);
        if (purposes.contains(kind))
            return kind;
    }
    return CaptionKind::None;
}

QVector<int> passwordsIn(const QVector<FormField> &fields, const QVector<FieldKind> &kinds)
{
    static const QVector<FieldKind> passwords = {FieldKind::Password, FieldKind::CurrentPassword,
                                                 FieldKind::NewPassword,
                                                 FieldKind::RepeatedPassword};
    QVector<int> found;
    for (int i = 0; i < fields.size(); ++i) {
        if (fields.at(i).isPassword() && fields.at(i).isVisible() &&
            passwords.contains(kinds.at(i)))
            found.append(i);
    }
    return found;
}

bool asksForPerson(const QVector<FieldKind> &kinds)
{
    const auto count = std::count_if(kinds.begin(), kinds.end(), [](FieldKind kind) {
        return isIdentityKind(kind) && kind != FieldKind::Email && kind != FieldKind::Phone;
    });
    return count >= 2;
}

/// Nobody tells the rules of a password to those who have one: "8 characters or more".
bool tellsRules(const FormField &field)
{
    static const QRegularExpression rules(
        QString::fromUtf8(
            "\\d\\+?\\s*(or "
            "more\\s*)?(char|zeichen|caract|символ|знак|znak|tekens|tecken|karakter)"),
        QRegularExpression::CaseInsensitiveOption);
    const QStringList texts = field.readTexts() << field.textAfter();
    return std::any_of(texts.begin(), texts.end(),
                       [&](const QString &text) { return rules.match(text).hasMatch(); });
}

/// "What is your favourite film?" is answered in secret, and is no password.
bool isQuestion(const FormField &field)
{
    static const QRegularExpression question(
        QString::fromUtf8("^\\s*¿?(what|which|who|where|when|in what|in which|wie |was |welche|wer "
                          "|wo |que |cual|quien|donde|qué |cuál|quién|dónde|"
                          "quel|qui |où |как |какой|какая|кто |где )[^?]*\\?"),
        QRegularExpression::CaseInsensitiveOption);
    return question.match(field.label()).hasMatch();
}

void assignSinglePassword(int at, CaptionKind purpose, QVector<FieldKind> &kinds)
{
    if (kinds.at(at) == FieldKind::NewPassword)
        return;
    if (kinds.at(at) == FieldKind::RepeatedPassword) {
        kinds[at] = FieldKind::NewPassword;
        return;
    }
    const bool isChosen = purpose == CaptionKind::SignUp ||
                          purpose == CaptionKind::ChangePassword ||
                          (purpose != CaptionKind::SignIn && asksForPerson(kinds));
    // Some sign-ups ask browsers for the current password to keep them from proposing one.
    const bool isNewUser = purpose == CaptionKind::SignUp && kinds.contains(FieldKind::Email) &&
                           kinds.contains(FieldKind::UserName);
    const bool isAskedFor = (kinds.at(at) == FieldKind::CurrentPassword && !isNewUser) || !isChosen;
    kinds[at] = isAskedFor ? FieldKind::Password : FieldKind::NewPassword;
}

/// "New password" beside a plain "password" makes that the old one; its confirmation does not.
bool isOldBeside(const FieldReading &first, const FieldReading &second, CaptionKind purpose)
{
    return purpose == CaptionKind::ChangePassword && first.kind == FieldKind::Password &&
           second.kind == FieldKind::NewPassword;
}

/// A hidden figure beside the number of a card is no password, whatever it is called.
bool isCardSecret(const FieldReading &reading, const QVector<FieldKind> &kinds)
{
    return reading.named.isEmpty() && !reading.isTold && kinds.contains(FieldKind::CardNumber);
}

/// A plain "password" beside a new one and its confirmation is the old one, wherever it stands.
bool isChangeOf(const QVector<int> &passwords, const QVector<FieldReading> &readings,
                const QVector<FieldKind> &kinds)
{
    const auto countOf = [&](FieldKind kind) {
        return std::count_if(passwords.begin(), passwords.end(), [&](int at) {
            return kinds.at(at) == kind && readings.at(at).named.contains(kind);
        });
    };
    return countOf(FieldKind::Password) == 1 && countOf(FieldKind::NewPassword) > 0 &&
           passwords.size() > 2;
}

void assignPasswords(const QVector<int> &passwords, const QVector<FieldReading> &readings,
                     CaptionKind purpose, QVector<FieldKind> &kinds)
{
    if (passwords.size() == 1) {
        assignSinglePassword(passwords.first(), purpose, kinds);
        return;
    }
    const bool isChosen = std::any_of(passwords.begin(), passwords.end(), [&](int at) {
        return readings.at(at).says(FieldKind::NewPassword) ||
               readings.at(at).says(FieldKind::RepeatedPassword);
    });
    // Who signs in with a password and a further secret knows both.
    if (purpose == CaptionKind::SignIn && !isChosen && passwords.size() == 2 &&
        readings.at(passwords.first()).kind == FieldKind::Password) {
        kinds[passwords.first()] = FieldKind::Password;
        kinds[passwords.last()] = FieldKind::Other;
        return;
    }
    // Nobody repeats a password that he has, whatever the page tells the browser.
    if (passwords.size() == 2 && kinds.at(passwords.last()) == FieldKind::RepeatedPassword &&
        !readings.at(passwords.first()).named.contains(FieldKind::CurrentPassword))
        kinds[passwords.first()] = FieldKind::NewPassword;
    const bool isChange = isChangeOf(passwords, readings, kinds);
    for (const int at : passwords) {
        const bool isOld = kinds.at(at) == FieldKind::CurrentPassword ||
                           (isChange && kinds.at(at) == FieldKind::Password &&
                            readings.at(at).named.contains(FieldKind::Password));
        kinds[at] = isOld ? FieldKind::Password : FieldKind::NewPassword;
    }
    const int first = passwords.first();
    const FieldReading &second = readings.at(passwords.at(1));
    if (readings.at(first).kind != FieldKind::Password)
        return;
    // The old one leads the new and its confirmation. One that is confirmed itself is being chosen.
    const bool leads = passwords.size() > 2 && purpose != CaptionKind::SignUp &&
                       second.kind != FieldKind::RepeatedPassword;
    if (leads || isOldBeside(readings.at(first), second, purpose))
        kinds[first] = FieldKind::Password;
}

/// "New e-mail" beside the password changes the account, and does not open it.
bool asksForNew(const FormField &field)
{
    static const QRegularExpression isNew(
        QString::fromUtf8("\\b(new|neue|neuer|nueva|nuevo|nouvelle|nouveau|nova|novo|nieuwe?|nuova)"
                          "\\b|нов(ый|ая|ое)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return isNew.match(field.label()).hasMatch();
}

/// How well a field does as the user name of a sign-in form, 0 for not at all.
int userNameRank(const FormField &field, const FieldReading &reading, FieldKind kind)
{
    if (!field.isVisible() || !field.isLine() || kind == FieldKind::Never)
        return 0;
    if (kind == FieldKind::UserName)
        return surelyUserName;
    if (reading.says(FieldKind::UserName))
        return 5;
    // The number of a library's card does, the name of a device does not.
    if (reading.isOfOther)
        return reading.says(FieldKind::SomeName) ? 0 : 3;
    switch (kind) {
    case FieldKind::Email:
        return asksForNew(field) ? 0 : 4;
    case FieldKind::Phone:
    case FieldKind::CardNumber:
        return 3;
    case FieldKind::Other:
        // A client or a customer's number: better than nothing.
        return 2;
    case FieldKind::Unknown:
    case FieldKind::FullName:
        return 2;
    case FieldKind::LastName:
    case FieldKind::Company:
        return 1;
    default:
        // Nobody signs in with a street or a date.
        return isVagueKind(kind) ? 1 : 0;
    }
}

int findUserName(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                 const QVector<FieldKind> &kinds, int before)
{
    int best = -1;
    int bestRank = 0;
    for (int i = 0; i < before; ++i) {
        const int rank = userNameRank(fields.at(i), readings.at(i), kinds.at(i));
        // Of an account and the user within it, the user stands beside the password.
        if (rank > bestRank || (rank == surelyUserName && rank == bestRank)) {
            best = i;
            bestRank = rank;
        }
    }
    return best;
}

/// A page that asks for the user name first shows no password, but says what it is for.
bool isIdentifierFirst(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                       const QVector<FieldKind> &kinds, const FormSurroundings &around)
{
    const CaptionKind purpose = purposeOf(around);
    int lines = 0;
    bool hasUserName = false;
    bool hasAddress = false;
    for (int i = 0; i < fields.size(); ++i) {
        if (!fields.at(i).isVisible() || !fields.at(i).isLine() || kinds.at(i) == FieldKind::Never)
            continue;
        ++lines;
        hasUserName = hasUserName || readings.at(i).says(FieldKind::UserName);
        hasAddress = hasAddress || kinds.at(i) == FieldKind::Email;
    }
    if (lines != 1)
        return false;
    const bool goesOn =
        std::any_of(around.captions.begin(), around.captions.end(), [](const QString &caption) {
            return captionKindOf(caption) == CaptionKind::GoOn;
        });
    const bool isAskedFor = hasUserName || (hasAddress && goesOn);
    return purpose == CaptionKind::SignIn || (isAskedFor && purpose == CaptionKind::None);
}

/// A page that asks for a code that was sent has no user name beside it.
bool isSentCode(const QVector<FormField> &fields, const QVector<FieldKind> &kinds, int at,
                CaptionKind purpose)
{
    if (purpose != CaptionKind::Code || fields.at(at).maxLength() == 0 ||
        fields.at(at).maxLength() > longestCode)
        return false;
    return std::none_of(kinds.begin(), kinds.end(), [](FieldKind kind) {
        return kind == FieldKind::UserName || kind == FieldKind::Email || kind == FieldKind::Phone;
    });
}

} // namespace

bool asksForCode(const FormSurroundings &around)
{
    return purposeOf(around) == CaptionKind::Code;
}

void assignLoginRoles(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                      const FormSurroundings &around, QVector<FieldKind> &kinds)
{
    const CaptionKind purpose = purposeOf(around);
    const QVector<int> hidden = passwordsIn(fields, kinds);
    for (const int at : hidden) {
        if (isCardSecret(readings.at(at), kinds))
            kinds[at] = FieldKind::Other;
        else if (isQuestion(fields.at(at)) || isSentCode(fields, kinds, at, purpose))
            kinds[at] = FieldKind::Never;
        else if (purpose != CaptionKind::SignIn && kinds.at(at) == FieldKind::Password &&
                 tellsRules(fields.at(at)))
            kinds[at] = FieldKind::NewPassword;
    }
    const QVector<int> passwords = passwordsIn(fields, kinds);
    if (!passwords.isEmpty())
        assignPasswords(passwords, readings, purpose, kinds);
    // Where both can be read along, one is still the confirmation of the other.
    if (passwords.isEmpty() && kinds.contains(FieldKind::RepeatedPassword)) {
        for (FieldKind &kind : kinds) {
            if (kind == FieldKind::Password || kind == FieldKind::RepeatedPassword)
                kind = FieldKind::NewPassword;
        }
    }
    const bool isChoosing = kinds.contains(FieldKind::NewPassword);
    int userName = -1;
    if (!isChoosing && !passwords.isEmpty())
        userName = findUserName(fields, readings, kinds, passwords.first());
    else if (!isChoosing && isIdentifierFirst(fields, readings, kinds, around))
        userName = findUserName(fields, readings, kinds, fields.size());
    // A name that is being chosen is none of ours.
    std::replace(kinds.begin(), kinds.end(), FieldKind::UserName, FieldKind::Other);
    if (userName < 0)
        return;
    kinds[userName] = FieldKind::UserName;
    // A surname asked for beside the password is part of the login. Where there is more, one form
    // holds the whole page.
    const auto ofPerson = std::count_if(kinds.begin(), kinds.end(), isIdentityKind);
    if (ofPerson <= mostBesideLogin)
        std::replace_if(kinds.begin(), kinds.end(), isIdentityKind, FieldKind::Other);
}

bool isNewsletter(const QVector<FormField> &fields, const QVector<FieldKind> &kinds,
                  const FormSurroundings &around)
{
    int lines = 0;
    for (const FormField &field : fields) {
        if (field.isPassword())
            return false;
        lines += field.isLine() && field.isVisible() ? 1 : 0;
    }
    const bool isForCard = std::any_of(kinds.begin(), kinds.end(), isCardKind);
    return lines > 0 && lines <= mostNewsletterFields && !isForCard &&
           purposeOf(around) == CaptionKind::Newsletter;
}
