#include "ItemCategory.h"
#include "MainDesk.h"
#include "main/ShortcutTable.h"
#include "main/ShortcutsDialog.h"

#include <QClipboard>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSet>
#include <QShortcut>

/// The list of items beside what it leads to: choosing, searching, many at once, keys and drops.
class TestMainList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectionSurvivesChanges()
    {
        MainDesk desk;
        desk.addAll({"Alpha", "Beta", "Gamma"});
        desk.choose("Beta");
        desk.click("favoriteButton");
        desk.test.addLogin("Aaa");
        QCoreApplication::processEvents();
        QCOMPARE(desk.current(), "Beta"_s);
        QCOMPARE(desk.shownTitle(), "Beta"_s);

        desk.click("editButton");
        desk.type("titleField", "Zeta");
        desk.click("saveButton");
        QCOMPARE(desk.current(), "Zeta"_s);
        QCOMPARE(desk.list()->currentIndex().row(), 3);

        desk.type("searchField", "eta");
        QCOMPARE(desk.current(), "Zeta"_s);
        desk.type("searchField", "gam");
        QTRY_COMPARE(desk.shownTitle(), "Gamma"_s);
        desk.type("searchField", "none of them");
        QTRY_COMPARE(desk.shownTitle(), QString());
        QTest::keyClick(desk.field("searchField"), Qt::Key_Escape);
        QCOMPARE(desk.list()->model()->rowCount(), 4);
    }

    void keysActOnWhatTheSearchFound()
    {
        MainDesk desk;
        desk.addAll({"Alpha", "Beta"});
        desk.choose("Alpha");
        // At once, while the page still shows the item from before.
        desk.type("searchField", "bet");
        desk.list()->setFocus();
        desk.press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), "secret of Beta"_s);
        desk.type("searchField", "alp");
        desk.press(Qt::Key_F2);
        QCOMPARE(desk.typed("titleField"), "Alpha"_s);
    }

    void searchKeepsWhatIsEdited()
    {
        MainDesk desk;
        const QString id = desk.addAndEdit("Shop", "bea");
        desk.test.addLogin("Other");
        desk.type("searchField", "Other");
        QVERIFY(desk.isEditing());
        QVERIFY(desk.asker.asked.isEmpty());
        desk.click("saveButton");
        QCOMPARE(desk.test.login(id)->login(), "bea"_s);
        QCOMPARE(desk.current(), "Shop"_s);
    }

    void selectsManyByKeyboard()
    {
        MainDesk desk;
        desk.addAll({"Alpha", "Beta", "Gamma", "Delta"});
        desk.choose("Beta");
        desk.list()->setFocus();
        desk.press(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(desk.selected(), "Beta Delta"_s);
        const auto *title = desk.field<QLabel>("selectionTitle");
        QVERIFY(title->isVisible());
        QCOMPARE(title->text(), "2 items selected"_s);
        QCOMPARE(desk.shownTitle(), QString());

        desk.click("favoriteSelectedButton");
        QTRY_COMPARE(desk.field<QPushButton>("favoriteSelectedButton")->text(),
                     "Remove from favourites"_s);
        for (const PMListItem *item : desk.safe().items())
            QCOMPARE(item->favorite(), desk.selected().contains(item->title()));

        desk.press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(desk.selected(), desk.titles());
        // What the search hides is no longer selected; what it leaves still is.
        desk.type("searchField", "ta");
        QCOMPARE(desk.selected(), "Beta Delta"_s);
        desk.type("searchField", "");
        QCOMPARE(desk.selected(), "Beta Delta"_s);

        desk.list()->setFocus();
        desk.press(Qt::Key_Delete);
        QCOMPARE(desk.asker.asked.last().text, "Do you want to remove 2 items?"_s);
        QCOMPARE(desk.titles(), "Alpha Gamma"_s);
        QVERIFY(!title->isVisible());
        QVERIFY(!desk.selected().contains(QLatin1Char(' ')));
        QCOMPARE(desk.shownTitle(), desk.selected());
    }

    void selectsManyByMouse()
    {
        MainDesk desk;
        desk.addAll({"Alpha", "Beta", "Gamma", "Delta"});
        QWidget *rows = desk.list()->viewport();
        const auto centre = [&desk](int row) {
            return desk.list()->visualRect(desk.list()->model()->index(row, 0)).center();
        };
        const auto click = [&](int row, Qt::KeyboardModifiers modifiers = {}) {
            QTest::mouseClick(rows, Qt::LeftButton, modifiers, centre(row));
        };
        click(0);
        QCOMPARE(desk.shownTitle(), "Alpha"_s);
        click(2, Qt::ControlModifier);
        QCOMPARE(desk.selected(), "Alpha Delta"_s);
        QCOMPARE(desk.shownTitle(), QString());
        click(2, Qt::ControlModifier);
        QCOMPARE(desk.shownTitle(), "Alpha"_s);
        click(0);
        click(1, Qt::ShiftModifier);
        QCOMPARE(desk.selected(), "Alpha Beta"_s);

        // Drawn over rows from one that was not selected.
        QTest::mousePress(rows, Qt::LeftButton, {}, centre(3));
        for (int row : {3, 2, 1}) {
            QMouseEvent move(QEvent::MouseMove, centre(row) + QPoint(0, row - 2), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(rows, &move);
        }
        QTest::mouseRelease(rows, Qt::LeftButton, {}, centre(1));
        QCOMPARE(desk.selected(), "Beta Delta Gamma"_s);
        QCOMPARE(desk.field<QLabel>("selectionTitle")->text(), "3 items selected"_s);

        // An edit is asked about before many are selected; refused, the selection goes back.
        click(0);
        desk.click("editButton");
        desk.type("loginField", "bea");
        desk.asker.answer = 2;
        click(2, Qt::ControlModifier);
        QCOMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(desk.selected(), "Alpha"_s);
        QVERIFY(desk.isEditing());
    }

    void removalIsTakenBack()
    {
        MainDesk desk;
        desk.addAll({"Alpha", "Beta"});
        const QString gamma = desk.test.addLogin("Gamma");
        const auto removeChosen = [&desk](const char *title) {
            desk.choose(title);
            QTest::keyClick(desk.list(), Qt::Key_Delete);
        };
        const auto undo = [&desk] {
            desk.press(Qt::Key_Z, Qt::ControlModifier);
            return desk.titles();
        };
        removeChosen("Beta");
        auto *bar = desk.field<QWidget>("snackBar");
        QVERIFY(bar->isVisible());
        desk.click("snackAction");
        QCOMPARE(desk.titles(), "Alpha Beta Gamma"_s);

        // One after the other, the last one first; what was restored otherwise is passed over.
        for (const char *title : {"Alpha", "Gamma", "Beta"})
            removeChosen(title);
        QCOMPARE(desk.titles(), QString());
        QCOMPARE(undo(), "Beta"_s);
        desk.test.core.modelItemRestored(gamma);
        QCOMPARE(undo(), "Alpha Beta Gamma"_s);
        QCOMPARE(undo(), "Alpha Beta Gamma"_s);

        // Nothing is left to take back when the safe is opened again.
        removeChosen("Beta");
        desk.lock();
        QTRY_VERIFY(!bar->isVisible());
        desk.unlock();
        QCOMPARE(undo(), "Alpha Gamma"_s);
    }

    void menuOffersWhatApplies_data()
    {
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<QString>("actions");
        QTest::newRow("login") << QStringList{"Shop"_s}
                               << "useAction openAddressAction copyUserNameAction copySecretAction "
                                  "editAction duplicateAction favoriteAction exportAction "
                                  "removeAction"_s;
        QTest::newRow("card") << QStringList{"Card"_s}
                              << "useAction copySecretAction editAction duplicateAction "
                                 "favoriteAction exportAction removeAction"_s;
        QTest::newRow("both") << QStringList{"Card"_s, "Shop"_s}
                              << "favoriteAction exportAction removeAction"_s;
        QTest::newRow("trash") << QStringList{"Gone"_s} << "restoreAction deleteForeverAction"_s;
    }
    void menuOffersWhatApplies()
    {
        QFETCH(QStringList, titles);
        MainDesk desk;
        GPMAppCore &core = desk.test.core;
        desk.test.addLogin("Shop");
        auto card = core.modelCreateItem(PMListItem::CreditCard);
        card->setTitle("Card"_s);
        card->setProperty("number", "4111"_s);
        core.modelAddItem(std::move(card));
        core.modelItemDeleted(desk.test.addLogin("Gone"));
        desk.type("searchField", titles.contains("Gone"_s) ? "is:trash" : "");
        desk.choose(titles.first());
        if (titles.size() > 1)
            desk.list()->selectAll();
        desk.openMenu();
        const auto *menu = desk.field<QMenu>("itemMenu");
        QVERIFY(menu);
        QStringList names;
        for (const QAction *action : menu->actions()) {
            if (!action->isSeparator())
                names.append(action->objectName());
        }
        QTEST(names.join(QLatin1Char(' ')), "actions");
    }

    void dropsOnTheSidebar()
    {
        MainDesk desk;
        const QString id = desk.test.addLogin("Shop");
        const PMLogin *shop = desk.test.login(id);
        auto *categories = desk.field<QListView>("categoryList");
        const std::unique_ptr<QMimeData> data(
            desk.list()->model()->mimeData({desk.list()->model()->index(0, 0)}));
        const auto drop = [&](ItemCategory::Kind kind) {
            const int row = ItemCategory::all().indexOf({kind}) - (kind > ItemCategory::Expiring);
            const QPoint place =
                categories->visualRect(categories->model()->index(row, 0)).center() + QPoint(0, 6);
            QDragEnterEvent enter(place, Qt::MoveAction, data.get(), Qt::LeftButton, {});
            QDragMoveEvent move(place, Qt::MoveAction, data.get(), Qt::LeftButton, {});
            QDropEvent dropped(place, Qt::MoveAction, data.get(), Qt::LeftButton, {});
            for (QDropEvent *event :
                 {static_cast<QDropEvent *>(&enter), static_cast<QDropEvent *>(&move), &dropped}) {
                event->ignore();
                QCoreApplication::sendEvent(categories->viewport(), event);
            }
            QCoreApplication::processEvents();
            return dropped.isAccepted();
        };
        QVERIFY(!drop(ItemCategory::All));
        QVERIFY(!shop->favorite());
        QVERIFY(drop(ItemCategory::Favourites));
        QVERIFY(shop->favorite());
        for (const int answer : {1, 0}) {
            desk.asker.answer = answer;
            QVERIFY(drop(ItemCategory::Trash));
            QCOMPARE(shop->deleted(), answer == 0);
        }
    }

    void duplicates()
    {
        MainDesk desk;
        PMLogin *shop = desk.test.login(desk.addAndChoose("Shop"));
        shop->setUseCount(7);
        shop->setRefs({"file"_s});
        desk.openMenu();
        desk.field<QAction>("duplicateAction")->trigger();
        QVERIFY(desk.isEditing());
        QCOMPARE(desk.typed("titleField"), "Shop (copy)"_s);
        QCOMPARE(desk.current(), "Shop (copy)"_s);
        const auto items = desk.safe().items();
        QCOMPARE(items.size(), std::size_t(2));
        const PMListItem *copy = items[0] == shop ? items[1] : items[0];
        QCOMPARE(copy->property("password"), shop->property("password"));
        QCOMPARE(copy->useCount(), 0);
        QVERIFY(copy->refs().isEmpty());
        QVERIFY(copy->id() != shop->id());
    }

    void sidebarFoldsInANarrowWindow()
    {
        MainDesk desk;
        desk.test.addLogin("Shop");
        const auto *sidebar = desk.field<QWidget>("mainSidebar");
        const int wide = sidebar->width();
        desk.view->resize(desk.view->minimumSizeHint());
        QTRY_VERIFY(sidebar->width() < wide / 3);
        QVERIFY(desk.view->width() < 1366 / 1.5);
        // Words are gone from the screen, not from what is told.
        const auto *categories = desk.field<QListView>("categoryList")->model();
        QTRY_VERIFY(categories->index(0, 0).data(Qt::ToolTipRole).toString().contains("1 item"_s));
        const auto *switcher = desk.field<QPushButton>("safeSwitcher");
        QVERIFY(switcher->toolTip().startsWith(desk.safe().name()));
        QVERIFY(switcher->accessibleName().contains(desk.safe().name()));
        for (const char *name : {"lockButton", "menuButton", "settingsButton"})
            QVERIFY2(sidebar->rect().contains(desk.field<QWidget>(name)->geometry()), name);
        desk.view->resize(1000, 680);
        QTRY_COMPARE(sidebar->width(), wide);
    }

    void nothingIsCopiedWhileEditing()
    {
        MainDesk desk;
        desk.addAndChoose("Shop");
        const auto copies = [&desk] {
            return copied(desk, Qt::Key_B, Qt::ControlModifier) + QLatin1Char('|') +
                   copied(desk, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        };
        QCOMPARE(copies(), "ana|secret of Shop"_s);
        desk.press(Qt::Key_N, Qt::ControlModifier);
        QVERIFY(desk.isEditing());
        QCOMPARE(copies(), "before|before"_s);
        desk.click("discardButton");
        desk.click("editButton");
        QCOMPARE(copies(), "before|before"_s);
    }

    void copyKeyCopiesWhatIsAskedFor_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QByteArray>("property");
        QTest::newRow("login") << int(PMListItem::Login) << QByteArray("password");
        QTest::newRow("ftp account") << int(PMListItem::FtpAccount) << QByteArray("password");
        QTest::newRow("card") << int(PMListItem::CreditCard) << QByteArray("number");
        QTest::newRow("passport") << int(PMListItem::Passport) << QByteArray("number");
        QTest::newRow("note") << int(PMListItem::SecureNote) << QByteArray("text");
        QTest::newRow("licence") << int(PMListItem::SoftwareLicense) << QByteArray("licenseKey");
    }
    void copyKeyCopiesWhatIsAskedFor()
    {
        QFETCH(int, type);
        QFETCH(QByteArray, property);
        MainDesk desk;
        auto item = desk.test.core.modelCreateItem(static_cast<PMListItem::Type>(type));
        item->setTitle("Thing"_s);
        QVERIFY(item->setProperty(property.constData(), "its value"_s));
        desk.test.core.modelAddItem(std::move(item));
        desk.choose("Thing");
        desk.list()->setFocus();
        QCOMPARE(copied(desk, Qt::Key_C, Qt::ControlModifier), "its value"_s);
        // Several items have no one value.
        desk.test.addLogin("Shop");
        desk.list()->selectAll();
        QCOMPARE(copied(desk, Qt::Key_C, Qt::ControlModifier), "before"_s);
    }

    void shortcutsAreOnesOwn()
    {
        MainDesk desk;
        desk.test.addLogin("Shop");
        QSet<QKeySequence> installed;
        const auto shortcuts = desk.view->findChildren<QShortcut *>();
        for (const QShortcut *shortcut : shortcuts) {
            if (shortcut->context() != Qt::WindowShortcut)
                continue;
            QVERIFY2(!installed.contains(shortcut->key()), qPrintable(shortcut->key().toString()));
            installed.insert(shortcut->key());
        }
        const QVector<ShortcutRow> table = shortcutTable();
        for (const ShortcutRow &row : table) {
            for (const QKeySequence &key : row.keys) {
                QVERIFY(!key.isEmpty());
                QCOMPARE(installed.remove(key), row.command != ShortcutRow::Told);
            }
        }
        QVERIFY(installed.isEmpty());

        // A text takes the question mark, elsewhere it opens the list.
        auto *search = desk.field("searchField");
        search->setFocus();
        QTest::keyClicks(search, "?"_s);
        QCOMPARE(search->text(), "?"_s);
        QVERIFY(!desk.view->findChild<ShortcutsDialog *>());
        search->clear();
        desk.list()->setFocus();
        QTest::keyClick(desk.list(), Qt::Key_Question);
        QVERIFY(desk.view->findChild<ShortcutsDialog *>());
    }

private:
    /// What is in the clipboard after a key, "before" when nothing was copied.
    static QString copied(const MainDesk &desk, Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QGuiApplication::clipboard()->setText("before"_s);
        desk.press(key, modifiers);
        return QGuiApplication::clipboard()->text();
    }
};

QTEST_MAIN(TestMainList)
#include "tst_mainlist.moc"
