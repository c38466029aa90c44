#include "SyncFileName.h"

#include <QRegularExpression>

/// The name without a provider's mark, which stands in front of the ending or behind it.
static QString withoutConflictMark(const QString &fileName)
{
    static const QRegularExpression mark(
        QStringLiteral(" \\([^()]*conflicted copy[^()]*\\)|"
                       "\\.sync-conflict-[0-9]{8}-[0-9]{6}(-[0-9A-Za-z]+)?"),
        QRegularExpression::CaseInsensitiveOption);
    QString name = fileName;
    return name.remove(mark);
}

std::optional<SyncFileName> SyncFileName::parse(const QString &fileName)
{
    static const QRegularExpression own(QStringLiteral(
        "^[0-9a-fA-F]{8}(-[0-9a-fA-F]{4}){3}-[0-9a-fA-F]{12}(\\.[1-9][0-9]{0,8})?$"));
    const QString name = withoutConflictMark(fileName);
    if (!own.match(name).hasMatch())
        return std::nullopt;
    return SyncFileName{ItemFileName::parse(name), name.size() != fileName.size()};
}

bool isConflictCopyOf(const QString &fileName, const QString &original)
{
    return fileName != original && withoutConflictMark(fileName) == original;
}
