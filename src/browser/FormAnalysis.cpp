#include "FormAnalysis.h"

#include <QHash>

#include <algorithm>

namespace {

/// So many fields away stands what belongs together.
constexpr int farthestBeside = 12;
/// What is shorter and can be read along is a PIN.
constexpr int shortestPassword = 7;

bool belongsTo(FieldKind kind, FillAction action)
{
    switch (action) {
    case FillAction::PlacePassword:
        return kind == FieldKind::Password || kind == FieldKind::NewPassword;
    case FillAction::Login:
        return isLoginKind(kind);
    case FillAction::CreditCard:
        return isCardKind(kind);
    case FillAction::Identity:
        return isIdentityKind(kind);
    }
    return false;
}

bool isChoice(const FormField &field)
{
    return field.isSelect() || field.isRadio();
}

/// A list or a button is often drawn anew and the page's own hidden behind it; a line of text that
/// nobody can see is a trap.
bool isTrap(const FormField &field)
{
    return !field.isVisible() && !isChoice(field);
}

/// What belongs together on a page, for a choice that nobody sees.
enum class Group { None, Card, Address, Birth, Phone };

Group groupOf(FieldKind kind)
{
    if (isCardKind(kind))
        return Group::Card;
    if (kind >= FieldKind::BirthDate && kind <= FieldKind::BirthYear)
        return Group::Birth;
    if (kind >= FieldKind::Phone && kind <= FieldKind::PhoneLine)
        return Group::Phone;
    return isIdentityKind(kind) ? Group::Address : Group::None;
}

bool isChosenFrom(FieldKind kind)
{
    static const QVector<FieldKind> kinds = {
        FieldKind::CardMonth, FieldKind::CardYear, FieldKind::CardType, FieldKind::Country,
        FieldKind::State,     FieldKind::Gender,   FieldKind::BirthDay, FieldKind::BirthMonth,
        FieldKind::BirthYear, FieldKind::PhoneCode};
    return kinds.contains(kind);
}

/// Whether a control of the page's can hold what the kind is: no name is a number, no street is
/// chosen from a list.
bool canHold(const FormField &field, FieldKind kind)
{
    if (isChoice(field))
        return isChosenFrom(kind) || kind == FieldKind::City;
    const bool isPassword = kind == FieldKind::Password || kind == FieldKind::NewPassword;
    if (isPassword && field.isLine() && field.maxLength() > 0 &&
        field.maxLength() < shortestPassword)
        return false;
    static const QHash<QString, QVector<FieldKind>> only = {
        {QStringLiteral("date"), {FieldKind::BirthDate, FieldKind::CardExpiry}},
        {QStringLiteral("month"), {FieldKind::CardExpiry}},
        {QStringLiteral("url"), {FieldKind::Website}},
        {QStringLiteral("email"), {FieldKind::Email, FieldKind::UserName}}};
    static const QVector<FieldKind> noNumbers = {
        FieldKind::FirstName,    FieldKind::LastName,   FieldKind::MiddleName,
        FieldKind::FullName,     FieldKind::CardHolder, FieldKind::AddressLine1,
        FieldKind::AddressLine2, FieldKind::City,       FieldKind::State,
        FieldKind::Country,      FieldKind::Company,    FieldKind::JobTitle,
        FieldKind::Website,      FieldKind::Email};
    const QString type = field.inputType().toLower();
    const auto found = only.constFind(type);
    if (found != only.constEnd())
        return found->contains(kind);
    const bool isNumber = type == QLatin1String("number") || type == QLatin1String("tel");
    return !isNumber || !noNumbers.contains(kind);
}

/// Whether the next fields of its group on the page are seen and filled. A whole part of the form
/// that is hidden is not asked for.
bool isBesideFilled(int at, const QVector<FormField> &fields, const QVector<FieldKind> &read,
                    const QVector<FieldKind> &kinds)
{
    const Group group = groupOf(kinds.at(at));
    for (int away = 1; away <= farthestBeside; ++away) {
        bool isFilled = false;
        bool isHidden = false;
        for (const int i : {at - away, at + away}) {
            if (groupOf(read.value(i, FieldKind::Unknown)) != group)
                continue;
            const bool isSeen = fields.at(i).isVisible();
            isFilled = isFilled || (isSeen && kinds.at(i) != FieldKind::Unknown);
            isHidden = isHidden || (!isSeen && !isChoice(fields.at(i)));
        }
        if (isFilled || isHidden)
            return !isHidden;
    }
    return false;
}

/// Whether the same is asked for beside it where the user sees it, as the states of another
/// country.
bool isSeenBeside(int at, const QVector<FormField> &fields, const QVector<FieldKind> &kinds)
{
    const int to = qMin(fields.size() - 1, at + farthestBeside);
    for (int i = qMax(0, at - farthestBeside); i <= to; ++i) {
        if (kinds.at(i) == kinds.at(at) && fields.at(i).isVisible())
            return true;
    }
    return false;
}

/// A choice that nobody sees receives only what is chosen from a list, and only beside a field of
/// its group that the user sees filled.
void leaveHiddenChoices(const QVector<FormField> &fields, const QVector<FieldKind> &read,
                        QVector<FieldKind> &kinds)
{
    for (int i = 0; i < fields.size(); ++i) {
        const FormField &field = fields.at(i);
        const FieldKind kind = kinds.at(i);
        if (kind == FieldKind::Unknown || !isChoice(field) || !field.hasHints() ||
            field.isVisible())
            continue;
        if (!isChosenFrom(kind) || !isBesideFilled(i, fields, read, kinds) ||
            isSeenBeside(i, fields, kinds))
            kinds[i] = FieldKind::Unknown;
    }
}

/// A list of countries that stands alone is for the page's own language or currency.
void leaveLoneCountry(const QVector<FormField> &fields, QVector<FieldKind> &kinds)
{
    int only = -1;
    for (int i = 0; i < fields.size(); ++i) {
        if (kinds.at(i) == FieldKind::Unknown)
            continue;
        if (only >= 0)
            return;
        only = i;
    }
    if (only >= 0 && kinds.at(only) == FieldKind::Country && fields.at(only).isSelect() &&
        fields.at(only).hasHints())
        kinds[only] = FieldKind::Unknown;
}

/// Leaves a part whose whole is not asked for: a second line of no street, the middle of no number.
void leaveOddParts(const QVector<FormField> &fields, QVector<FieldKind> &kinds)
{
    static const QVector<QPair<FieldKind, QVector<FieldKind>>> table = {
        {FieldKind::AddressLine2, {FieldKind::AddressLine1}},
        {FieldKind::HouseNumber, {FieldKind::AddressLine1, FieldKind::PostalCode}},
        {FieldKind::MiddleName, {FieldKind::FirstName, FieldKind::LastName}},
        {FieldKind::PhonePrefix, {FieldKind::PhoneArea}}};
    for (const auto &row : table) {
        const bool isWhole = std::any_of(row.second.begin(), row.second.end(),
                                         [&](FieldKind kind) { return kinds.contains(kind); });
        for (int i = 0; i < kinds.size() && !isWhole; ++i) {
            if (kinds.at(i) == row.first && fields.at(i).hasHints())
                kinds[i] = FieldKind::Unknown;
        }
    }
}

/// Everybody can read along in a line of text: a password of the user's does not go there. One that
/// was just generated may.
bool isReadable(const FormField &field, FieldKind read, FillAction action)
{
    return read == FieldKind::Password && action == FillAction::Login && !field.isPassword();
}

bool isVetoed(const FormField &field, FieldKind read, FillAction action)
{
    if (isReadable(field, read, action))
        return true;
    if (read == FieldKind::Never || isTrap(field) || field.isFixed())
        return true;
    // Who chooses a login means this one, whatever stood there.
    const bool isLogin = action == FillAction::Login || action == FillAction::PlacePassword;
    return field.isFilled() && !isLogin;
}

/// A user name is looked for by its names only where a password is asked for.
bool asksNames(FillAction action, const QVector<FieldKind> &read)
{
    if (action == FillAction::CreditCard || action == FillAction::Identity)
        return true;
    return read.contains(FieldKind::Password) && !read.contains(FieldKind::UserName);
}

/// What the names of a field say that the reader made nothing of. A card's secrets need more than
/// a word in a name: another field of the form that is a card's.
FieldKind kindByFallback(const FormField &field, const QVector<FieldKind> &read, FillAction action)
{
    const FieldKind kind = kindOfPlainNames(field, action);
    if (kind != FieldKind::CardNumber && kind != FieldKind::CardCode)
        return kind;
    return std::any_of(read.begin(), read.end(), isCardKind) ? kind : FieldKind::Unknown;
}

} // namespace

QVector<FieldKind> analyseForm(const QVector<FormField> &fields, const FormSurroundings &around,
                               FillAction action)
{
    const bool hasHints = std::any_of(fields.begin(), fields.end(),
                                      [](const FormField &field) { return field.hasHints(); });
    const QVector<FieldKind> read =
        hasHints ? readForm(fields, around) : QVector<FieldKind>(fields.size());
    // A generated password goes where one is chosen; the old one beside it stays.
    const bool isChosen =
        action == FillAction::PlacePassword && read.contains(FieldKind::NewPassword);
    QVector<FieldKind> kinds;
    for (int i = 0; i < fields.size(); ++i) {
        const FormField &field = fields.at(i);
        FieldKind kind = read.at(i);
        if (!field.hasHints())
            kind = kindOfNames(field, action);
        else if (isVetoed(field, kind, action))
            kind = FieldKind::Unknown;
        else if (kind == FieldKind::Unknown && asksNames(action, read))
            kind = kindByFallback(field, read, action);
        const bool isLeft = (isChosen && kind == FieldKind::Password) || !belongsTo(kind, action) ||
                            (field.hasHints() && !canHold(field, kind));
        kinds.append(isLeft ? FieldKind::Unknown : kind);
    }
    leaveHiddenChoices(fields, read, kinds);
    leaveLoneCountry(fields, kinds);
    leaveOddParts(fields, kinds);
    return kinds;
}
