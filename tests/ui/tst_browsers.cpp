#include "PMUiProvider.h"
#include "UiTesting.h"
#include "style/Theme.h"
#include "wizard/SetupWizard.h"
#include "wizard/WizardPage.h"

#include <QPushButton>

namespace {

const QString firefox = QStringLiteral("moz-extension://0c4e5b2e-1f0c-4a3f-9a53-33d8b7a5d6c1");

/// The program with its main window.
struct Program
{
    Program()
        : ui(
              test.core, [] { return true; }, test.folder.path())
    {
        ui.connectCore();
        ui.createMainWindow();
        ui.openMainView({});
        test.createSafe();
    }

    /// The question that the user sees; null when there is none.
    QDialog *question()
    {
        const auto dialogs =
            ui.mainWindow()->findChildren<QDialog *>(QStringLiteral("questionDialog"));
        for (QDialog *dialog : dialogs) {
            if (dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }

    void answer(const QString &text)
    {
        const auto buttons = question()->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->text() == text)
                QTest::mouseClick(button, Qt::LeftButton);
        }
    }

    TestCore test;
    PMUiProvider ui;
};

} // namespace

class TestBrowsers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void approvalIsAskedFor();
    void noIsTheHarmlessAnswer();
    void questionOutlivesItsWindow();
    void approvalIsGivenAndTakenInTheSettings();
};

void TestBrowsers::approvalIsAskedFor()
{
    Program program;
    OriginApprovals &approvals = program.test.core.approvals();
    approvals.ask(firefox);
    QTRY_VERIFY(program.question());
    QVERIFY(program.ui.mainWindow()->isVisible());
    program.answer(QStringLiteral("Allow"));
    QCOMPARE(approvals.approved(), QStringList(firefox));
    QTRY_VERIFY(!program.question());
}

void TestBrowsers::noIsTheHarmlessAnswer()
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        Program program;
        OriginApprovals &approvals = program.test.core.approvals();
        approvals.ask(firefox);
        QTRY_VERIFY(program.question());
        QTest::keyClick(program.question(), key);
        QCOMPARE(approvals.refused(), QStringList(firefox));
        QVERIFY(approvals.approved().isEmpty());
    }
}

void TestBrowsers::questionOutlivesItsWindow()
{
    Program program;
    OriginApprovals &approvals = program.test.core.approvals();
    program.ui.bringToFront();
    const Theme theme;
    auto *wizard = new SetupWizard({{"one",
                                     {},
                                     {},
                                     [] { return true; },
                                     [](QWidget *parent) { return new WizardPage(parent); }}},
                                   theme, program.ui.mainWindow());
    wizard->open();
    approvals.ask(firefox);
    // Above the wizard, which blocks the main window and all else above that.
    QTRY_VERIFY(wizard->findChild<QDialog *>(QStringLiteral("questionDialog")));
    delete wizard;
    QTRY_VERIFY(program.question());
    // The windows are made anew.
    QVERIFY(program.ui.setTextPercent(115));
    QWidget *former = program.ui.mainWindow();
    QTRY_VERIFY(program.ui.mainWindow() != former);
    QTRY_VERIFY(program.question());
    program.answer(QStringLiteral("Allow"));
    QCOMPARE(approvals.approved(), QStringList(firefox));
}

void TestBrowsers::approvalIsGivenAndTakenInTheSettings()
{
    Program program;
    OriginApprovals &approvals = program.test.core.approvals();
    approvals.approve(firefox);
    program.ui.bringToFront();
    QApplication::setActiveWindow(program.ui.mainWindow());
    QTest::keyClick(program.ui.mainWindow(), Qt::Key_Comma, Qt::ControlModifier);
    auto *panel = program.ui.mainWindow()->findChild<QWidget *>(QStringLiteral("browsers"));
    QVERIFY(panel);
    find<QPushButton>(*panel, "removeApproval")->click();
    QVERIFY(approvals.approved().isEmpty());
    QTRY_VERIFY(!find<QPushButton>(*panel, "removeApproval"));
    find<QPushButton>(*panel, "giveApproval")->click();
    QCOMPARE(approvals.approved(), QStringList(firefox));
}

QTEST_MAIN(TestBrowsers)
#include "tst_browsers.moc"
