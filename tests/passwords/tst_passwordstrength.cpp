#include "PasswordStrength.h"

#include <QtTest>

class TestPasswordStrength : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void levels_data()
    {
        QTest::addColumn<int>("rating");
        QTest::addColumn<QString>("label");
        const char *const labels[] = {"Terrible", "Weak", "Weak",   "Good",
                                      "Good",     "Good", "Strong", "Strong"};
        for (int rating = 0; rating < 8; ++rating)
            QTest::addRow("%d", rating) << rating << QString::fromLatin1(labels[rating]);
        QTest::newRow("below") << -1 << QStringLiteral("Terrible");
    }
    void levels()
    {
        QFETCH(int, rating);
        QFETCH(QString, label);
        QCOMPARE(passwordStrengthLabel(strengthLevelOfRating(rating)), label);
    }

    void passwords_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<int>("level");
        QTest::newRow("none") << QString() << 1;
        QTest::newRow("letter") << QStringLiteral("a") << 2;
        QTest::newRow("commonest of all") << QStringLiteral("password") << 1;
        QTest::newRow("common word") << QStringLiteral("sunshine") << 2;
        QTest::newRow("word and year") << QStringLiteral("monkey1987") << 2;
        QTest::newRow("eight at random") << QStringLiteral("q7V<m2X,") << 4;
        QTest::newRow("six at random") << QStringLiteral("q7V<m2") << 3;
        QTest::newRow("four words") << QStringLiteral("correct horse battery staple") << 4;
        QTest::newRow("one letter a thousand times") << QString(1000, QLatin1Char('a')) << 2;
        QTest::newRow("Cyrillic") << QStringLiteral("жёлтыйаист57") << 4;
    }
    void passwords()
    {
        QFETCH(QString, password);
        QFETCH(int, level);
        QCOMPARE(passwordStrengthLevel(password), level);
    }
};

QTEST_GUILESS_MAIN(TestPasswordStrength)
#include "tst_passwordstrength.moc"
