#include "ProgramDesk.h"
#include "browsers/ExtensionFolder.h"
#include "browsers/InstallSteps.h"
#include "style/Theme.h"
#include "wizard/ExtensionPage.h"
#include "wizard/SetupWizard.h"
#include "wizard/WizardPage.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>

namespace {

const QString firefox = "moz-extension://0c4e5b2e-1f0c-4a3f-9a53-33d8b7a5d6c1"_s;

void makeFile(const TestCore &test, const char *path, const QByteArray &content = "x")
{
    const QString full = test.folder.filePath(QLatin1String(path));
    QDir().mkpath(QFileInfo(full).path());
    test.file(path, content);
}

/// The program with its main window.
struct Program : ProgramDesk
{
    /// The question that the user sees; null when there is none.
    QDialog *question()
    {
        const auto dialogs = window().findChildren<QDialog *>("questionDialog"_s);
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
};

} // namespace

class TestBrowsers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void approvalIsAskedFor()
    {
        Program program;
        OriginApprovals &approvals = program.test.core.approvals();
        approvals.ask(firefox);
        QTRY_VERIFY(program.question());
        QVERIFY(program.ui.mainWindow()->isVisible());
        program.answer("Allow"_s);
        QCOMPARE(approvals.approved(), QStringList(firefox));
        QTRY_VERIFY(!program.question());
    }

    void noIsTheHarmlessAnswer()
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

    void questionOutlivesItsWindow()
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
        QTRY_VERIFY(wizard->findChild<QDialog *>("questionDialog"_s));
        delete wizard;
        QTRY_VERIFY(program.question());
        // The windows are made anew.
        QVERIFY(program.ui.setTextPercent(115));
        QWidget *former = program.ui.mainWindow();
        QTRY_VERIFY(program.ui.mainWindow() != former);
        QTRY_VERIFY(program.question());
        program.answer("Allow"_s);
        QCOMPARE(approvals.approved(), QStringList(firefox));
    }

    void approvalIsGivenAndTakenInTheSettings()
    {
        Program program;
        OriginApprovals &approvals = program.test.core.approvals();
        approvals.approve(firefox);
        program.ui.bringToFront();
        QApplication::setActiveWindow(program.ui.mainWindow());
        QTest::keyClick(program.ui.mainWindow(), Qt::Key_Comma, Qt::ControlModifier);
        auto *panel = program.ui.mainWindow()->findChild<QWidget *>("browsers"_s);
        QVERIFY(panel);
        find<QPushButton>(*panel, "removeApproval")->click();
        QVERIFY(approvals.approved().isEmpty());
        QTRY_VERIFY(!find<QPushButton>(*panel, "removeApproval"));
        find<QPushButton>(*panel, "giveApproval")->click();
        QCOMPARE(approvals.approved(), QStringList(firefox));
    }

    void pageFollowsTheBrowsers()
    {
        TestCore test;
        QString installed;
        ExtensionPage page(
            {test.core.browsers(), [] { return QString(); },
             [&](const BrowserInfo &browser, QWidget *) { installed = browser.kind; }},
            nullptr);
        QCOMPARE(page.onward(), "Done"_s);
        page.show();
        QTRY_VERIFY(test.core.browsers().hasLooked());
        QVERIFY(find<QLabel>(page, "noBrowser")->isVisible());

        makeFile(test, "usr/bin/chromium");
        makeFile(test, "usr/bin/firefox");
        page.hide();
        page.show();
        QTRY_VERIFY(find<QPushButton>(page, "firefoxInstall"));
        QVERIFY(!find<QLabel>(page, "noBrowser")->isVisible());
        QTest::mouseClick(find<QPushButton>(page, "firefoxInstall"), Qt::LeftButton);
        QCOMPARE(installed, "firefox"_s);

        makeFile(test,
                 "home/.config/chromium/Default/Extensions/ieciiloegilkonbpcplcagbpkoohnoib/1/"
                 "manifest.json",
                 R"({"name":"Glaceron Password Manager","version":"1.1.32"})");
        page.hide();
        page.show();
        QTRY_VERIFY(find<QLabel>(page, "chromiumState"));
        QCOMPARE(find<QLabel>(page, "chromiumState")->text(), "Installed 1.1.32"_s);
    }

    void pageTellsWhoIsConnected_data()
    {
        QTest::addColumn<QString>("bundle");
        QTest::addColumn<QStringList>("programs");
        QTest::addColumn<QStringList>("connected");
        const QString chrome = "usr/bin/google-chrome"_s;
        const QString chromium = "usr/bin/chromium"_s;
        const QString firefox = "usr/bin/firefox"_s;
        QTest::newRow("nobody") << "" << QStringList{chromium, firefox} << QStringList();
        QTest::newRow("Firefox") << "glaceron.firefox" << QStringList{chromium, firefox}
                                 << QStringList("firefox"_s);
        QTest::newRow("the one of its kind")
            << "glaceron.chrome" << QStringList{chromium, firefox} << QStringList("chromium"_s);
        QTest::newRow("one of two")
            << "glaceron.chrome" << QStringList{chrome, chromium} << QStringList();
    }
    void pageTellsWhoIsConnected()
    {
        QFETCH(QString, bundle);
        QFETCH(QStringList, programs);
        QFETCH(QStringList, connected);
        TestCore test;
        for (const QString &program : programs)
            makeFile(test, program.toLatin1().constData());
        QString now;
        PluginsPage page({test.core.browsers(), [&now] { return now; }, {}}, nullptr);
        page.show();
        QTRY_VERIFY(test.core.browsers().hasLooked());
        const QString before = find<QLabel>(page, "extensionState")->text();
        now = bundle;
        page.hide();
        page.show();
        QCOMPARE(find<QLabel>(page, "extensionState")->text() != before, !bundle.isEmpty());
        QCOMPARE(page.isConnected(), !bundle.isEmpty());
        for (const char *kind : {"chrome", "chromium", "firefox"}) {
            const auto *state = page.findChild<QLabel *>(QLatin1String(kind) + "State"_s);
            QCOMPARE(state != nullptr, connected.contains(QLatin1String(kind)));
        }
    }

    void installLeadsToThePageOrTheSteps()
    {
        BrowserInfo browser;
        browser.kind = "chromium"_s;
        browser.name = "Chromium"_s;
        browser.executable = "/usr/bin/chromium"_s;
        const Theme theme;
        QWidget owner;
        QStringList started;
        QString copied;
        QUrl opened;
        InstallWays ways{
            [&](const QStringList &command) {
                started = command;
                return true;
            },
            [&](const QUrl &url) { opened = url; }, [&](const QString &text) { copied = text; },
            [](bool forFirefox) { return forFirefox ? QString() : "/opt/glaceron/extension"_s; }};
        // No store is known in this build.
        QVERIFY(BrowserDiscovery::installCommand(browser).isEmpty());
        installExtension(browser, ways, theme, &owner);
        auto *steps = owner.findChild<InstallSteps *>();
        QVERIFY(steps && steps->isVisible());
        find<QPushButton>(*steps, "copyAddress")->click();
        QCOMPARE(copied, "chrome://extensions"_s);
        find<QPushButton>(*steps, "showFolder")->click();
        QCOMPARE(opened, QUrl::fromLocalFile("/opt/glaceron/extension"_s));
        find<QPushButton>(*steps, "openBrowserButton")->click();
        QCOMPARE(started, QStringList(browser.executable));
        delete steps;

        browser.kind = "firefox"_s;
        installExtension(browser, ways, theme, &owner);
        QVERIFY(!find<QPushButton>(*owner.findChild<InstallSteps *>(), "showFolder"));
    }

    void folderOfTheExtension()
    {
        QTemporaryDir folder;
        const QString program = folder.path() + "/build/dev/src"_s;
        QVERIFY(QDir().mkpath(program));
        for (const bool forFirefox : {false, true}) {
            const QString sources =
                folder.path() + "/extension/dist/"_s + (forFirefox ? "firefox"_s : "chromium"_s);
            QVERIFY(QDir().mkpath(sources));
            QCOMPARE(extensionFolder(program, forFirefox), QString());
            QFile manifest(sources + "/manifest.json"_s);
            QVERIFY(manifest.open(QIODevice::WriteOnly));
            QCOMPARE(extensionFolder(program, forFirefox), QFileInfo(sources).canonicalFilePath());
        }
    }
};

QTEST_MAIN(TestBrowsers)
#include "tst_browsers.moc"
