#include "CardNumber.h"

#include <QStringList>

#include <algorithm>

namespace {

bool isDigit(QChar letter)
{
    return letter >= QLatin1Char('0') && letter <= QLatin1Char('9');
}

/// Whether this is one of the numbers of fifteen digits.
bool isShort(const QString &digits)
{
    return digits.startsWith(QLatin1String("34")) || digits.startsWith(QLatin1String("37"));
}

bool isMasterCard(const QString &digits)
{
    const int two = digits.left(2).toInt();
    if (two >= 51 && two <= 55)
        return true;
    const int four = digits.size() < 4 ? 0 : digits.left(4).toInt();
    return four >= 2221 && four <= 2720;
}

} // namespace

QString CardNumber::digits(const QString &text)
{
    QString found;
    for (const QChar letter : text) {
        if (isDigit(letter))
            found.append(letter);
        else if (letter != QLatin1Char(' ') && letter != QLatin1Char('-'))
            return text;
    }
    return found;
}

QString CardNumber::grouped(const QString &text)
{
    const QString all = digits(text);
    if (!std::all_of(all.begin(), all.end(), isDigit))
        return text;
    QStringList groups;
    for (int start = 0, length = 4; start < all.size(); start += length) {
        if (isShort(all) && start > 0)
            length = start == 4 ? 6 : 5;
        groups.append(all.mid(start, length));
    }
    return groups.join(QLatin1Char(' '));
}

PMCreditCard::CreditCardType CardNumber::brand(const QString &text)
{
    const QString all = digits(text);
    if (all.startsWith(QLatin1Char('4')))
        return PMCreditCard::Visa;
    return isMasterCard(all) ? PMCreditCard::MasterCard : PMCreditCard::UndefinedCard;
}

int CardNumber::securityCodeLength(const QString &text)
{
    return isShort(digits(text)) ? 4 : 3;
}
