#include "../browser/ExtensionClient.h"
#include "PMCreditCard.h"
#include "PMIdentity.h"
#include "PMUiProvider.h"
#include "RandomSource.h"
#include "UiTesting.h"
#include "dialogs/Question.h"
#include "quick/QuickAccessWindow.h"
#include "quick/QuickList.h"
#include "quick/QuickPlace.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSpinBox>
#include <QTcpServer>
#include <QTimer>
#include <QToolButton>

namespace {

const QString page = "https://www.shop.example/cart"_s;

GPMAppCore::Places withPort(const QTemporaryDir &folder)
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    GPMAppCore::Places places = TestCore::places(folder.path());
    places.port = server.serverPort();
    return places;
}

/// The program with a link to a browser, and quick access as its user meets it.
struct Quick
{
    Quick()
        : places(withPort(folder))
        , core(places)
        , provider(core, [] { return true; })
    {
        PMFieldTypes::registerMetaTypes();
        qRegisterMetaType<SafeUnlock::Outcome>("SafeUnlock::Outcome");
        core.startServer();
        provider.connectCore();
        provider.createMainWindow();
        provider.openMainView({});
    }

    bool createSafe() { return core.createSafe("Mine"_s, testPassword, "the usual"_s); }

    template <typename Item = PMLogin>
    Item *add(const QString &title, const QString &url = {})
    {
        auto item = std::make_unique<Item>();
        item->setTitle(title);
        item->setUrl(url);
        item->setSecondaryText("ana of "_s + title);
        return qobject_cast<Item *>(core.modelAddItem(std::move(item)));
    }
    PMLogin *addLogin(const QString &title, const QString &url = {})
    {
        PMLogin *login = add(title, url);
        login->setLogin("ana at "_s + title);
        login->setPassword("secret of "_s + title);
        return login;
    }

    /// Opens it as the browser would.
    void open(const QJsonObject &wish = {{"url"_s, page}})
    {
        Q_EMIT core.requestQuickAccess(QuickAccessWish::fromExtension(caller, wish));
    }

    QWidget *window() const
    {
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->objectName() == QLatin1String("quickAccess"))
                return top;
        }
        return nullptr;
    }
    bool isShown() const { return window() && window()->isVisible(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QWidget *focus = window()->focusWidget();
        QTest::keyClick(focus ? focus : window(), key, modifiers);
    }
    void type(const QString &text) const { QTest::keyClicks(window()->focusWidget(), text); }
    QString focus() const
    {
        return window()->focusWidget() ? window()->focusWidget()->objectName() : QString();
    }
    QString chosen() const
    {
        return find<QListView>(*window(), "quickList")->currentIndex().data().toString();
    }

    QTemporaryDir folder;
    GPMAppCore::Places places;
    GPMAppCore core;
    PMUiProvider provider;
    QString caller;
};

/// A browser's extension that keeps what it is told to fill.
struct Browser : ExtensionClient
{
    explicit Browser(Quick &quick)
        : ExtensionClient(quick.places.port)
    {
        quick.caller = sayHello();
    }
    /// The newest request for a page's forms; empty when none came.
    QJsonObject request() const
    {
        for (auto frame = frames.rbegin(); frame != frames.rend(); ++frame) {
            if (frame->value(QLatin1String("action")) == QLatin1String("getDocumentData"))
                return frame->value(QLatin1String("payload")).toObject();
        }
        return {};
    }
};

QString textOf(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

} // namespace

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

    void enterFillsWhatBelongsToThePage()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin("Archive"_s, "https://archive.example"_s);
        const QString shop = quick.addLogin("Shop"_s, "https://shop.example"_s)->id();
        Browser browser(quick);
        quick.open();
        QVERIFY(quick.isShown());
        QCOMPARE(quick.focus(), "quickSearch"_s);
        QCOMPARE(quick.chosen(), "Shop"_s);
        quick.press(Qt::Key_Return);
        QVERIFY(!quick.isShown());
        QTRY_COMPARE(textOf(browser.request(), "itemid"), shop);
        QCOMPARE(textOf(browser.request(), "openmode"), "currentNoReload"_s);
    }

    void enterOpensThePageOfAnotherLogin()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin("Shop"_s, "https://shop.example"_s);
        const QString other = quick.addLogin("Other"_s, "https://other.example"_s)->id();
        quick.core.settings().setPluginOpenMode(GPMAppSettings::NewTab);
        Browser browser(quick);
        quick.open();
        quick.press(Qt::Key_Down);
        QCOMPARE(quick.chosen(), "Other"_s);
        quick.press(Qt::Key_Enter, Qt::KeypadModifier);
        QTRY_COMPARE(textOf(browser.request(), "itemid"), other);
        QCOMPARE(textOf(browser.request(), "openmode"), "newtab"_s);
    }

    void arrowsAndLettersFind()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        for (const char *title : {"Alpha", "Beta", "Gamma", "Shop"})
            quick.addLogin(QLatin1String(title));
        quick.add<PMCreditCard>("Betacard"_s);
        quick.provider.bringToFront();
        quick.open();
        QVERIFY(QTest::qWaitForWindowActive(quick.window()));
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
        QVERIFY(find<QWidget>(*quick.window(), "quickEmpty")->isVisible());
        quick.press(Qt::Key_Return);
        QVERIFY(quick.isShown());
        quick.press(Qt::Key_Escape);
        QVERIFY(!quick.isShown());
        // The next time nothing is left of it.
        quick.open({{"kind"_s, "creditcard"_s}});
        QVERIFY(QTest::qWaitForWindowActive(quick.window()));
        QCOMPARE(quick.focus(), "quickSearch"_s);
        QCOMPARE(quick.chosen(), "Betacard"_s);
        quick.window()->close();
        quick.open();
        QVERIFY(QTest::qWaitForWindowActive(quick.window()));
        QCOMPARE(quick.focus(), "quickSearch"_s);
        QCOMPARE(quick.chosen(), "Alpha"_s);
        QCOMPARE(find<QLineEdit>(*quick.window(), "quickSearch")->text(), QString());
    }

    void theChosenItemStaysChosenWhileOthersChange()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin("Beta"_s);
        PMLogin *gamma = quick.addLogin("Gamma"_s);
        quick.open();
        quick.press(Qt::Key_Down);
        quick.addLogin("Alpha"_s);
        auto *list = find<QListView>(*quick.window(), "quickList");
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
        QVERIFY(quick.createSafe());
        quick.addLogin("Shop"_s);
        auto *card = quick.add<PMCreditCard>("Visa"_s);
        card->setNumber("4111"_s);
        card->setCardholder("ANA M"_s);
        auto *person = quick.add<PMIdentity>("Ana"_s);
        person->setEmail("ana@example.org"_s);
        person->setFirstName("Ana"_s);
        person->setLastName("Martin"_s);
        QFETCH(int, section);
        quick.open();
        QVERIFY(QTest::qWaitForWindowActive(quick.window()));
        quick.press(Qt::Key(Qt::Key_0 + section), Qt::ControlModifier);
        QCOMPARE(quick.focus(), "quickSearch"_s);
        quick.press(Qt::Key_C, Qt::ControlModifier);
        QTEST(QGuiApplication::clipboard()->text(), "secret");
        QVERIFY(find<QWidget>(*quick.window(), "copyNotice")->isVisible());
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
        QVERIFY(quick.createSafe());
        quick.addLogin("Shop"_s);
        quick.add<PMCreditCard>("Visa"_s);
        quick.open();
        quick.press(Qt::Key_Tab);
        quick.press(Qt::Key_Tab);
        QCOMPARE(quick.focus(), "section1"_s);
        quick.press(Qt::Key_Space);
        QCOMPARE(quick.chosen(), "Visa"_s);
        QCOMPARE(quick.focus(), "quickSearch"_s);
        QVERIFY(find<QToolButton>(*quick.window(), "section1")->isChecked());
        QVERIFY(!find<QToolButton>(*quick.window(), "section0")->isChecked());
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

    void aLockedSafeIsUnlockedInPlace_data()
    {
        QTest::addColumn<bool>("fill");
        QTest::newRow("shows the list") << false;
        QTest::newRow("fills the only login of the page") << true;
    }
    void aLockedSafeIsUnlockedInPlace()
    {
        QFETCH(bool, fill);
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin("Archive"_s, "https://archive.example"_s);
        quick.addLogin("Shop"_s, "https://shop.example"_s);
        Browser browser(quick);
        quick.core.lockCurrentSafe();
        quick.open({{"url"_s, page}, {"fill"_s, fill}});
        QVERIFY(quick.isShown());
        QCOMPARE(quick.focus(), "masterPassword"_s);
        QSignalSpy finished(&quick.core, &GPMAppCore::unlockFinished);
        quick.type("wrong"_s);
        quick.press(Qt::Key_Return);
        QVERIFY(finished.wait());
        QVERIFY(quick.isShown());
        QCOMPARE(quick.focus(), "masterPassword"_s);
        QCOMPARE(find<QLineEdit>(*quick.window(), "masterPassword")->text(), QString());
        quick.type(testPassword);
        quick.press(Qt::Key_Return);
        QVERIFY(finished.wait());
        QCOMPARE(quick.isShown(), !fill);
        QVERIFY(!quick.provider.mainWindow()->isVisible());
        if (fill) {
            QTRY_COMPARE(textOf(browser.request(), "openmode"), "currentNoReload"_s);
            return;
        }
        QCOMPARE(quick.focus(), "quickSearch"_s);
        QCOMPARE(quick.chosen(), "Shop"_s);
        // Locked again, nothing of it is left.
        quick.core.lockCurrentSafe();
        QCOMPARE(quick.focus(), "masterPassword"_s);
        QCOMPARE(find<QListView>(*quick.window(), "quickList")->model()->rowCount(), 0);
    }

    void fillsAtOnceOnlyWhatIsPlain_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("opens");
        QTest::newRow("one login") << page << false;
        QTest::newRow("two") << "https://mail.example/"_s << true;
        QTest::newRow("none") << "https://else.example/"_s << true;
        QTest::newRow("not encrypted") << "http://shop.example/"_s << true;
    }
    void fillsAtOnceOnlyWhatIsPlain()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin("Shop"_s, "https://shop.example"_s);
        quick.addLogin("Mail"_s, "https://mail.example"_s);
        quick.addLogin("Mail 2"_s, "https://www.mail.example"_s);
        Browser browser(quick);
        QFETCH(QString, url);
        QFETCH(bool, opens);
        quick.open({{"url"_s, url}, {"fill"_s, true}});
        QCOMPARE(quick.isShown(), opens);
        if (!opens)
            QTRY_COMPARE(textOf(browser.request(), "openmode"), "currentNoReload"_s);
    }

    void withoutASafeItLeadsToTheMainWindow()
    {
        Quick quick;
        quick.open();
        QVERIFY(find<QWidget>(*quick.window(), "quickNoSafe")->isVisible());
        quick.press(Qt::Key_Space);
        QVERIFY(!quick.isShown());
        QVERIFY(quick.provider.mainWindow()->isVisible());
    }

    void placesAPassword()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        Browser browser(quick);
        quick.open({{"url"_s, page}, {"kind"_s, "generate"_s}});
        auto *length = find<QSpinBox>(*quick.window(), "length");
        auto *made = find<QLineEdit>(*quick.window(), "generatedPassword");
        QCOMPARE(quick.focus(), "length"_s);
        QCOMPARE(length->minimum(), 4);
        QCOMPARE(length->maximum(), 16);
        length->setValue(15);
        QCOMPARE(made->text().size(), 15);
        QTest::keyClick(length, Qt::Key_Return);
        QVERIFY(!quick.isShown());
        QCOMPARE(made->text(), QString());
        QTRY_COMPARE(textOf(browser.request(), "reason"), "placepwd"_s);
        // The length is that of the next one.
        quick.open({{"kind"_s, "generate"_s}});
        QCOMPARE(made->text().size(), 15);
        // Nobody is there any more.
        quick.core.lockCurrentSafe();
        QVERIFY(!quick.isShown());
        QCOMPARE(made->text(), QString());
    }

    void dialogsLeftOpen()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
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

    void whatWasSearchedForStaysChosen()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin("Shop A"_s, "https://archive.example"_s);
        quick.addLogin("Shop B"_s, "https://shop.example"_s);
        quick.core.openQuickAccess();
        quick.type("shop"_s);
        QCOMPARE(quick.chosen(), "Shop A"_s);
        Q_EMIT quick.core.quickAccessPageFound(page);
        // It is above now, below a heading.
        QCOMPARE(find<QListView>(*quick.window(), "quickList")->model()->index(1, 0).data(),
                 QVariant("Shop B"_s));
        QCOMPARE(quick.chosen(), "Shop A"_s);
    }

    void aKeyMeantForTheRowBeforeDoesNothingWithTheNewOne()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin("Archive"_s, "https://archive.example"_s);
        PMLogin *shop = quick.addLogin("Shop"_s, "https://shop.example"_s);
        Browser browser(quick);
        QApplication::clipboard()->clear();
        quick.core.openQuickAccess();
        QCOMPARE(quick.chosen(), "Archive"_s);
        Q_EMIT quick.core.quickAccessPageFound(page);
        QCOMPARE(quick.chosen(), "Shop"_s);
        quick.press(Qt::Key_C, Qt::ControlModifier);
        quick.press(Qt::Key_Return);
        QVERIFY(quick.isShown());
        QCOMPARE(QApplication::clipboard()->text(), QString());
        // The user who moves has seen it; who does not has some time to.
        quick.press(Qt::Key_Down);
        quick.press(Qt::Key_Up);
        quick.press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), shop->password());
        QTRY_VERIFY(!quick.window()->findChild<QuickList *>()->isSettling());
        quick.press(Qt::Key_Return);
        QVERIFY(!quick.isShown());
    }

    void theHotkeyAsksForThePage()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin("Archive"_s, "https://archive.example"_s);
        quick.addLogin("Shop"_s, "https://shop.example"_s);
        Browser browser(quick);
        const auto answer = [&browser](QJsonObject reply, const QString &url) {
            reply.insert("tabUrl"_s, url);
            reply.insert("result"_s, QJsonObject{});
            browser.sendFrame("collectDocumentResults"_s, reply);
        };
        quick.core.openQuickAccess();
        QCOMPARE(quick.chosen(), "Archive"_s);
        QTRY_VERIFY(!browser.request().isEmpty());
        // What was not asked for is no answer.
        QJsonObject other = browser.request();
        other.insert("timestamp"_s, "1"_s);
        answer(other, "https://archive.example/"_s);
        answer(browser.request(), page);
        QTRY_COMPARE(quick.chosen(), "Shop"_s);
        QTRY_VERIFY(!quick.window()->findChild<QuickList *>()->isSettling());
        quick.press(Qt::Key_Return);
        QTRY_COMPARE(textOf(browser.request(), "openmode"), "currentNoReload"_s);
        QTRY_COMPARE(textOf(browser.request(), "reason"), "login"_s);
    }

    void goesWhenTheUserTurnsToSomethingElse()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.open();
        QVERIFY(QTest::qWaitForWindowActive(quick.window()));
        QWidget other;
        other.show();
        other.activateWindow();
        QTRY_VERIFY(!quick.isShown());
        // The hotkey that opens it closes it.
        quick.core.openQuickAccess();
        QVERIFY(QTest::qWaitForWindowActive(quick.window()));
        quick.core.openQuickAccess();
        QVERIFY(!quick.isShown());
    }
};

QTEST_MAIN(TestQuickAccess)
#include "tst_quickaccess.moc"
