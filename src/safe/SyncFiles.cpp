#include "SyncFiles.h"

#include "SafeLayout.h"

#include <QCryptographicHash>

#include <chrono>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

FileStamp stampOf(const fs::directory_entry &file)
{
    std::error_code error;
    // Not through local time, which takes longer than the rest.
    const auto time = file.last_write_time(error).time_since_epoch();
    const auto length = static_cast<qint64>(file.file_size(error));
    return {error ? -1 : length,
            std::chrono::duration_cast<std::chrono::milliseconds>(time).count()};
}

bool list(const QString &folder, QMap<QString, FileStamp> &files)
{
    std::error_code error;
    fs::directory_iterator each(folder.toStdU16String(), error);
    for (; !error && each != fs::directory_iterator(); each.increment(error)) {
        std::error_code unknown;
        if (each->is_regular_file(unknown) && !each->is_symlink(unknown))
            files.insert(QString::fromStdU16String(each->path().filename().u16string()),
                         stampOf(*each));
    }
    return !error;
}

} // namespace

std::optional<SyncListing> SyncListing::of(const SafeFolder &folder)
{
    SyncListing listing;
    // Items first: the bytes of an attachment are written before its item.
    if (!list(folder.path(SafeLayout::content), listing.content))
        return std::nullopt;
    list(folder.path(SafeLayout::attachment), listing.attachment);
    return listing;
}

std::optional<FileStamp> stampOf(const QString &path)
{
    std::error_code error;
    const fs::directory_entry file(path.toStdU16String(), error);
    if (error || !file.exists(error))
        return std::nullopt;
    return stampOf(file);
}

QString hashOf(const QByteArray &bytes)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toBase64());
}

bool copySynced(FileLayer &files, const QString &from, const QString &to, const QString &hash)
{
    const std::unique_ptr<QIODevice> source = files.open(from);
    if (!source)
        return false;
    return files.write(to, [&](QIODevice &target) {
        QCryptographicHash sum(QCryptographicHash::Sha256);
        while (!source->atEnd()) {
            const QByteArray piece = source->read(256 * 1024);
            if (piece.isEmpty() || target.write(piece) != piece.size())
                return false;
            sum.addData(piece);
        }
        return QString::fromLatin1(sum.result().toBase64()) == hash;
    });
}
