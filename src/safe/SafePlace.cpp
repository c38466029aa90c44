#include "SafePlace.h"

#include <QDir>
#include <QRegularExpression>
#include <QStorageInfo>

namespace {

bool isOnOwnDrive(const QString &folder)
{
    return QStorageInfo(folder).isValid() && !QStorageInfo(folder).isRoot();
}

/// The folder in which a drive appears that is plugged in; empty for a folder of the system's own.
QString driveOf(const QString &folder)
{
    static const QRegularExpression places[] = {
        QRegularExpression(QStringLiteral("^(/run/media/[^/]+/[^/]+)/")),
        QRegularExpression(QStringLiteral("^(/media/[^/]+/[^/]+)/")),
        QRegularExpression(QStringLiteral("^(/mnt/[^/]+)/")),
        QRegularExpression(QStringLiteral("^([A-Za-z]:/)")),
        QRegularExpression(QStringLiteral("^(//[^/]+/[^/]+)/")),
    };
    for (const QRegularExpression &place : places) {
        const QRegularExpressionMatch match = place.match(folder + QLatin1Char('/'));
        if (match.hasMatch())
            return match.captured(1);
    }
    return {};
}

} // namespace

SafePlace whyGone(const QString &folder, const std::function<bool(const QString &)> &isMounted)
{
    const QString drive = driveOf(QDir::cleanPath(folder));
    if (drive.isEmpty())
        return SafePlace::FolderGone;
    const bool mounted =
        isMounted ? isMounted(drive)
        : drive.startsWith(QLatin1Char('/')) && !drive.startsWith(QLatin1String("//"))
            ? isOnOwnDrive(drive)
            : QDir(drive).exists();
    return mounted ? SafePlace::FolderGone : SafePlace::DriveGone;
}
