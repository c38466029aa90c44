#pragma once

#include <QString>

/// Entropy of a password in steps of ten bits, rounded up: 0 for the empty password. The estimate
/// is zxcvbn's, without words of the user's own.
int passwordEntropyRating(const QString &password);

/// 1 "Terrible" (the empty password), 2 "Weak" (up to 20 bits), 3 "Good" (up to 50 bits),
/// 4 "Strong".
int passwordStrengthLevel(const QString &password);

/// The level of a rating; see passwordStrengthLevel().
int strengthLevelOfRating(int rating);

/// The translated label of a level: "Terrible", "Weak", "Good" or "Strong".
QString passwordStrengthLabel(int level);
