#include "SyncFiles.h"

#include "SafeLayout.h"
#include "SyncFileName.h"

#include <QCryptographicHash>

#include <chrono>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_LINUX
#include <sys/stat.h>
#endif

namespace fs = std::filesystem;

namespace {

const int mostFiles = 200000;
const qint64 longestItem = 64LL << 20;
const qint64 longestAttachment = (4LL << 30) + (1LL << 20);
const qint64 coarsestStepMs = 3000;
const int pieceSize = 256 * 1024;

#ifdef Q_OS_LINUX
/// Asks for both at once, as a round looks at every file of a safe and its mirror.
std::optional<FileStamp> lookAt(const fs::directory_entry &file)
{
    struct stat status = {};
    if (::stat(file.path().c_str(), &status) != 0)
        return std::nullopt;
    const auto time = std::chrono::seconds(status.st_mtim.tv_sec) +
                      std::chrono::nanoseconds(status.st_mtim.tv_nsec);
    return FileStamp{S_ISREG(status.st_mode) ? static_cast<qint64>(status.st_size) : -1,
                     std::chrono::duration_cast<std::chrono::milliseconds>(time).count()};
}
#else
qint64 millisecondsOf(fs::file_time_type time)
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch()).count();
}

std::optional<FileStamp> lookAt(const fs::directory_entry &file)
{
    std::error_code error;
    if (!file.exists(error))
        return std::nullopt;
    // Not through local time, which takes longer than the rest.
    const fs::file_time_type time = file.last_write_time(error);
    const auto length = static_cast<qint64>(file.file_size(error));
    return FileStamp{error ? -1 : length, millisecondsOf(time)};
}
#endif

bool list(const QString &folder, bool copies, QMap<QString, FileStamp> &files)
{
    std::error_code error;
    fs::directory_iterator each(folder.toStdU16String(), error);
    for (int count = 0; !error && each != fs::directory_iterator(); each.increment(error)) {
        if (++count > mostFiles)
            return false;
        const QString name = QString::fromStdU16String(each->path().filename().u16string());
        std::error_code unknown;
        const auto own = SyncFileName::parse(name);
        if (own && (copies || !own->conflictCopy) && each->is_regular_file(unknown) &&
            !each->is_symlink(unknown))
            files.insert(name, lookAt(*each).value_or(FileStamp()));
    }
    return !error;
}

bool isLink(const QString &path)
{
    std::error_code error;
    return fs::is_symlink(fs::symlink_status(path.toStdU16String(), error));
}

QString textOf(const QCryptographicHash &sum)
{
    return QString::fromLatin1(sum.result().toBase64());
}

} // namespace

std::optional<SyncListing> SyncListing::of(const SafeFolder &folder, bool copies)
{
    SyncListing listing;
    listing.taken = fileClock();
    // Items first: the bytes of an attachment are written before its item.
    if (!list(folder.path(SafeLayout::content), copies, listing.content))
        return std::nullopt;
    list(folder.path(SafeLayout::attachment), copies, listing.attachment);
    return listing;
}

qint64 fileClock()
{
#ifdef Q_OS_LINUX
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
#else
    return millisecondsOf(fs::file_time_type::clock::now());
#endif
}

bool SyncListing::hasItem(const QMap<QString, FileStamp> &files, const QString &id)
{
    const auto file = files.lowerBound(id);
    return file != files.end() && file.key().startsWith(id);
}

bool isOwnMirror(const SafeFolder &mirror)
{
    return !isLink(mirror.path(SafeLayout::content)) &&
           !isLink(mirror.path(SafeLayout::attachment));
}

std::optional<QByteArray> readPlainFile(FileLayer &files, const QString &path)
{
    std::error_code error;
    // A pipe would never end.
    if (!fs::is_regular_file(fs::symlink_status(path.toStdU16String(), error)))
        return std::nullopt;
    return files.read(path);
}

std::optional<FileStamp> stampOf(const QString &path)
{
    std::error_code error;
    const fs::directory_entry file(path.toStdU16String(), error);
    return error ? std::nullopt : lookAt(file);
}

FileStamp settled(const FileStamp &stamp, qint64 taken)
{
    return stamp.time + coarsestStepMs < taken ? stamp : unsettled(stamp);
}

FileStamp unsettled(const FileStamp &stamp)
{
    return {stamp.length, 0};
}

bool isTooLong(const FileStamp &stamp, bool attachment)
{
    return stamp.length > (attachment ? longestAttachment : longestItem);
}

QString hashOf(const QByteArray &bytes)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toBase64());
}

QString hashOfFile(FileLayer &files, const QString &path, const WorkControl &control)
{
    const std::unique_ptr<QIODevice> source = files.open(path);
    if (!source)
        return {};
    QCryptographicHash sum(QCryptographicHash::Sha256);
    QByteArray piece(pieceSize, Qt::Uninitialized);
    for (;;) {
        const qint64 size = control.isCancelled() ? -1 : source->read(piece.data(), piece.size());
        if (size < 0)
            return {};
        if (size == 0)
            return textOf(sum);
        sum.addData(piece.constData(), static_cast<int>(size));
    }
}

bool copySynced(FileLayer &files, const QString &from, const QString &to, const QString &hash,
                const WorkControl &control)
{
    const std::unique_ptr<QIODevice> source = files.open(from);
    if (!source)
        return false;
    return files.write(to, [&](QIODevice &target) {
        QCryptographicHash sum(QCryptographicHash::Sha256);
        while (!source->atEnd()) {
            const QByteArray piece = source->read(pieceSize);
            if (control.isCancelled() || piece.isEmpty() || target.write(piece) != piece.size())
                return false;
            sum.addData(piece);
        }
        return textOf(sum) == hash;
    });
}
