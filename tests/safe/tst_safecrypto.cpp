#include "../Text.h"
#include "KeyDerivation.h"
#include "SafeCrypto.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <openssl/evp.h>

#include <cstring>

namespace {

QJsonObject vectors()
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/envelopes.json"));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

/// Hands out the given bytes and then zeros.
RandomSource fixedRandom(const QByteArray &bytes)
{
    return [bytes](unsigned char *buffer, int size) {
        std::memset(buffer, 0, static_cast<std::size_t>(size));
        std::memcpy(buffer, bytes.constData(), static_cast<std::size_t>(qMin(size, bytes.size())));
        return true;
    };
}

const RandomSource noRandom = [](unsigned char *, int) { return false; };

/// A device that takes so many bytes and no more, as a full disk does.
class FullDevice : public QIODevice
{
public:
    explicit FullDevice(qint64 room)
        : m_room(room)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        const qint64 taken = qMin(size, m_room);
        m_room -= taken;
        return taken;
    }

private:
    qint64 m_room;
};

std::optional<QByteArray> crypt(const QByteArray &password, QByteArray input,
                                CryptDirection direction)
{
    QBuffer source(&input);
    source.open(QIODevice::ReadOnly);
    QBuffer destination;
    destination.open(QIODevice::WriteOnly);
    if (!cryptStream(password, source, destination, direction))
        return std::nullopt;
    return destination.data();
}

} // namespace

class TestSafeCrypto : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void derivesTheStandardKey_data()
    {
        QTest::addColumn<QByteArray>("password");
        for (const int length : {0, 1, 17, 55, 56, 63, 64, 65, 200})
            QTest::addRow("%d bytes", length) << QByteArray(length, 'p');
        QTest::newRow("with zeros") << QByteArray("a\0b\0", 4);
    }
    void derivesTheStandardKey()
    {
        QFETCH(QByteArray, password);
        const QByteArray salt = QByteArray::fromHex("000102030405060708090a0b0c0d0eff");
        const auto *saltBytes = reinterpret_cast<const unsigned char *>(salt.constData());
        unsigned char expected[keySize];
        QCOMPARE(PKCS5_PBKDF2_HMAC(password.constData(), password.size(), saltBytes, saltSize,
                                   keyIterations, EVP_sha256(), keySize, expected),
                 1);
        DerivedKey key;
        deriveKey(password, saltBytes, key);
        QCOMPARE(std::memcmp(key.data(), expected, keySize), 0);
    }

    void envelopesOfAnotherImplementation()
    {
        const QJsonArray envelopes = vectors().value("envelopes"_s).toArray();
        QCOMPARE(envelopes.size(), 5);
        for (const QJsonValue &value : envelopes) {
            const QJsonObject vector = value.toObject();
            const QByteArray password = vector.value("password"_s).toString().toUtf8();
            const QByteArray plain =
                QByteArray::fromBase64(vector.value("plain_base64"_s).toString().toLatin1());
            const QString text = vector.value("text"_s).toString();

            const std::optional<QByteArray> decrypted = decryptString(password, text);
            QVERIFY(decrypted);
            QCOMPARE(*decrypted, plain);
            QVERIFY(decryptString(password, text + "=="_s.left((4 - text.size() % 4) % 4)));

            // With the same random block the same bytes come out.
            const QByteArray envelope = QByteArray::fromBase64(text.toLatin1());
            const int header = vector.value("pad"_s).toInt() + 32;
            QString written;
            QVERIFY(encryptString(password, plain, written, fixedRandom(envelope.left(header))));
            QCOMPARE(written, text);
            const auto streamed = crypt(password, envelope, CryptDirection::Decrypt);
            QVERIFY(streamed);
            QCOMPARE(*streamed, plain);
        }
    }

    void passIdsOfAnotherImplementation()
    {
        const QJsonArray passIds = vectors().value("pass_ids"_s).toArray();
        QCOMPARE(passIds.size(), 4);
        for (const QJsonValue &value : passIds) {
            const QJsonObject vector = value.toObject();
            QCOMPARE(checkPassId(vector.value("password"_s).toString().toUtf8(),
                                 vector.value("text"_s).toString()),
                     vector.value("opens"_s).toBool());
        }
    }

    void ownPassIdOpensWithItsPasswordAlone()
    {
        const QString passId = makePassId("right");
        QVERIFY(checkPassId("right", passId));
        QVERIFY(!checkPassId("Right", passId));
        QCOMPARE(decryptString("right", passId)->size(), 768);
        QVERIFY(makePassId("right", noRandom).isEmpty());
        // All random bytes zero, as a broken source gives them.
        QVERIFY(checkPassId("right", makePassId("right", fixedRandom({}))));
    }

    void refusesWhatIsNoEnvelope_data()
    {
        QTest::addColumn<QString>("text");
        const QJsonArray tooShort = vectors().value("too_short"_s).toArray();
        QVERIFY(!tooShort.isEmpty());
        for (const QJsonValue &text : tooShort)
            QTest::addRow("too short %d", text.toString().size()) << text.toString();
        QTest::newRow("no Base64") << "AFqb+vnUp1JT!qZaT4dPwWoKPmlVhaQtHmI6iPr8noeSv"_s;
        QTest::newRow("header alone") << QString::fromLatin1(QByteArray(32, '\0').toBase64());
        QTest::newRow("cut block") << QString::fromLatin1(QByteArray(47, '\0').toBase64());
    }
    void refusesWhatIsNoEnvelope()
    {
        QFETCH(QString, text);
        QVERIFY(!decryptString("a", text));
        QVERIFY(!crypt("a", QByteArray::fromBase64(text.toLatin1()), CryptDirection::Decrypt));
    }

    void streamsEverySize_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {0, 1, 15, 16, 17, 10239, 10240, 10241, 20480, 100001})
            QTest::addRow("%d bytes", size) << size;
    }
    void streamsEverySize()
    {
        QFETCH(int, size);
        QByteArray plain(size, 'x');
        for (int i = 0; i < size; ++i)
            plain[i] = static_cast<char>(i * 7);
        const auto envelope = crypt("pw", plain, CryptDirection::Encrypt);
        QVERIFY(envelope);
        const int header = static_cast<unsigned char>(envelope->at(0)) + 32;
        QCOMPARE(envelope->size(), header + (size / 16 + 1) * 16);
        const auto back = crypt("pw", *envelope, CryptDirection::Decrypt);
        QVERIFY(back);
        QCOMPARE(*back, plain);
        QVERIFY(!crypt("pw", envelope->left(envelope->size() - 1), CryptDirection::Decrypt));
    }

    void failsWithoutRoomOrRandomness()
    {
        QByteArray plain(50000, 'x');
        for (const qint64 room : {0, 10, 300, 20000, 50000}) {
            QBuffer source(&plain);
            source.open(QIODevice::ReadOnly);
            FullDevice full(room);
            QVERIFY(!cryptStream("pw", source, full, CryptDirection::Encrypt));
        }
        QBuffer source(&plain);
        source.open(QIODevice::ReadOnly);
        QBuffer destination;
        destination.open(QIODevice::WriteOnly);
        QVERIFY(!cryptStream("pw", source, destination, CryptDirection::Encrypt, noRandom));
        QCOMPARE(destination.data().size(), 0);
        QString text;
        QVERIFY(!encryptString("pw", plain, text, noRandom));
        QVERIFY(text.isEmpty());
    }

    void reencryptsAFileOrLeavesNothing()
    {
        const QTemporaryDir folder;
        const QString source = folder.filePath("source"_s);
        const QString target = folder.filePath("target"_s);
        const QByteArray plain(30000, 's');
        // With a salt drawn anew, one wrong password in 256 would end in a valid padding.
        QByteArray input = plain;
        QBuffer from(&input);
        from.open(QIODevice::ReadOnly);
        QFile file(source);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(cryptStream("old", from, file, CryptDirection::Encrypt, fixedRandom("salt")));
        file.close();
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray envelope = file.readAll();
        file.close();

        QVERIFY(!reencryptFile(source, target, "wrong", "new"));
        QTest::ignoreMessage(QtWarningMsg, "Error in RAND_bytes!");
        QVERIFY(!reencryptFile(source, target, "old", "new", noRandom));
        QVERIFY(!reencryptFile(folder.filePath("none"_s), target, "old", "new"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), {"source"_s});

        QVERIFY(reencryptFile(source, target, "old", "new"));
        QFile written(target);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(*crypt("new", written.readAll(), CryptDirection::Decrypt), plain);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), envelope);
    }

    void hashOfAFile()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("f"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("abc");
        file.close();
        // FIPS 180-2, appendix B.1.
        QCOMPARE(fileHash(file.fileName()), "ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0="_s);
        QCOMPARE(fileHash(folder.filePath("none"_s)), QString());
    }
};

QTEST_GUILESS_MAIN(TestSafeCrypto)
#include "tst_safecrypto.moc"
