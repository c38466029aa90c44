#include "DateText.h"

#include <QDate>
#include <QRegularExpression>
#include <QVector>

using PMFieldTypes::Date;

namespace {

const int century = 2000;

/// The long format without the day of the week, and without what joins it to the rest.
QString dayFormat(const QLocale &locale)
{
    static const QRegularExpression weekday(QStringLiteral("[\\s,،]*dddd?[\\s,،.]*"));
    QString format = locale.dateFormat(QLocale::LongFormat);
    format.remove(weekday);
    return format.trimmed();
}

/// The short format with the whole year.
QString shortFormat(const QLocale &locale)
{
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return format;
}

/// Where year, month and day stand in the locale's short form: "dMy".
QString order(const QLocale &locale)
{
    QString letters;
    for (const QChar letter : locale.dateFormat(QLocale::ShortFormat)) {
        if (QStringLiteral("dMy").contains(letter) && !letters.contains(letter))
            letters.append(letter);
    }
    return letters;
}

/// The numbers of a text that has no letters; empty for another.
QStringList figures(const QString &text)
{
    static const QRegularExpression letters(QStringLiteral("\\p{L}"));
    static const QRegularExpression between(QStringLiteral("[^0-9]+"));
    return text.contains(letters) ? QStringList() : text.split(between, Qt::SkipEmptyParts);
}

std::optional<Date> checked(int year, int month, int day)
{
    const QDate date(year, month, day);
    return date.isValid() && year > 0 ? std::optional<Date>({year, month, day}) : std::nullopt;
}

std::optional<Date> fromFigures(const QStringList &parts, const QString &order)
{
    if (parts.first().size() == 4)
        return checked(parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt());
    const auto part = [&](char letter) { return parts.value(order.indexOf(QLatin1Char(letter))); };
    // The century of two figures would be a guess.
    if (part('y').size() != 4)
        return std::nullopt;
    return checked(part('y').toInt(), part('M').toInt(), part('d').toInt());
}

/// A date written with the name of its month, whole or short, in the locale's tongue or in English.
std::optional<QDate> fromNames(const QString &text, const QStringList &formats,
                               const QLocale &locale)
{
    for (const QLocale &tongue : {locale, QLocale::c()}) {
        for (QString format : formats) {
            for (const char *name : {"MMMM", "MMM"}) {
                format.replace(QLatin1String("MMMM"), QLatin1String(name));
                const QDate date = tongue.toDate(text, format);
                if (date.isValid())
                    return date;
            }
        }
    }
    return std::nullopt;
}

} // namespace

QString DateText::day(const Date &date, const QLocale &locale)
{
    if (date.isEmpty())
        return {};
    const QDate day(date.year, date.month, date.day);
    return day.isValid() ? locale.toString(day, dayFormat(locale)) : date.toText();
}

QString DateText::month(const Date &date)
{
    if (date.isEmpty())
        return {};
    if (date.month == 0 || date.year == 0)
        return date.toText();
    return QStringLiteral("%1 / %2")
        .arg(date.month, 2, 10, QLatin1Char('0'))
        .arg(date.year, 4, 10, QLatin1Char('0'));
}

QString DateText::monthName(const Date &date, const QLocale &locale)
{
    if (date.isEmpty() || date.month == 0 || date.year == 0)
        return month(date);
    return QStringLiteral("%1 %2").arg(locale.standaloneMonthName(date.month),
                                       QString::number(date.year));
}

QString DateText::example(const QLocale &locale)
{
    return locale.toString(QDate(1984, 12, 31), shortFormat(locale));
}

std::optional<Date> DateText::parseDay(const QString &text, const QLocale &locale)
{
    const QString entered = text.simplified();
    if (entered.isEmpty())
        return Date();
    const QStringList parts = figures(entered);
    if (parts.size() == 3)
        return fromFigures(parts, order(locale));
    if (parts.size() == 1) {
        const Date date = Date::fromText(entered);
        return date.isEmpty() ? std::nullopt : std::optional<Date>(date);
    }
    const auto date =
        fromNames(entered,
                  {dayFormat(locale), QStringLiteral("d MMMM yyyy"), QStringLiteral("d. MMMM yyyy"),
                   QStringLiteral("MMMM d, yyyy"), QStringLiteral("MMMM d yyyy")},
                  locale);
    return date ? std::optional<Date>({date->year(), date->month(), date->day()}) : std::nullopt;
}

std::optional<Date> DateText::parseMonth(const QString &text, const QLocale &locale)
{
    const QString entered = text.simplified();
    if (entered.isEmpty())
        return Date();
    QStringList parts = figures(entered);
    // Four figures are those on the card; eight are a date as it is stored.
    if (parts.size() == 1 && parts.first().size() == 4)
        parts = QStringList{parts.first().left(2), parts.first().mid(2)};
    if (parts.size() == 1 && parts.first().size() == 8) {
        const Date date = Date::fromText(parts.first());
        return date.isEmpty() ? std::nullopt : std::optional<Date>(date);
    }
    if (parts.size() == 2) {
        if (parts.first().size() == 4)
            std::swap(parts[0], parts[1]);
        const QString year = parts.at(1);
        if (year.size() != 2 && year.size() != 4)
            return std::nullopt;
        const auto first =
            checked(year.toInt() + (year.size() == 2 ? century : 0), parts.at(0).toInt(), 1);
        return first ? std::optional<Date>({first->year, first->month, 0}) : std::nullopt;
    }
    const auto date = fromNames(entered, {QStringLiteral("MMMM yyyy")}, locale);
    return date ? std::optional<Date>({date->year(), date->month(), 0}) : std::nullopt;
}
