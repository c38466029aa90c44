#include "FieldShape.h"

#include "FieldPhrases.h"

namespace {

/// No value is asked for in so many fields side by side.
constexpr int mostParts = 6;
constexpr int longestPart = 6;
/// The extension reports no more of an option's text.
constexpr int longestOption = 60;

QString folded(const QString &text)
{
    return wordsOf(text.left(longestOption)).join(QLatin1Char(' '));
}

bool isSlot(QChar letter)
{
    static const QString figures = QStringLiteral("_#xX0123456789");
    return figures.contains(letter);
}

} // namespace

bool fits(const FormField &field, const QString &text)
{
    return field.maxLength() <= 0 || text.size() <= field.maxLength();
}

QString firstThatGoes(const FieldPlace &place, const QStringList &texts)
{
    const FormField &field = place.field();
    for (const QString &text : texts) {
        if (fits(field, text) && place.patterns.takes(field.pattern(), text))
            return text;
    }
    return fits(field, texts.value(0)) ? texts.value(0) : QString();
}

QString digitsOf(const QString &text)
{
    QString digits;
    for (const QChar letter : text) {
        if (letter.isDigit())
            digits += letter;
    }
    return digits;
}

QString inMask(const QString &mask, const QString &digits)
{
    QString text;
    int used = 0;
    for (const QChar letter : mask) {
        if (letter.isLetterOrNumber() && !isSlot(letter))
            return {};
        text += isSlot(letter) ? digits.mid(used++, 1) : QString(letter);
    }
    return used == digits.size() ? text : QString();
}

QString partAt(const FieldPlace &place, const QStringList &parts)
{
    const FieldKind kind = place.kind();
    if (!place.field().hasHints())
        return {};
    int first = place.at;
    while (first > 0 && place.at - first < mostParts && place.kinds.at(first - 1) == kind)
        --first;
    int count = 0;
    int before = 0;
    bool areShort = true;
    for (int i = first; count <= mostParts && place.kinds.value(i) == kind; ++i, ++count) {
        const int length = place.fields.at(i).maxLength();
        areShort = areShort && length > 0 && length <= longestPart;
        before += i < place.at ? length : 0;
    }
    if (count < 2 || count > mostParts)
        return {};
    if (areShort)
        return parts.join(QString()).mid(before, place.field().maxLength());
    return count == parts.size() && count > 2 ? parts.at(place.at - first) : QString();
}

QString optionFor(const FormField &field, const QStringList &words)
{
    QStringList wanted;
    for (const QString &word : words)
        wanted.append(folded(word));
    wanted.removeAll(QString());
    const QVector<FormField::Option> options = field.options();
    for (const auto member : {&FormField::Option::text, &FormField::Option::value}) {
        for (const FormField::Option &option : options) {
            if (wanted.contains(folded(option.*member)))
                return answerOf(option);
        }
    }
    return {};
}

QString answerOf(const FormField::Option &option)
{
    const bool isCut = option.text.size() >= longestOption;
    return option.text.isEmpty() || isCut ? option.value : option.text;
}
