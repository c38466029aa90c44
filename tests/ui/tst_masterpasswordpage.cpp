#include "UiTesting.h"
#include "lock/MasterPasswordPage.h"
#include "lock/UnlockLogic.h"
#include "style/Theme.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

struct Page
{
    explicit Page(TestCore &test)
        : logic(test.core)
        , page(logic, test.core.platform(), theme, nullptr)
    {
        page.show();
        page.activateWindow();
    }

    QString message() const { return find<QLabel>(page, "unlockMessage")->text(); }
    QLineEdit *password() const { return find<QLineEdit>(page, "masterPassword"); }
    QPushButton *unlock() const { return find<QPushButton>(page, "unlockButton"); }

    Theme theme;
    UnlockLogic logic;
    MasterPasswordPage page;
};

struct LockedSafe : TestCore
{
    LockedSafe()
    {
        if (!createSafe())
            qFatal("no safe to unlock");
        core.lockCurrentSafe();
    }
};

using State = UnlockLogic::State;

} // namespace

class TestMasterPasswordPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noSafeYet()
    {
        TestCore test;
        Page page(test);
        QCOMPARE(page.logic.state(), State::NoSafes);
        QCOMPARE(find<QLabel>(page.page, "unlockSubtitle")->text(),
                 "You have not Safe yet\nCreate one?"_s);
        QSignalSpy wanted(&page.page, &MasterPasswordPage::createRequested);
        page.page.takeFocus();
        QVERIFY(QTest::qWaitForWindowActive(&page.page));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(wanted.count(), 1);
    }

    void nothingChosen()
    {
        TestCore first;
        QVERIFY(first.createSafe());
        first.core.lockCurrentSafe();
        GPMAppCore core(TestCore::places(first.folder.path()));
        UnlockLogic logic(core);
        QCOMPARE(logic.state(), State::NoneChosen);
        logic.unlock(testPassword);
        QCOMPARE(logic.message(), "No any safe is selected"_s);
        QCOMPARE(logic.state(), State::NoneChosen);
    }

    void wrongPasswordThenRight()
    {
        LockedSafe test;
        Page page(test);
        page.logic.chooseFirst({});
        QCOMPARE(find<QLabel>(page.page, "safeHint")->text(), "Hint: the usual"_s);
        QVERIFY(QTest::qWaitForWindowActive(&page.page));
        page.page.takeFocus();

        QSignalSpy finished(&test.core, &GPMAppCore::unlockFinished);
        QTest::keyClicks(page.password(), "Master password 1"_s);
        QTest::keyClick(page.password(), Qt::Key_Return);
        QCOMPARE(page.logic.state(), State::Unlocking);
        QTRY_COMPARE(page.password()->text(), QString());
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(page.message(), "Wrong Password! Try again"_s);
        QCOMPARE(QApplication::focusWidget(), page.password());
        QVERIFY(!test.core.currentSafe()->isUnlocked());

        QTest::keyClicks(page.password(), testPassword);
        QTest::keyClick(page.password(), Qt::Key_Return);
        QCOMPARE(page.message(), QString());
        QVERIFY(finished.wait());
        QVERIFY(test.core.currentSafe()->isUnlocked());
        QCOMPARE(page.message(), QString());
    }

    void emptyPasswordIsWrong()
    {
        LockedSafe test;
        Page page(test);
        page.logic.chooseFirst({});
        QVERIFY(QTest::qWaitForWindowActive(&page.page));
        page.page.takeFocus();
        QSignalSpy finished(&test.core, &GPMAppCore::unlockFinished);
        for (QWidget *pressed :
             {static_cast<QWidget *>(page.password()), static_cast<QWidget *>(page.unlock())}) {
            pressed->setFocus();
            QTest::keyClick(pressed, Qt::Key_Return);
            QCOMPARE(page.message(), "Wrong Password! Try again"_s);
            QCOMPARE(page.logic.state(), State::Ready);
            QCOMPARE(QApplication::focusWidget(), page.password());
        }
        QCOMPARE(finished.count(), 0);
    }

    /// A lock that could not save was called off while somebody else was looked for.
    void nothingIsLeftToUnlock()
    {
        LockedSafe test;
        UnlockLogic logic(test.core);
        logic.unlock(testPassword);
        QVERIFY(test.core.currentSafe()->unlock(testPassword));
        QVERIFY(logic.state() != State::Unlocking);
        QCOMPARE(logic.message(), QString());
    }

    void doubleEnterDoesNotCancel()
    {
        LockedSafe test;
        Page page(test);
        page.logic.chooseFirst({});
        QVERIFY(QTest::qWaitForWindowActive(&page.page));
        QSignalSpy finished(&test.core, &GPMAppCore::unlockFinished);
        for (QWidget *pressed :
             {static_cast<QWidget *>(page.password()), static_cast<QWidget *>(page.unlock())}) {
            page.password()->setText(testPassword);
            pressed->setFocus();
            QTest::keyClick(pressed, Qt::Key_Return);
            QCOMPARE(page.logic.state(), State::Unlocking);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QVERIFY(finished.wait());
            QCOMPARE(finished.last().first().value<SafeUnlock::Outcome>(),
                     SafeUnlock::Outcome::Unlocked);
            test.core.lockCurrentSafe();
            page.page.takeFocus();
        }
    }

    void missingFolderIsUnavailable()
    {
        TestCore test;
        QVERIFY(test.createSafe("Gone"_s));
        const QString gone = test.core.currentSafe()->folder();
        QVERIFY(test.createSafe("Here"_s));
        const QString here = test.core.currentSafe()->folder();
        test.core.lockCurrentSafe();
        QVERIFY(QDir(gone).removeRecursively());

        Page page(test);
        page.logic.chooseFirst(gone);
        QCOMPARE(page.logic.chosenFolder(), here);
        const auto *selector = find<QComboBox>(page.page, "safeSelector");
        QVERIFY(
            selector->itemText(selector->findData(gone)).endsWith(QLatin1String("(unavailable)")));

        page.logic.choose(gone);
        QCOMPARE(page.logic.state(), State::Unavailable);
        QVERIFY(page.message().contains(QDir::toNativeSeparators(gone)));
        QVERIFY(!page.password()->isEnabled());
        page.logic.choose(here);
        QCOMPARE(page.logic.state(), State::Ready);
        QCOMPARE(page.message(), QString());
    }

    void lastUsedSafeComesFirst()
    {
        TestCore test;
        QVERIFY(test.createSafe("Old"_s));
        const QString old = test.core.currentSafe()->folder();
        QVERIFY(test.createSafe("New"_s));
        test.core.lockCurrentSafe();
        UnlockLogic logic(test.core);
        logic.chooseFirst(old);
        QCOMPARE(logic.chosenFolder(), old);
        QCOMPARE(test.core.currentSafe()->name(), "Old"_s);
    }

    void cancelledUnlockLeavesItLocked()
    {
        TestCore test;
        QVERIFY(test.createSafe());
        for (int i = 0; i < 30; ++i)
            test.addLogin(QString::number(i));
        test.core.lockCurrentSafe();
        Page page(test);
        page.logic.chooseFirst({});
        QSignalSpy finished(&test.core, &GPMAppCore::unlockFinished);
        QSignalSpy progress(&test.core, &GPMAppCore::unlockProgress);
        page.logic.unlock(testPassword);
        QTest::keyClick(&page.page, Qt::Key_Escape); // while its folder is asked
        QCOMPARE(page.logic.state(), State::Ready);
        page.logic.unlock(testPassword);
        QVERIFY(progress.wait());
        QTest::keyClick(&page.page, Qt::Key_Escape);
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(finished.first().first().value<SafeUnlock::Outcome>(),
                 SafeUnlock::Outcome::Cancelled);
        QCOMPARE(page.logic.state(), State::Ready);
        QVERIFY(!test.core.currentSafe()->isUnlocked());
        QVERIFY(page.password()->isEnabled());
    }
};

QTEST_MAIN(TestMasterPasswordPage)
#include "tst_masterpasswordpage.moc"
