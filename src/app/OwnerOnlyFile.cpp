#include "OwnerOnlyFile.h"

#include "FileInUse.h"
#include "FileSync.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

bool writeOwnerOnlyFile(const QString &path, const std::function<bool(QIODevice &)> &produce,
                        QIODevice::OpenMode mode)
{
    QSaveFile file(path);
    if (!file.open(mode))
        return false;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (!produce(file)) {
        file.cancelWriting();
        return false;
    }
    // It is tried anyhow: the system knows best.
    waitWhileFileInUse(path.toStdString());
    return file.commit();
}

bool writeOwnerOnlyFile(const QString &path, const QByteArray &content)
{
    return writeOwnerOnlyFile(
        path, [&content](QIODevice &device) { return device.write(content) == content.size(); });
}

bool makeOwnerOnlyFolder(const QString &path)
{
    const QDir folder(path);
    if (folder.exists())
        return true;
    const QString parent = QFileInfo(folder.absolutePath()).path();
    if (parent != folder.absolutePath() && !makeOwnerOnlyFolder(parent))
        return false;
    if (!QDir().mkdir(folder.absolutePath()))
        return folder.exists();
    QFile::setPermissions(folder.absolutePath(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return true;
}

bool writeNewOwnerOnlyFile(const QString &path, const std::function<bool(QIODevice &)> &produce)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    return produce(file) && file.flush() && file.error() == QFile::NoError;
}

bool forceToDisk(const QString &path)
{
    return forceFileToDisk(path.toStdString());
}
