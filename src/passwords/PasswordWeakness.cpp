#include "PasswordWeakness.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>
#include <zxcvbn.h>

namespace {

// What is longer is not weak, and takes the estimator long.
const int describedLength = 40;

// In the order of PasswordPart.
const char *const partTexts[] = {
    QT_TRANSLATE_NOOP("PasswordWeakness", "a name"),
    QT_TRANSLATE_NOOP("PasswordWeakness", "a word from a list"),
    QT_TRANSLATE_NOOP("PasswordWeakness", "a date"),
    QT_TRANSLATE_NOOP("PasswordWeakness", "keys side by side"),
    QT_TRANSLATE_NOOP("PasswordWeakness", "a sequence"),
    QT_TRANSLATE_NOOP("PasswordWeakness", "a repetition"),
    QT_TRANSLATE_NOOP("PasswordWeakness", "a digit"),
    QT_TRANSLATE_NOOP("PasswordWeakness", "digits"),
    QT_TRANSLATE_NOOP("PasswordWeakness", "a few characters"),
};

QString partText(PasswordPart part)
{
    return QCoreApplication::translate("PasswordWeakness", partTexts[static_cast<int>(part)]);
}

PasswordPart partOf(const ZxcMatch_t &match, const QByteArray &text)
{
    switch (static_cast<int>(match.Type) & ~static_cast<int>(MULTIPLE_MATCH)) {
    case USER_MATCH:
    case USER_LEET_MATCH:
        return PasswordPart::Name;
    case DICTIONARY_MATCH:
    case DICT_LEET_MATCH:
        return PasswordPart::Word;
    case DATE_MATCH:
    case YEAR_MATCH:
        return PasswordPart::Date;
    case SPATIAL_MATCH:
        return PasswordPart::KeyRow;
    case SEQUENCE_MATCH:
        return PasswordPart::Sequence;
    case REPEATS_MATCH:
        return PasswordPart::Repeat;
    default:
        break;
    }
    const char *begin = text.constData() + match.Begin;
    if (!std::all_of(begin, begin + match.Length, [](char c) { return c >= '0' && c <= '9'; }))
        return PasswordPart::Other;
    return match.Length == 1 ? PasswordPart::Digit : PasswordPart::Digits;
}

} // namespace

QVector<PasswordPart> passwordParts(const QString &password, const QStringList &names)
{
    QByteArray text = password.left(describedLength).toUtf8();
    std::vector<QByteArray> bytes;
    for (const QString &name : names)
        bytes.push_back(name.toLower().toUtf8());
    std::vector<const char *> words;
    for (const QByteArray &name : bytes)
        words.push_back(name.constData());
    words.push_back(nullptr);
    ZxcMatch_t *matches = nullptr;
    ZxcvbnMatch(text.constData(), words.data(), &matches);
    QVector<PasswordPart> parts;
    for (const ZxcMatch_t *match = matches; match; match = match->Next) {
        const PasswordPart part = partOf(*match, text);
        if (!parts.contains(part))
            parts.append(part);
    }
    ZxcvbnFreeInfo(matches);
    text.fill('\0');
    return parts;
}

QString passwordPartsText(const QVector<PasswordPart> &parts)
{
    if (parts.isEmpty() || parts == QVector<PasswordPart>{PasswordPart::Other})
        return QCoreApplication::translate("PasswordWeakness", "too few characters");
    QStringList texts;
    for (const PasswordPart part : parts)
        texts.append(partText(part));
    const QString last = texts.takeLast();
    if (texts.isEmpty())
        return last;
    return QCoreApplication::translate("PasswordWeakness", "%1 and %2")
        .arg(texts.join(QCoreApplication::translate("PasswordWeakness", ", ", "between parts")),
             last);
}
