#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <functional>
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

    /// Moves a file over another one in one step.
    virtual bool replace(const QString &from, const QString &to);
};
