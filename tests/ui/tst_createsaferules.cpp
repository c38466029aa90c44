#include "HintRules.h"
#include "lock/CreateSafeRules.h"

#include <QtTest>

using namespace CreateSafeRules;

Q_DECLARE_METATYPE(CreateSafeRules::Input)

namespace {

Input input(const char *name, const char *password, const char *confirm, const char *hint)
{
    return {QString::fromUtf8(name), QString::fromUtf8(password), QString::fromUtf8(confirm),
            QString::fromUtf8(hint)};
}

} // namespace

class TestCreateSafeRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messages_data()
    {
        QTest::addColumn<Input>("entered");
        QTest::addColumn<int>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("strength");
        const auto row = [](const char *tag, const Input &entered, Field field, const char *text,
                            int strength = 0) {
            QTest::newRow(tag) << entered << int(field) << QString::fromUtf8(text) << strength;
        };
        row("no name", input("", "", "", ""), Name, "Safe name can not be empty");
        row("name", input("Work", "", "", ""), Name, "");
        row("no password", input("Work", "", "", ""), Password, "Password can not be empty");
        row("weak password", input("Work", "abc", "", ""), Password, "Weak", 2);
        row("strong password", input("Work", "tr0ub4dor&3 horse Battery", "", ""), Password,
            "Strong", 4);
        row("no confirmation", input("Work", "abc", "", ""), Confirm,
            "Confirm password can not be empty");
        row("confirmation in other case", input("Work", "Abc", "abc", ""), Confirm,
            "Password does not match");
        row("confirmation", input("Work", "abc", "abc", ""), Confirm, "");
        row("no hint", input("Work", "abc", "abc", ""), Hint, "Hint can not be empty");
        row("hint", input("Work", "abc", "abc", "h"), Hint, "");
        row("hint that tells", input("Work", "abc", "abc", "It is ABC"), Hint,
            "The hint gives the password away");
    }
    void messages()
    {
        QFETCH(Input, entered);
        QFETCH(int, field);
        const Message shown = message(entered, Field(field));
        QTEST(shown.text, "text");
        QTEST(shown.strength, "strength");
    }

    void hints_data()
    {
        QTest::addColumn<QString>("hint");
        QTest::addColumn<QString>("password");
        QTest::addColumn<bool>("tells");
        const auto row = [](const char *hint, const char *password, bool tells) {
            QTest::newRow(hint) << QString::fromUtf8(hint) << QString::fromUtf8(password) << tells;
        };
        row("correct horse", "correct horse", true);
        row("my Correct Horse!", "correct horse", true);
        row("c-o-r-r-e-c-t horse", "correct horse", true);
        row("correct", "correct horse", false);
        row("Straße 7 am See", "strasse7", false);
        row("Ключ: ЗИМА 1985", "зима1985", true);
        row("$$$!", "$$$!", true);
        row("what I pay with: $$$!", "$$$!", true);
        row("a cat", "a", false); // no hint could do without
        row(" A ", "a", true);
        row("the usual", "", false);
    }
    void hints()
    {
        QFETCH(QString, hint);
        QFETCH(QString, password);
        QTEST(hintTellsPassword(hint, password), "tells");
    }

    void createIsAllowed_data()
    {
        QTest::addColumn<Input>("entered");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("complete") << input("Work", "abc", "abc", "hint") << true;
        QTest::newRow("no hint") << input("Work", "abc", "abc", "") << false;
        QTest::newRow("no name") << input("", "abc", "abc", "hint") << false;
        QTest::newRow("no password") << input("Work", "", "", "hint") << false;
        QTest::newRow("other case") << input("Work", "Abc", "abc", "hint") << false;
    }
    void createIsAllowed()
    {
        QFETCH(Input, entered);
        QTEST(canCreate(entered), "allowed");
    }
};

QTEST_APPLESS_MAIN(TestCreateSafeRules)
#include "tst_createsaferules.moc"
