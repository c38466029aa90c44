// Speed and memory of a safe: run by hand, prints each figure with its unit.

#include "GPMSafe.h"
#include "HoldWatch.h"
#include "KeyDerivation.h"
#include "PMLogin.h"
#include "SafeCrypto.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <openssl/evp.h>

#include <algorithm>

namespace {

const int logins = 1000;
const QString password = QStringLiteral("a master password of some length");

void print(const char *what, double value, const char *unit)
{
    QTextStream(stdout) << QString::fromLatin1(what).leftJustified(66)
                        << QString::number(value, 'f', 1).rightJustified(9) << ' '
                        << QLatin1String(unit) << Qt::endl;
}

/// A figure of the kernel about this process, in MiB.
double memory(const char *key)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(key))
            return line.mid(line.indexOf(':') + 1).simplified().split(' ').first().toDouble() /
                   1024;
    }
    return 0;
}

void makeSafe(const QString &folder)
{
    GPMSafe safe;
    if (!safe.init(folder, password, QStringLiteral("Bench"), QStringLiteral("none")))
        qFatal("can't make the safe");
    for (int i = 0; i < logins; ++i) {
        auto login = std::make_unique<PMLogin>();
        login->setTitle(QStringLiteral("Site number %1").arg(i));
        login->setUrl(QStringLiteral("https://www.site%1.example.org/login").arg(i));
        login->setLogin(QStringLiteral("person%1@example.org").arg(i));
        login->setPassword(QStringLiteral("Secret %1 of this site!").arg(i));
        login->setNote(QStringLiteral("A line or two that somebody wrote about it."));
        safe.addItem(std::move(login));
    }
    if (!safe.saveChanges())
        qFatal("can't save the safe");
}

double deriveOneAfterAnother(int count)
{
    const QByteArray bytes = password.toUtf8();
    unsigned char salt[saltSize] = {};
    unsigned char key[keySize];
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < count; ++i) {
        salt[0] = static_cast<unsigned char>(i);
        PKCS5_PBKDF2_HMAC(bytes.constData(), bytes.size(), salt, saltSize, keyIterations,
                          EVP_sha256(), keySize, key);
    }
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double deriveOwnOneAfterAnother(int count)
{
    const QByteArray bytes = password.toUtf8();
    unsigned char salt[saltSize] = {};
    DerivedKey key;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < count; ++i) {
        salt[0] = static_cast<unsigned char>(i);
        deriveKey(bytes, salt, key);
    }
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Unlocks in the background and watches how long the event loop was ever held.
void openInBackground(const QString &folder)
{
    GPMSafe safe;
    if (!safe.open(folder))
        qFatal("can't open the safe");
    QEventLoop loop;
    QElapsedTimer sinceTick;
    qint64 longest = 0;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, [&] {
        longest = std::max(longest, sinceTick.nsecsElapsed());
        sinceTick.restart();
    });
    QObject::connect(&safe, &GPMSafe::unlockFinished, &loop, [&](SafeUnlock::Outcome outcome) {
        if (outcome != SafeUnlock::Outcome::Unlocked)
            qFatal("can't unlock the safe");
        // One more turn, so that what the end itself took is counted.
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
    });
    sinceTick.start();
    ticks.start(0);
    QElapsedTimer whole;
    whole.start();
    safe.unlockAsync(password);
    loop.exec();
    print("opening 1,000 logins in the background, two threads",
          static_cast<double>(whole.nsecsElapsed()) / 1e6, "ms");
    print("longest hold of the event loop meanwhile", static_cast<double>(longest) / 1e6, "ms");
    print("resident memory with 1,000 items open", memory("VmRSS"), "MiB");
    if (safe.itemCount() != logins)
        qFatal("items are missing");
}

/// Every item changed, a save begun, and the safe locked right behind that.
void lockBehindAMassChange(const QString &folder)
{
    GPMSafe safe;
    if (!safe.open(folder) || !safe.unlock(password))
        qFatal("can't open the safe");
    QEventLoop loop;
    QObject::connect(&safe, &GPMSafe::lockSettled, &loop, &QEventLoop::quit);
    HoldWatch watch;
    QElapsedTimer whole;
    QTimer::singleShot(0, &loop, [&] {
        for (PMListItem *item : safe.items()) {
            item->setFavorite(true);
            safe.touchItem(*item);
        }
        safe.saveChangesAsync();
    });
    QTimer::singleShot(1, &loop, [&] {
        whole.start();
        safe.lockAsync();
        print("locking right behind a change of 1,000 items, until it is locked",
              static_cast<double>(whole.nsecsElapsed()) / 1e6, "ms");
    });
    watch.start();
    loop.exec();
    watch.stop();
    print("until everything is saved and forgotten", static_cast<double>(whole.elapsed()), "ms");
    print("longest hold of the event loop by change, save and lock", watch.longestMs(), "ms");
    print("what it computed then", watch.computingThenMs(), "ms");
}

/// A source of so many bytes that are never in memory together, and a sink that counts.
class Stream : public QIODevice
{
public:
    explicit Stream(qint64 size)
        : m_left(size)
    {
        open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    }
    qint64 written = 0;

protected:
    qint64 readData(char *bytes, qint64 size) override
    {
        const qint64 count = std::min(size, m_left);
        std::fill(bytes, bytes + count, 'g');
        m_left -= count;
        return count;
    }
    qint64 writeData(const char *, qint64 size) override
    {
        written += size;
        return size;
    }

private:
    qint64 m_left;
};

void cryptOneGibibyte(const QString &folder)
{
    const qint64 size = qint64(1) << 30;
    const double before = memory("VmHWM");
    QFile encrypted(folder + QStringLiteral("/large"));
    if (!encrypted.open(QIODevice::ReadWrite))
        qFatal("can't write");
    Stream plain(size);
    QElapsedTimer timer;
    timer.start();
    if (!cryptStream(password.toUtf8(), plain, encrypted, CryptDirection::Encrypt))
        qFatal("can't encrypt");
    print("encrypting a file of 1 GiB", static_cast<double>(timer.restart()), "ms");
    encrypted.seek(0);
    Stream back(0);
    if (!cryptStream(password.toUtf8(), encrypted, back, CryptDirection::Decrypt) ||
        back.written != size)
        qFatal("can't decrypt");
    print("decrypting it", static_cast<double>(timer.elapsed()), "ms");
    print("growth of the peak of resident memory by both", memory("VmHWM") - before, "MiB");
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type != QtDebugMsg)
            fprintf(stderr, "%s\n", qPrintable(text));
    });
    const QTemporaryDir folder;
    const QString safeFolder = folder.filePath(QStringLiteral("safe"));
    QDir().mkpath(safeFolder);
    makeSafe(safeFolder);

    const int keys = 2 * logins + 1;
    print("deriving its 2,001 keys one after another, PKCS5_PBKDF2_HMAC",
          deriveOneAfterAnother(keys), "ms");
    print("deriving its 2,001 keys one after another, precomputed states",
          deriveOwnOneAfterAnother(keys), "ms");
    openInBackground(safeFolder);
    lockBehindAMassChange(safeFolder);
    cryptOneGibibyte(folder.path());
    return 0;
}
