#pragma once

#include "RandomSource.h"

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <optional>

/// The safe envelope: a header of random bytes that holds its own length, the IV and the salt, then
/// AES-256 in CBC mode with PKCS#7 padding under a key from PBKDF2. Header and ciphertext are bytes
/// in files and, as text, Base64 (RFC 4648) without trailing "=".
///
/// Passwords are UTF-8 bytes. The functions hold no state and may run on any thread.

enum class CryptDirection { Encrypt, Decrypt };

/// Encrypts or decrypts a device into another, in pieces, so that the size does not matter. Both
/// are open. False when anything fails, a wrong password included; what was written by then is to
/// be thrown away by the caller.
bool cryptStream(const QByteArray &password, QIODevice &source, QIODevice &destination,
                 CryptDirection direction, const RandomSource &random = systemRandom);

/// Appends the text form of the encrypted bytes to `output`; untouched on failure.
bool encryptString(const QByteArray &password, const QByteArray &plain, QString &output,
                   const RandomSource &random = systemRandom);

/// The bytes of a text form; nothing when it is too short, no Base64, or the password is wrong. The
/// caller wipes the result.
std::optional<QByteArray> decryptString(const QByteArray &password, const QString &text);

/// A text that checkPassId() opens with the same password and no other; empty when the random
/// source fails. Holds no secret of its own.
QString makePassId(const QByteArray &password, const RandomSource &random = systemRandom);

/// Whether the password opens the pass id.
bool checkPassId(const QByteArray &password, const QString &passId);

/// Decrypts with the old password and encrypts with the new one, in pieces.
bool reencryptStream(const QByteArray &oldPassword, const QByteArray &newPassword,
                     QIODevice &source, QIODevice &destination,
                     const RandomSource &random = systemRandom);

/// The same from file to file. The source stays as it is; on failure no destination is left.
bool reencryptFile(const QString &sourcePath, const QString &destinationPath,
                   const QByteArray &oldPassword, const QByteArray &newPassword,
                   const RandomSource &random = systemRandom);

/// Base64 of the SHA-256 of a file's content; empty when it cannot be read.
QString fileHash(const QString &path);

/// What encryptedLength() gives for a whole pass id.
const int encryptedPassIdLength = 784;

/// The length of what is encrypted in a text form; 0 for one that is not whole, whoever can open
/// it.
int encryptedLength(const QByteArray &text);

/// Whether an encrypted file has the form of a whole one, whoever can open it.
bool isWholeFile(const QString &path);

/// The size of what an encrypted file holds, up to 15 above the true one, as the padding is not
/// looked at; -1 when it cannot be read.
qint64 plainSize(const QString &path);
