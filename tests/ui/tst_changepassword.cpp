#include "UiTesting.h"
#include "dialogs/ChangePasswordRules.h"
#include "dialogs/PasswordChangeDesk.h"
#include "style/Theme.h"

#include <QLabel>
#include <QLineEdit>
#include <QLockFile>
#include <QProgressBar>
#include <QPushButton>

using namespace ChangePasswordRules;

Q_DECLARE_METATYPE(ChangePasswordRules::Input)

namespace {

const int items = 12;
const QString nextPassword = "walnut 7 harbour"_s;

/// The window as a user meets it, above an open safe.
struct Desk
{
    Desk()
    {
        if (!test.createSafe())
            qFatal("No safe to test with");
        for (int i = 0; i < items; ++i)
            test.addLogin(QString::number(i));
        window.show();
        // A window that becomes active later would take the keyboard.
        const bool ready = QTest::qWaitForWindowActive(&window);
        desk.setWindow(&window);
        desk.open();
        QApplication::setActiveWindow(dialog());
        if (!ready || QApplication::activeWindow() != dialog())
            qFatal("The window does not come up");
    }

    QWidget *shown(const char *name) const
    {
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->isVisible() && top->objectName() == QLatin1String(name))
                return top;
        }
        return nullptr;
    }
    QWidget *dialog() const { return shown("changePasswordDialog"); }
    void type(const char *field, const QString &text) const
    {
        auto *line = find<QLineEdit>(*dialog(), field);
        line->clear();
        QTest::keyClicks(line, text);
    }
    void fill(const QString &old) const
    {
        type("oldPassword", old);
        type("newPassword", nextPassword);
        type("confirmPassword", nextPassword);
        type("passwordHint", "a new hint"_s);
    }
    void confirm() const { find<QPushButton>(*dialog(), "changeButton")->click(); }
    QString end() const
    {
        const QWidget *progress = shown("progressDialog");
        const bool ended = progress && QTest::qWaitFor([progress] {
                               return !find<QProgressBar>(*progress, "progressBar")->isVisible();
                           });
        return ended ? find<QLabel>(*progress, "progressText")->text() : QString();
    }
    /// Whether a password opens the safe after everything was forgotten.
    bool opens(const QString &password)
    {
        GPMSafe safe;
        return safe.open(test.core.currentSafe()->folder()) && safe.unlock(password) &&
               safe.unreadableFiles().isEmpty() && safe.itemCount() == items;
    }

    TestCore test;
    Theme theme;
    QWidget window;
    PasswordChangeDesk desk{test.core, theme};
};

} // namespace

class TestChangePassword : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messages_data()
    {
        QTest::addColumn<Input>("entered");
        QTest::addColumn<int>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("fault"); ///< the first field that stands against it
        const auto row = [](const char *tag, const Input &entered, Field field, const char *text,
                            Field fault) {
            QTest::newRow(tag) << entered << int(field) << QString::fromLatin1(text) << int(fault);
        };
        const auto input = [](const char *old, const char *next, const char *confirm,
                              const char *hint, bool refused = false) {
            return Input{QLatin1String(old), QLatin1String(next), QLatin1String(confirm),
                         QLatin1String(hint), refused};
        };
        row("no old", input("", "b", "b", "h"), Old, "Old password can not be empty", Old);
        row("old refused", input("a", "b", "b", "h", true), Old,
            "Old password is invalid. Try again", Old);
        row("old", input("a", "", "", ""), Old, "", New);
        row("no new", input("a", "", "", "h"), New, "New password can not be empty", New);
        row("same", input("abc", "abc", "abc", "h"), New,
            "New password can not be the same as the old password", New);
        row("other case", input("Abc", "abc", "abc", "h"), New, "Weak", FieldCount);
        row("strong", input("a", "tr0ub4dor&3 horse Battery", "", "h"), New, "Strong", Confirm);
        row("no confirmation", input("a", "b", "", "h"), Confirm,
            "Confirm password can not be empty", Confirm);
        row("no match", input("a", "Abc", "abc", "h"), Confirm, "Password does not match", Confirm);
        row("no hint", input("a", "b", "b", ""), Hint, "Hint can not be empty", Hint);
        row("hint that tells", input("a", "bird", "bird", "A Bird"), Hint,
            "The hint gives the password away", FieldCount);
        row("old before all", input("a", "a", "c", "", true), Hint, "Hint can not be empty", Old);
    }
    void messages()
    {
        QFETCH(Input, entered);
        QFETCH(int, field);
        QTEST(message(entered, Field(field)).text, "text");
        QTEST(int(firstFault(entered)), "fault");
    }

    void aWrongOldPasswordIsAskedForAgain()
    {
        Desk test;
        test.fill("not it"_s);
        test.confirm();
        const auto *told = find<QLabel>(*test.dialog(), "oldPasswordMessage");
        QCOMPARE(told->text(), "Old password is invalid. Try again"_s);
        QVERIFY(find<QLineEdit>(*test.dialog(), "oldPassword")->hasFocus());
        QVERIFY(!test.test.core.currentSafe()->isChangingPassword());
        // Typing anew takes the word back.
        test.type("oldPassword", testPassword);
        QVERIFY(told->text().isEmpty());
        test.confirm();
        QVERIFY(test.end().contains("new password"_s));
    }

    void theNewPasswordOpensTheSafe()
    {
        Desk test;
        auto *old = find<QLineEdit>(*test.dialog(), "oldPassword");
        QVERIFY(old->hasFocus());
        // By the keyboard alone.
        test.type("oldPassword", testPassword);
        QTest::keyClick(old, Qt::Key_Return);
        test.fill(testPassword);
        QTest::keyClick(find<QLineEdit>(*test.dialog(), "passwordHint"), Qt::Key_Return);
        QVERIFY(test.end().contains("new password"_s));
        const std::shared_ptr<GPMSafe> safe = test.test.core.currentSafe();
        QCOMPARE(safe->hint(), "a new hint"_s);
        test.test.core.lockCurrentSafe();
        QVERIFY(!safe->unlock(testPassword));
        QVERIFY(safe->unlock(nextPassword));
        QVERIFY(test.opens(nextPassword));
    }

    void whatStopsItIsTold_data()
    {
        QTest::addColumn<QString>("by");
        QTest::addColumn<QString>("told");
        QTest::newRow("user") << "user"_s
                              << "was not changed"_s;
        QTest::newRow("lock") << "lock"_s
                              << "was locked"_s;
        QTest::newRow("session end") << "session"_s
                                     << "was stopped"_s;
    }
    void whatStopsItIsTold()
    {
        QFETCH(QString, by);
        QFETCH(QString, told);
        Desk test;
        test.fill(testPassword);
        test.confirm();
        QVERIFY(test.test.core.currentSafe()->isChangingPassword());
        // Nothing has been written behind the first turn of the event loop.
        if (by == QLatin1String("lock"))
            test.test.core.lockCurrentSafe();
        else if (by == QLatin1String("session"))
            test.test.core.prepareForSessionEnd();
        else
            find<QPushButton>(*test.shown("progressDialog"), "closeButton")->click();
        QVERIFY2(test.end().contains(told), qPrintable(test.end()));
        test.test.core.lockCurrentSafe();
        test.test.core.settleLocks();
        QVERIFY(test.opens(testPassword));
        QVERIFY(!test.opens(nextPassword));
    }

    void aSecondChangeIsNotTakenForTheFirst()
    {
        Desk test;
        const std::shared_ptr<GPMSafe> safe = test.test.core.currentSafe();
        const QString first = "that of the cloud"_s;
        // Holds it up until the second one was wanted.
        QLockFile lock(safe->folder() + "/.sourcelock"_s);
        QVERIFY(lock.tryLock(0));
        QVERIFY(safe->changePasswordAsync(first, safe->hint()));
        test.fill(testPassword);
        test.confirm();
        QVERIFY(test.end().contains("was not taken"_s));

        test.desk.open();
        QVERIFY(!test.dialog());
        QVERIFY(find<QProgressBar>(*test.shown("progressDialog"), "progressBar")->isVisible());
        lock.unlock();
        QVERIFY(test.end().contains("has its new password"_s));
        test.test.core.lockCurrentSafe();
        QVERIFY(test.opens(first));
        QVERIFY(!test.opens(nextPassword));
    }

    void aLockClosesAndForgets()
    {
        Desk test;
        test.fill(testPassword);
        QPointer<QWidget> dialog = test.dialog();
        QList<QLineEdit *> fields = dialog->findChildren<QLineEdit *>();
        test.test.core.lockCurrentSafe();
        QVERIFY(!test.dialog());
        for (const QLineEdit *field : qAsConst(fields))
            QVERIFY(field->text() != testPassword && field->text() != nextPassword);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!dialog);
        // And does not come up without an open safe.
        test.desk.open();
        QVERIFY(!test.dialog());
    }
};

QTEST_MAIN(TestChangePassword)

#include "tst_changepassword.moc"
