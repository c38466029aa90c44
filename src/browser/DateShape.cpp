#include "DateShape.h"

#include "FieldOptions.h"
#include "FieldPhrases.h"
#include "FieldShape.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace {

QStringList hintsOf(const FormField &field)
{
    return QStringList(field.placeholder()) + field.readTexts();
}

/// A run of one letter that stands for a part of a date, such as "MM" or "JJJJ".
struct Run
{
    QChar letter;
    int length = 0;

    bool isMonth() const { return letter == QLatin1Char('m') || letter == QChar(0x43C); }
    bool isYear() const
    {
        static const QString years = QStringLiteral("yaгrå");
        return length == 4 || years.contains(letter);
    }
};

struct Shape
{
    QVector<Run> runs;
    QString separator;
};

/// "TT.MM.JJJJ" and its like as runs and what stands between them; empty when the text has none of
/// that many parts.
Shape shapeIn(const QString &text, int parts)
{
    static const QRegularExpression mask(
        QStringLiteral("(?<!\\pL)([dtjgдmмyaгrå])\\1{0,3}\\s*([./-]?)\\s*([dtjgдmмyaгrå])\\3{0,3}"
                       "(?:\\s*([./-]?)\\s*([dtjgдmмyaгrå])\\5{0,3})?(?!\\pL)"));
    static const QRegularExpression run(QStringLiteral("([dtjgдmмyaгrå])\\1*"));
    const QRegularExpressionMatch found = mask.match(text.toLower());
    Shape shape;
    if (!found.hasMatch())
        return shape;
    auto each = run.globalMatch(found.captured());
    while (each.hasNext()) {
        const QString letters = each.next().captured();
        shape.runs.append({letters.at(0), letters.size()});
    }
    shape.separator = found.captured(2);
    if (shape.runs.size() != parts)
        return {};
    return shape;
}

/// Whether a letter for a part of a date stands twice, as in "MM": most texts have none.
bool mayHaveShape(const QString &text)
{
    static const QString letters = QStringLiteral("dtjgдmмyaгrå");
    for (int i = 1; i < text.size(); ++i) {
        const QChar letter = text.at(i).toLower();
        if (letter == text.at(i - 1).toLower() && letters.contains(letter))
            return true;
    }
    return false;
}

Shape shapeOf(const FormField &field, int parts)
{
    const QStringList hints = hintsOf(field);
    for (const QString &hint : hints) {
        if (!mayHaveShape(hint))
            continue;
        const Shape shape = shapeIn(hint, parts);
        const auto months = std::count_if(shape.runs.begin(), shape.runs.end(),
                                          [](const Run &run) { return run.isMonth(); });
        if (months == 1)
            return shape;
    }
    return {};
}

QString part(const Run &run, const PMFieldTypes::Date &date)
{
    if (run.isMonth())
        return twoFigures(date.month);
    if (run.isYear())
        return run.length == 2 ? twoFigures(date.year % 100) : QString::number(date.year);
    return twoFigures(date.day);
}

QString inShape(const Shape &shape, const PMFieldTypes::Date &date)
{
    QStringList parts;
    for (const Run &run : shape.runs)
        parts.append(part(run, date));
    return parts.join(shape.separator);
}

/// What a text line shows of a month: "September" or "MMMM", "Sep" or "MMM".
QString monthName(int month, const QString &placeholder, const QString &language)
{
    static const QString runs = QStringLiteral("mмMМ");
    const QString shown = placeholder.trimmed();
    const bool isRun =
        shown.size() > 2 && runs.contains(shown.at(0)) && shown.count(shown.at(0)) == shown.size();
    const QString word = wordsOf(shown).value(0);
    if (!isRun && monthOfName(word) == 0)
        return {};
    const QLocale locale(language.isEmpty() ? QStringLiteral("en") : language);
    const auto format = shown.size() <= 4 && (!isRun || shown.size() == 3) ? QLocale::ShortFormat
                                                                           : QLocale::LongFormat;
    return locale.standaloneMonthName(month, format);
}

/// The month that an option shows: "9", "09 - Sep", "September 09"; 0 for none.
int monthIn(const QString &option)
{
    const QStringList words = wordsOf(option);
    for (const QString &word : words.mid(0, 2)) {
        bool isNumber = false;
        const int number = word.toInt(&isNumber);
        const int month = isNumber ? number : monthOfName(word);
        if (month > 0)
            return month;
    }
    return 0;
}

} // namespace

QVector<DatePart> datePartsOf(const FormField &field)
{
    QVector<DatePart> parts;
    for (const Run &run : shapeOf(field, 3).runs) {
        parts.append(run.isMonth()  ? DatePart::Month
                     : run.isYear() ? DatePart::Year
                                    : DatePart::Day);
    }
    return parts;
}

QString twoFigures(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

QString monthText(int month, const FieldPlace &place)
{
    const FormField &field = place.field();
    const QVector<FormField::Option> options = field.options();
    for (const FormField::Option &option : options) {
        if (monthIn(option.text) == month)
            return answerOf(option);
    }
    const QString name =
        field.isSelect() ? QString() : monthName(month, field.placeholder(), place.language);
    return name.isEmpty() ? twoFigures(month) : name;
}

QString yearText(int year, const FormField &field)
{
    static const QRegularExpression twoLetters(QStringLiteral("(?<!\\pL)(yy|jj|aa|гг)(?!\\pL)"),
                                               QRegularExpression::CaseInsensitiveOption);
    if (field.isSelect())
        return QString::number(year);
    const QStringList hints = hintsOf(field);
    const bool isShort = field.maxLength() == 2 || field.placeholder().trimmed().size() == 2 ||
                         std::any_of(hints.begin(), hints.end(), [&](const QString &hint) {
                             return twoLetters.match(hint).hasMatch();
                         });
    return isShort ? twoFigures(year % 100) : QString::number(year);
}

QString expiryText(const PMFieldTypes::Date &date, const FieldPlace &place)
{
    const FormField &field = place.field();
    if (date.year == 0 || date.month == 0)
        return {};
    const QString month = twoFigures(date.month);
    const QString year = QString::number(date.year);
    const QString shortYear = twoFigures(date.year % 100);
    if (field.inputType() == QLatin1String("month"))
        return year + QLatin1Char('-') + month;
    QStringList texts = {month + QLatin1Char('/') + shortYear,
                         month + QLatin1Char('/') + year,
                         month + shortYear,
                         month + year,
                         month + QLatin1Char('-') + shortYear,
                         year + QLatin1Char('-') + month};
    switch (field.maxLength()) {
    case 6:
        texts.move(3, 0);
        break;
    case 7:
        texts.move(1, 0);
        break;
    default:
        break;
    }
    const Shape shape = shapeOf(field, 2);
    if (!shape.runs.isEmpty())
        texts.prepend(inShape(shape, date));
    return firstThatGoes(place, texts);
}

QString birthText(const PMFieldTypes::Date &date, const FieldPlace &place)
{
    const FormField &field = place.field();
    const QString &language = place.language;
    if (date.year == 0 || date.month == 0 || date.day == 0)
        return {};
    const QString day = twoFigures(date.day);
    const QString month = twoFigures(date.month);
    const QString year = QString::number(date.year);
    const QString iso = QStringLiteral("%1-%2-%3").arg(year, month, day);
    if (field.inputType() == QLatin1String("date"))
        return iso;
    const QString dotted = QStringLiteral("%1.%2.%3").arg(day, month, year);
    const QString slashed = QStringLiteral("%1/%2/%3").arg(day, month, year);
    const QString american = QStringLiteral("%1/%2/%3").arg(month, day, year);
    QStringList texts = {iso, dotted, slashed, american};
    const QString family = language.section(QLatin1Char('-'), 0, 0).toLower();
    if (family == QLatin1String("de") || family == QLatin1String("ru"))
        texts.prepend(dotted);
    else if (family == QLatin1String("es") || family == QLatin1String("fr"))
        texts.prepend(slashed);
    else if (language.compare(QLatin1String("en-US"), Qt::CaseInsensitive) == 0)
        texts.prepend(american);
    else if (language.startsWith(QLatin1String("en-"), Qt::CaseInsensitive))
        texts.prepend(slashed);
    const Shape shape = shapeOf(field, 3);
    if (!shape.runs.isEmpty())
        texts.prepend(inShape(shape, date));
    return firstThatGoes(place, texts);
}
