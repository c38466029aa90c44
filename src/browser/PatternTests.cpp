#include "PatternTests.h"

#include <QRegularExpression>
#include <QVector>

namespace {

constexpr int longestPattern = 100;

/// What a part of a pattern is repeated by: nothing, a fixed count, or as often as it likes.
enum class Repeat { None, Fixed, Free };

/// The repetition that begins there.
Repeat repeatAt(const QString &pattern, int at)
{
    static const QRegularExpression fixed(QStringLiteral("\\{\\d{1,2}\\}"));
    const QChar letter = pattern.size() > at ? pattern.at(at) : QChar();
    if (letter == QLatin1Char('*') || letter == QLatin1Char('+'))
        return Repeat::Free;
    if (letter != QLatin1Char('{'))
        return Repeat::None;
    const auto found = fixed.match(pattern, at, QRegularExpression::NormalMatch,
                                   QRegularExpression::AnchoredMatchOption);
    return found.hasMatch() ? Repeat::Fixed : Repeat::Free;
}

/// Where the class of letters that begins there ends.
int endOfClass(const QString &pattern, int at)
{
    for (int i = at + 2; i < pattern.size(); ++i) {
        if (pattern.at(i) == QLatin1Char('\\'))
            ++i;
        else if (pattern.at(i) == QLatin1Char(']'))
            return i;
    }
    return pattern.size();
}

/// Letters, classes, groups, choices and repetitions; no references, no looking around, and no
/// free repetition within another.
bool isPlain(const QString &pattern)
{
    static const QString escapes = QStringLiteral("dDwWsS");
    QVector<bool> isFree = {false}; // of each open group: whether something in it repeats freely
    for (int i = 0; i < pattern.size(); ++i) {
        const QChar letter = pattern.at(i);
        if (letter == QLatin1Char('\\')) {
            const QChar escaped = pattern.size() > ++i ? pattern.at(i) : QChar();
            if (escaped.isLetterOrNumber() && !escapes.contains(escaped))
                return false;
        } else if (letter == QLatin1Char('[')) {
            i = endOfClass(pattern, i);
        } else if (letter == QLatin1Char('(')) {
            const QStringRef next = pattern.midRef(i + 1, 2);
            if (next == QLatin1String("?:"))
                i += 2;
            else if (next.startsWith(QLatin1Char('?')) || next.startsWith(QLatin1Char('*')))
                return false;
            isFree.append(false);
        } else if (letter == QLatin1Char(')')) {
            if (isFree.size() == 1)
                return false;
            const bool isInnerFree = isFree.takeLast();
            if (isInnerFree && repeatAt(pattern, i + 1) != Repeat::None)
                return false;
            isFree.last() = isFree.last() || isInnerFree;
        } else if (repeatAt(pattern, i) == Repeat::Free) {
            isFree.last() = true;
        }
    }
    return isFree.size() == 1;
}

bool run(const QString &pattern, const QString &text)
{
    const QRegularExpression expression(
        QStringLiteral("(*LIMIT_MATCH=10000)^(?:%1)$").arg(pattern));
    if (!expression.isValid())
        return true;
    const QRegularExpressionMatch match = expression.match(text);
    return !match.isValid() || match.hasMatch();
}

} // namespace

bool PatternTests::takes(const QString &pattern, const QString &text)
{
    if (pattern.isEmpty() || pattern.size() > longestPattern || !isPlain(pattern))
        return true;
    const QPair<QString, QString> asked(pattern, text);
    const auto known = m_known.constFind(asked);
    if (known != m_known.constEnd())
        return *known;
    if (m_left == 0)
        return true;
    --m_left;
    const bool takes = run(pattern, text);
    m_known.insert(asked, takes);
    return takes;
}
