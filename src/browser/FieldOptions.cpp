#include "FieldOptions.h"

#include "FieldPhrases.h"

#include <QDate>
#include <QHash>
#include <QLocale>

namespace {

constexpr int firstYear = 1900;
constexpr int lastYear = 2100;
/// The page writes the choices; what is longer is none.
constexpr int longestChoice = 200;
/// With all titles of a person.
constexpr int mostSexes = 12;

QHash<QString, int> monthNames()
{
    static const QLocale::Language languages[] = {
        QLocale::English, QLocale::German, QLocale::Spanish, QLocale::French, QLocale::Russian};
    QHash<QString, int> names;
    for (const QLocale::Language language : languages) {
        const QLocale locale(language);
        for (int month = 1; month <= 12; ++month) {
            for (const QLocale::FormatType format : {QLocale::LongFormat, QLocale::ShortFormat}) {
                names.insert(wordsOf(locale.monthName(month, format)).value(0), month);
                names.insert(wordsOf(locale.standaloneMonthName(month, format)).value(0), month);
            }
        }
    }
    return names;
}

/// What the choices have in common.
struct Tally
{
    int all = 0;
    int months = 0;
    int years = 0;
    int dialCodes = 0;
    int cards = 0;
    int largest = 0;
    int smallest = lastYear;
    int numbers = 0;
};

bool isCardName(const QString &text)
{
    static const QStringList names = {QStringLiteral("visa"), QStringLiteral("master"),
                                      QStringLiteral("amex"), QStringLiteral("american express"),
                                      QStringLiteral("maestro")};
    return std::any_of(names.begin(), names.end(), [&](const QString &name) {
        return text.contains(name, Qt::CaseInsensitive);
    });
}

bool hasDialCode(const QString &text)
{
    const int plus = text.indexOf(QLatin1Char('+'));
    return plus >= 0 && plus + 1 < text.size() && text.at(plus + 1).isDigit();
}

void count(Tally &tally, const QString &text)
{
    ++tally.all;
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber) {
        ++tally.numbers;
        tally.largest = qMax(tally.largest, number);
        tally.smallest = qMin(tally.smallest, number);
        tally.years += number >= firstYear && number <= lastYear ? 1 : 0;
    }
    const QStringList words = wordsOf(text);
    tally.months += monthOfName(words.value(0)) > 0 || monthOfName(words.value(1)) > 0 ? 1 : 0;
    tally.dialCodes += hasDialCode(text) ? 1 : 0;
    tally.cards += isCardName(text) ? 1 : 0;
}

} // namespace

int monthOfName(const QString &text)
{
    static const QHash<QString, int> names = monthNames();
    return text.isEmpty() ? 0 : names.value(text.toLower());
}

Sex sexOfChoice(const QString &text)
{
    static const QStringList men =
        QStringLiteral("m|male|man|mr|mister|sir|herr|mann|mannlich|"
                       "hombre|masculino|varon|sr|senor|homme|masculin|"
                       "monsieur|мужчина|мужскои|муж|м|г н|господин|dhr|heer|man|uomo|maschio|"
                       "sig|signor|homem|pan|mezczyzna|erkek|muz|herre|mies")
            .split(QLatin1Char('|'));
    static const QStringList women =
        QStringLiteral(
            "f|w|female|woman|mrs|ms|miss|madam|frau|weiblich|mujer|femenino|sra|srta|"
            "senora|femme|feminin|mme|madame|mlle|женщина|женскии|жен|ж|г жа|госпожа|mevr|mevrouw|"
            "vrouw|donna|femmina|sig "
            "ra|signora|mulher|pani|kobieta|kadin|zena|kvinna|kvinde|nainen")
            .split(QLatin1Char('|'));
    const QString plain = wordsOf(text.left(longestChoice)).join(QLatin1Char(' '));
    if (men.contains(plain))
        return Sex::Male;
    return women.contains(plain) ? Sex::Female : Sex::Unknown;
}

bool areSexes(const QStringList &choices)
{
    // "Diverse", "other", "not told".
    static const QString further = QString::fromUtf8("xduonахд");
    bool hasMen = false;
    bool hasWomen = false;
    for (const QString &choice : choices) {
        const Sex sex = sexOfChoice(choice);
        hasMen = hasMen || sex == Sex::Male;
        hasWomen = hasWomen || sex == Sex::Female;
        const QString letter = choice.trimmed();
        if (sex == Sex::Unknown && letter.size() == 1 && letter.at(0).isLetter() &&
            !further.contains(letter, Qt::CaseInsensitive))
            return false;
    }
    return hasMen && hasWomen && choices.size() <= mostSexes;
}

FieldKind kindOfOptions(const QVector<FormField::Option> &options)
{
    Tally tally;
    QStringList choices;
    for (const FormField::Option &option : options) {
        // The first is often an invitation to choose.
        if (option.value.isEmpty() || option.value == QLatin1String("0"))
            continue;
        choices.append(
            (option.text.trimmed().isEmpty() ? option.value : option.text).left(longestChoice));
        count(tally, choices.last());
    }
    if (tally.all < 2)
        return FieldKind::Unknown;
    const auto most = [&](int number) { return number * 3 >= tally.all * 2; };
    if (areSexes(choices))
        return FieldKind::Gender;
    if (most(tally.dialCodes))
        return FieldKind::PhoneCode;
    if (tally.cards > 1 || (tally.cards > 0 && most(tally.cards)))
        return FieldKind::CardType;
    if (most(tally.months) && tally.all <= 13)
        return FieldKind::SomeMonth;
    if (!most(tally.numbers))
        return FieldKind::Unknown;
    if (most(tally.years) || (tally.smallest >= 20 && tally.largest <= 60 && tally.numbers > 1))
        return FieldKind::SomeYear;
    if (tally.smallest < 1 || tally.largest > 31)
        return FieldKind::Unknown;
    return tally.largest > 12 ? FieldKind::SomeDay : FieldKind::SomeMonth;
}
