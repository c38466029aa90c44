#include "PasswordStrength.h"

#include <QCoreApplication>

#include <cmath>
#include <zxcvbn.h>

namespace {

// The estimator's time grows with the square of the length and more; a password beyond this is
// strong by its first characters, or it repeats itself and its length adds next to nothing.
const int estimatedLength = 100;

} // namespace

int passwordEntropyRating(const QString &password)
{
    QByteArray text = password.left(estimatedLength).toLocal8Bit();
    const char *noWords[] = {nullptr};
    ZxcMatch_t *matches = nullptr;
    const double entropy = ZxcvbnMatch(text.constData(), noWords, &matches);
    ZxcvbnFreeInfo(matches);
    text.fill('\0');
    return static_cast<int>(std::ceil(entropy / 10.0));
}

int strengthLevelOfRating(int rating)
{
    if (rating > 5)
        return 4;
    if (rating >= 3)
        return 3;
    return rating >= 1 ? 2 : 1;
}

int passwordStrengthLevel(const QString &password)
{
    return strengthLevelOfRating(passwordEntropyRating(password));
}

QString passwordStrengthLabel(int level)
{
    switch (level) {
    case 4:
        return QCoreApplication::translate("PasswordStrength", "Strong");
    case 3:
        return QCoreApplication::translate("PasswordStrength", "Good");
    case 2:
        return QCoreApplication::translate("PasswordStrength", "Weak");
    default:
        return QCoreApplication::translate("PasswordStrength", "Terrible");
    }
}
