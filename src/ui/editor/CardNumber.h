#pragma once

#include "PMCreditCard.h"

/// What a payment card's number tells.
namespace CardNumber {

/// The digits alone when the text holds nothing but digits, spaces and hyphens; else the text.
QString digits(const QString &text);

/// The digits in the groups in which they stand on the card: 4-4-4-4-3, or 4-6-5 for the numbers
/// that begin with 34 or 37. A text with anything else in it stays as it is.
QString grouped(const QString &text);

/// Visa or MasterCard by the first digits, as soon as they leave no doubt.
PMCreditCard::CreditCardType brand(const QString &text);

/// How many digits the security code has: four for the numbers that begin with 34 or 37.
int securityCodeLength(const QString &text);

} // namespace CardNumber
