#include "FieldReading.h"

#include "Autocomplete.h"
#include "FieldOptions.h"
#include "FieldPhrases.h"
#include "InputTypes.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace {

/// So many choices of a list tell what it is.
constexpr int mostTellingOptions = 60;
/// No field asks for more than the parts of an address.
constexpr int mostKinds = 5;
constexpr int longestCaption = 60;
/// In longer texts a word says less of the others.
constexpr int mostLooseWords = 4;

/// Whose order decides between phrases of one length: what people read has its main word first, a
/// name in code has it last.
enum class MainWord { First, Last };

bool isSum(const QString &text)
{
    static const QRegularExpression sum(
        QStringLiteral("\\d\\s*([+×*−-]|plus|minus|mal)\\s*\\d\\s*[=?]"),
        QRegularExpression::CaseInsensitiveOption);
    const bool asks = text.contains(QLatin1Char('?')) || text.contains(QLatin1Char('='));
    return asks && sum.match(text).hasMatch();
}

/// In code what comes last counts: "ucSearch$txtUser" is the user.
bool isNever(const TextMeaning &meaning, MainWord mainWord)
{
    bool is = false;
    for (const TextMeaning::Part &part : meaning.parts) {
        if (part.kind == FieldKind::Never)
            is = true;
        else if (mainWord == MainWord::Last && !isVagueKind(part.kind))
            is = false;
    }
    return is;
}

bool isWeakerThan(FieldKind kind, FieldKind other)
{
    return (isVagueKind(kind) && !isVagueKind(other)) ||
           (isPerhapsKind(kind) && isIdentityKind(other));
}

/// In "company website" the site is meant, in "recipient address" the address, in "credit card
/// expiry month" the month.
const TextMeaning::Part *withoutOwner(const TextMeaning &meaning, const TextMeaning::Part *main)
{
    const bool isCard = main->kind == FieldKind::CardNumber;
    const bool isOwner = main->kind == FieldKind::Company || isCard ||
                         (main->kind == FieldKind::FullName && meaning.isOfRecipient);
    if (!isOwner)
        return main;
    for (const TextMeaning::Part &part : meaning.parts) {
        if (part.position == main->position + main->words && !isVagueKind(part.kind) &&
            (isCard ? isCardKind(part.kind) : part.words <= main->words))
            return &part;
    }
    return main;
}

/// "Credit card month", "CreditCardName": what is vague by itself is the card's there.
FieldKind partOfCard(const TextMeaning &meaning, const TextMeaning::Part &card)
{
    static const QHash<FieldKind, FieldKind> parts = {{FieldKind::SomeMonth, FieldKind::CardMonth},
                                                      {FieldKind::SomeYear, FieldKind::CardYear},
                                                      {FieldKind::SomeDate, FieldKind::CardExpiry},
                                                      {FieldKind::SomeName, FieldKind::CardHolder},
                                                      {FieldKind::SomeCode, FieldKind::CardCode}};
    for (const TextMeaning::Part &part : meaning.parts) {
        if (card.kind == FieldKind::CardNumber && part.position == card.position + card.words)
            return parts.value(part.kind, FieldKind::Unknown);
    }
    return FieldKind::Unknown;
}

FieldKind mainKind(const TextMeaning &meaning, MainWord mainWord)
{
    const TextMeaning::Part *main = nullptr;
    if (isNever(meaning, mainWord))
        return FieldKind::Never;
    for (const TextMeaning::Part &part : meaning.parts) {
        const bool isLonger = !main || part.words > main->words;
        const bool isLater = mainWord == MainWord::Last && main && part.words == main->words;
        const bool isPlainer =
            main && isWeakerThan(main->kind, part.kind) && part.words >= main->words;
        if (isLonger || isPlainer || (isLater && !isVagueKind(part.kind)))
            main = &part;
    }
    if (!main)
        return FieldKind::Unknown;
    if (mainWord == MainWord::First)
        main = withoutOwner(meaning, main);
    const FieldKind ofCard = partOfCard(meaning, *main);
    if (ofCard != FieldKind::Unknown)
        return ofCard;
    // "Street and house number" is the street's line, "phone or e-mail" takes an address.
    if (main->kind == FieldKind::HouseNumber && meaning.names(FieldKind::AddressLine1))
        return FieldKind::AddressLine1;
    if (main->kind == FieldKind::Phone && meaning.names(FieldKind::Email))
        return FieldKind::Email;
    if (meaning.names(FieldKind::FirstName) && meaning.names(FieldKind::LastName))
        return FieldKind::FullName;
    if (meaning.names(FieldKind::FirstName) && meaning.names(FieldKind::MiddleName))
        return FieldKind::FirstName;
    return main->kind;
}

/// Whether a text says that what is asked for is not the user's.
bool isOfOther(const TextMeaning &meaning, FieldKind kind)
{
    if (!isIdentityKind(kind) && kind != FieldKind::SomeName && kind != FieldKind::CardNumber &&
        kind != FieldKind::CardExpiry && kind != FieldKind::SomeNumber && !isPerhapsKind(kind) &&
        kind != FieldKind::Password && kind != FieldKind::NewPassword &&
        kind != FieldKind::SomeDate)
        return false;
    // "Place, date" is signed.
    const bool isPlace = kind == FieldKind::City || kind == FieldKind::AddressLine1;
    if (isPlace && (meaning.names(FieldKind::SomeDate) || meaning.names(FieldKind::BirthDate)))
        return true;
    return std::any_of(meaning.parts.begin(), meaning.parts.end(),
                       [](const TextMeaning::Part &part) { return part.isOfOther; });
}

QVector<FieldKind> kindsIn(const TextMeaning &meaning)
{
    QVector<FieldKind> kinds;
    for (const TextMeaning::Part &part : meaning.parts) {
        if (!kinds.contains(part.kind))
            kinds.append(part.kind);
    }
    return kinds;
}

void take(FieldReading &reading, const QString &text, MainWord mainWord, const QString &language)
{
    if (text.isEmpty())
        return;
    const TextSort sort = mainWord == MainWord::First ? TextSort::Prose : TextSort::Code;
    TextMeaning meaning =
        meaningOf(sort == TextSort::Prose ? withoutAsides(text) : text, sort, language);
    // In "location (city)" only the aside is known.
    const bool isAside =
        meaning.parts.isEmpty() && sort == TextSort::Prose && text.contains(QLatin1Char('('));
    if (isAside)
        meaning = meaningOf(text, sort, language);
    FieldKind kind = mainKind(meaning, mainWord);
    // "Director (full name)" asks for somebody.
    if (isAside && kind == FieldKind::FullName)
        kind = FieldKind::Other;
    // "Name (last, first)" asks for the whole.
    if (kind == FieldKind::SomeName && mainWord == MainWord::First &&
        mainKind(meaningOf(text, sort, language), mainWord) == FieldKind::FullName)
        kind = FieldKind::FullName;
    if (mainWord == MainWord::First && isSum(text))
        kind = FieldKind::Never;
    if (kind == FieldKind::Unknown)
        return;
    reading.isOfRecipient = reading.isOfRecipient || meaning.isOfRecipient;
    // Many things have an address in the web.
    const bool isOfThing = kind == FieldKind::Website && mainWord == MainWord::First &&
                           hasStrangeWords(withoutAsides(text));
    if (reading.kind == FieldKind::Unknown && (isOfThing || isOfOther(meaning, kind))) {
        reading.isOfOther = kind != FieldKind::SomeNumber;
        reading.kind = FieldKind::Other;
        reading.also.append(kind);
        return;
    }
    // "user[name]" is a name in the code of a user.
    const bool isOfUser = reading.kind == FieldKind::SomeName && kind == FieldKind::UserName;
    // "Name on card" beside an example of a name.
    const bool isHolder =
        kind == FieldKind::CardHolder && mainWord == MainWord::First &&
        (reading.kind == FieldKind::FullName || reading.kind == FieldKind::FirstName);
    const bool isBetter = reading.kind == FieldKind::Unknown || isHolder ||
                          (isVagueKind(reading.kind) && !isVagueKind(kind) && !isOfUser);
    if (kind == FieldKind::Never || isBetter) {
        reading.also += reading.named;
        reading.kind = kind;
        reading.named = kindsIn(meaning);
        return;
    }
    reading.also += kindsIn(meaning);
}

/// In "CreditCardInformation.ExpirationYears" the whole is only where it belongs.
void takeLastPart(FieldReading &reading, const QString &code, const QString &language)
{
    const auto isBorder = [&](int i) { return QStringView(u".$:/[]").contains(code.at(i)); };
    int end = code.size();
    while (end > 0 && isBorder(end - 1))
        --end;
    int start = end;
    while (start > 0 && !isBorder(start - 1))
        --start;
    if (start == 0)
        return;
    const QString last = code.mid(start, end - start);
    const FieldKind kind = mainKind(meaningOf(last, TextSort::Code, language), MainWord::Last);
    if (!isVagueKind(kind) && kind != FieldKind::Unknown)
        take(reading, last, MainWord::Last, language);
}

bool isOfDate(FieldKind kind)
{
    return (kind >= FieldKind::SomeDay && kind <= FieldKind::SomeDate) ||
           (kind >= FieldKind::BirthDate && kind <= FieldKind::BirthYear);
}

FieldReading readSelect(const FormField &field, FieldReading reading)
{
    const FieldKind chosen = kindOfOptions(field.options(mostTellingOptions));
    // The choices of one question below the words of another are the page's mistake.
    if (chosen == FieldKind::Gender && isOfDate(reading.kind)) {
        reading.kind = FieldKind::Other;
        return reading;
    }
    if (reading.kind == FieldKind::Phone && reading.says(FieldKind::Country))
        reading.kind = FieldKind::PhoneCode;
    const bool isCountryOfCodes =
        chosen == FieldKind::PhoneCode &&
        (reading.kind == FieldKind::Country || reading.kind == FieldKind::Phone ||
         reading.kind == FieldKind::PhoneArea || reading.kind == FieldKind::Unknown);
    if (isCountryOfCodes || chosen == FieldKind::Gender || chosen == FieldKind::CardType)
        reading.kind = chosen;
    else if (reading.kind == FieldKind::Unknown)
        reading.kind = chosen;
    if (chosen != FieldKind::Unknown)
        reading.also.append(chosen);
    // "Address type", "contact": nobody chooses these from a list.
    if (isWritten(reading.kind))
        reading.kind = FieldKind::Other;
    return reading;
}

FieldKind kindInPassword(const FieldReading &reading)
{
    switch (reading.kind) {
    case FieldKind::Never:
    case FieldKind::NewPassword:
    case FieldKind::CurrentPassword:
    case FieldKind::RepeatedPassword:
    case FieldKind::CardCode:
    case FieldKind::CardNumber:
        return reading.kind;
    case FieldKind::Password:
        return FieldKind::Password;
    default:
        // A social security number is hidden too, and "last 4 digits of your SSN" are no name.
        return reading.named.contains(FieldKind::Other) || reading.also.contains(FieldKind::Other)
                   ? FieldKind::Other
                   : FieldKind::Password;
    }
}

/// "name@example.com" shows what is meant without saying it.
bool isExample(const QString &text)
{
    static const QRegularExpression address(QStringLiteral("^\\S+@\\S+\\.\\S+$"));
    return text.contains(QLatin1Char('@')) && address.match(text).hasMatch();
}

/// The signs between the parts of a date or a telephone number are none.
bool hasWord(const QString &text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar letter) { return letter.isLetterOrNumber(); });
}

/// Captions in a column of their own are not this field's.
bool isForMany(const QString &text)
{
    return text.size() > longestCaption &&
           kindsIn(meaningOf(text, TextSort::Prose, QString())).size() > mostKinds;
}

/// In the languages that the program speaks a text of which it knows no word means something else,
/// whatever the page's code calls the field. In others the code is all there is.
bool isForeign(const QString &language)
{
    static const QStringList spoken = {QStringLiteral("en"), QStringLiteral("de"),
                                       QStringLiteral("es"), QStringLiteral("fr"),
                                       QStringLiteral("ru")};
    return !language.isEmpty() && !spoken.contains(language.section(QLatin1Char('-'), 0, 0));
}

/// A word that is not known, beside one that is, may make something else of it: the "address
/// title". Sentences have many, and alternatives stand apart.
bool isLooseText(const QString &text)
{
    const QString plain = withoutAsides(text);
    return !plain.contains(QLatin1Char('/')) && wordsOf(plain).size() <= mostLooseWords &&
           hasStrangeWords(plain);
}

FieldReading readTextsOf(const FormField &field, const QString &next, const QString &language)
{
    FieldReading reading;
    const QStringList texts = field.readTexts();
    bool hasExample = false, hasSign = false, isLoose = false;
    for (int i = 0; i < texts.size(); ++i) {
        const QString &text = texts.at(i);
        // The label is often also the text before the field.
        if (texts.indexOf(text) < i || isForMany(text))
            continue;
        if (isExample(text)) {
            hasExample = true;
            continue;
        }
        hasSign = hasSign || !text.isEmpty();
        const bool isFirst = !reading.hasText;
        reading.hasText = reading.hasText || hasWord(text);
        const bool isOpen = reading.kind == FieldKind::Unknown;
        take(reading, text, MainWord::First, language);
        isLoose = isLoose || (isOpen && isIdentityKind(reading.kind) && isLooseText(text));
        if (isFirst && reading.hasText)
            reading.isStrange = reading.kind == FieldKind::Unknown;
    }
    if (!hasSign && field.textAfter() != next)
        take(reading, field.textAfter(), MainWord::First, language);
    const FieldKind behind = hasSign ? FieldKind::Unknown : reading.kind;
    const bool isOther =
        reading.isStrange && reading.kind == FieldKind::Unknown && !isForeign(language);
    const QString &name = field.name();
    const QString &id = field.id();
    for (const QString &code : {name, id != name ? id : QString()}) {
        if (reading.kind == FieldKind::Unknown || isVagueKind(reading.kind))
            takeLastPart(reading, code, language);
        take(reading, code, MainWord::Last, language);
    }
    const bool isOpen = reading.kind == FieldKind::Unknown && field.isLine() &&
                        kindOfType(field.inputType()) == FieldKind::Unknown;
    if (isOther && (isIdentityKind(reading.kind) || isCardKind(reading.kind) || isOpen))
        reading.kind = FieldKind::Other;
    isLoose = isLoose && !reading.also.contains(reading.kind) &&
              kindOfType(field.inputType()) != reading.kind;
    if (isLoose && isIdentityKind(reading.kind)) {
        reading.also.append(reading.kind);
        reading.kind = FieldKind::Other;
    }
    reading.isFromBehind = behind != FieldKind::Unknown && reading.kind == behind;
    // What stands before the "@" is no whole address.
    if (reading.kind == FieldKind::Email && field.textAfter().startsWith(QLatin1Char('@')))
        reading.kind = FieldKind::Other;
    // "+49" stands there already.
    static const QRegularExpression dialCode(QStringLiteral("^\\(?\\+\\d{1,3}\\)?$"));
    if (reading.kind == FieldKind::Phone && dialCode.match(field.textBefore()).hasMatch())
        reading.kind = FieldKind::PhoneNumber;
    if (reading.kind == FieldKind::Unknown && hasExample)
        reading.kind = FieldKind::Email;
    if (field.isInSearch())
        reading.kind = FieldKind::Never;
    if (field.isSelect())
        return readSelect(field, reading);
    if (field.isPassword())
        reading.kind = kindInPassword(reading);
    else if (field.isTextArea())
        reading.kind = kindInText(reading.kind);
    else if (!field.isLine())
        reading.kind = FieldKind::Other;
    else
        readType(reading, field.inputType());
    return reading;
}

} // namespace

FieldReading readField(const FormField &field, const QString &next, const QString &language)
{
    FieldReading reading = readTextsOf(field, next, language);
    const FieldKind told = kindOfAutocomplete(field);
    if (told == FieldKind::Never)
        reading.kind = told;
    if (told == FieldKind::Unknown || reading.kind == FieldKind::Never)
        return reading;
    // Ways to address a person are a question for the gender, when they can be chosen from.
    if (told == FieldKind::Other && reading.kind == FieldKind::Gender)
        return reading;
    reading.also.append(reading.kind);
    reading.kind = told;
    reading.hasText = true;
    reading.isTold = true;
    return reading;
}
