#pragma once

#include <QByteArray>

#include <array>

const int saltSize = 16;
const int keySize = 32;
const int keyIterations = 10000;

/// A cipher key that is wiped when it goes.
class DerivedKey
{
public:
    DerivedKey() = default;
    ~DerivedKey();
    DerivedKey(const DerivedKey &) = delete;
    DerivedKey &operator=(const DerivedKey &) = delete;

    unsigned char *data() { return m_bytes.data(); }
    const unsigned char *data() const { return m_bytes.data(); }

private:
    std::array<unsigned char, keySize> m_bytes{};
};

/// PBKDF2 (RFC 8018) with HMAC-SHA-256, 10000 iterations, a salt of 16 bytes and a key of 32: the
/// same result as PKCS5_PBKDF2_HMAC with EVP_sha256.
void deriveKey(const QByteArray &password, const unsigned char *salt, DerivedKey &key);
