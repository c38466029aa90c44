#include "UiTesting.h"
#include "health/FindingRow.h"
#include "health/HealthDialog.h"
#include "main/MainView.h"
#include "style/Theme.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QToolButton>

namespace {

struct Program
{
    Program()
        : view(test.core, theme, asker.asker())
    {
        openWithSafe(view, test);
        for (const char *title : {"Alpha", "Beta", "Gamma"}) {
            const QString id = test.addLogin(QLatin1String(title));
            test.login(id)->setPassword(QLatin1String(title) + "1"_s);
        }
        view.show();
    }

    HealthDialog *open()
    {
        find<QToolButton>(view, "healthButton")->click();
        auto *dialog = view.window()->findChild<HealthDialog *>();
        if (!dialog || !QTest::qWaitFor([dialog] { return rows(*dialog).size() == 3; }))
            qFatal("No findings");
        return dialog;
    }
    static QList<FindingRow *> rows(const HealthDialog &dialog)
    {
        return find<QWidget>(dialog, "findings")->findChildren<FindingRow *>();
    }

    TestCore test;
    Theme theme;
    TestAsker asker;
    MainView view;
};

} // namespace

class TestHealth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ignoredFindingsCanBeBroughtBack()
    {
        Program program;
        const std::shared_ptr<GPMSafe> safe = program.test.core.currentSafe();
        HealthDialog *dialog = program.open();
        const auto tile = [dialog] {
            return find<QPushButton>(*dialog, "healthTile0")->accessibleName();
        };
        auto *ignored = find<QPushButton>(*dialog, "ignoredButton");
        QCOMPARE(tile(), "Weak: 3"_s);
        QVERIFY(!ignored->isVisible());

        // By keyboard, which stays at that place.
        QSignalSpy saved(safe.get(), &GPMSafe::saved);
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        Program::rows(*dialog).at(1)->ignoreButton()->setFocus();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(tile(), "Weak: 2"_s);
        QCOMPARE(Program::rows(*dialog).size(), 2);
        QCOMPARE(dialog->focusWidget(), Program::rows(*dialog).at(1)->ignoreButton());
        QCOMPARE(ignored->text(), "Ignored (1)"_s);
        QTRY_VERIFY(!program.test.core.hasUnsavedChanges());

        ignored->click();
        QCOMPARE(Program::rows(*dialog).size(), 1);
        Program::rows(*dialog).first()->ignoreButton()->click();
        QTRY_COMPARE(tile(), "Weak: 3"_s);
        QCOMPARE(Program::rows(*dialog).size(), 3);
    }

    void changeOpensTheEditor()
    {
        Program program;
        HealthDialog *dialog = program.open();
        // Whatever the list shows just now.
        find<QLineEdit>(program.view, "searchField")->setText("Alpha"_s);
        find<QPushButton>(*Program::rows(*dialog).at(2), "changeButton")->click();
        auto *title = find<QLineEdit>(program.view, "titleField");
        QVERIFY(title);
        QCOMPARE(title->text(), "Gamma"_s);

        QSignalSpy opened(&program.test.core, &GPMAppCore::openAddress);
        find<QToolButton>(*Program::rows(*dialog).first(), "changePageButton")->click();
        QCOMPARE(opened.first().first().toUrl(),
                 QUrl("https://shop.example/.well-known/change-password"_s));

        // What was changed is no longer listed.
        find<QLineEdit>(program.view, "passwordField")->setText("q7V<m2X,8Rz!Kd"_s);
        find<QPushButton>(program.view, "saveButton")->click();
        QTRY_COMPARE(Program::rows(*dialog).size(), 2);
    }

    void lockClosesTheWindow()
    {
        Program program;
        const QPointer<HealthDialog> dialog = program.open();
        program.test.core.lockCurrentSafe();
        QVERIFY(!dialog);
    }

    void lockDuringTheQuestionOfARow()
    {
        Program program;
        const QPointer<HealthDialog> dialog = program.open();
        program.view.createItem(PMListItem::Login);
        find<QLineEdit>(program.view, "titleField")->setText("typed"_s);
        program.asker.meanwhile = [&] { program.test.core.lockCurrentSafe(); };
        auto *change = find<QPushButton>(*Program::rows(*dialog).first(), "changeButton");
        QTest::mouseClick(change, Qt::LeftButton);
        QCOMPARE(program.asker.asked.size(), 1);
        QVERIFY(!dialog);
    }

    void weakOnesAreFoundBySearch()
    {
        Program program;
        const QString id = program.test.addLogin("Delta"_s);
        program.test.login(id)->setPassword("q7V<m2X,8Rz!Kd"_s);
        const auto *list = find<QListView>(program.view, "itemList");
        find<QLineEdit>(program.view, "searchField")->setText("is:weak"_s);
        QTRY_COMPARE(list->model()->rowCount(), 3);
        program.test.login(id)->setPassword("delta1"_s);
        QTRY_COMPARE(list->model()->rowCount(), 4);
    }

    void changePasswordPages_data()
    {
        QTest::addColumn<QString>("page");
        const auto row = [](const char *address, const char *page) {
            QTest::newRow(address) << QString::fromLatin1(page);
        };
        row("https://a:b@shop.example:8443/login?x=1#y",
            "https://shop.example:8443/.well-known/change-password");
        row("http://shop.example", "http://shop.example/.well-known/change-password");
        row("shop.example", "");
        row("file:///etc/passwd", "");
        row("javascript:alert(1)", "");
    }
    void changePasswordPages()
    {
        QFETCH(QString, page);
        QCOMPARE(changePasswordPage(QLatin1String(QTest::currentDataTag())).toString(), page);
    }
};

QTEST_MAIN(TestHealth)
#include "tst_health.moc"
