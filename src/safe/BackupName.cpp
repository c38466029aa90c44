#include "BackupName.h"

#include "FolderPath.h"

#include <QCryptographicHash>
#include <QRegularExpression>

static const QString dayFormat = QStringLiteral("yyyyMMdd");
static const QLatin1String unfinishedSuffix(".part");

QString BackupName::placeOf(const QString &folder)
{
    const QByteArray key = folderKey(folder).toUtf8();
    return QString::fromLatin1(
        QCryptographicHash::hash(key, QCryptographicHash::Sha256).toHex().left(8));
}

QString BackupName::text() const
{
    const QString tail = place.isEmpty() ? QString() : QLatin1Char('-') + place;
    return QStringLiteral("%1_%2_%3%4.gpm")
        .arg(safeFolder, day.toString(dayFormat), QString::number(modified, 16), tail);
}

std::optional<BackupName> BackupName::parse(const QString &fileName)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(.+)_(\\d{8})_(-?[0-9a-f]{1,15})(?:-([0-9a-f]{8}))?\\.gpm$"));
    const QRegularExpressionMatch match = pattern.match(fileName);
    const QDate day = QDate::fromString(match.captured(2), dayFormat);
    if (!match.hasMatch() || !day.isValid())
        return std::nullopt;
    return BackupName{match.captured(1), day, match.captured(3).toLongLong(nullptr, 16),
                      match.captured(4)};
}

QString BackupName::unfinishedText(const QString &fileName)
{
    return fileName + unfinishedSuffix;
}

bool BackupName::isUnfinished(const QString &fileName, const QString &safeFolder)
{
    // Behind the suffix comes what a save file adds while it is written.
    const int suffix = fileName.lastIndexOf(unfinishedSuffix);
    const std::optional<BackupName> name = parse(fileName.left(suffix));
    return suffix > 0 && name && name->safeFolder == safeFolder;
}
