#include "PMUiProvider.h"
#include "PasswordStrength.h"
#include "TrayIcon.h"
#include "UiTesting.h"
#include "dialogs/ProgressDialog.h"
#include "movein/MoveInDialog.h"
#include "style/Theme.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QToolButton>

/// Stands for the programs that open addresses.
class OpenedAddresses : public QObject
{
    Q_OBJECT

public:
    QStringList schemes;

public Q_SLOTS:
    void open(const QUrl &url) { schemes.append(url.scheme()); }
};

namespace {

QString storePath(const TestCore &test)
{
    return test.folder.path() + "/config/uisettings.ini"_s;
}

struct Ui
{
    explicit Ui(TestCore &test, bool hasTray = true)
        : provider(test.core, [hasTray] { return hasTray; })
    {
        provider.connectCore();
        provider.createMainWindow();
    }
    QWidget &window() { return *provider.mainWindow(); }

    PMUiProvider provider;
};

} // namespace

/// Notes whether the safe was open when a widget was painted.
class PaintWatch : public QObject
{
public:
    PaintWatch(QWidget &widget, GPMAppCore &core)
        : m_core(core)
    {
        widget.installEventFilter(this);
    }

    int paintedOpen = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && m_core.currentSafe()->isUnlocked())
            ++paintedOpen;
        return false;
    }

private:
    GPMAppCore &m_core;
};

class TestPMUiProvider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startInTheTrayShowsNoWindow()
    {
        TestCore test;
        Ui ui(test);
        ui.provider.openMainView(QString());
        QVERIFY(!ui.window().isVisible());
        auto *tray = ui.provider.findChild<TrayIcon *>();
        Q_EMIT tray->activated(QSystemTrayIcon::Context);
        QVERIFY(!ui.window().isVisible());
        Q_EMIT tray->activated(QSystemTrayIcon::Trigger);
        QVERIFY(ui.window().isVisible());
    }

    void secondStartBringsTheWindowBack()
    {
        TestCore test;
        Ui ui(test);
        ui.window().showMinimized();
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral(
                                             "^UI: Window SecureWindow: ActivateWindow, hWnd: "
                                             "[0-9a-f]+, Parent: QWindow\\(0x0\\)$")));
        ui.provider.bringToFront();
        QVERIFY(!ui.window().isMinimized());
        ui.window().close();
        QVERIFY(!ui.window().isVisible());
        ui.provider.bringToFront();
        QVERIFY(ui.window().isVisible());
    }

    void stateIsKept()
    {
        TestCore test;
        QString used;
        {
            Ui ui(test);
            QVERIFY(test.createSafe("Used"_s));
            used = test.core.currentSafe()->folder();
            ui.window().show();
            ui.window().resize(1111, 700);
            ui.window().close();
        }
        const QSettings store(storePath(test), QSettings::IniFormat);
        for (const char *key : {"SecureWindow_Geometry", "SecureWindow_Splitter",
                                "LastMainWindowScreenNumber", "LastUsedSafe"})
            QVERIFY2(store.contains(QLatin1String(key)), key);
        QCOMPARE(store.value("LastUsedSafe"_s).toString(), used);

        // Another safe is the most recent one by now; the last used one is offered all the same.
        GPMAppCore later(TestCore::places(test.folder.path()));
        later.knownSafes().create("Newer"_s, testPassword, "h"_s);
        PMUiProvider provider(later);
        provider.connectCore();
        provider.createMainWindow();
        QCOMPARE(provider.mainWindow()->size(), QSize(1111, 700));
        provider.openMainView(QString());
        QCOMPARE(later.currentSafe()->folder(), used);
    }

    void largerTextsKeepTheWindowOnTheScreen()
    {
        TestCore test;
        Ui ui(test);
        ui.window().show();
        const QRect screen = ui.window().screen()->availableGeometry();
        ui.window().resize(ui.window().minimumSize());
        const QPoint corner = screen.bottomRight() - ui.window().rect().bottomRight();
        ui.window().move(qMax(screen.left(), corner.x()), qMax(screen.top(), corner.y()));
        const QPointer<QWidget> former = &ui.window();
        QVERIFY(ui.provider.setTextPercent(150));
        QTRY_VERIFY(!former);
        const QRect place = ui.window().contentsRect().translated(ui.window().pos());
        QVERIFY(ui.provider.setTextPercent(100));
        // A window that is larger than the screen begins at its corner.
        QVERIFY(place.right() <= screen.right() || place.left() == screen.left());
        QVERIFY(place.bottom() <= screen.bottom() || place.top() == screen.top());
    }

    void workGoesOnInNewWindows()
    {
        TestCore test;
        Ui ui(test);
        QVERIFY(test.createSafe());
        ui.window().show();
        const Theme theme;
        const QPointer<ProgressDialog> progress(
            new ProgressDialog("Archive"_s, "Writing…"_s, theme, &ui.window()));
        progress->show();
        QByteArray rows = "name,url,username,password\n";
        for (int i = 0; i < 90; ++i)
            rows += "T%1,https://t%1.example,ana,pw\n"_s.arg(i).toUtf8();
        MoveInDialog::open(test.core, theme, &ui.window());
        const QPointer<MoveInDialog> moveIn(ui.window().findChild<MoveInDialog *>());
        moveIn->readFile(test.file("passwords.csv", rows));
        auto *add = find<QPushButton>(*moveIn, "addButton");
        QTRY_VERIFY(add->isVisible());
        add->click();
        const QPointer<QWidget> former = &ui.window();
        QVERIFY(ui.provider.setTextPercent(125));
        QTRY_VERIFY(!former);
        QVERIFY(moveIn && moveIn->isVisible() && moveIn->parentWidget());
        QVERIFY(progress && progress->isVisible() && progress->parentWidget());
        QTRY_VERIFY(find<QWidget>(*moveIn, "closeMoveInButton")->isVisible());
        QCOMPARE(test.core.currentSafe()->itemCount(), 90);
        progress->tell(true, "Done"_s);
        QVERIFY(progress->isVisible());
        QVERIFY(ui.provider.setTextPercent(100));
    }

    void firstLaunchForgetsOldWindows()
    {
        TestCore test;
        QSettings(storePath(test), QSettings::IniFormat)
            .setValue("SecureWindow_Geometry"_s, QByteArray("old"));
        QSettings(storePath(test), QSettings::IniFormat).setValue("LastUsedSafe"_s, "/safe"_s);
        PMUiProvider provider(test.core);
        provider.prepareFirstLaunch();
        const QSettings store(storePath(test), QSettings::IniFormat);
        QVERIFY(!store.contains("SecureWindow_Geometry"_s));
        QVERIFY(store.contains("LastUsedSafe"_s));
    }

    void lockClosesMessagesAboutItems()
    {
        TestCore test;
        Ui ui(test);
        const auto titles = [&ui] {
            QStringList shown;
            for (const auto *dialog : ui.window().findChildren<QuestionDialog *>()) {
                if (dialog->isVisible())
                    shown.append(dialog->windowTitle());
            }
            return shown;
        };
        Q_EMIT test.core.message("Warning"_s, "Before"_s);
        QVERIFY(test.createSafe());
        const QString id = test.addLogin("Shop"_s);
        QVERIFY(test.core.saveCurrentSafe());
        Q_EMIT test.core.message("Can't login."_s, "Shop"_s);
        QCOMPARE(titles(), QStringList({"Warning"_s, "Can't login."_s}));

        // A folder that is gone fails every write, even one by an administrator.
        QVERIFY(QDir(test.core.currentSafe()->folder()).removeRecursively());
        test.login(id)->setNote("changed"_s);
        test.core.lockCurrentSafe();
        QCOMPARE(titles(), QStringList({"Warning"_s}));
        test.core.settleLocks();
        QCOMPARE(titles(), QStringList({"Warning"_s, "Can't save changes."_s}));
    }

    void guardLocksThroughMenuAndDialog()
    {
        TestCore test;
        Ui ui(test);
        QVERIFY(test.createSafe());
        ui.window().show();
        auto *dialog = new QuestionDialog({"Sure?"_s, {}, {"OK"_s}}, &ui.window());
        dialog->open();
        QMenu menu;
        menu.addAction("Copy"_s);
        menu.popup(QPoint());
        QCOMPARE(QApplication::activePopupWidget(), &menu);
        QSignalSpy locked(&test.core, &GPMAppCore::safeLockedChanged);
        test.core.clipboard().copy("secret"_s, true);
        test.user->idleMs = 180001;
        QVERIFY(locked.wait());
        QCOMPARE(QGuiApplication::clipboard()->text(), QString());
        QVERIFY(!test.core.currentSafe()->isUnlocked());
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(!dialog->isVisible());
        const auto *subtitle = find<QLabel>(ui.window(), "unlockSubtitle");
        QCOMPARE(subtitle->text(), "Locked after 3 minutes without input"_s);

        // A lock by the user needs no reason.
        QVERIFY(test.core.currentSafe()->unlock(testPassword));
        test.core.lockCurrentSafe();
        QCOMPARE(subtitle->text(), "Unlock your safe to go on"_s);
        QCOMPARE(locked.count(), 3);
    }

    void nothingIsDrawnAfterALongSleep()
    {
        TestCore test;
        Ui ui(test);
        QVERIFY(test.createSafe());
        test.addLogin("Shop"_s);
        ui.window().show();
        auto *list = find<QAbstractItemView>(ui.window(), "itemList");
        PaintWatch watch(*list->viewport(), test.core);
        // A lock that has to wait for the disk draws its page over the items first.
        QTRY_VERIFY(watch.paintedOpen > 0 && !test.core.currentSafe()->isWriting());
        test.user->tick += 180001; // and the key that woke the computer is input: nobody seems idle
        watch.paintedOpen = 0;
        list->viewport()->update();
        QTRY_VERIFY(!test.core.currentSafe()->isUnlocked());
        QCOMPARE(watch.paintedOpen, 0);
        QCOMPARE(find<QLabel>(ui.window(), "unlockSubtitle")->text(),
                 "Locked because the computer slept"_s);
    }

    void hotkeysWorkInOurWindows()
    {
        TestCore test;
        GPMAppSettings &settings = test.core.settings();
        settings.setLockHotkey("L"_s); // who types would lock the safe
        Ui ui(test);
        QVERIFY(test.createSafe());
        ui.provider.bringToFront();
        QVERIFY(QTest::qWaitForWindowActive(&ui.window()));
        QTest::keyClick(&ui.window(), Qt::Key_L);
        QVERIFY(test.core.currentSafe()->isUnlocked());
        settings.setLockHotkey("Ctrl+Alt+K"_s);
        settings.setPluginHotkey("Ctrl+F9"_s);
        QSignalSpy wished(&test.core, &GPMAppCore::requestQuickAccess);
        QTest::keyClick(&ui.window(), Qt::Key_F9, Qt::ControlModifier);
        QCOMPARE(wished.count(), 1);
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top != &ui.window() && top->isVisible())
                top->close();
        }
        QTest::keyClick(&ui.window(), Qt::Key_K, Qt::ControlModifier | Qt::AltModifier);
        QVERIFY(!test.core.currentSafe()->isUnlocked());
    }

    void requestsKeepWhatIsEntered()
    {
        TestCore test;
        Ui ui(test);
        ui.provider.openMainView(QString());
        ui.provider.bringToFront();
        auto *name = find<QLineEdit>(ui.window(), "newSafeName");
        name->setText("Half"_s);
        const QString address = "https://shop.example"_s;
        Q_EMIT test.core.requestShowMainWindow(address);
        ui.provider.openMainView(address);
        QCOMPARE(name->text(), "Half"_s);

        QVERIFY(test.createSafe("First"_s));
        const QString first = test.core.currentSafe()->folder();
        QVERIFY(test.createSafe("Second"_s));
        test.core.lockCurrentSafe();
        auto *selector = find<QComboBox>(ui.window(), "safeSelector");
        const int index = selector->findData(first);
        selector->setCurrentIndex(index);
        Q_EMIT selector->activated(index);
        find<QLineEdit>(ui.window(), "masterPassword")->setText("half"_s);
        Q_EMIT test.core.requestShowMainWindow(address);
        QCOMPARE(test.core.currentSafe()->folder(), first);
        QCOMPARE(find<QLineEdit>(ui.window(), "masterPassword")->text(), "half"_s);
    }

    void withoutATrayNothingIsHidden()
    {
        TestCore test;
        Ui ui(test, false);
        ui.provider.openMainView(QString());
        QVERIFY(ui.window().isVisible() && ui.window().isMinimized());
        ui.provider.bringToFront();
        QVERIFY(!ui.window().isMinimized());
        ui.window().close();
        QVERIFY(ui.window().isVisible() && ui.window().isMinimized());
    }

    void generatorFillsThePasswordOfAnItem()
    {
        TestCore test;
        Ui ui(test);
        ui.window().show();
        QVERIFY(test.createSafe());
        const QString id = test.addLogin("Shop"_s);
        auto *list = find<QAbstractItemView>(ui.window(), "itemList");
        list->setCurrentIndex(list->model()->index(0, 0));
        find<QToolButton>(ui.window(), "passwordGenerateButton")->click();
        auto *generator = find<QDialog>(ui.window(), "PasswordGenerator");
        QVERIFY(generator && generator->isVisible());
        const QString made = find<QLineEdit>(*generator, "generatedPassword")->text();
        find<QPushButton>(*generator, "placeButton")->click();
        QCOMPARE(find<QLineEdit>(ui.window(), "passwordField")->text(), made);
        find<QPushButton>(ui.window(), "saveButton")->click();
        QCOMPARE(test.login(id)->password(), made);
        QCOMPARE(int(test.login(id)->strength()), passwordStrengthLevel(made));
    }

    void menuEndsTheProgram()
    {
        TestCore test;
        Ui ui(test, false);
        QVERIFY(test.createSafe());
        QSignalSpy quit(&test.core, &GPMAppCore::quitRequested);
        find<QToolButton>(ui.window(), "menuButton")->menu()->actions().last()->trigger();
        QCOMPARE(quit.count(), 1);
        QVERIFY(!test.core.currentSafe()->isUnlocked());
    }

    void onlyWebPagesAreOpened()
    {
        TestCore test;
        Ui ui(test);
        OpenedAddresses opened;
        const QStringList schemes{"http"_s, "https"_s,  "file"_s,
                                  "ftp"_s,  "mailto"_s, "javascript"_s};
        for (const QString &scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, &opened, "open");
        for (const QString &scheme : schemes)
            Q_EMIT test.core.openAddress(QUrl(scheme.toUpper() + "://bank.example/"_s));
        for (const QString &scheme : schemes)
            QDesktopServices::unsetUrlHandler(scheme);
        QCOMPARE(opened.schemes, (QStringList{"http"_s, "https"_s}));
    }
};

QTEST_MAIN(TestPMUiProvider)
#include "tst_pmuiprovider.moc"
