#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

/// The file operations of a safe. The base class makes them on the real file system; tests override
/// them to fail at will. Used from several threads at once.
class FileLayer
{
public:
    FileLayer() = default;
    virtual ~FileLayer() = default;
    FileLayer(const FileLayer &) = delete;
    FileLayer &operator=(const FileLayer &) = delete;

    using Produce = std::function<bool(QIODevice &)>;

    /// Replaces a file by what `produce` writes, or leaves it as it was; see writeOwnerOnlyFile().
    virtual bool write(const QString &path, const Produce &produce,
                       QIODevice::OpenMode mode = QIODevice::WriteOnly);
    bool writeBytes(const QString &path, const QByteArray &bytes,
                    QIODevice::OpenMode mode = QIODevice::WriteOnly);

    /// The content of a file that is small by its kind; nothing when it is missing, unreadable or
    /// larger than 64 MiB.
    virtual std::optional<QByteArray> read(const QString &path);

    /// True when the file is gone afterwards.
    virtual bool remove(const QString &path);

    /// Moves a file over another one in one step, or a folder to a free name.
    virtual bool replace(const QString &from, const QString &to);

    /// Opens a file for reading; null when that fails.
    virtual std::unique_ptr<QIODevice> open(const QString &path);

    /// Writes a file that is not there yet and that nothing refers to before force(); see
    /// writeNewOwnerOnlyFile().
    virtual bool writeNew(const QString &path, const Produce &produce);

    /// Waits until what writeNew() wrote is on the disk itself.
    virtual bool force(const QString &path);

    /// Makes a folder for the owner alone, with its missing parents.
    virtual bool makeFolder(const QString &path);

    /// Removes a folder with everything in it. True when it is gone afterwards.
    virtual bool removeFolder(const QString &path);
};
