#include "FolderPath.h"

#include "FileNameCase.h"

#include <QDir>
#include <QFileInfo>

QString canonicalFolder(const QString &path)
{
    const QString clean = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    const QString canonical = QFileInfo(clean).canonicalFilePath();
    if (!canonical.isEmpty())
        return canonical;
    const QString parent = QFileInfo(clean).path();
    if (parent == clean)
        return clean;
    // A folder that has gone was named after what its parents are.
    return QDir::cleanPath(canonicalFolder(parent) + QLatin1Char('/') +
                           QFileInfo(clean).fileName());
}

QString keyOf(const QString &canonical)
{
    return fileNamesIgnoreCase() ? canonical.toCaseFolded() : canonical;
}

QString folderKey(const QString &path)
{
    return keyOf(canonicalFolder(path));
}

bool isSameFolder(const QString &one, const QString &other)
{
    return one == other || folderKey(one) == folderKey(other);
}
