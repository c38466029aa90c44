// The compression function that this needs is public, documented and marked as deprecated in
// libcrypto 3.
#define OPENSSL_SUPPRESS_DEPRECATED

#include "KeyDerivation.h"

#include <openssl/crypto.h>
#include <openssl/sha.h>

#include <cstring>

// An item takes two derivations, and PKCS5_PBKDF2_HMAC copies whole digest contexts, with counters
// shared between threads, twenty thousand times for each: that is most of its time, and two threads
// hinder each other. Here the states of the inner and the outer hash after the key block are made
// once, and an iteration is two calls of libcrypto's compression function.

namespace {

const std::size_t blockSize = SHA256_CBLOCK;
const std::size_t digestSize = SHA256_DIGEST_LENGTH;
using Block = std::array<unsigned char, blockSize>;

void storeDigest(const SHA256_CTX &state, unsigned char *out)
{
    for (std::size_t i = 0; i < digestSize / 4; ++i) {
        const SHA_LONG word = state.h[i];
        out[4 * i] = static_cast<unsigned char>(word >> 24);
        out[4 * i + 1] = static_cast<unsigned char>(word >> 16);
        out[4 * i + 2] = static_cast<unsigned char>(word >> 8);
        out[4 * i + 3] = static_cast<unsigned char>(word);
    }
}

/// The last block of a message that is one key block and then `size` bytes (RFC 6234, 4.1).
void pad(Block &block, std::size_t size)
{
    const std::size_t bits = (blockSize + size) * 8;
    std::memset(block.data() + size, 0, blockSize - size);
    block[size] = 0x80;
    block[blockSize - 2] = static_cast<unsigned char>(bits >> 8);
    block[blockSize - 1] = static_cast<unsigned char>(bits);
}

/// HMAC-SHA-256 (RFC 2104) under one key, for messages shorter than a block.
class ShortMessageHmac
{
public:
    explicit ShortMessageHmac(const QByteArray &key)
    {
        Block block{};
        if (static_cast<std::size_t>(key.size()) > blockSize)
            SHA256(reinterpret_cast<const unsigned char *>(key.constData()),
                   static_cast<std::size_t>(key.size()), block.data());
        else if (!key.isEmpty())
            std::memcpy(block.data(), key.constData(), static_cast<std::size_t>(key.size()));
        start(m_inner, block, 0x36);
        start(m_outer, block, 0x5c);
        OPENSSL_cleanse(block.data(), block.size());
    }
    ~ShortMessageHmac()
    {
        OPENSSL_cleanse(&m_inner, sizeof m_inner);
        OPENSSL_cleanse(&m_outer, sizeof m_outer);
    }
    ShortMessageHmac(const ShortMessageHmac &) = delete;
    ShortMessageHmac &operator=(const ShortMessageHmac &) = delete;

    /// Replaces the padded message in `block` by its padded code.
    void apply(Block &block) const
    {
        SHA256_CTX state = m_inner;
        SHA256_Transform(&state, block.data());
        storeDigest(state, block.data());
        pad(block, digestSize);
        state = m_outer;
        SHA256_Transform(&state, block.data());
        storeDigest(state, block.data());
    }

private:
    static void start(SHA256_CTX &state, const Block &key, unsigned char mask)
    {
        Block block;
        for (std::size_t i = 0; i < blockSize; ++i)
            block[i] = key[i] ^ mask;
        SHA256_Init(&state);
        SHA256_Transform(&state, block.data());
        OPENSSL_cleanse(block.data(), block.size());
    }

    SHA256_CTX m_inner;
    SHA256_CTX m_outer;
};

} // namespace

DerivedKey::~DerivedKey()
{
    OPENSSL_cleanse(m_bytes.data(), m_bytes.size());
}

void deriveKey(const QByteArray &password, const unsigned char *salt, DerivedKey &key)
{
    const ShortMessageHmac hmac(password);
    Block block{};
    std::memcpy(block.data(), salt, saltSize);
    block[saltSize + 3] = 1; // number of the key's only block, big-endian
    pad(block, saltSize + 4);
    hmac.apply(block);
    std::memcpy(key.data(), block.data(), keySize);
    for (int iteration = 1; iteration < keyIterations; ++iteration) {
        pad(block, digestSize);
        hmac.apply(block);
        for (int i = 0; i < keySize; ++i)
            key.data()[i] ^= block[static_cast<std::size_t>(i)];
    }
    OPENSSL_cleanse(block.data(), block.size());
}
