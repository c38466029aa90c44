#include "PMFieldTypes.h"

#include <algorithm>

namespace PMFieldTypes {

QString Date::toText() const
{
    const QLatin1Char zero('0');
    return QStringLiteral("%1%2%3")
        .arg(year, 4, 10, zero)
        .arg(month, 2, 10, zero)
        .arg(day, 2, 10, zero);
}

Date Date::fromText(const QString &text)
{
    const bool digits = text.size() == 8 && std::all_of(text.begin(), text.end(), [](QChar c) {
                            return c >= QLatin1Char('0') && c <= QLatin1Char('9');
                        });
    if (!digits)
        return {};
    const Date date{text.left(4).toInt(), text.mid(4, 2).toInt(), text.mid(6, 2).toInt()};
    if (date.month > 12 || date.day > 31)
        return {};
    return date;
}

QString Phone::toText() const
{
    return QLatin1Char('+') + code + QLatin1Char(';') + number;
}

Phone Phone::fromText(const QString &text)
{
    const int separator = text.indexOf(QLatin1Char(';'));
    if (separator < 1 || text.at(0) != QLatin1Char('+'))
        return {};
    return {text.mid(1, separator - 1), text.mid(separator + 1)};
}

void registerMetaTypes()
{
    qRegisterMetaType<Date>("PMFieldTypesDate");
    qRegisterMetaType<Phone>("PMFieldTypesPhone");
    // Without these, variants compare the addresses of the values.
    if (QMetaType::hasRegisteredComparators<Date>())
        return;
    QMetaType::registerEqualsComparator<Date>();
    QMetaType::registerEqualsComparator<Phone>();
}

} // namespace PMFieldTypes
