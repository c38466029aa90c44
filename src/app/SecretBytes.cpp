#include "SecretBytes.h"

#include "SecretMemory.h"

#include <QtDebug>

#include <atomic>
#include <cstring>
#include <utility>

/// Secrets come in on several threads.
static void sayThatSecretsMaySwap()
{
    static std::atomic_flag said = ATOMIC_FLAG_INIT;
    if (!said.test_and_set())
        qWarning("SecretBytes: the system does not keep secrets off the disk that it swaps to");
}

SecretBytes::SecretBytes(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return;
    m_size = static_cast<std::size_t>(bytes.size());
    bool isKept = false;
    m_data = static_cast<char *>(allocateSecretMemory(m_size, &isKept));
    if (!isKept)
        sayThatSecretsMaySwap();
    std::memcpy(m_data, bytes.constData(), m_size);
}

SecretBytes::~SecretBytes()
{
    release();
}

SecretBytes::SecretBytes(SecretBytes &&other) noexcept
    : m_data(std::exchange(other.m_data, nullptr))
    , m_size(std::exchange(other.m_size, 0))
{
}

SecretBytes &SecretBytes::operator=(SecretBytes &&other) noexcept
{
    if (this != &other) {
        release();
        m_data = std::exchange(other.m_data, nullptr);
        m_size = std::exchange(other.m_size, 0);
    }
    return *this;
}

SecretBytes SecretBytes::fromText(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    SecretBytes secret(bytes);
    wipe(bytes);
    return secret;
}

bool SecretBytes::operator==(const SecretBytes &other) const
{
    return m_size == other.m_size &&
           (m_size == 0 || std::memcmp(m_data, other.m_data, m_size) == 0);
}

QByteArray SecretBytes::view() const
{
    return QByteArray::fromRawData(m_data, static_cast<int>(m_size));
}

void SecretBytes::release()
{
    freeSecretMemory(m_data, m_size);
    m_data = nullptr;
    m_size = 0;
}

void wipe(QByteArray &bytes)
{
    if (!bytes.isEmpty() && bytes.isDetached())
        wipeMemory(bytes.data(), static_cast<std::size_t>(bytes.size()));
    bytes = QByteArray();
}

void wipe(QString &text)
{
    if (!text.isEmpty() && text.isDetached())
        wipeMemory(text.data(), static_cast<std::size_t>(text.size()) * sizeof(QChar));
    text = QString();
}
