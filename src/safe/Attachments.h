#pragma once

#include "SafeEnvironment.h"
#include "SecretBytes.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

/// The largest attachment that is taken in, in bytes.
constexpr qint64 largestAttachment = 10485760;

/// What is to become an attachment: a file, or bytes in memory when there is no path.
struct AttachmentSource
{
    QString path;
    QByteArray bytes;
    std::function<QByteArray()> make = {}; ///< makes the bytes on the worker, where it is set
};

enum class AttachmentFault {
    None,
    Unreadable, ///< the source is no file, or cannot be read
    TooLarge,
    NotWritten, ///< the safe's file cannot be written
};
Q_DECLARE_METATYPE(AttachmentFault)

/// What stands against a source before it is read.
AttachmentFault attachmentFault(const AttachmentSource &source);

/// The encryption of one new attachment, on any thread.
struct AttachmentJob
{
    SafeEnvironment environment;
    QString target;
    std::shared_ptr<const SecretBytes> password;
    AttachmentSource source;

    struct Result
    {
        AttachmentFault fault = AttachmentFault::None;
        QString hash; ///< of the encrypted file
    };

    /// Leaves no target when it fails, which is logged.
    Result run() const;
};

/// Decrypts one attachment of a safe, on any thread and for as long as it lives.
class AttachmentReader
{
public:
    AttachmentReader(const QString &path, std::shared_ptr<const SecretBytes> password);

    /// Decrypts the bytes into an open device, which is to be thrown away on failure.
    bool read(QIODevice &destination) const;

private:
    QString m_path;
    std::shared_ptr<const SecretBytes> m_password;
};
