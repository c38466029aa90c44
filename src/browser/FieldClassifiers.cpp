#include "FieldClassifiers.h"

#include "FormField.h"
#include "KeywordScore.h"
#include "LoginClassifiers.h"

namespace {

enum class Texts { Names, NamesAndLabels };

/// One classifier: which fields it may take, and the words that speak for one. A word of `any` is
/// enough by itself. A word of `first` counts together with one of `second` in the same text:
/// "month" is the card's only beside "expir". No text may hold a word of `never`, alone or, where
/// `neverBeside` is given, beside one of those.
struct Classifier
{
    FieldKind kind;
    Texts texts;
    QStringList types;
    QStringList any;
    QStringList first;
    QStringList second;
    QStringList never;
    QStringList neverBeside;
};

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

const QVector<Classifier> &classifiers()
{
    static const QStringList text = words("text");
    static const QStringList choice = words("text select-one");
    // clang-format off
    static const QVector<Classifier> table = {
        // kind, texts, types, any, first, second, never, neverBeside
        {FieldKind::FirstName, Texts::NamesAndLabels, text, words("fname first firstname"), {}, {}, {}, {}},
        {FieldKind::LastName, Texts::NamesAndLabels, text, words("lname fullname last surname lastname фамилия"), {}, {}, {}, {}},
        {FieldKind::CardHolder, Texts::Names, text, words("cardholder cholder holder name"), {}, {}, {}, {}},
        {FieldKind::CardFirstName, Texts::Names, text, {}, words("first"), words("card holder"), {}, {}},
        {FieldKind::CardLastName, Texts::Names, text, {}, words("last"), words("card holder"), {}, {}},
        {FieldKind::CardNumber, Texts::Names, words("text number"), words("cardnumber cardnum cardno cnumber cnum number"), {}, {}, words("company"), {}},
        {FieldKind::CardCode, Texts::Names, words("text password number"), words("cvv2"), words("code"), words("secure card"), {}, {}},
        // "date" by itself is any date: it adds nothing where "expir" stands.
        {FieldKind::CardExpiry, Texts::Names, text, words("expir srokm sroky"), words("date"), words("expir srokm sroky"), {}, {}},
        {FieldKind::CardMonth, Texts::Names, choice, words("srokm"), words("month"), words("expir valid"), {}, {}},
        {FieldKind::CardYear, Texts::Names, choice, words("sroky"), words("year"), words("expir valid"), {}, {}},
        {FieldKind::BirthDate, Texts::Names, choice, words("birth"), {}, {}, words("year month"), words("birth")},
        {FieldKind::BirthMonth, Texts::Names, choice, {}, words("month"), words("birth"), {}, {}},
        {FieldKind::BirthYear, Texts::Names, choice, {}, words("year"), words("birth"), {}, {}},
        {FieldKind::Gender, Texts::Names, words("text select-one radio"), words("gender"), {}, {}, {}, {}},
        {FieldKind::AddressLine1, Texts::Names, text, words("addr1 address1 street line1 adres1"), {}, {}, {}, {}},
        {FieldKind::AddressLine2, Texts::Names, text, words("addr2 address2 line2 adres2"), {}, {}, {}, {}},
        {FieldKind::City, Texts::Names, text, words("city town gorod"), {}, {}, {}, {}},
        {FieldKind::State, Texts::Names, text, words("state province"), {}, {}, {}, {}},
        {FieldKind::PostalCode, Texts::Names, text, words("code postal post"), {}, {}, {}, {}},
        {FieldKind::Country, Texts::Names, text, words("country"), {}, {}, {}, {}},
        {FieldKind::Email, Texts::Names, words("text email"), words("email"), {}, {}, {}, {}},
        {FieldKind::Phone, Texts::Names, text, words("phone telephone"), {}, {}, {}, {}},
    };
    // clang-format on
    return table;
}

/// Words of `any` that say little by themselves.
enum class VagueWords { Count, AreSkipped };

/// The same without the words that say little by themselves.
QVector<Classifier> withoutVagueWords(QVector<Classifier> table)
{
    static const QStringList vagueWords = words("number name code first last state");
    for (Classifier &classifier : table) {
        for (const QString &word : vagueWords)
            classifier.any.removeAll(word);
    }
    return table;
}

/// What of a field is searched.
struct Searched
{
    QStringList names;
    QStringList namesAndLabels;

    explicit Searched(const FormField &field)
        : names(field.attributeTexts())
        , namesAndLabels(field.attributeAndLabelTexts())
    {
    }

    const QStringList &of(const Classifier &classifier) const
    {
        return classifier.texts == Texts::Names ? names : namesAndLabels;
    }
};

bool takes(const Classifier &classifier, const QStringList &texts)
{
    if (!classifier.never.isEmpty()) {
        const bool isBarred = classifier.neverBeside.isEmpty()
                                  ? containsAny(texts, classifier.never)
                                  : containsPair(texts, classifier.never, classifier.neverBeside);
        if (isBarred)
            return false;
    }
    return keywordScore(texts, classifier.any) > 0.0F ||
           containsPair(texts, classifier.first, classifier.second);
}

const QVector<FieldKind> &orderOf(FillAction action)
{
    static const QVector<FieldKind> card = {
        FieldKind::FirstName,  FieldKind::LastName,  FieldKind::CardCode, FieldKind::CardNumber,
        FieldKind::CardHolder, FieldKind::CardMonth, FieldKind::CardYear, FieldKind::CardExpiry};
    static const QVector<FieldKind> identity = {
        FieldKind::FirstName,    FieldKind::LastName,     FieldKind::CardFirstName,
        FieldKind::CardLastName, FieldKind::Country,      FieldKind::City,
        FieldKind::State,        FieldKind::AddressLine1, FieldKind::AddressLine2,
        FieldKind::PostalCode,   FieldKind::Email,        FieldKind::Phone,
        FieldKind::BirthDate,    FieldKind::BirthMonth,   FieldKind::BirthYear,
        FieldKind::Gender};
    return action == FillAction::CreditCard ? card : identity;
}

FieldKind kindOfLogin(const FormField &field)
{
    if (visibleFieldScore(field) <= 0.0F)
        return FieldKind::Unknown;
    if (loginNameScore(field) > 0.0F)
        return FieldKind::UserName;
    const bool isPassword = namedPasswordScore(field) > 0.0F || visiblePasswordScore(field) > 0.0F;
    return isPassword ? FieldKind::Password : FieldKind::Unknown;
}

/// A card's form asks for the holder's names, an identity's for the person's.
FieldKind inAction(FieldKind kind, FillAction action)
{
    const bool isCard = action == FillAction::CreditCard;
    switch (kind) {
    case FieldKind::FirstName:
    case FieldKind::CardFirstName:
        return isCard ? FieldKind::CardFirstName : FieldKind::FirstName;
    case FieldKind::LastName:
    case FieldKind::CardLastName:
        return isCard ? FieldKind::CardLastName : FieldKind::LastName;
    default:
        return kind;
    }
}

FieldKind kindOf(const FormField &field, FillAction action, VagueWords vague)
{
    if (action == FillAction::Login)
        return kindOfLogin(field);
    if (action == FillAction::PlacePassword)
        return passwordScore(field) > 0.0F ? FieldKind::Password : FieldKind::Unknown;
    static const QVector<Classifier> plain = withoutVagueWords(classifiers());
    const QVector<Classifier> &table = vague == VagueWords::Count ? classifiers() : plain;
    const Searched searched(field);
    for (const FieldKind kind : orderOf(action)) {
        for (const Classifier &classifier : table) {
            if (classifier.kind == kind && field.hasType(classifier.types) &&
                takes(classifier, searched.of(classifier)))
                return inAction(kind, action);
        }
    }
    return FieldKind::Unknown;
}

} // namespace

FieldKind kindOfNames(const FormField &field, FillAction action)
{
    return kindOf(field, action, VagueWords::Count);
}

FieldKind kindOfPlainNames(const FormField &field, FillAction action)
{
    return kindOf(field.withoutClass(), action, VagueWords::AreSkipped);
}
