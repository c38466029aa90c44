#include "FileLayer.h"

#include "FileInUse.h"
#include "OwnerOnlyFile.h"

#include <QDir>
#include <QFile>

#include <filesystem>
#include <system_error>

static const qint64 largestFile = 64 * 1024 * 1024;

bool FileLayer::write(const QString &path, const Produce &produce, QIODevice::OpenMode mode)
{
    return writeOwnerOnlyFile(path, produce, mode);
}

bool FileLayer::writeBytes(const QString &path, const QByteArray &bytes, QIODevice::OpenMode mode)
{
    return write(
        path, [&bytes](QIODevice &device) { return device.write(bytes) == bytes.size(); }, mode);
}

std::optional<QByteArray> FileLayer::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return std::nullopt;
    return file.readAll();
}

bool FileLayer::remove(const QString &path)
{
    waitWhileFileInUse(path.toStdString());
    return QFile::remove(path) || !QFile::exists(path);
}

bool FileLayer::replace(const QString &from, const QString &to)
{
    waitWhileFileInUse(from.toStdString());
    waitWhileFileInUse(to.toStdString());
    std::error_code error;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
    return !error;
}

std::unique_ptr<QIODevice> FileLayer::open(const QString &path)
{
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadOnly))
        return nullptr;
    return file;
}

bool FileLayer::writeNew(const QString &path, const Produce &produce)
{
    return writeNewOwnerOnlyFile(path, produce);
}

bool FileLayer::force(const QString &path)
{
    return forceToDisk(path);
}

bool FileLayer::makeFolder(const QString &path)
{
    return makeOwnerOnlyFolder(path);
}

bool FileLayer::removeFolder(const QString &path)
{
    return QDir(path).removeRecursively();
}
