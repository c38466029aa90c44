#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>

/// A secret in memory that is kept out of swap and core dumps where the system can do that, and is
/// wiped when it goes. Moves, never copies.
class SecretBytes
{
public:
    SecretBytes() = default;
    /// A copy of the bytes; the caller's own stay as they are.
    explicit SecretBytes(const QByteArray &bytes);
    ~SecretBytes();

    SecretBytes(SecretBytes &&other) noexcept;
    SecretBytes &operator=(SecretBytes &&other) noexcept;
    SecretBytes(const SecretBytes &) = delete;
    SecretBytes &operator=(const SecretBytes &) = delete;

    /// The UTF-8 bytes of a text, without leaving them anywhere else.
    static SecretBytes fromText(const QString &text);

    const char *data() const { return m_data; }
    std::size_t size() const { return m_size; }
    bool isEmpty() const { return m_size == 0; }
    bool operator==(const SecretBytes &other) const;

    /// The bytes without a copy; valid as long as this object.
    QByteArray view() const;

private:
    void release();

    char *m_data = nullptr;
    std::size_t m_size = 0;
};

/// Overwrites the bytes and empties the array. Bytes that another array shares are left alone.
void wipe(QByteArray &bytes);

/// Overwrites the text and empties it. A text that another string shares is left alone.
void wipe(QString &text);
