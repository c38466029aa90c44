#include "SafeCrypto.h"

#include "KeyDerivation.h"
#include "OwnerOnlyFile.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDebug>
#include <QFile>

#include <openssl/crypto.h>
#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

namespace {

const int randomBlockSize = 1024;
const int pieceSize = 10240;
const int ivSize = 16;
const int fixedHeaderSize = ivSize + saltSize;
const int cipherBlockSize = 16;
const int passIdHalf = 384;

/// The first bytes of an envelope. Byte 0 is the offset of IV and salt.
class Header
{
public:
    /// A header for a new envelope; false when the random source fails.
    bool draw(const RandomSource &random) { return random(m_block.data(), randomBlockSize); }

    /// Takes the header off the front of a device; false when it ends too early.
    bool read(QIODevice &source)
    {
        char *bytes = reinterpret_cast<char *>(m_block.data());
        return readExactly(source, bytes, 1) && readExactly(source, bytes + 1, size() - 1);
    }

    int size() const { return m_block[0] + fixedHeaderSize; }
    const char *bytes() const { return reinterpret_cast<const char *>(m_block.data()); }
    const unsigned char *iv() const { return m_block.data() + m_block[0]; }
    const unsigned char *salt() const { return iv() + ivSize; }

private:
    static bool readExactly(QIODevice &source, char *bytes, int size)
    {
        int got = 0;
        while (got < size) {
            const qint64 piece = source.read(bytes + got, size - got);
            if (piece <= 0)
                return false;
            got += static_cast<int>(piece);
        }
        return true;
    }

    std::array<unsigned char, randomBlockSize> m_block;
};

/// One run of the cipher in one direction. Its output buffer is wiped at the end.
class Cipher
{
public:
    Cipher(const QByteArray &password, const Header &header, CryptDirection direction)
        : m_context(EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free)
    {
        DerivedKey key;
        deriveKey(password, header.salt(), key);
        const int encrypt = direction == CryptDirection::Encrypt ? 1 : 0;
        m_ready = m_context &&
                  EVP_CipherInit_ex(m_context.get(), EVP_aes_256_cbc(), nullptr, nullptr, nullptr,
                                    encrypt) == 1 &&
                  EVP_CipherInit_ex(m_context.get(), nullptr, nullptr, key.data(), header.iv(),
                                    encrypt) == 1;
    }
    ~Cipher() { OPENSSL_cleanse(m_output.data(), m_output.size()); }
    Cipher(const Cipher &) = delete;
    Cipher &operator=(const Cipher &) = delete;

    /// Up to pieceSize + cipherBlockSize bytes of input; the result is in output().
    bool update(const char *input, int size)
    {
        return m_ready &&
               EVP_CipherUpdate(m_context.get(), m_output.data(), &m_size,
                                reinterpret_cast<const unsigned char *>(input), size) == 1;
    }

    bool finish()
    {
        return m_ready && EVP_CipherFinal_ex(m_context.get(), m_output.data(), &m_size) == 1;
    }

    const char *output() const { return reinterpret_cast<const char *>(m_output.data()); }
    int outputSize() const { return m_size; }

private:
    std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> m_context;
    std::array<unsigned char, pieceSize + 2 * cipherBlockSize> m_output;
    int m_size = 0;
    bool m_ready = false;
};

bool writeOutput(const Cipher &cipher, QIODevice &destination)
{
    return destination.write(cipher.output(), cipher.outputSize()) == cipher.outputSize();
}

/// Hands the rest of a device to `use` in pieces; false when reading or `use` fails.
template <typename Use>
bool forEachPiece(QIODevice &source, Use use)
{
    std::array<char, pieceSize> piece;
    qint64 size = source.read(piece.data(), piece.size());
    bool good = size >= 0;
    while (good && size > 0) {
        good = use(piece.data(), static_cast<int>(size));
        if (!good)
            break;
        size = source.read(piece.data(), piece.size());
        // A device at its end may answer either 0 or -1.
        good = size >= 0 || source.atEnd();
    }
    OPENSSL_cleanse(piece.data(), piece.size());
    return good;
}

bool runCipher(Cipher &cipher, QIODevice &source, QIODevice &destination)
{
    return forEachPiece(source,
                        [&](const char *bytes, int size) {
                            return cipher.update(bytes, size) && writeOutput(cipher, destination);
                        }) &&
           cipher.finish() && writeOutput(cipher, destination);
}

/// The cipher over bytes in memory, appended to `output`, which is given its room beforehand so
/// that it never moves and leaves a copy.
bool runCipher(Cipher &cipher, const char *bytes, int size, QByteArray &output)
{
    for (int done = 0; done < size; done += pieceSize) {
        if (!cipher.update(bytes + done, std::min(pieceSize, size - done)))
            return false;
        output.append(cipher.output(), cipher.outputSize());
    }
    if (!cipher.finish())
        return false;
    output.append(cipher.output(), cipher.outputSize());
    return true;
}

} // namespace

bool cryptStream(const QByteArray &password, QIODevice &source, QIODevice &destination,
                 CryptDirection direction, const RandomSource &random)
{
    Header header;
    if (direction == CryptDirection::Decrypt) {
        if (!header.read(source))
            return false;
    } else if (!header.draw(random) ||
               destination.write(header.bytes(), header.size()) != header.size()) {
        return false;
    }
    Cipher cipher(password, header, direction);
    return runCipher(cipher, source, destination);
}

bool encryptString(const QByteArray &password, const QByteArray &plain, QString &output,
                   const RandomSource &random)
{
    Header header;
    if (!header.draw(random))
        return false;
    QByteArray envelope;
    envelope.reserve(header.size() + plain.size() + cipherBlockSize);
    envelope.append(header.bytes(), header.size());
    Cipher cipher(password, header, CryptDirection::Encrypt);
    if (!runCipher(cipher, plain.constData(), plain.size(), envelope))
        return false;
    output += QString::fromLatin1(envelope.toBase64(QByteArray::OmitTrailingEquals));
    return true;
}

std::optional<QByteArray> decryptString(const QByteArray &password, const QString &text)
{
    const auto decoded = QByteArray::fromBase64Encoding(
        text.trimmed().toLatin1(),
        QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return std::nullopt;
    QByteArray envelope = *decoded;
    QBuffer source(&envelope);
    Header header;
    if (!source.open(QIODevice::ReadOnly) || !header.read(source))
        return std::nullopt;

    QByteArray plain;
    plain.reserve(envelope.size());
    Cipher cipher(password, header, CryptDirection::Decrypt);
    if (!runCipher(cipher, envelope.constData() + header.size(), envelope.size() - header.size(),
                   plain)) {
        plain.fill('\0');
        return std::nullopt;
    }
    return plain;
}

QString makePassId(const QByteArray &password, const RandomSource &random)
{
    std::array<unsigned char, passIdHalf> half{};
    if (!random(half.data(), passIdHalf))
        return {};
    const auto first = std::find_if(half.begin(), half.end(), [](unsigned char b) { return b; });
    const unsigned char mask = first == half.end() ? 0 : *first;
    QByteArray plain(reinterpret_cast<const char *>(half.data()), passIdHalf);
    for (const unsigned char each : half)
        plain.append(static_cast<char>(each ^ mask));
    QString passId;
    encryptString(password, plain, passId, random);
    return passId;
}

bool checkPassId(const QByteArray &password, const QString &passId)
{
    const std::optional<QByteArray> plain = decryptString(password, passId);
    if (!plain || plain->size() % 2 != 0)
        return false;
    const int half = plain->size() / 2;
    char mask = 0;
    for (int i = 0; i < half && mask == 0; ++i)
        mask = plain->at(i);
    for (int i = 0; i < half; ++i) {
        if (plain->at(i) != (plain->at(half + i) ^ mask))
            return false;
    }
    return true;
}

bool reencryptStream(const QByteArray &oldPassword, const QByteArray &newPassword,
                     QIODevice &source, QIODevice &destination, const RandomSource &random)
{
    Header oldHeader;
    if (!oldHeader.read(source))
        return false;
    Header newHeader;
    if (!newHeader.draw(random)) {
        qWarning("Error in RAND_bytes!");
        return false;
    }
    if (destination.write(newHeader.bytes(), newHeader.size()) != newHeader.size())
        return false;

    Cipher decrypt(oldPassword, oldHeader, CryptDirection::Decrypt);
    Cipher encrypt(newPassword, newHeader, CryptDirection::Encrypt);
    const auto pass = [&] {
        return encrypt.update(decrypt.output(), decrypt.outputSize()) &&
               writeOutput(encrypt, destination);
    };
    return forEachPiece(source, [&](const char *bytes,
                                    int size) { return decrypt.update(bytes, size) && pass(); }) &&
           decrypt.finish() && pass() && encrypt.finish() && writeOutput(encrypt, destination);
}

bool reencryptFile(const QString &sourcePath, const QString &destinationPath,
                   const QByteArray &oldPassword, const QByteArray &newPassword,
                   const RandomSource &random)
{
    QFile source(sourcePath);
    if (!source.open(QIODevice::ReadOnly))
        return false;
    return writeOwnerOnlyFile(destinationPath, [&](QIODevice &destination) {
        return reencryptStream(oldPassword, newPassword, source, destination, random);
    });
}

QString fileHash(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return {};
    return QString::fromLatin1(hash.result().toBase64());
}

qint64 plainSize(const QString &path)
{
    QFile file(path);
    Header header;
    if (!file.open(QIODevice::ReadOnly) || !header.read(file))
        return -1;
    return qMax<qint64>(0, file.size() - header.size() - 1);
}

int encryptedLength(const QByteArray &text)
{
    const int headerBehindOffset = 32;
    const int block = 16;
    const auto bytes = QByteArray::fromBase64Encoding(
        text, QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    if (!bytes || (*bytes).isEmpty())
        return 0;
    const int length =
        (*bytes).size() - static_cast<unsigned char>((*bytes).at(0)) - headerBehindOffset;
    return length > 0 && length % block == 0 ? length : 0;
}

bool isWholeFile(const QString &path)
{
    const int block = 16;
    QFile file(path);
    Header header;
    if (!file.open(QIODevice::ReadOnly) || !header.read(file))
        return false;
    const qint64 length = file.size() - header.size();
    return length > 0 && length % block == 0;
}
