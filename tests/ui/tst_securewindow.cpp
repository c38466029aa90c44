#include "UiTesting.h"
#include "lock/Crystal.h"
#include "lock/PagesStack.h"
#include "lock/SecureWindow.h"
#include "main/MainView.h"
#include "style/SystemLook.h"
#include "style/Theme.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

struct Window
{
    explicit Window(TestCore &test, bool motion = true, const Asker &asker = {})
        : theme(makeTheme(motion))
        , window(test.core, *theme, new MainView(test.core, *theme), asker)
    {
        window.setTrayCheck([this] { return hasTray; });
        window.pages().showFirstPage();
        window.show();
        window.activateWindow();
    }

    static std::unique_ptr<Theme> makeTheme(bool motion)
    {
        auto theme = std::make_unique<Theme>();
        theme->setReducedMotion(!motion);
        return theme;
    }

    std::unique_ptr<Theme> theme;
    bool hasTray = true;
    SecureWindow window;
};

QString contentFolder(const TestCore &test)
{
    return test.core.currentSafe()->folder() + "/content"_s;
}

/// Leaves an open safe with a change that cannot be written.
QString changeAndTakeFolderAway(TestCore &test)
{
    if (!test.createSafe())
        qFatal("No safe to test with");
    const QString id = test.addLogin("Shop"_s);
    if (!test.core.saveCurrentSafe() ||
        !QDir().rename(contentFolder(test), contentFolder(test) + ".away"_s))
        qFatal("The safe could not be prepared");
    test.login(id)->setNote("changed"_s);
    return id;
}

void putFolderBack(const TestCore &test)
{
    QDir(contentFolder(test)).removeRecursively();
    if (!QDir().rename(contentFolder(test) + ".away"_s, contentFolder(test)))
        qFatal("The folder is lost");
}

void type(const QString &text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

} // namespace

class TestSecureWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createsASafeByKeyboard()
    {
        TestCore test;
        Window shown(test);
        QVERIFY(QTest::qWaitForWindowActive(&shown.window));
        const QWidget &window = shown.window;
        type("Work"_s);
        press(Qt::Key_Tab);
        type("abc"_s);
        press(Qt::Key_Tab);
        type("abc"_s);
        QCOMPARE(find<QLabel>(window, "newSafeHintMessage")->text(), "Hint can not be empty"_s);
        QVERIFY(!find<QPushButton>(window, "createButton")->isEnabled());
        press(Qt::Key_Tab);
        press(Qt::Key_Return);
        QVERIFY(!test.core.currentSafe());
        type("the alphabet"_s);
        press(Qt::Key_Return);

        QVERIFY(test.core.currentSafe() && test.core.currentSafe()->isUnlocked());
        QCOMPARE(test.core.currentSafe()->hint(), "the alphabet"_s);
        QCOMPARE(QApplication::focusWidget()->objectName(), "addFirstLoginButton"_s);
        for (const char *field : {"newSafePassword", "newSafeConfirm"})
            QCOMPARE(find<QLineEdit>(window, field)->text(), QString());
    }

    void shuttersFollowTheSafe()
    {
        TestCore test;
        Window shown(test);
        SecureWindow &window = shown.window;
        QCOMPARE(window.openProgress(), 0.0);
        QVERIFY(!window.content().isVisible());

        QVERIFY(test.createSafe("Work"_s));
        QTRY_COMPARE(window.openProgress(), 1.0);
        QVERIFY(window.content().isVisible() && !window.pages().isVisible());
        QCOMPARE(window.windowTitle(), "Work - Glaceron Password Manager"_s);

        test.core.lockCurrentSafe();
        QVERIFY(!window.content().isEnabled());
        QTRY_COMPARE(window.openProgress(), 0.0);
        QVERIFY(!window.content().isVisible() && window.pages().isVisible());
        QCOMPARE(window.windowTitle(), "Glaceron Password Manager"_s);
    }

    void theKeyTurnsFirst()
    {
        TestCore test;
        QVERIFY(test.createSafe());
        test.core.lockCurrentSafe();
        Window shown(test);
        SecureWindow &window = shown.window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto &crystal = *window.findChild<Crystal *>();
        QVector<qreal> progressAtTurn;
        connect(&crystal, &Crystal::unlocked, this,
                [&] { progressAtTurn.append(window.openProgress()); });
        QVERIFY(test.core.currentSafe()->unlock(testPassword));
        // The keyboard does not wait for it, and the pages are out of reach.
        QVERIFY(window.content().isEnabled());
        QVERIFY(window.content().isAncestorOf(QApplication::focusWidget()));
        QVERIFY(window.pages().testAttribute(Qt::WA_TransparentForMouseEvents));
        QTRY_COMPARE(window.openProgress(), 1.0);
        QCOMPARE(progressAtTurn, QVector<qreal>{0.0});
        QVERIFY(!window.pages().isVisible());

        // Locked again while it turns: the shutters stay closed and the key-hole is upright.
        test.core.lockCurrentSafe();
        QTRY_COMPARE(window.openProgress(), 0.0);
        QVERIFY(test.core.currentSafe()->unlock(testPassword));
        QTRY_VERIFY(crystal.turn() > 0);
        test.core.lockCurrentSafe();
        QCOMPARE(crystal.turn(), 0.0);
        QVERIFY(!window.pages().testAttribute(Qt::WA_TransparentForMouseEvents));
        QCOMPARE(window.openProgress(), 0.0);
        QCOMPARE(progressAtTurn.size(), 1);
    }

    void withoutMotionTheyAreThereAtOnce()
    {
        TestCore test;
        Window shown(test, false);
        QCoreApplication::processEvents();
        QVERIFY(test.createSafe());
        QCoreApplication::processEvents();
        QCOMPARE(shown.window.openProgress(), 1.0);
    }

    void desktopsAskForStillness_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("reduced");
        const auto row = [](const char *group, const char *name, const QVariant &value,
                            bool reduced) {
            QTest::addRow("%s: %s", name, qPrintable(value.toString()))
                << QString::fromLatin1(group) << QString::fromLatin1(name) << value << reduced;
        };
        row("org.gnome.desktop.interface", "enable-animations", false, true);
        row("org.gnome.desktop.interface", "enable-animations", true, false);
        row("org.gnome.desktop.interface", "clock-show-date", false, false);
        row("org.freedesktop.appearance", "reduced-motion", 1u, true);
        row("org.freedesktop.appearance", "reduced-motion", 0u, false);
    }
    void desktopsAskForStillness()
    {
        QFETCH(QString, group);
        QFETCH(QString, name);
        QFETCH(QVariant, value);
        QTEST(MotionWatch::reduced({{group, {{name, value}}}}), "reduced");
    }

    void typedKeysReachThePasswordWhileShuttersClose()
    {
        TestCore test;
        QVERIFY(test.createSafe());
        Window shown(test);
        SecureWindow &window = shown.window;
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_COMPARE(window.openProgress(), 1.0);
        window.lockByUser();
        QCOMPARE(window.openProgress(), 1.0);
        type("quick"_s);
        QCOMPARE(find<QLineEdit>(window, "masterPassword")->text(), "quick"_s);
        QTRY_COMPARE(window.openProgress(), 0.0);
        QCOMPARE(find<QLineEdit>(window, "masterPassword")->text(), "quick"_s);
    }

    void closingHides()
    {
        TestCore test;
        Window shown(test);
        QSignalSpy hidden(&shown.window, &SecureWindow::hidden);
        find<QPushButton>(shown.window, "notNowButton")->click();
        QVERIFY(!shown.window.isVisible());
        QCOMPARE(hidden.count(), 1);
    }

    void closingWithoutATrayMinimises()
    {
        TestCore test;
        Window shown(test);
        shown.hasTray = false;
        find<QPushButton>(shown.window, "notNowButton")->click();
        QVERIFY(shown.window.isVisible() && shown.window.isMinimized());
        shown.window.showNormal();
        QVERIFY(!shown.window.close());
        QVERIFY(shown.window.isVisible() && shown.window.isMinimized());
    }

    void endOfSessionClosesTheWindow()
    {
        using Way = SecureWindow::CloseWay;
        QCOMPARE(SecureWindow::closeWay(true, true), Way::Close);
        QCOMPARE(SecureWindow::closeWay(true, false), Way::Close);
        QCOMPARE(SecureWindow::closeWay(false, true), Way::Hide);
        QCOMPARE(SecureWindow::closeWay(false, false), Way::Minimise);
    }

    void exitKey()
    {
        TestCore test;
        Window shown(test, false);
        QVERIFY(QTest::qWaitForWindowActive(&shown.window));
        QSignalSpy wanted(&shown.window, &SecureWindow::exitRequested);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(wanted.count(), 1);
        QVERIFY(test.createSafe());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(wanted.count(), 2);
    }

    void failedSaveAsks_data()
    {
        QTest::addColumn<bool>("ends");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("locked");
        QTest::newRow("lock, lose") << false << 1 << true;
        QTest::newRow("lock, cancel") << false << 2 << false;
        QTest::newRow("exit, lose") << true << 1 << true;
        QTest::newRow("exit, cancel") << true << 2 << false;
    }
    void failedSaveAsks()
    {
        QFETCH(bool, ends);
        QFETCH(bool, locked);
        TestCore test;
        TestAsker asker;
        QFETCH(int, answer);
        asker.answer = answer;
        Window shown(test, false, asker.asker());
        changeAndTakeFolderAway(test);
        QSignalSpy quit(&test.core, &GPMAppCore::quitRequested);
        if (ends)
            shown.window.exitByUser();
        else
            shown.window.lockByUser();
        QVERIFY(!test.core.currentSafe()->isUnlocked()); // whatever comes of it
        QTRY_COMPARE(asker.asked.size(), 1);
        QTRY_VERIFY(!test.core.currentSafe()->isSettling());
        QCOMPARE(asker.asked.first().title, "Can't save changes."_s);
        QCOMPARE(asker.asked.first().standard, 2);
        QCOMPARE(test.core.currentSafe()->isUnlocked(), !locked);
        QCOMPARE(quit.count(), ends && locked ? 1 : 0);
        QVERIFY(!QDir(test.folder.filePath("data/drafts"_s)).exists() || !locked);
        putFolderBack(test);
    }

    void lockedWhileItAsks()
    {
        TestCore test;
        int asked = 0;
        Window shown(test, false, [&](const Question &) {
            if (++asked == 1)
                test.core.lockCurrentSafe();
            return 2;
        });
        changeAndTakeFolderAway(test);
        QSignalSpy quit(&test.core, &GPMAppCore::quitRequested);
        shown.window.exitByUser();
        QTRY_COMPARE(asked, 1);
        QTRY_VERIFY(!test.core.currentSafe()->isSettling());
        QVERIFY(quit.isEmpty());
        QVERIFY(!test.core.currentSafe()->isUnlocked());
        QCOMPARE(shown.window.openProgress(), 0.0);
        putFolderBack(test);
    }

    void retriedSaveLocks()
    {
        TestCore test;
        int asked = 0;
        Window shown(test, false, [&](const Question &) {
            if (++asked == 2)
                putFolderBack(test);
            return 0;
        });
        const QString id = changeAndTakeFolderAway(test);
        shown.window.lockByUser();
        QTRY_COMPARE(asked, 2);
        QTRY_VERIFY(!test.core.currentSafe()->isSettling());
        QVERIFY(!test.core.currentSafe()->isUnlocked());
        QVERIFY(test.core.currentSafe()->unlock(testPassword));
        QCOMPARE(test.login(id)->note(), "changed"_s);
    }

    /// Who chooses another safe while a lock saves has changed their mind about what was to follow.
    void anotherSafeCallsOffWhatWaits()
    {
        TestCore test;
        Window shown(test, false);
        QVERIFY(test.createSafe());
        test.addLogin("Shop"_s);
        QSignalSpy quit(&test.core, &GPMAppCore::quitRequested);
        shown.window.exitByUser();
        QVERIFY(test.core.currentSafe()->isSettling());
        QVERIFY(test.createSafe("Other"_s));
        test.core.lockCurrentSafe();
        QTRY_VERIFY(!test.core.currentSafe()->isSettling());
        QVERIFY(quit.isEmpty());
    }

    /// Nobody sees or is given anything while the lock has to wait for what is being written.
    void coversTheItemsWhileItWaits()
    {
        TestCore test;
        Window shown(test, false);
        QVERIFY(test.createSafe());
        QTRY_COMPARE(shown.window.openProgress(), 1.0);
        const QLabel *subtitle = find<QLabel>(shown.window, "unlockSubtitle");
        for (int i = 0; i < 40; ++i)
            test.addLogin(QString::number(i));
        shown.window.exitByUser();
        QVERIFY(test.core.currentSafe()->isSettling());
        QVERIFY(!shown.window.content().isEnabled());
        QVERIFY(subtitle->text().startsWith("Locked. Saving"_s));
        QSignalSpy quit(&test.core, &GPMAppCore::quitRequested);
        QVERIFY(quit.wait(30000));
        QVERIFY(!test.core.currentSafe()->isUnlocked());
    }
};

QTEST_MAIN(TestSecureWindow)
#include "tst_securewindow.moc"
