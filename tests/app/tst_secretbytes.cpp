#include "SecretBytes.h"

#include <QtTest>

class TestSecretBytes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsTheBytesAndMovesThem()
    {
        const QString text = QString::fromUtf8("pä55 🔑") + QChar(0) + QLatin1Char('x');
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
};

QTEST_GUILESS_MAIN(TestSecretBytes)
#include "tst_secretbytes.moc"
