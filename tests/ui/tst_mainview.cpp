#include "UiTesting.h"
#include "main/ItemListPane.h"
#include "main/MainView.h"
#include "style/Theme.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

class TestMainView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsALoginByKeyboard();
    void requiredTitle();
    void editIsSavedOrDiscarded();
    void leavingAModifiedItemAsks_data();
    void leavingAModifiedItemAsks();
    void selectionSurvivesChanges();
    void searchKeepsWhatIsEdited();
    void removeAndRestore();
    void enterOnAQuestionPressesTheFocusedButton();
    void removeAsksAboutANewItemFirst();
    void removeAsksAboutAnotherEditFirst();
    void enterPressesSave();
    void nothingIsCopiedWhileEditing();
    void saveKeyRetriesAFailedSave();
    void lockDropsWhatIsShown();
    void lockWhileAQuestionIsOpen();
    void lockByItselfDropsTheEdit();
    void secretsAreHiddenUntilRevealed();
    void unreadableItemsAreNamed();
};

namespace {

struct View
{
    View()
        : view(test.core, theme, asker.asker())
    {
        QObject::connect(&test.core, &GPMAppCore::safeLockedChanged, &view, [this](bool locked) {
            if (locked)
                view.closeSafe();
            else
                view.openSafe(test.core.currentSafe());
        });
        if (!test.createSafe())
            qFatal("No safe to test with");
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
    QCOMPARE(shown.shownTitle(), QStringLiteral("Gamma"));
    search->setText(QStringLiteral("none of them"));
    QCOMPARE(shown.shownTitle(), QString());
    QTest::keyClick(search, Qt::Key_Escape);
    QCOMPARE(shown.list()->model()->rowCount(), 4);
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
    QCOMPARE(shown.current(), QStringLiteral("Beta"));
    QTest::keyClick(shown.list(), Qt::Key_Delete);
    QCOMPARE(shown.asker.asked.size(), 1);
    QCOMPARE(shown.field("loginField")->text(), QStringLiteral("bea"));
    QVERIFY(!shown.test.login(beta)->deleted());

    shown.asker.answer = 0;
    QTest::keyClick(shown.list(), Qt::Key_Delete);
    QCOMPARE(shown.asker.asked.size(), 3);
    QCOMPARE(shown.test.login(alpha)->login(), QStringLiteral("bea"));
    QVERIFY(!shown.test.login(alpha)->deleted());
    QVERIFY(shown.test.login(beta)->deleted());
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

QTEST_MAIN(TestMainView)
#include "tst_mainview.moc"
