#include "MainDesk.h"
#include "PMCreditCard.h"
#include "PasswordStrength.h"
#include "main/ItemListPane.h"
#include "widgets/StrengthMeter.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

/// What one item goes through in the main window.
class TestMainView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsALoginByKeyboard()
    {
        MainDesk desk;
        desk.press(Qt::Key_N, Qt::ControlModifier);
        for (const char *text : {"Cloudmail", "ana", "s3cret", "mail.example"}) {
            QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
            desk.press(Qt::Key_Tab);
        }
        desk.press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!desk.isEditing());
        QCOMPARE(desk.current(), "Cloudmail"_s);
        QCOMPARE(desk.shownTitle(), "Cloudmail"_s);
        const auto *login = qobject_cast<PMLogin *>(desk.onlyItem());
        QVERIFY(login);
        QCOMPARE(login->login(), "ana"_s);
        QCOMPARE(login->password(), "s3cret"_s);
        QCOMPARE(login->url(), "https://mail.example"_s);
        QCOMPARE(login->secondaryText(), "ana"_s);
    }

    void requiredTitle()
    {
        MainDesk desk;
        desk.press(Qt::Key_N, Qt::ControlModifier);
        desk.type("loginField", "ana");
        desk.click("saveButton");
        QCOMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(desk.asker.asked.first().text,
                 "There are empty required values.\nFill and try again."_s);
        QVERIFY(desk.isEditing());
        const auto *message = desk.field<QLabel>("titleMessage");
        QCOMPARE(message->text(), "Required field is empty"_s);
        QCOMPARE(desk.safe().itemCount(), 0);
        desk.type("titleField", "Shop");
        QCOMPARE(message->text(), QString());
        desk.click("saveButton");
        QCOMPARE(desk.safe().itemCount(), 1);
    }

    void editIsSavedOrDiscarded()
    {
        MainDesk desk;
        const QString id = desk.addAndEdit("Shop", "bea");
        QCOMPARE(desk.test.login(id)->login(), "ana"_s);
        desk.click("discardButton");
        QVERIFY(!desk.isEditing());
        QCOMPARE(desk.test.login(id)->login(), "ana"_s);

        QSignalSpy saved(&desk.safe(), &GPMSafe::saved);
        desk.click("editButton");
        desk.type("loginField", "cleo");
        desk.field<QPlainTextEdit>("noteField")->setPlainText("two\nlines"_s);
        desk.click("saveButton");
        QCOMPARE(desk.test.login(id)->login(), "cleo"_s);
        QCOMPARE(desk.test.login(id)->note(), "two\nlines"_s);
        QVERIFY(shows(desk, "cleo"));
        QVERIFY(saved.wait());
        QVERIFY(desk.asker.asked.isEmpty());
    }

    void leavingAModifiedItemAsks_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("userName");
        QTest::addColumn<QString>("current");
        QTest::newRow("save") << 0 << "bea"_s
                              << "Other"_s;
        QTest::newRow("discard") << 1 << "ana"_s
                                 << "Other"_s;
        QTest::newRow("continue") << 2 << "ana"_s
                                  << "Shop"_s;
    }
    void leavingAModifiedItemAsks()
    {
        MainDesk desk;
        const QString id = desk.addAndEdit("Shop", "bea");
        desk.test.addLogin("Other");
        QFETCH(int, answer);
        desk.asker.answer = answer;
        desk.choose("Other");
        QCOMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(desk.asker.asked.first().title, "The object has been modified"_s);
        QCOMPARE(desk.asker.asked.first().text, "You have not saved changes yet"_s);
        QTEST(desk.test.login(id)->login(), "userName");
        QTEST(desk.current(), "current");
        QCOMPARE(desk.isEditing(), answer == 2);
    }

    void removeAndRestore()
    {
        MainDesk desk;
        const QString id = desk.addAndChoose("Shop");
        // Enter on a question does no harm.
        const auto lastStandard = [&desk] { return desk.asker.asked.last().standard; };
        desk.asker.answer = 1;
        QTest::keyClick(desk.list(), Qt::Key_Delete);
        QCOMPARE(desk.asker.asked.last().text, "Do you want to remove item?"_s);
        QCOMPARE(lastStandard(), 1);
        QVERIFY(!desk.test.login(id)->deleted());

        desk.asker.answer = 0;
        QTest::keyClick(desk.list(), Qt::Key_Delete);
        QVERIFY(desk.test.login(id)->deleted());
        QCOMPARE(desk.shownTitle(), QString());

        desk.chooseCategory("Trash");
        QCOMPARE(desk.shownTitle(), "Shop"_s);
        QVERIFY(!desk.field<QPushButton>("editButton")->isVisible());
        desk.click("restoreButton");
        QVERIFY(!desk.test.login(id)->deleted());
        QTRY_COMPARE(desk.shownTitle(), QString());

        desk.test.core.modelItemDeleted(id);
        QCoreApplication::processEvents();
        desk.asker.answer = 1;
        desk.click("emptyTrashButton");
        QCOMPARE(lastStandard(), 1);
        QVERIFY(desk.test.login(id));
        desk.asker.answer = 0;
        desk.choose("Shop");
        desk.click("removeButton");
        QCOMPARE(desk.asker.asked.last().buttons.first(), "Delete forever"_s);
        QCOMPARE(lastStandard(), 1);
        QCOMPARE(desk.safe().itemCount(), 0);
        QVERIFY(!shows(desk, "Shop"));
    }

    void enterOnAQuestionPressesTheFocusedButton_data()
    {
        QTest::addColumn<int>("standard");
        QTest::addColumn<QVector<int>>("keys");
        QTest::addColumn<int>("answer");
        const int tab = Qt::Key_Tab;
        QTest::newRow("standard") << 0 << QVector<int>{Qt::Key_Return} << 0;
        QTest::newRow("one further") << 0 << QVector<int>{tab, Qt::Key_Return} << 1;
        QTest::newRow("two further") << 0 << QVector<int>{tab, tab, Qt::Key_Enter} << 2;
        QTest::newRow("other standard") << 2 << QVector<int>{Qt::Key_Return} << 2;
    }
    void enterOnAQuestionPressesTheFocusedButton()
    {
        QFETCH(int, standard);
        QFETCH(QVector<int>, keys);
        QuestionDialog dialog({"Title"_s, "Text"_s, {"On"_s, "Other"_s, "Cancel"_s}, standard},
                              nullptr);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        for (const int key : keys)
            QTest::keyClick(dialog.focusWidget(), Qt::Key(key));
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QTEST(dialog.answer(), "answer");
    }

    void anotherDayIsNoticed()
    {
        MainDesk desk;
        auto card = std::make_unique<PMCreditCard>();
        card->setTitle("Card"_s);
        card->setExpire({2031, 3, 0});
        desk.now = QDateTime(QDate(2031, 1, 29), QTime(12, 0), Qt::UTC);
        desk.field<QTimer>("dayTimer")->setInterval(0);
        desk.test.core.modelAddItem(std::move(card));
        desk.type("searchField", "is:expiring");
        QCOMPARE(desk.titles(), QString());
        const auto *categories = desk.field<QListView>("categoryList")->model();
        const int before = categories->rowCount();
        // The last day of the month is 60 days away.
        desk.now = desk.now.addDays(1);
        QTRY_COMPARE(desk.titles(), "Card"_s);
        QCOMPARE(categories->rowCount(), before + 1);
    }

    void strengthIsThatOfThePassword()
    {
        MainDesk desk;
        PMLogin *login = desk.test.login(desk.test.addLogin("Shop"));
        login->setStrength(PMFieldTypes::PasswordStrength::Strong);
        login->setPassword("shop1"_s);
        desk.choose("Shop");
        const auto meter = [&desk] {
            const auto *found = desk.field<QWidget>("passwordRow")->findChild<StrengthMeter *>();
            return found ? found->accessibleName() : QString();
        };
        QTRY_COMPARE(meter(), passwordStrengthLabel(2));
        // Changed by something that knows nothing of strength, as the browser's side.
        login->setPassword("q7V<m2X,8Rz!Kd"_s);
        QTRY_COMPARE(meter(), passwordStrengthLabel(4));
    }

    void removeAsksAboutANewItemFirst()
    {
        MainDesk desk;
        const QString id = desk.addAndChoose("Beta");
        desk.press(Qt::Key_N, Qt::ControlModifier);
        desk.type("titleField", "Gamma");
        QTest::mouseClick(desk.list()->viewport(), Qt::LeftButton, {},
                          desk.list()->visualRect(desk.list()->currentIndex()).center());
        desk.asker.answer = 2;
        QTest::keyClick(desk.list(), Qt::Key_Delete);
        QCOMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(desk.typed("titleField"), "Gamma"_s);
        QVERIFY(!desk.test.login(id)->deleted());

        // Saved first, removed then.
        desk.asker.answer = 0;
        QTest::keyClick(desk.list(), Qt::Key_Delete);
        QCOMPARE(desk.asker.asked.size(), 3);
        QCOMPARE(desk.safe().itemCount(), 2);
        QVERIFY(desk.test.login(id)->deleted());
    }

    void removeAsksAboutAnotherEditFirst()
    {
        MainDesk desk;
        const QString beta = desk.test.addLogin("Beta");
        const QString alpha = desk.addAndEdit("Alpha", "bea");
        auto *search = desk.field("searchField");
        search->setText("Beta"_s);
        desk.asker.answer = 2;
        QTest::keyClick(search, Qt::Key_Down);
        QCOMPARE(desk.asker.asked.size(), 1);
        QTest::keyClick(desk.list(), Qt::Key_Delete);
        QCOMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(desk.typed("loginField"), "bea"_s);
        QVERIFY(!desk.test.login(beta)->deleted());

        desk.asker.answer = 0;
        QTest::keyClick(search, Qt::Key_Down);
        QCOMPARE(desk.current(), "Beta"_s);
        QTest::keyClick(desk.list(), Qt::Key_Delete);
        QCOMPARE(desk.asker.asked.size(), 3);
        QCOMPARE(desk.test.login(alpha)->login(), "bea"_s);
        QVERIFY(!desk.test.login(alpha)->deleted());
        QVERIFY(desk.test.login(beta)->deleted());
    }

    void tabLeadsFromTheFieldsToSave()
    {
        MainDesk desk;
        desk.addAndChoose("Shop");
        // The second editor comes after the buttons have been moved once.
        for (int turn = 0; turn < 2; ++turn) {
            desk.press(Qt::Key_F2);
            desk.field<QWidget>("noteField")->setFocus();
            for (const char *name : {"removeButton", "discardButton", "saveButton"}) {
                desk.press(Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget()->objectName(), QLatin1String(name));
            }
            desk.press(Qt::Key_Escape);
            QVERIFY(!desk.isEditing());
        }
    }

    void enterPressesSave()
    {
        MainDesk desk;
        desk.press(Qt::Key_N, Qt::ControlModifier);
        desk.type("titleField", "Shop");
        desk.field<QPushButton>("saveButton")->setFocus();
        QSignalSpy activated(desk.view->findChild<ItemListPane *>(), &ItemListPane::activated);
        desk.press(Qt::Key_Return);
        QVERIFY(!desk.isEditing());
        QCOMPARE(desk.shownTitle(), "Shop"_s);
        // The key is held a little too long, and the list has the keyboard now.
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r"_s, true);
        QCoreApplication::sendEvent(desk.list(), &repeated);
        QVERIFY(activated.isEmpty());
    }

    void saveKeyRetriesAFailedSave()
    {
        MainDesk desk;
        GPMAppCore &core = desk.test.core;
        const QString id = desk.test.addLogin("Shop");
        QSignalSpy messages(&core, &GPMAppCore::message);
        desk.test.withoutFolder([&] {
            desk.test.login(id)->setNote("changed"_s);
            QVERIFY(core.hasUnsavedChanges());
            desk.press(Qt::Key_S, Qt::ControlModifier);
            QTRY_COMPARE(messages.count(), 1);
        });
        QCOMPARE(messages.first().first().toString(), "Can't save changes."_s);
        desk.press(Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(!core.hasUnsavedChanges());
        QCOMPARE(messages.count(), 1);
    }

    void lockDropsWhatIsShown()
    {
        MainDesk desk;
        const QString id = desk.test.addLogin("Shop", "very-own-name");
        desk.choose("Shop");
        desk.click("passwordRevealButton");
        desk.type("searchField", "very");
        QTRY_VERIFY(shows(desk, "very-own-name"));
        desk.lock();
        QCOMPARE(desk.titles(), QString());
        for (const char *text : {"Shop", "very", "shop.example", "Personal"})
            QVERIFY2(!shows(desk, text), text);
        QVERIFY(!desk.field<QWidget>("passwordRow"));

        // Also what is being typed, of which the item knows nothing.
        desk.unlock();
        QCOMPARE(desk.shownTitle(), "Shop"_s);
        desk.click("editButton");
        desk.type("loginField", "not-saved");
        desk.lock();
        QVERIFY(!desk.isEditing());
        QVERIFY(!shows(desk, "not-saved"));
        desk.unlock();
        QCOMPARE(desk.test.login(id)->login(), "very-own-name"_s);
        QCOMPARE(desk.shownTitle(), "Shop"_s);
    }

    void lockWhileAQuestionIsOpen()
    {
        TestCore test;
        Theme theme;
        MainView view(test.core, theme);
        openWithSafe(view, test);
        view.show();
        test.addLogin("Shop");
        auto *list = find<QListView>(view, "itemList");
        list->setCurrentIndex(list->model()->index(0, 0));
        find<QPushButton>(view, "editButton")->click();
        find<QLineEdit>(view, "titleField")->setText("Changed"_s);
        QTimer::singleShot(0, &view, [&] {
            QVERIFY(view.findChild<QDialog *>());
            test.core.lockCurrentSafe();
        });
        QVERIFY(!view.mayLeave());
        QVERIFY(!view.findChild<QDialog *>());
        QVERIFY(!find<QLineEdit>(view, "titleField"));
        QVERIFY(!test.core.currentSafe()->isUnlocked());
    }

    void secretsAreHiddenUntilRevealed()
    {
        MainDesk desk;
        desk.addAndChoose("Shop");
        const auto isShown = [&desk] {
            QString all;
            for (const QLabel *label : desk.field<QWidget>("passwordRow")->findChildren<QLabel *>())
                all.append(label->text());
            return all.remove(QChar(0x200B)).contains("secret of Shop"_s);
        };
        for (const bool shown : {false, true, false}) {
            QCOMPARE(isShown(), shown);
            desk.click("passwordRevealButton");
        }
    }

    void unreadableItemsAreNamed()
    {
        MainDesk desk;
        const auto *banner = desk.field<QWidget>("banner");
        QVERIFY(!banner->isVisible());
        desk.test.addLogin("Shop");
        desk.lock();
        const QString name = "11111111-2222-3333-4444-555555555555"_s;
        QVERIFY(FileLayer().writeBytes(desk.safe().folder() + "/content/"_s + name, "damaged"));
        desk.unlock();
        QVERIFY(banner->isVisible());
        QCOMPARE(desk.field<QLabel>("bannerText")->text(), "1 item could not be read"_s);
        QVERIFY(desk.field<QLabel>("bannerFiles")->text().contains(name));
        QCOMPARE(desk.current(), "Shop"_s);
        desk.click("bannerCloseButton");
        QVERIFY(!banner->isVisible());
    }

private:
    /// Whether a text stands anywhere in the view.
    static bool shows(const MainDesk &desk, const char *text)
    {
        QStringList texts;
        for (const QLabel *label : desk.view->findChildren<QLabel *>())
            texts.append(label->text());
        for (const QLineEdit *line : desk.view->findChildren<QLineEdit *>())
            texts.append(line->text());
        return texts.join(QLatin1Char('\n')).contains(QLatin1String(text));
    }
};

QTEST_MAIN(TestMainView)
#include "tst_mainview.moc"
