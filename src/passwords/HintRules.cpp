#include "HintRules.h"

namespace {

/// Shorter ones occur in every second sentence.
const int shortestPassword = 3;

/// What is left when nobody looks at case, blanks and signs.
QString plain(const QString &text)
{
    QString letters;
    for (const QChar sign : text.normalized(QString::NormalizationForm_KC)) {
        if (sign.isLetterOrNumber() || sign.isSurrogate())
            letters.append(sign.toCaseFolded());
    }
    return letters;
}

} // namespace

bool hintTellsPassword(const QString &hint, const QString &password)
{
    if (password.isEmpty())
        return false;
    if (hint.trimmed().compare(password.trimmed(), Qt::CaseInsensitive) == 0)
        return true;
    if (password.size() >= shortestPassword && hint.contains(password, Qt::CaseInsensitive))
        return true;
    const QString told = plain(hint);
    const QString secret = plain(password);
    return secret.size() >= shortestPassword && told.contains(secret);
}
