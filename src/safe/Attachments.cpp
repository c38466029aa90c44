#include "Attachments.h"

#include "SafeCrypto.h"

#include <QBuffer>
#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace {

/// Hands the bytes of another device through and ends with an error behind the largest attachment:
/// a file may grow after its size was looked at.
class BoundedSource : public QIODevice
{
public:
    explicit BoundedSource(QIODevice &source)
        : m_source(source)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isTooLarge() const { return m_left < 0; }
    bool failed() const { return m_failed; }
    bool isSequential() const override { return true; }
    bool atEnd() const override { return !m_failed && m_left >= 0 && m_source.atEnd(); }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 got = m_source.read(data, size);
        m_failed = got < 0 || (got == 0 && !m_source.atEnd());
        m_left -= qMax<qint64>(got, 0);
        return m_failed || m_left < 0 ? -1 : got;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QIODevice &m_source;
    qint64 m_left = largestAttachment;
    bool m_failed = false;
};

} // namespace

AttachmentFault attachmentFault(const AttachmentSource &source)
{
    if (source.path.isEmpty())
        return source.bytes.size() > largestAttachment ? AttachmentFault::TooLarge
                                                       : AttachmentFault::None;
    const QFileInfo info(source.path);
    // Folders and devices: reading those may never end.
    if (!info.isFile() || !info.isReadable())
        return AttachmentFault::Unreadable;
    return info.size() > largestAttachment ? AttachmentFault::TooLarge : AttachmentFault::None;
}

AttachmentJob::Result AttachmentJob::run() const
{
    AttachmentFault fault = attachmentFault(source);
    QFile file(source.path);
    QBuffer buffer;
    buffer.setData(source.make ? source.make() : source.bytes);
    QIODevice &device = source.path.isEmpty() ? static_cast<QIODevice &>(buffer) : file;
    if (source.make && buffer.data().isEmpty())
        fault = AttachmentFault::Unreadable;
    if (fault == AttachmentFault::None && !device.open(QIODevice::ReadOnly))
        fault = AttachmentFault::Unreadable;
    if (fault != AttachmentFault::None)
        return {fault, {}};
    BoundedSource bytes(device);
    const bool written = environment.files->write(target, [&](QIODevice &destination) {
        return cryptStream(password->view(), bytes, destination, CryptDirection::Encrypt,
                           environment.random) &&
               !bytes.failed() && !bytes.isTooLarge();
    });
    if (written)
        return {AttachmentFault::None, fileHash(target)};
    if (bytes.isTooLarge())
        return {AttachmentFault::TooLarge, {}};
    if (bytes.failed())
        return {AttachmentFault::Unreadable, {}};
    qWarning() << "GPMSafe::addAttachment"
               << "Can't save attachment to file:" << target;
    return {AttachmentFault::NotWritten, {}};
}

AttachmentReader::AttachmentReader(const QString &path, std::shared_ptr<const SecretBytes> password)
    : m_path(path)
    , m_password(std::move(password))
{
}

bool AttachmentReader::read(QIODevice &destination) const
{
    QFile source(m_path);
    const bool good = source.open(QIODevice::ReadOnly) &&
                      cryptStream(m_password->view(), source, destination, CryptDirection::Decrypt);
    if (!good)
        qWarning() << "GPMSafe::readAttachment"
                   << "Can't read attachment file:" << m_path;
    return good;
}
