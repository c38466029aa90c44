#include "../Text.h"
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
        QTest::newRow("below") << -1 << "Terrible"_s;
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
        QTest::newRow("letter") << "a"_s << 2;
        QTest::newRow("commonest of all") << "password"_s << 1;
        QTest::newRow("common word") << "sunshine"_s << 2;
        QTest::newRow("word and year") << "monkey1987"_s << 2;
        QTest::newRow("eight at random") << "q7V<m2X,"_s << 4;
        QTest::newRow("six at random") << "q7V<m2"_s << 3;
        QTest::newRow("four words") << "correct horse battery staple"_s << 4;
        QTest::newRow("one letter a thousand times") << QString(1000, QLatin1Char('a')) << 2;
        QTest::newRow("Cyrillic") << "жёлтыйаист57"_s << 4;
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
