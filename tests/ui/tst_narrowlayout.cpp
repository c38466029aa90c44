#include "MainDesk.h"
#include "main/ItemPane.h"

/// The main window where the list and an item have no room beside each other.
class TestNarrowLayout : public QObject
{
    Q_OBJECT

    static QString inSight(const MainDesk &desk)
    {
        const bool list = desk.list()->isVisible();
        const bool item = desk.view->findChild<ItemPane *>()->isVisible();
        if (list && item)
            return "both"_s;
        return list ? "list"_s : desk.isEditing() ? "editor"_s : desk.shownTitle();
    }
    static void narrow(const MainDesk &desk)
    {
        desk.list()->setFocus();
        desk.view->resize(desk.view->sideBySideWidth() - 1, 600);
    }
    static void clickRow(const MainDesk &desk, int row)
    {
        QListView &list = *desk.list();
        const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    }

private Q_SLOTS:
    void listAndItemTakeTurns()
    {
        MainDesk desk;
        desk.addAll({"Bank", "Cloud", "Shop"});
        QCOMPARE(inSight(desk), "both"_s);
        narrow(desk);
        QCOMPARE(inSight(desk), "list"_s);
        // Keys walk through the list without leaving it.
        desk.press(Qt::Key_Down);
        QCOMPARE(inSight(desk), "list"_s);
        desk.press(Qt::Key_Right);
        QCOMPARE(inSight(desk), desk.current());
        desk.press(Qt::Key_Escape);
        QCOMPARE(inSight(desk), "list"_s);
        QVERIFY(desk.list()->hasFocus());
        clickRow(desk, 2);
        QCOMPARE(inSight(desk), "Shop"_s);
        desk.click("backToListButton");
        QCOMPARE(inSight(desk), "list"_s);
        clickRow(desk, 1);
        desk.chooseCategory("Logins");
        QCOMPARE(inSight(desk), "list"_s);
        clickRow(desk, 1);
        desk.view->resize(desk.view->sideBySideWidth(), 600);
        QCOMPARE(inSight(desk), "both"_s);
        QVERIFY(!desk.field<QAbstractButton>("backToListButton")->isVisible());
    }

    void doubleClickHitsNothingOfTheItem()
    {
        MainDesk desk;
        desk.addAll({"Bank"});
        narrow(desk);
        clickRow(desk, 0);
        const auto *right = desk.view->findChild<ItemPane *>()->parentWidget()->parentWidget();
        QVERIFY(right->testAttribute(Qt::WA_TransparentForMouseEvents));
        QVERIFY(QTest::qWaitFor(
            [right] { return !right->testAttribute(Qt::WA_TransparentForMouseEvents); }));
    }

    void whatIsEditedIsNotLeftUnasked_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("then");
        QTest::newRow("save") << 0 << "list"_s;
        QTest::newRow("discard") << 1 << "list"_s;
        QTest::newRow("continue") << 2 << "editor"_s;
    }
    void whatIsEditedIsNotLeftUnasked()
    {
        QFETCH(int, answer);
        MainDesk desk;
        narrow(desk);
        desk.addAndChoose("Shop");
        desk.press(Qt::Key_F2);
        desk.type("loginField", "bea");
        QCOMPARE(inSight(desk), "editor"_s);
        desk.asker.answer = answer;
        desk.press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(desk.asker.asked.size(), 1);
        QTEST(inSight(desk), "then");
    }

    void savedItemStaysInSightAndADiscardedNewOneDoesNot()
    {
        MainDesk desk;
        narrow(desk);
        desk.press(Qt::Key_N, Qt::ControlModifier);
        desk.type("titleField", "Shop");
        desk.click("saveButton");
        QCOMPARE(inSight(desk), "Shop"_s);
        desk.press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(inSight(desk), "editor"_s);
        desk.press(Qt::Key_Escape);
        QCOMPARE(inSight(desk), "list"_s);
    }

    void goneItemLeadsBack()
    {
        MainDesk desk;
        desk.addAll({"Bank", "Shop"});
        narrow(desk);
        clickRow(desk, 0);
        desk.click("removeButton");
        QTRY_COMPARE(inSight(desk), "list"_s);
        desk.press(Qt::Key_Right);
        QCOMPARE(inSight(desk), "Shop"_s);
        desk.lock();
        desk.unlock();
        QCOMPARE(inSight(desk), "list"_s);
    }
};

QTEST_MAIN(TestNarrowLayout)
#include "tst_narrowlayout.moc"
