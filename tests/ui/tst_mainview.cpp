#include "PMCreditCard.h"
#include "PasswordStrength.h"
#include "UiTesting.h"
#include "main/ItemListPane.h"
#include "main/MainView.h"
#include "main/ShortcutTable.h"
#include "main/ShortcutsDialog.h"
#include "style/Theme.h"
#include "widgets/StrengthMeter.h"

#include <QClipboard>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QShortcut>
#include <QTimer>
#include <QToolButton>

class TestMainView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsALoginByKeyboard();
    void requiredTitle();
    void anotherDayIsNoticed();
    void strengthIsThatOfThePassword();
    void editIsSavedOrDiscarded();
    void leavingAModifiedItemAsks_data();
    void leavingAModifiedItemAsks();
    void selectionSurvivesChanges();
    void keysActOnWhatTheSearchFound();
    void searchKeepsWhatIsEdited();
    void removeAndRestore();
    void enterOnAQuestionPressesTheFocusedButton();
    void removeAsksAboutANewItemFirst();
    void removeAsksAboutAnotherEditFirst();
    void tabLeadsFromTheFieldsToSave();
    void enterPressesSave();
    void nothingIsCopiedWhileEditing();
    void saveKeyRetriesAFailedSave();
    void lockDropsWhatIsShown();
    void lockWhileAQuestionIsOpen();
    void lockByItselfDropsTheEdit();
    void secretsAreHiddenUntilRevealed();
    void unreadableItemsAreNamed();
    void selectsManyByKeyboard();
    void selectsManyByMouse();
    void removalIsTakenBack();
    void menuOffersWhatApplies_data();
    void menuOffersWhatApplies();
    void dropsOnTheSidebar();
    void duplicates();
    void sidebarFoldsInANarrowWindow();
    void shortcutsAreOnesOwn();
    void copyKeyCopiesWhatIsAskedFor_data();
    void copyKeyCopiesWhatIsAskedFor();
};

namespace {

struct View
{
    View()
        : view(test.core, theme, asker.asker(), nullptr, [this] { return now; })
    {
        openWithSafe(view, test);
        view.resize(1000, 680);
        view.show();
        view.activateWindow();
        if (!QTest::qWaitForWindowActive(&view))
            qFatal("The view got no keyboard");
    }

    QListView *list() const { return find<QListView>(view, "itemList"); }
    QString current() const { return list()->currentIndex().data().toString(); }
    QString shownTitle() const
    {
        const auto *title = find<QLabel>(view, "itemTitle");
        return title->isVisible() ? title->text() : QString();
    }
    template <typename Widget = QLineEdit>
    Widget *field(const char *name) const
    {
        return find<Widget>(view, name);
    }
    bool isEditing() const { return field("titleField") != nullptr; }
    void choose(const QString &title)
    {
        for (int row = 0; row < list()->model()->rowCount(); ++row) {
            const QModelIndex index = list()->model()->index(row, 0);
            if (index.data().toString() == title)
                list()->setCurrentIndex(index);
        }
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &view, key, modifiers);
    }
    QStringList selected() const
    {
        QModelIndexList rows = list()->selectionModel()->selectedIndexes();
        std::sort(rows.begin(), rows.end());
        QStringList titles;
        for (const QModelIndex &row : qAsConst(rows))
            titles.append(row.data().toString());
        return titles;
    }
    QPoint rowCentre(int row) const
    {
        return list()->visualRect(list()->model()->index(row, 0)).center();
    }
    void click(const char *name) { find<QAbstractButton>(view, name)->click(); }

    /// Whether a text stands anywhere in the view.
    bool shows(const QString &text) const
    {
        const auto labels = view.findChildren<QLabel *>();
        const auto lines = view.findChildren<QLineEdit *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&](const QLabel *label) { return label->text().contains(text); }) ||
               std::any_of(lines.begin(), lines.end(),
                           [&](const QLineEdit *line) { return line->text().contains(text); });
    }

    TestCore test;
    Theme theme;
    TestAsker asker;
    QDateTime now = systemTime();
    MainView view;
};

} // namespace

void TestMainView::addsALoginByKeyboard()
{
    View shown;
    shown.press(Qt::Key_N, Qt::ControlModifier);
    for (const char *text : {"Cloudmail", "ana", "s3cret", "mail.example"}) {
        QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
        shown.press(Qt::Key_Tab);
    }
    shown.press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!shown.isEditing());
    QCOMPARE(shown.current(), QStringLiteral("Cloudmail"));
    QCOMPARE(shown.shownTitle(), QStringLiteral("Cloudmail"));
    const auto items = shown.test.core.currentSafe()->items();
    QCOMPARE(items.size(), std::size_t(1));
    const auto *login = qobject_cast<PMLogin *>(items.front());
    QCOMPARE(login->login(), QStringLiteral("ana"));
    QCOMPARE(login->password(), QStringLiteral("s3cret"));
    QCOMPARE(login->url(), QStringLiteral("https://mail.example"));
    QCOMPARE(login->secondaryText(), QStringLiteral("ana"));
}

void TestMainView::requiredTitle()
{
    View shown;
    shown.press(Qt::Key_N, Qt::ControlModifier);
    shown.field("loginField")->setText(QStringLiteral("ana"));
    shown.click("saveButton");
    QCOMPARE(shown.asker.asked.size(), 1);
    QCOMPARE(shown.asker.asked.first().text,
             QStringLiteral("There are empty required values.\nFill and try again."));
    QVERIFY(shown.isEditing());
    QCOMPARE(shown.field<QLabel>("titleMessage")->text(),
             QStringLiteral("Required field is empty"));
    QCOMPARE(shown.test.core.currentSafe()->itemCount(), 0);
    shown.field("titleField")->setText(QStringLiteral("Shop"));
    QCOMPARE(shown.field<QLabel>("titleMessage")->text(), QString());
    shown.click("saveButton");
    QCOMPARE(shown.test.core.currentSafe()->itemCount(), 1);
}

void TestMainView::editIsSavedOrDiscarded()
{
    View shown;
    const QString id = shown.test.addLogin(QStringLiteral("Shop"));
    shown.choose(QStringLiteral("Shop"));
    shown.click("editButton");
    shown.field("loginField")->setText(QStringLiteral("bea"));
    QCOMPARE(shown.test.login(id)->login(), QStringLiteral("ana"));
    shown.click("discardButton");
    QVERIFY(!shown.isEditing());
    QCOMPARE(shown.test.login(id)->login(), QStringLiteral("ana"));

    QSignalSpy saved(shown.test.core.currentSafe().get(), &GPMSafe::saved);
    shown.click("editButton");
    shown.field("loginField")->setText(QStringLiteral("cleo"));
    shown.field<QPlainTextEdit>("noteField")->setPlainText(QStringLiteral("two\nlines"));
    shown.click("saveButton");
    QCOMPARE(shown.test.login(id)->login(), QStringLiteral("cleo"));
    QCOMPARE(shown.test.login(id)->note(), QStringLiteral("two\nlines"));
    QVERIFY(shown.shows(QStringLiteral("cleo")));
    QVERIFY(saved.wait());
    QVERIFY(shown.asker.asked.isEmpty());
}

void TestMainView::leavingAModifiedItemAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("userName");
    QTest::addColumn<QString>("current");
    QTest::addColumn<bool>("editing");
    QTest::newRow("save") << 0 << QStringLiteral("bea") << QStringLiteral("Other") << false;
    QTest::newRow("discard") << 1 << QStringLiteral("ana") << QStringLiteral("Other") << false;
    QTest::newRow("continue") << 2 << QStringLiteral("ana") << QStringLiteral("Shop") << true;
}

void TestMainView::leavingAModifiedItemAsks()
{
    QFETCH(int, answer);
    View shown;
    const QString id = shown.test.addLogin(QStringLiteral("Shop"));
    shown.test.addLogin(QStringLiteral("Other"));
    shown.choose(QStringLiteral("Shop"));
    shown.click("editButton");
    shown.field("loginField")->setText(QStringLiteral("bea"));
    shown.asker.answer = answer;
    shown.choose(QStringLiteral("Other"));
    QCOMPARE(shown.asker.asked.size(), 1);
    QCOMPARE(shown.asker.asked.first().title, QStringLiteral("The object has been modified"));
    QCOMPARE(shown.asker.asked.first().text, QStringLiteral("You have not saved changes yet"));
    QTEST(shown.test.login(id)->login(), "userName");
    QTEST(shown.current(), "current");
    QTEST(shown.isEditing(), "editing");
}

void TestMainView::selectionSurvivesChanges()
{
    View shown;
    for (const char *title : {"Alpha", "Beta", "Gamma"})
        shown.test.addLogin(QLatin1String(title));
    shown.choose(QStringLiteral("Beta"));
    shown.click("favoriteButton");
    shown.test.addLogin(QStringLiteral("Aaa"));
    QCoreApplication::processEvents();
    QCOMPARE(shown.current(), QStringLiteral("Beta"));
    QCOMPARE(shown.shownTitle(), QStringLiteral("Beta"));

    shown.click("editButton");
    shown.field("titleField")->setText(QStringLiteral("Zeta"));
    shown.click("saveButton");
    QCOMPARE(shown.current(), QStringLiteral("Zeta"));
    QCOMPARE(shown.list()->currentIndex().row(), 3);

    auto *search = shown.field("searchField");
    search->setText(QStringLiteral("eta"));
    QCOMPARE(shown.current(), QStringLiteral("Zeta"));
    search->setText(QStringLiteral("gam"));
    QTRY_COMPARE(shown.shownTitle(), QStringLiteral("Gamma"));
    search->setText(QStringLiteral("none of them"));
    QTRY_COMPARE(shown.shownTitle(), QString());
    QTest::keyClick(search, Qt::Key_Escape);
    QCOMPARE(shown.list()->model()->rowCount(), 4);
}

void TestMainView::keysActOnWhatTheSearchFound()
{
    View shown;
    for (const char *title : {"Alpha", "Beta"})
        shown.test.addLogin(QLatin1String(title));
    shown.choose(QStringLiteral("Alpha"));
    // At once, while the page still shows the item from before.
    shown.field("searchField")->setText(QStringLiteral("bet"));
    shown.list()->setFocus();
    shown.press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("secret of Beta"));
    shown.field("searchField")->setText(QStringLiteral("alp"));
    shown.press(Qt::Key_F2);
    QCOMPARE(shown.field("titleField")->text(), QStringLiteral("Alpha"));
}

void TestMainView::searchKeepsWhatIsEdited()
{
    View shown;
    const QString id = shown.test.addLogin(QStringLiteral("Shop"));
    shown.test.addLogin(QStringLiteral("Other"));
    shown.choose(QStringLiteral("Shop"));
    shown.click("editButton");
    shown.field("loginField")->setText(QStringLiteral("bea"));
    shown.field("searchField")->setText(QStringLiteral("Other"));
    QVERIFY(shown.isEditing());
    QVERIFY(shown.asker.asked.isEmpty());
    shown.click("saveButton");
    QCOMPARE(shown.test.login(id)->login(), QStringLiteral("bea"));
    QCOMPARE(shown.current(), QStringLiteral("Shop"));
}

void TestMainView::removeAndRestore()
{
    View shown;
    const QString id = shown.test.addLogin(QStringLiteral("Shop"));
    shown.choose(QStringLiteral("Shop"));
    shown.asker.answer = 1;
    QTest::keyClick(shown.list(), Qt::Key_Delete);
    QCOMPARE(shown.asker.asked.last().text, QStringLiteral("Do you want to remove item?"));
    QVERIFY(!shown.test.login(id)->deleted());

    shown.asker.answer = 0;
    QTest::keyClick(shown.list(), Qt::Key_Delete);
    QVERIFY(shown.test.login(id)->deleted());
    QCOMPARE(shown.shownTitle(), QString());

    auto *categories = shown.field<QListView>("categoryList");
    categories->setCurrentIndex(categories->model()->index(categories->model()->rowCount() - 1, 0));
    QCOMPARE(shown.shownTitle(), QStringLiteral("Shop"));
    QVERIFY(!shown.field<QPushButton>("editButton")->isVisible());
    shown.click("restoreButton");
    QVERIFY(!shown.test.login(id)->deleted());
    QTRY_COMPARE(shown.shownTitle(), QString());

    shown.test.core.modelItemDeleted(id);
    QCoreApplication::processEvents();
    shown.choose(QStringLiteral("Shop"));
    shown.click("removeButton");
    QCOMPARE(shown.asker.asked.last().buttons.first(), QStringLiteral("Delete forever"));
    QCOMPARE(shown.test.core.currentSafe()->itemCount(), 0);
    QVERIFY(!shown.shows(QStringLiteral("Shop")));
}

void TestMainView::enterOnAQuestionPressesTheFocusedButton()
{
    const auto answer = [](int standard, const QVector<Qt::Key> &keys) {
        QuestionDialog dialog(
            {QStringLiteral("Title"),
             QStringLiteral("Text"),
             {QStringLiteral("On"), QStringLiteral("Other"), QStringLiteral("Cancel")},
             standard},
            nullptr);
        dialog.show();
        if (!QTest::qWaitForWindowActive(&dialog))
            return -1;
        for (Qt::Key key : keys)
            QTest::keyClick(dialog.focusWidget(), key);
        return dialog.result() == QDialog::Accepted ? dialog.answer() : -1;
    };
    QCOMPARE(answer(0, {Qt::Key_Return}), 0);
    QCOMPARE(answer(0, {Qt::Key_Tab, Qt::Key_Return}), 1);
    QCOMPARE(answer(0, {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Enter}), 2);
    QCOMPARE(answer(2, {Qt::Key_Return}), 2);

    View shown;
    const QString id = shown.test.addLogin(QStringLiteral("Shop"));
    shown.asker.answer = 1;
    shown.choose(QStringLiteral("Shop"));
    shown.click("removeButton");
    QCOMPARE(shown.asker.asked.last().standard, 1);
    shown.test.core.modelItemDeleted(id);
    QCoreApplication::processEvents();
    auto *categories = shown.field<QListView>("categoryList");
    categories->setCurrentIndex(categories->model()->index(categories->model()->rowCount() - 1, 0));
    shown.click("removeButton");
    QCOMPARE(shown.asker.asked.last().standard, 1);
    shown.click("emptyTrashButton");
    QCOMPARE(shown.asker.asked.last().standard, 1);
    QCOMPARE(shown.asker.asked.size(), 3);
}

void TestMainView::anotherDayIsNoticed()
{
    View shown;
    auto card = std::make_unique<PMCreditCard>();
    card->setTitle(QStringLiteral("Card"));
    card->setExpire({2031, 3, 0});
    shown.now = QDateTime(QDate(2031, 1, 29), QTime(12, 0), Qt::UTC);
    find<QTimer>(shown.view, "dayTimer")->setInterval(0);
    shown.test.core.modelAddItem(std::move(card));
    shown.field("searchField")->setText(QStringLiteral("is:expiring"));
    QCOMPARE(shown.list()->model()->rowCount(), 0);
    const auto *categories = shown.field<QListView>("categoryList")->model();
    const int before = categories->rowCount();
    // The last day of the month is 60 days away.
    shown.now = shown.now.addDays(1);
    QTRY_COMPARE(shown.list()->model()->rowCount(), 1);
    QCOMPARE(categories->rowCount(), before + 1);
}

void TestMainView::strengthIsThatOfThePassword()
{
    View shown;
    const QString id = shown.test.addLogin(QStringLiteral("Shop"));
    shown.test.login(id)->setStrength(PMFieldTypes::PasswordStrength::Strong);
    shown.test.login(id)->setPassword(QStringLiteral("shop1"));
    shown.choose(QStringLiteral("Shop"));
    const auto meter = [&shown] {
        const auto *found = find<QWidget>(shown.view, "passwordRow")->findChild<StrengthMeter *>();
        return found ? found->accessibleName() : QString();
    };
    QTRY_COMPARE(meter(), passwordStrengthLabel(2));
    // Changed by something that knows nothing of strength, as the browser's side.
    shown.test.login(id)->setPassword(QStringLiteral("q7V<m2X,8Rz!Kd"));
    QTRY_COMPARE(meter(), passwordStrengthLabel(4));
}

void TestMainView::removeAsksAboutANewItemFirst()
{
    View shown;
    const QString id = shown.test.addLogin(QStringLiteral("Beta"));
    shown.choose(QStringLiteral("Beta"));
    shown.press(Qt::Key_N, Qt::ControlModifier);
    shown.field("titleField")->setText(QStringLiteral("Gamma"));
    QTest::mouseClick(shown.list()->viewport(), Qt::LeftButton, {},
                      shown.list()->visualRect(shown.list()->currentIndex()).center());
    shown.asker.answer = 2;
    QTest::keyClick(shown.list(), Qt::Key_Delete);
    QCOMPARE(shown.asker.asked.size(), 1);
    QCOMPARE(shown.field("titleField")->text(), QStringLiteral("Gamma"));
    QVERIFY(!shown.test.login(id)->deleted());

    // Saved first, removed then.
    shown.asker.answer = 0;
    QTest::keyClick(shown.list(), Qt::Key_Delete);
    QCOMPARE(shown.asker.asked.size(), 3);
    QCOMPARE(shown.test.core.currentSafe()->itemCount(), 2);
    QVERIFY(shown.test.login(id)->deleted());
}

void TestMainView::removeAsksAboutAnotherEditFirst()
{
    View shown;
    const QString alpha = shown.test.addLogin(QStringLiteral("Alpha"));
    const QString beta = shown.test.addLogin(QStringLiteral("Beta"));
    shown.choose(QStringLiteral("Alpha"));
    shown.click("editButton");
    shown.field("loginField")->setText(QStringLiteral("bea"));
    shown.field("searchField")->setText(QStringLiteral("Beta"));
    shown.asker.answer = 2;
    QTest::keyClick(shown.field("searchField"), Qt::Key_Down);
    QCOMPARE(shown.asker.asked.size(), 1);
    QTest::keyClick(shown.list(), Qt::Key_Delete);
    QCOMPARE(shown.asker.asked.size(), 1);
    QCOMPARE(shown.field("loginField")->text(), QStringLiteral("bea"));
    QVERIFY(!shown.test.login(beta)->deleted());

    shown.asker.answer = 0;
    QTest::keyClick(shown.field("searchField"), Qt::Key_Down);
    QCOMPARE(shown.current(), QStringLiteral("Beta"));
    QTest::keyClick(shown.list(), Qt::Key_Delete);
    QCOMPARE(shown.asker.asked.size(), 3);
    QCOMPARE(shown.test.login(alpha)->login(), QStringLiteral("bea"));
    QVERIFY(!shown.test.login(alpha)->deleted());
    QVERIFY(shown.test.login(beta)->deleted());
}

void TestMainView::tabLeadsFromTheFieldsToSave()
{
    View shown;
    shown.test.addLogin(QStringLiteral("Shop"));
    shown.choose(QStringLiteral("Shop"));
    // The second editor comes after the buttons have been moved once.
    for (int turn = 0; turn < 2; ++turn) {
        shown.press(Qt::Key_F2);
        find<QWidget>(shown.view, "noteField")->setFocus();
        for (const char *name : {"removeButton", "discardButton", "saveButton"}) {
            shown.press(Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(name));
        }
        shown.press(Qt::Key_Escape);
        QVERIFY(!shown.isEditing());
    }
}

void TestMainView::enterPressesSave()
{
    View shown;
    shown.press(Qt::Key_N, Qt::ControlModifier);
    shown.field("titleField")->setText(QStringLiteral("Shop"));
    shown.field<QPushButton>("saveButton")->setFocus();
    QSignalSpy activated(shown.view.findChild<ItemListPane *>(), &ItemListPane::activated);
    shown.press(Qt::Key_Return);
    QVERIFY(!shown.isEditing());
    QCOMPARE(shown.shownTitle(), QStringLiteral("Shop"));
    // The key is held a little too long, and the list has the keyboard now.
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                       true);
    QCoreApplication::sendEvent(shown.list(), &repeated);
    QVERIFY(activated.isEmpty());
}

void TestMainView::nothingIsCopiedWhileEditing()
{
    View shown;
    shown.test.addLogin(QStringLiteral("Shop"));
    shown.choose(QStringLiteral("Shop"));
    const auto copies = [&shown] {
        QStringList texts;
        for (const auto &keys : {qMakePair(Qt::Key_B, Qt::KeyboardModifiers(Qt::ControlModifier)),
                                 qMakePair(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier)}) {
            QGuiApplication::clipboard()->setText(QStringLiteral("before"));
            shown.press(keys.first, keys.second);
            texts.append(QGuiApplication::clipboard()->text());
        }
        return texts;
    };
    const QStringList nothing{QStringLiteral("before"), QStringLiteral("before")};
    QCOMPARE(copies(), QStringList({QStringLiteral("ana"), QStringLiteral("secret of Shop")}));
    shown.press(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(shown.isEditing());
    QCOMPARE(copies(), nothing);
    shown.click("discardButton");
    shown.click("editButton");
    QCOMPARE(copies(), nothing);
}

void TestMainView::saveKeyRetriesAFailedSave()
{
    View shown;
    GPMAppCore &core = shown.test.core;
    const QString id = shown.test.addLogin(QStringLiteral("Shop"));
    QVERIFY(core.saveCurrentSafe());
    const QString content = core.currentSafe()->folder() + QStringLiteral("/content");
    QVERIFY(QDir().rename(content, content + QStringLiteral(".away")));
    shown.test.login(id)->setNote(QStringLiteral("changed"));
    QVERIFY(core.hasUnsavedChanges());
    QSignalSpy messages(&core, &GPMAppCore::message);
    shown.press(Qt::Key_S, Qt::ControlModifier);
    QTRY_COMPARE(messages.count(), 1);
    QCOMPARE(messages.first().first().toString(), QStringLiteral("Can't save changes."));

    QVERIFY(QDir().rename(content + QStringLiteral(".away"), content));
    shown.press(Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(!core.hasUnsavedChanges());
    QCOMPARE(messages.count(), 1);
}

void TestMainView::lockDropsWhatIsShown()
{
    View shown;
    shown.test.addLogin(QStringLiteral("Shop"), QStringLiteral("very-own-name"));
    shown.choose(QStringLiteral("Shop"));
    shown.click("passwordRevealButton");
    shown.field("searchField")->setText(QStringLiteral("very"));
    QTRY_VERIFY(shown.shows(QStringLiteral("very-own-name")));
    shown.test.core.lockCurrentSafe();
    QCOMPARE(shown.list()->model()->rowCount(), 0);
    for (const char *text : {"Shop", "very", "shop.example", "Personal"})
        QVERIFY2(!shown.shows(QLatin1String(text)), text);
    QVERIFY(!shown.field<QWidget>("passwordRow"));
}

void TestMainView::lockWhileAQuestionIsOpen()
{
    TestCore test;
    Theme theme;
    QVERIFY(test.createSafe());
    MainView view(test.core, theme);
    view.openSafe(test.core.currentSafe());
    connect(&test.core, &GPMAppCore::safeLockedChanged, &view, &MainView::closeSafe);
    view.show();
    test.addLogin(QStringLiteral("Shop"));
    auto *list = find<QListView>(view, "itemList");
    list->setCurrentIndex(list->model()->index(0, 0));
    find<QPushButton>(view, "editButton")->click();
    find<QLineEdit>(view, "titleField")->setText(QStringLiteral("Changed"));
    QTimer::singleShot(0, &view, [&] {
        QVERIFY(view.findChild<QDialog *>());
        test.core.lockCurrentSafe();
    });
    QVERIFY(!view.mayLeave());
    QVERIFY(!view.findChild<QDialog *>());
    QVERIFY(!find<QLineEdit>(view, "titleField"));
    QVERIFY(!test.core.currentSafe()->isUnlocked());
}

void TestMainView::lockByItselfDropsTheEdit()
{
    View shown;
    const QString id = shown.test.addLogin(QStringLiteral("Shop"));
    shown.choose(QStringLiteral("Shop"));
    shown.click("editButton");
    shown.field("loginField")->setText(QStringLiteral("not-saved"));
    shown.test.core.lockCurrentSafe();
    QVERIFY(!shown.isEditing());
    QVERIFY(!shown.shows(QStringLiteral("not-saved")));

    QSignalSpy finished(&shown.test.core, &GPMAppCore::unlockFinished);
    shown.test.core.unlockCurrentSafe(testPassword);
    QVERIFY(finished.wait());
    QCOMPARE(shown.test.login(id)->login(), QStringLiteral("ana"));
    QCOMPARE(shown.shownTitle(), QStringLiteral("Shop"));
}

void TestMainView::secretsAreHiddenUntilRevealed()
{
    View shown;
    shown.test.addLogin(QStringLiteral("Shop"));
    shown.choose(QStringLiteral("Shop"));
    const auto text = [&shown] {
        QString all;
        for (const QLabel *label : shown.field<QWidget>("passwordRow")->findChildren<QLabel *>())
            all.append(label->text());
        return all.remove(QChar(0x200B));
    };
    const QString secret = QStringLiteral("secret of Shop");
    QVERIFY(!text().contains(secret));
    shown.click("passwordRevealButton");
    QVERIFY(text().contains(secret));
    shown.click("passwordRevealButton");
    QVERIFY(!text().contains(secret));
}

void TestMainView::unreadableItemsAreNamed()
{
    View shown;
    QCOMPARE(shown.field<QWidget>("banner")->isVisible(), false);
    shown.test.addLogin(QStringLiteral("Shop"));
    const QString folder = shown.test.core.currentSafe()->folder() + QStringLiteral("/content/");
    shown.test.core.lockCurrentSafe();
    const QString name = QStringLiteral("11111111-2222-3333-4444-555555555555");
    QFile damaged(folder + name);
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("damaged");
    damaged.close();

    QSignalSpy finished(&shown.test.core, &GPMAppCore::unlockFinished);
    shown.test.core.unlockCurrentSafe(testPassword);
    QVERIFY(finished.wait());
    QVERIFY(shown.field<QWidget>("banner")->isVisible());
    QCOMPARE(shown.field<QLabel>("bannerText")->text(), QStringLiteral("1 item could not be read"));
    QVERIFY(shown.field<QLabel>("bannerFiles")->text().contains(name));
    QCOMPARE(shown.current(), QStringLiteral("Shop"));
    shown.click("bannerCloseButton");
    QVERIFY(!shown.field<QWidget>("banner")->isVisible());
}

void TestMainView::selectsManyByKeyboard()
{
    View shown;
    for (const char *title : {"Alpha", "Beta", "Gamma", "Delta"})
        shown.test.addLogin(QLatin1String(title));
    shown.choose(QStringLiteral("Beta"));
    shown.list()->setFocus();
    shown.press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(shown.selected(), QStringList({QStringLiteral("Beta"), QStringLiteral("Delta")}));
    const auto *title = shown.field<QLabel>("selectionTitle");
    QVERIFY(title->isVisible());
    QCOMPARE(title->text(), QStringLiteral("2 items selected"));
    QCOMPARE(shown.shownTitle(), QString());

    shown.click("favoriteSelectedButton");
    QTRY_COMPARE(shown.field<QPushButton>("favoriteSelectedButton")->text(),
                 QStringLiteral("Remove from favourites"));
    for (const PMListItem *item : shown.test.core.currentSafe()->items())
        QCOMPARE(item->favorite(), shown.selected().contains(item->title()));

    shown.press(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(shown.selected().size(), 4);
    // What the search hides is no longer selected; what it leaves still is.
    shown.field("searchField")->setText(QStringLiteral("ta"));
    QCOMPARE(shown.selected(), QStringList({QStringLiteral("Beta"), QStringLiteral("Delta")}));
    shown.field("searchField")->clear();
    QCOMPARE(shown.selected().size(), 2);

    shown.list()->setFocus();
    shown.press(Qt::Key_Delete);
    QCOMPARE(shown.asker.asked.last().text, QStringLiteral("Do you want to remove 2 items?"));
    QCOMPARE(shown.list()->model()->rowCount(), 2);
    QVERIFY(!title->isVisible());
    QCOMPARE(shown.selected().size(), 1);
    QCOMPARE(shown.shownTitle(), shown.selected().first());
}

void TestMainView::selectsManyByMouse()
{
    View shown;
    for (const char *title : {"Alpha", "Beta", "Gamma", "Delta"})
        shown.test.addLogin(QLatin1String(title));
    QWidget *rows = shown.list()->viewport();
    QTest::mouseClick(rows, Qt::LeftButton, {}, shown.rowCentre(0));
    QCOMPARE(shown.shownTitle(), QStringLiteral("Alpha"));
    QTest::mouseClick(rows, Qt::LeftButton, Qt::ControlModifier, shown.rowCentre(2));
    QCOMPARE(shown.selected(), QStringList({QStringLiteral("Alpha"), QStringLiteral("Delta")}));
    QCOMPARE(shown.shownTitle(), QString());
    QTest::mouseClick(rows, Qt::LeftButton, Qt::ControlModifier, shown.rowCentre(2));
    QCOMPARE(shown.shownTitle(), QStringLiteral("Alpha"));
    QTest::mouseClick(rows, Qt::LeftButton, {}, shown.rowCentre(0));
    QTest::mouseClick(rows, Qt::LeftButton, Qt::ShiftModifier, shown.rowCentre(1));
    QCOMPARE(shown.selected(), QStringList({QStringLiteral("Alpha"), QStringLiteral("Beta")}));

    // Drawn over rows from one that was not selected.
    QTest::mousePress(rows, Qt::LeftButton, {}, shown.rowCentre(3));
    for (int row : {3, 2, 1}) {
        QMouseEvent move(QEvent::MouseMove, shown.rowCentre(row) + QPoint(0, row - 2), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(rows, &move);
    }
    QTest::mouseRelease(rows, Qt::LeftButton, {}, shown.rowCentre(1));
    QCOMPARE(shown.selected(), QStringList({QStringLiteral("Beta"), QStringLiteral("Delta"),
                                            QStringLiteral("Gamma")}));
    QCOMPARE(shown.field<QLabel>("selectionTitle")->text(), QStringLiteral("3 items selected"));

    // An edit is asked about before many are selected; refused, the selection goes back.
    QTest::mouseClick(rows, Qt::LeftButton, {}, shown.rowCentre(0));
    shown.click("editButton");
    shown.field("loginField")->setText(QStringLiteral("bea"));
    shown.asker.answer = 2;
    QTest::mouseClick(rows, Qt::LeftButton, Qt::ControlModifier, shown.rowCentre(2));
    QCOMPARE(shown.asker.asked.size(), 1);
    QCOMPARE(shown.selected(), QStringList{QStringLiteral("Alpha")});
    QVERIFY(shown.isEditing());
}

void TestMainView::removalIsTakenBack()
{
    View shown;
    for (const char *title : {"Alpha", "Beta", "Gamma"})
        shown.test.addLogin(QLatin1String(title));
    const auto titles = [&shown] {
        QStringList list;
        for (int row = 0; row < shown.list()->model()->rowCount(); ++row)
            list.append(shown.list()->model()->index(row, 0).data().toString());
        return list.join(QLatin1Char(' '));
    };
    const auto removeChosen = [&shown](const char *title) {
        shown.choose(QLatin1String(title));
        QTest::keyClick(shown.list(), Qt::Key_Delete);
    };
    removeChosen("Beta");
    auto *bar = shown.field<QWidget>("snackBar");
    QVERIFY(bar->isVisible());
    shown.click("snackAction");
    QCOMPARE(titles(), QStringLiteral("Alpha Beta Gamma"));

    // One after the other, the last one first; what was restored otherwise is passed over.
    removeChosen("Alpha");
    removeChosen("Gamma");
    removeChosen("Beta");
    QCOMPARE(titles(), QString());
    shown.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(titles(), QStringLiteral("Beta"));
    for (const PMListItem *item : shown.test.core.currentSafe()->items()) {
        if (item->title() == QStringLiteral("Gamma"))
            shown.test.core.modelItemRestored(item->id());
    }
    shown.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(titles(), QStringLiteral("Alpha Beta Gamma"));
    shown.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(titles(), QStringLiteral("Alpha Beta Gamma"));

    // Nothing is left to take back when the safe is opened again.
    removeChosen("Beta");
    shown.test.core.lockCurrentSafe();
    QTRY_VERIFY(!bar->isVisible());
    QSignalSpy finished(&shown.test.core, &GPMAppCore::unlockFinished);
    shown.test.core.unlockCurrentSafe(testPassword);
    QVERIFY(finished.wait());
    shown.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(titles(), QStringLiteral("Alpha Gamma"));
}

void TestMainView::menuOffersWhatApplies_data()
{
    QTest::addColumn<QStringList>("titles");
    QTest::addColumn<QString>("actions");
    const auto row = [](const char *name, const QStringList &titles, const char *actions) {
        QTest::newRow(name) << titles << QString::fromLatin1(actions);
    };
    const QString shop = QStringLiteral("Shop");
    const QString card = QStringLiteral("Card");
    row("login", {shop},
        "useAction openAddressAction copyUserNameAction copySecretAction editAction "
        "duplicateAction favoriteAction exportAction removeAction");
    row("card", {card},
        "useAction copySecretAction editAction duplicateAction favoriteAction exportAction "
        "removeAction");
    row("both", {card, shop}, "favoriteAction exportAction removeAction");
    row("trash", {QStringLiteral("Gone")}, "restoreAction deleteForeverAction");
}

void TestMainView::menuOffersWhatApplies()
{
    QFETCH(QStringList, titles);
    View shown;
    GPMAppCore &core = shown.test.core;
    shown.test.addLogin(QStringLiteral("Shop"));
    auto card = core.modelCreateItem(PMListItem::CreditCard);
    card->setTitle(QStringLiteral("Card"));
    card->setProperty("number", QStringLiteral("4111"));
    core.modelAddItem(std::move(card));
    core.modelItemDeleted(shown.test.addLogin(QStringLiteral("Gone")));
    shown.field("searchField")
        ->setText(titles.contains(QStringLiteral("Gone")) ? QStringLiteral("is:trash") : QString());
    shown.choose(titles.first());
    if (titles.size() > 1)
        shown.list()->selectAll();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(shown.list(), &event);
    const auto *menu = shown.view.findChild<QMenu *>(QStringLiteral("itemMenu"));
    QVERIFY(menu);
    QStringList names;
    for (const QAction *action : menu->actions()) {
        if (!action->isSeparator())
            names.append(action->objectName());
    }
    QTEST(names.join(QLatin1Char(' ')), "actions");
}

void TestMainView::dropsOnTheSidebar()
{
    View shown;
    const QString id = shown.test.addLogin(QStringLiteral("Shop"));
    auto *categories = shown.field<QListView>("categoryList");
    const std::unique_ptr<QMimeData> data(
        shown.list()->model()->mimeData({shown.list()->model()->index(0, 0)}));
    const auto drop = [&](ItemCategory::Kind kind) {
        const int row = ItemCategory::all().indexOf({kind}) - (kind > ItemCategory::Expiring);
        const QPoint place =
            categories->visualRect(categories->model()->index(row, 0)).center() + QPoint(0, 6);
        QDragEnterEvent enter(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QDragMoveEvent move(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QDropEvent dropped(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        for (QDropEvent *event :
             {static_cast<QDropEvent *>(&enter), static_cast<QDropEvent *>(&move), &dropped}) {
            event->ignore();
            QCoreApplication::sendEvent(categories->viewport(), event);
        }
        QCoreApplication::processEvents();
        return dropped.isAccepted();
    };
    QVERIFY(!drop(ItemCategory::All));
    QVERIFY(!shown.test.login(id)->favorite());
    QVERIFY(drop(ItemCategory::Favourites));
    QVERIFY(shown.test.login(id)->favorite());
    shown.asker.answer = 1;
    QVERIFY(drop(ItemCategory::Trash));
    QVERIFY(!shown.test.login(id)->deleted());
    shown.asker.answer = 0;
    QVERIFY(drop(ItemCategory::Trash));
    QVERIFY(shown.test.login(id)->deleted());
}

void TestMainView::duplicates()
{
    View shown;
    PMLogin *shop = shown.test.login(shown.test.addLogin(QStringLiteral("Shop")));
    shop->setUseCount(7);
    shop->setRefs({QStringLiteral("file")});
    shown.choose(QStringLiteral("Shop"));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(shown.list(), &event);
    shown.view.findChild<QAction *>(QStringLiteral("duplicateAction"))->trigger();
    QVERIFY(shown.isEditing());
    QCOMPARE(shown.field("titleField")->text(), QStringLiteral("Shop (copy)"));
    QCOMPARE(shown.current(), QStringLiteral("Shop (copy)"));
    const auto items = shown.test.core.currentSafe()->items();
    QCOMPARE(items.size(), std::size_t(2));
    const PMListItem *copy = items[0] == shop ? items[1] : items[0];
    QCOMPARE(copy->property("password"), shop->property("password"));
    QCOMPARE(copy->useCount(), 0);
    QVERIFY(copy->refs().isEmpty());
    QVERIFY(copy->id() != shop->id());
}

void TestMainView::sidebarFoldsInANarrowWindow()
{
    View shown;
    shown.test.addLogin(QStringLiteral("Shop"));
    const auto *sidebar = shown.field<QWidget>("mainSidebar");
    const int wide = sidebar->width();
    shown.view.resize(shown.view.minimumSizeHint());
    QTRY_VERIFY(sidebar->width() < wide / 3);
    QVERIFY(shown.view.width() < 1366 / 1.5);
    // Words are gone from the screen, not from what is told.
    const auto *categories = shown.field<QListView>("categoryList");
    QTRY_VERIFY(categories->model()
                    ->index(0, 0)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(QStringLiteral("1 item")));
    const auto *switcher = shown.field<QPushButton>("safeSwitcher");
    QVERIFY(switcher->toolTip().startsWith(shown.test.core.currentSafe()->name()));
    QVERIFY(switcher->accessibleName().contains(shown.test.core.currentSafe()->name()));
    for (const char *name : {"lockButton", "menuButton", "settingsButton"}) {
        const auto *button = shown.field<QWidget>(name);
        QVERIFY2(sidebar->rect().contains(button->geometry()), name);
    }
    shown.view.resize(1000, 680);
    QTRY_COMPARE(sidebar->width(), wide);
}

void TestMainView::shortcutsAreOnesOwn()
{
    View shown;
    shown.test.addLogin(QStringLiteral("Shop"));
    QSet<QKeySequence> installed;
    const auto shortcuts = shown.view.findChildren<QShortcut *>();
    for (const QShortcut *shortcut : shortcuts) {
        if (shortcut->context() == Qt::WindowShortcut) {
            QVERIFY2(!installed.contains(shortcut->key()), qPrintable(shortcut->key().toString()));
            installed.insert(shortcut->key());
        }
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
    auto *search = shown.field("searchField");
    search->setFocus();
    QTest::keyClicks(search, QStringLiteral("?"));
    QCOMPARE(search->text(), QStringLiteral("?"));
    QVERIFY(!shown.view.findChild<ShortcutsDialog *>());
    search->clear();
    shown.list()->setFocus();
    QTest::keyClick(shown.list(), Qt::Key_Question);
    QVERIFY(shown.view.findChild<ShortcutsDialog *>());
}

void TestMainView::copyKeyCopiesWhatIsAskedFor_data()
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

void TestMainView::copyKeyCopiesWhatIsAskedFor()
{
    QFETCH(int, type);
    QFETCH(QByteArray, property);
    View shown;
    auto item = shown.test.core.modelCreateItem(static_cast<PMListItem::Type>(type));
    item->setTitle(QStringLiteral("Thing"));
    QVERIFY(item->setProperty(property.constData(), QStringLiteral("its value")));
    shown.test.core.modelAddItem(std::move(item));
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    shown.choose(QStringLiteral("Thing"));
    shown.list()->setFocus();
    shown.press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("its value"));
    // Several items have no one value.
    shown.test.addLogin(QStringLiteral("Shop"));
    shown.list()->selectAll();
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    shown.press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
}

QTEST_MAIN(TestMainView)
#include "tst_mainview.moc"
