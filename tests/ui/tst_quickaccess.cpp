#include "PMCreditCard.h"
#include "PMIdentity.h"
#include "QuickDesk.h"
#include "dialogs/Question.h"
#include "quick/QuickPlace.h"

#include <QClipboard>
#include <QDialog>
#include <QTimer>
#include <QToolButton>

class TestQuickAccess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QGuiApplication::setQuitOnLastWindowClosed(false); }

    void opensWhereItIsSeen_data()
    {
        QTest::addColumn<QVariant>("field");
        QTest::addColumn<QVariant>("browser");
        QTest::addColumn<QRect>("place");
        const auto row = [](const char *name, const QVariant &field, const QVariant &browser,
                            const QRect &place) {
            QTest::newRow(name) << field << browser << place;
        };
        // Two screens side by side, the right one small; the pointer is on the left one.
        const QRect browser(100, 100, 1200, 700);
        row("nothing known", {}, {}, {1544, 16, 360, 470});
        row("below the field", QRect(300, 200, 200, 30), browser, {300, 236, 360, 470});
        row("above it", QRect(300, 800, 200, 30), browser, {300, 324, 360, 470});
        row("at the right edge", QRect(1700, 200, 200, 30), {}, {1560, 236, 360, 470});
        row("beside a tall one", QRect(300, 300, 200, 500), {}, {506, 300, 360, 470});
        row("beside it on the left", QRect(1500, 300, 400, 500), {}, {1134, 300, 360, 470});
        row("the browser's corner", {}, browser, {924, 172, 360, 470});
        row("a browser half off", {}, QRect(-600, -50, 1200, 700), {224, 22, 360, 470});
        row("on the small screen", QRect(2000, 100, 90, 20), {}, {1920, 0, 320, 400});
        row("off all screens", QRect(9000, 9000, 10, 10), browser, {924, 172, 360, 470});
        row("all off", QRect(9000, 0, 9, 9), QRect(-900, 0, 9, 9), {1544, 16, 360, 470});
    }
    void opensWhereItIsSeen()
    {
        QFETCH(QVariant, field);
        QFETCH(QVariant, browser);
        QuickAccessWish wish;
        if (field.isValid())
            wish.field = field.toRect();
        if (browser.isValid())
            wish.browser = browser.toRect();
        const QVector<QRect> screens{{0, 0, 1920, 1080}, {1920, 0, 320, 400}};
        QTEST(quickAccessPlace({360, 470}, wish, screens, 0), "place");
    }

    void arrowsAndLettersFind()
    {
        Quick quick;
        for (const char *title : {"Alpha", "Beta", "Gamma", "Shop"})
            quick.addLogin(title);
        quick.add<PMCreditCard>("Betacard"_s);
        quick.provider.bringToFront();
        quick.open();
        QVERIFY(quick.isActive());
        QCOMPARE(quick.chosen(), "Alpha"_s);
        quick.press(Qt::Key_Up);
        QCOMPARE(quick.chosen(), "Alpha"_s);
        quick.press(Qt::Key_PageDown);
        QCOMPARE(quick.chosen(), "Shop"_s);
        quick.type("bet"_s);
        QCOMPARE(quick.chosen(), "Beta"_s);
        quick.press(Qt::Key_Down);
        QCOMPARE(quick.chosen(), "Betacard"_s);
        quick.type("zz"_s);
        QCOMPARE(quick.chosen(), QString());
        QVERIFY(quick.part("quickEmpty")->isVisible());
        quick.press(Qt::Key_Return);
        QVERIFY(quick.isShown());
        quick.press(Qt::Key_Escape);
        QVERIFY(!quick.isShown());
        // The next time nothing is left of it.
        quick.open({{"kind"_s, "creditcard"_s}});
        QVERIFY(quick.isActive());
        QCOMPARE(quick.focus(), "quickSearch"_s);
        QCOMPARE(quick.chosen(), "Betacard"_s);
        quick.window()->close();
        quick.open();
        QVERIFY(quick.isActive());
        QCOMPARE(quick.focus(), "quickSearch"_s);
        QCOMPARE(quick.chosen(), "Alpha"_s);
        QCOMPARE(quick.part<QLineEdit>("quickSearch")->text(), QString());
    }

    void theChosenItemStaysChosenWhileOthersChange()
    {
        Quick quick;
        quick.addLogin("Beta");
        PMLogin *gamma = quick.addLogin("Gamma");
        quick.open();
        quick.press(Qt::Key_Down);
        quick.addLogin("Alpha");
        auto *list = quick.list();
        QTRY_COMPARE(list->model()->rowCount(), 4);
        QCOMPARE(quick.chosen(), "Gamma"_s);
        quick.core.modelItemDeleted(gamma->id());
        QTRY_COMPARE(quick.chosen(), "Alpha"_s);
    }

    void copies_data()
    {
        QTest::addColumn<int>("section");
        QTest::addColumn<QString>("secret");
        QTest::addColumn<QString>("userName");
        QTest::newRow("login") << 1 << "secret of Shop"
                               << "ana at Shop";
        QTest::newRow("card") << 2 << "4111"
                              << "ANA M";
        QTest::newRow("identity") << 3 << "ana@example.org"
                                  << "Ana Martin";
    }
    void copies()
    {
        Quick quick;
        quick.addLogin("Shop");
        auto *card = quick.add<PMCreditCard>("Visa"_s);
        card->setNumber("4111"_s);
        card->setCardholder("ANA M"_s);
        auto *person = quick.add<PMIdentity>("Ana"_s);
        person->setEmail("ana@example.org"_s);
        person->setFirstName("Ana"_s);
        person->setLastName("Martin"_s);
        QFETCH(int, section);
        quick.open();
        QVERIFY(quick.isActive());
        quick.press(Qt::Key(Qt::Key_0 + section), Qt::ControlModifier);
        QCOMPARE(quick.focus(), "quickSearch"_s);
        quick.press(Qt::Key_C, Qt::ControlModifier);
        QTEST(QGuiApplication::clipboard()->text(), "secret");
        QVERIFY(quick.part("copyNotice")->isVisible());
        quick.press(Qt::Key_B, Qt::ControlModifier);
        QTEST(QGuiApplication::clipboard()->text(), "userName");
        // Both are uses of the item.
        int uses = 0;
        for (const PMListItem *item : quick.core.currentSafe()->items())
            uses += item->useCount();
        QCOMPARE(uses, 2);
        // What is marked in the field is copied as everywhere.
        quick.type("s"_s);
        quick.press(Qt::Key_A, Qt::ControlModifier);
        quick.press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), "s"_s);
    }

    void tabGoesThroughTheSections()
    {
        Quick quick;
        quick.addLogin("Shop");
        quick.add<PMCreditCard>("Visa"_s);
        quick.open();
        quick.press(Qt::Key_Tab);
        quick.press(Qt::Key_Tab);
        QCOMPARE(quick.focus(), "section1"_s);
        quick.press(Qt::Key_Space);
        QCOMPARE(quick.chosen(), "Visa"_s);
        QCOMPARE(quick.focus(), "quickSearch"_s);
        QVERIFY(quick.part<QToolButton>("section1")->isChecked());
        QVERIFY(!quick.part<QToolButton>("section0")->isChecked());
        quick.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(quick.focus(), "section3"_s);
        quick.press(Qt::Key_Space);
        QCOMPARE(quick.focus(), "length"_s);
        // From there on it goes from control to control, and back to the sections.
        QStringList seen;
        for (int i = 0; i < 12 && !seen.contains("section3"_s); ++i) {
            quick.press(Qt::Key_Tab);
            seen.append(quick.focus());
        }
        QVERIFY2(seen.contains("specialCount"_s) && seen.contains("copyButton"_s) &&
                     seen.contains("section3"_s),
                 qPrintable(seen.join(QLatin1Char(' '))));
    }

    void withoutASafeItLeadsToTheMainWindow()
    {
        Quick quick(false);
        quick.open();
        QVERIFY(quick.part("quickNoSafe")->isVisible());
        quick.press(Qt::Key_Space);
        QVERIFY(!quick.isShown());
        QVERIFY(quick.provider.mainWindow()->isVisible());
    }

    void dialogsLeftOpen()
    {
        Quick quick;
        bool opens = false;
        QTimer::singleShot(0, quick.provider.mainWindow(), [&] {
            quick.open();
            opens = quick.isShown();
            QApplication::activeModalWidget()->close();
        });
        dialogAsker(quick.provider.mainWindow())({{}, {}, {"OK"_s}});
        QVERIFY(opens);
        quick.window()->hide();
        quick.provider.mainWindow()->hide();
        // In the way of all windows.
        QDialog other;
        other.setModal(true);
        other.show();
        quick.open();
        QVERIFY(!quick.isShown());
        QVERIFY(quick.provider.mainWindow()->isVisible());
    }

    void goesWhenTheUserTurnsToSomethingElse()
    {
        Quick quick;
        quick.open();
        QVERIFY(quick.isActive());
        QWidget other;
        other.show();
        other.activateWindow();
        QTRY_VERIFY(!quick.isShown());
        // The hotkey that opens it closes it.
        quick.core.openQuickAccess();
        QVERIFY(quick.isActive());
        quick.core.openQuickAccess();
        QVERIFY(!quick.isShown());
    }
};

QTEST_MAIN(TestQuickAccess)
#include "tst_quickaccess.moc"
