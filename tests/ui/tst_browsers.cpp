#include "PMUiProvider.h"
#include "UiTesting.h"
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

const QString firefox = QStringLiteral("moz-extension://0c4e5b2e-1f0c-4a3f-9a53-33d8b7a5d6c1");

void makeFile(const TestCore &test, const char *path, const QByteArray &content = "x")
{
    const QString full = test.folder.filePath(QLatin1String(path));
    QDir().mkpath(QFileInfo(full).path());
    QFile file(full);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Can't write a file");
}

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
    void pageFollowsTheBrowsers();
    void pageTellsWhoIsConnected_data();
    void pageTellsWhoIsConnected();
    void installLeadsToThePageOrTheSteps();
    void folderOfTheExtension();
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

void TestBrowsers::pageFollowsTheBrowsers()
{
    TestCore test;
    QString installed;
    ExtensionPage page({test.core.browsers(), [] { return QString(); },
                        [&](const BrowserInfo &browser, QWidget *) { installed = browser.kind; }},
                       nullptr);
    QCOMPARE(page.onward(), QStringLiteral("Done"));
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
    QCOMPARE(installed, QStringLiteral("firefox"));

    makeFile(test,
             "home/.config/chromium/Default/Extensions/ieciiloegilkonbpcplcagbpkoohnoib/1/"
             "manifest.json",
             R"({"name":"Glaceron Password Manager","version":"1.1.32"})");
    page.hide();
    page.show();
    QTRY_VERIFY(find<QLabel>(page, "chromiumState"));
    QCOMPARE(find<QLabel>(page, "chromiumState")->text(), QStringLiteral("Installed 1.1.32"));
}

void TestBrowsers::pageTellsWhoIsConnected_data()
{
    QTest::addColumn<QString>("bundle");
    QTest::addColumn<QStringList>("programs");
    QTest::addColumn<QStringList>("connected");
    const QString chrome = QStringLiteral("usr/bin/google-chrome");
    const QString chromium = QStringLiteral("usr/bin/chromium");
    const QString firefox = QStringLiteral("usr/bin/firefox");
    QTest::newRow("nobody") << "" << QStringList{chromium, firefox} << QStringList();
    QTest::newRow("Firefox") << "glaceron.firefox" << QStringList{chromium, firefox}
                             << QStringList(QStringLiteral("firefox"));
    QTest::newRow("the one of its kind") << "glaceron.chrome" << QStringList{chromium, firefox}
                                         << QStringList(QStringLiteral("chromium"));
    QTest::newRow("one of two") << "glaceron.chrome" << QStringList{chrome, chromium}
                                << QStringList();
}

void TestBrowsers::pageTellsWhoIsConnected()
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
        const auto *state = page.findChild<QLabel *>(QLatin1String(kind) + QStringLiteral("State"));
        QCOMPARE(state != nullptr, connected.contains(QLatin1String(kind)));
    }
}

void TestBrowsers::installLeadsToThePageOrTheSteps()
{
    BrowserInfo browser;
    browser.kind = QStringLiteral("chromium");
    browser.name = QStringLiteral("Chromium");
    browser.executable = QStringLiteral("/usr/bin/chromium");
    const Theme theme;
    QWidget owner;
    QStringList started;
    QString copied;
    QUrl opened;
    InstallWays ways{[&](const QStringList &command) {
                         started = command;
                         return true;
                     },
                     [&](const QUrl &url) { opened = url; },
                     [&](const QString &text) { copied = text; },
                     [](bool forFirefox) {
                         return forFirefox ? QString() : QStringLiteral("/opt/glaceron/extension");
                     }};
    // No store is known in this build.
    QVERIFY(BrowserDiscovery::installCommand(browser).isEmpty());
    installExtension(browser, ways, theme, &owner);
    auto *steps = owner.findChild<InstallSteps *>();
    QVERIFY(steps && steps->isVisible());
    find<QPushButton>(*steps, "copyAddress")->click();
    QCOMPARE(copied, QStringLiteral("chrome://extensions"));
    find<QPushButton>(*steps, "showFolder")->click();
    QCOMPARE(opened, QUrl::fromLocalFile(QStringLiteral("/opt/glaceron/extension")));
    find<QPushButton>(*steps, "openBrowserButton")->click();
    QCOMPARE(started, QStringList(browser.executable));
    delete steps;

    browser.kind = QStringLiteral("firefox");
    installExtension(browser, ways, theme, &owner);
    QVERIFY(!find<QPushButton>(*owner.findChild<InstallSteps *>(), "showFolder"));
}

void TestBrowsers::folderOfTheExtension()
{
    QTemporaryDir folder;
    const QString program = folder.path() + QStringLiteral("/build/dev/src");
    QVERIFY(QDir().mkpath(program));
    for (const bool forFirefox : {false, true}) {
        const QString sources =
            folder.path() + QStringLiteral("/extension/dist/") +
            (forFirefox ? QStringLiteral("firefox") : QStringLiteral("chromium"));
        QVERIFY(QDir().mkpath(sources));
        QCOMPARE(extensionFolder(program, forFirefox), QString());
        QFile manifest(sources + QStringLiteral("/manifest.json"));
        QVERIFY(manifest.open(QIODevice::WriteOnly));
        QCOMPARE(extensionFolder(program, forFirefox), QFileInfo(sources).canonicalFilePath());
    }
}

QTEST_MAIN(TestBrowsers)
#include "tst_browsers.moc"
