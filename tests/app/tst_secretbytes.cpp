#include "../Text.h"
#include "SecretBytes.h"

#include <QtTest>

#ifdef Q_OS_LINUX
#include "SecretMemory.h"

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

class TestSecretBytes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsTheBytesAndMovesThem()
    {
        const QString text = "pä55 🔑"_s + QChar(0) + QLatin1Char('x');
        SecretBytes secret = SecretBytes::fromText(text);
        QCOMPARE(secret.view(), text.toUtf8());
        const char *address = secret.data();
        SecretBytes moved = std::move(secret);
        QCOMPARE(moved.data(), address);
        QVERIFY(secret.isEmpty());
        QVERIFY(moved == SecretBytes::fromText(text));
        QVERIFY(!(moved == SecretBytes::fromText(text + text)));
        QVERIFY(SecretBytes::fromText(QString()).isEmpty());
    }

    void wipingSparesOtherOwners()
    {
        QByteArray shared("shared");
        const QByteArray other = shared;
        wipe(shared);
        QVERIFY(shared.isEmpty());
        QCOMPARE(other, QByteArray("shared"));
    }

#ifdef Q_OS_LINUX
    void isNeitherSwappedNorDumped()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("Memory is not locked under this sanitizer");
#endif
        const SecretBytes secret(QByteArray("master"));
        const QByteArray flags = flagsOf(secret.data());
        QVERIFY2(flags.contains(" lo ") && flags.contains(" dd "), flags.constData());
        closeMemoryToOthers();
        QCOMPARE(prctl(PR_GET_DUMPABLE), 0);
    }

    /// The last one: the right is not given back.
    void smallLimitsAreToldOnce()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("Memory is not locked under this sanitizer");
#endif
        __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct none[2] = {};
        QCOMPARE(syscall(SYS_capset, &header, none), 0L);
        const rlimit nothing = {0, 0};
        QCOMPARE(setrlimit(RLIMIT_MEMLOCK, &nothing), 0);
        static int warnings;
        warnings = 0;
        const QtMessageHandler before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &) { ++warnings; });
        const SecretBytes first(QByteArray("first"));
        const SecretBytes second(QByteArray("second"));
        qInstallMessageHandler(before);
        QCOMPARE(warnings, 1);
        QCOMPARE(first.view() + second.view(), QByteArray("firstsecond"));
    }

private:
    /// What the kernel says of the pages at an address.
    static QByteArray flagsOf(const void *address)
    {
        QFile maps("/proc/self/smaps"_s);
        if (!maps.open(QIODevice::ReadOnly))
            return {};
        const auto place = reinterpret_cast<quintptr>(address);
        bool found = false;
        const QList<QByteArray> lines = maps.readAll().split('\n');
        for (const QByteArray &line : lines) {
            const QList<QByteArray> range = line.left(line.indexOf(' ')).split('-');
            if (range.size() == 2)
                found = range[0].toULongLong(nullptr, 16) <= place &&
                        place < range[1].toULongLong(nullptr, 16);
            if (found && line.startsWith("VmFlags:"))
                return line + ' ';
        }
        return {};
    }
#endif
};

QTEST_GUILESS_MAIN(TestSecretBytes)
#include "tst_secretbytes.moc"
