#include "SyncFileName.h"

#include <QRegularExpression>

namespace {

/// What providers put into the name of a file beside which they set another version: words in
/// brackets that speak of a conflict, in whatever language, or give its date; a number; the name of
/// a computer.
const QString mark = QStringLiteral(
    "(?: "
    "\\([^()]*(?:(?i:conflict|conflit|konflikt|конфликт)|[12][0-9]{3}-[0-9]{2}-[0-9]{2})[^()]*\\)"
    "| \\([1-9][0-9]{0,2}\\)"
    "| [1-9][0-9]{0,2}"
    "|\\.sync-conflict-[0-9]{8}-[0-9]{6}(?:-[0-9A-Za-z]+)?"
    "|_conflict-[0-9]{8}-[0-9]{6}"
    "|-[0-9A-Z][0-9A-Z-]{0,14})");

/// A name of which the mark stands in front of the ending or behind it.
QRegularExpression copyOf(const QString &stem, const QString &ending)
{
    return QRegularExpression(QStringLiteral("^(%1)%3*(%2)%3*$").arg(stem, ending, mark));
}

} // namespace

std::optional<SyncFileName> SyncFileName::parse(const QString &fileName)
{
    static const QString id =
        QStringLiteral("[0-9a-fA-F]{8}(?:-[0-9a-fA-F]{4}){3}-[0-9a-fA-F]{12}");
    static const QString generation = QStringLiteral("(?:\\.[1-9][0-9]{0,8})?");
    static const QRegularExpression own(QLatin1Char('^') + id + generation + QLatin1Char('$'));
    static const QRegularExpression copy = copyOf(id, generation);
    if (own.match(fileName).hasMatch())
        return SyncFileName{ItemFileName::parse(fileName), false};
    const QRegularExpressionMatch found = copy.match(fileName);
    if (!found.hasMatch())
        return std::nullopt;
    return SyncFileName{ItemFileName::parse(found.captured(1) + found.captured(2)), true};
}

bool isConflictCopyOf(const QString &fileName, const QString &original)
{
    if (fileName == original)
        return false;
    const int dot = original.lastIndexOf(QLatin1Char('.'));
    return copyOf(QRegularExpression::escape(original.left(dot)),
                  QRegularExpression::escape(original.mid(dot)))
        .match(fileName)
        .hasMatch();
}
