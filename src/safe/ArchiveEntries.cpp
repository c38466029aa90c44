#include "ArchiveEntries.h"

#include "SafeLayout.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

bool isForbidden(const QString &name)
{
    const auto dangerous = [](QChar c) {
        return c == QLatin1Char('\\') || c == QLatin1Char(':') || c < QLatin1Char(' ') ||
               c == QChar(0x7f);
    };
    if (name.isEmpty() || std::any_of(name.begin(), name.end(), dangerous))
        return true;
    QStringList parts = name.split(QLatin1Char('/'));
    if (parts.size() > 1 && parts.last().isEmpty())
        parts.removeLast(); // a folder
    return std::any_of(parts.begin(), parts.end(), [](const QString &part) {
        return part.isEmpty() || part == QLatin1String(".") || part == QLatin1String("..");
    });
}

/// Names that stand for devices on Windows, or that it would store under another name.
bool isPortable(const QString &fileName)
{
    static const QRegularExpression device(
        QStringLiteral("^(con|prn|aux|nul|conin\\$|conout\\$|(com|lpt)[0-9¹²³]) *(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return !fileName.endsWith(QLatin1Char('.')) && !fileName.endsWith(QLatin1Char(' ')) &&
           !device.match(fileName).hasMatch();
}

} // namespace

ArchiveEntries::Place ArchiveEntries::place(const QString &name)
{
    if (isForbidden(name))
        return Place::Forbidden;
    for (const char *file :
         {SafeLayout::meta, SafeLayout::restore, SafeLayout::passId, SafeLayout::oldMeta}) {
        if (name == QLatin1String(file))
            return Place::Safe;
    }
    const QString folder = name.section(QLatin1Char('/'), 0, 0);
    const QString file = name.section(QLatin1Char('/'), 1);
    if (file.isEmpty() || file.contains(QLatin1Char('/')) || !isPortable(file))
        return Place::Elsewhere;
    for (const char *known : {SafeLayout::content, SafeLayout::attachment, SafeLayout::favicon}) {
        if (folder == QLatin1String(known))
            return Place::Safe;
    }
    return Place::Elsewhere;
}

QString ArchiveEntries::sameFile(const QString &name)
{
    return name.toCaseFolded();
}

bool ArchiveEntries::isTooLarge(qint64 unpackedSize, qint64 archiveSize)
{
    return unpackedSize > largestTotal || unpackedSize / 100 > archiveSize;
}
