#include "../Text.h"
#include "PasswordWeakness.h"

#include <QtTest>

class TestPasswordWeakness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts_data()
    {
        QTest::addColumn<QString>("text");
        const auto row = [](const char *password, const char *text) {
            QTest::newRow(password) << QString::fromUtf8(text);
        };
        row("sunshine", "a word from a list");
        row("P@ssw0rd", "a word from a list");
        row("martin7", "a name and a digit");
        row("Martin", "a name");
        row("03/05/1999", "a date");
        row("qwertyuiop", "a word from a list");
        row("zxdfrt", "keys side by side");
        row("mnopqrstuv", "a sequence");
        row("777777777", "a repetition");
        row("x9", "too few characters");
        row("52", "digits");
        row("", "too few characters");
    }
    void parts()
    {
        const QVector<PasswordPart> found =
            passwordParts(QString::fromUtf8(QTest::currentDataTag()), {"Ana"_s, "Martin"_s});
        QTEST(passwordPartsText(found), "text");
    }
};

QTEST_GUILESS_MAIN(TestPasswordWeakness)
#include "tst_passwordweakness.moc"
