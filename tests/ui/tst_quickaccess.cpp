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

const QString page = QStringLiteral("https://www.shop.example/cart");

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

    bool createSafe()
    {
        return core.createSafe(QStringLiteral("Mine"), testPassword, QStringLiteral("the usual"));
    }

    template <typename Item = PMLogin>
    Item *add(const QString &title, const QString &url = {})
    {
        auto item = std::make_unique<Item>();
        item->setTitle(title);
        item->setUrl(url);
        item->setSecondaryText(QStringLiteral("ana of ") + title);
        return qobject_cast<Item *>(core.modelAddItem(std::move(item)));
    }
    PMLogin *addLogin(const QString &title, const QString &url = {})
    {
        PMLogin *login = add(title, url);
        login->setLogin(QStringLiteral("ana at ") + title);
        login->setPassword(QStringLiteral("secret of ") + title);
        return login;
    }

    /// Opens it as the browser would.
    void open(const QJsonObject &wish = {{QStringLiteral("url"), page}})
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
        quick.addLogin(QStringLiteral("Archive"), QStringLiteral("https://archive.example"));
        const QString shop =
            quick.addLogin(QStringLiteral("Shop"), QStringLiteral("https://shop.example"))->id();
        Browser browser(quick);
        quick.open();
        QVERIFY(quick.isShown());
        QCOMPARE(quick.focus(), QStringLiteral("quickSearch"));
        QCOMPARE(quick.chosen(), QStringLiteral("Shop"));
        quick.press(Qt::Key_Return);
        QVERIFY(!quick.isShown());
        QTRY_COMPARE(textOf(browser.request(), "itemid"), shop);
        QCOMPARE(textOf(browser.request(), "openmode"), QStringLiteral("currentNoReload"));
    }

    void enterOpensThePageOfAnotherLogin()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin(QStringLiteral("Shop"), QStringLiteral("https://shop.example"));
        const QString other =
            quick.addLogin(QStringLiteral("Other"), QStringLiteral("https://other.example"))->id();
        quick.core.settings().setPluginOpenMode(GPMAppSettings::NewTab);
        Browser browser(quick);
        quick.open();
        quick.press(Qt::Key_Down);
        QCOMPARE(quick.chosen(), QStringLiteral("Other"));
        quick.press(Qt::Key_Enter, Qt::KeypadModifier);
        QTRY_COMPARE(textOf(browser.request(), "itemid"), other);
        QCOMPARE(textOf(browser.request(), "openmode"), QStringLiteral("newtab"));
    }

    void arrowsAndLettersFind()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        for (const char *title : {"Alpha", "Beta", "Gamma", "Shop"})
            quick.addLogin(QLatin1String(title));
        quick.add<PMCreditCard>(QStringLiteral("Betacard"));
        quick.provider.bringToFront();
        quick.open();
        QVERIFY(QTest::qWaitForWindowActive(quick.window()));
        QCOMPARE(quick.chosen(), QStringLiteral("Alpha"));
        quick.press(Qt::Key_Up);
        QCOMPARE(quick.chosen(), QStringLiteral("Alpha"));
        quick.press(Qt::Key_PageDown);
        QCOMPARE(quick.chosen(), QStringLiteral("Shop"));
        quick.type(QStringLiteral("bet"));
        QCOMPARE(quick.chosen(), QStringLiteral("Beta"));
        quick.press(Qt::Key_Down);
        QCOMPARE(quick.chosen(), QStringLiteral("Betacard"));
        quick.type(QStringLiteral("zz"));
        QCOMPARE(quick.chosen(), QString());
        QVERIFY(find<QWidget>(*quick.window(), "quickEmpty")->isVisible());
        quick.press(Qt::Key_Return);
        QVERIFY(quick.isShown());
        quick.press(Qt::Key_Escape);
        QVERIFY(!quick.isShown());
        // The next time nothing is left of it.
        quick.open({{QStringLiteral("kind"), QStringLiteral("creditcard")}});
        QVERIFY(QTest::qWaitForWindowActive(quick.window()));
        QCOMPARE(quick.focus(), QStringLiteral("quickSearch"));
        QCOMPARE(quick.chosen(), QStringLiteral("Betacard"));
        quick.window()->close();
        quick.open();
        QVERIFY(QTest::qWaitForWindowActive(quick.window()));
        QCOMPARE(quick.focus(), QStringLiteral("quickSearch"));
        QCOMPARE(quick.chosen(), QStringLiteral("Alpha"));
        QCOMPARE(find<QLineEdit>(*quick.window(), "quickSearch")->text(), QString());
    }

    void theChosenItemStaysChosenWhileOthersChange()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin(QStringLiteral("Beta"));
        PMLogin *gamma = quick.addLogin(QStringLiteral("Gamma"));
        quick.open();
        quick.press(Qt::Key_Down);
        quick.addLogin(QStringLiteral("Alpha"));
        auto *list = find<QListView>(*quick.window(), "quickList");
        QTRY_COMPARE(list->model()->rowCount(), 4);
        QCOMPARE(quick.chosen(), QStringLiteral("Gamma"));
        quick.core.modelItemDeleted(gamma->id());
        QTRY_COMPARE(quick.chosen(), QStringLiteral("Alpha"));
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
        quick.addLogin(QStringLiteral("Shop"));
        auto *card = quick.add<PMCreditCard>(QStringLiteral("Visa"));
        card->setNumber(QStringLiteral("4111"));
        card->setCardholder(QStringLiteral("ANA M"));
        auto *person = quick.add<PMIdentity>(QStringLiteral("Ana"));
        person->setEmail(QStringLiteral("ana@example.org"));
        person->setFirstName(QStringLiteral("Ana"));
        person->setLastName(QStringLiteral("Martin"));
        QFETCH(int, section);
        quick.open();
        QVERIFY(QTest::qWaitForWindowActive(quick.window()));
        quick.press(Qt::Key(Qt::Key_0 + section), Qt::ControlModifier);
        QCOMPARE(quick.focus(), QStringLiteral("quickSearch"));
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
        quick.type(QStringLiteral("s"));
        quick.press(Qt::Key_A, Qt::ControlModifier);
        quick.press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("s"));
    }

    void tabGoesThroughTheSections()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin(QStringLiteral("Shop"));
        quick.add<PMCreditCard>(QStringLiteral("Visa"));
        quick.open();
        quick.press(Qt::Key_Tab);
        quick.press(Qt::Key_Tab);
        QCOMPARE(quick.focus(), QStringLiteral("section1"));
        quick.press(Qt::Key_Space);
        QCOMPARE(quick.chosen(), QStringLiteral("Visa"));
        QCOMPARE(quick.focus(), QStringLiteral("quickSearch"));
        QVERIFY(find<QToolButton>(*quick.window(), "section1")->isChecked());
        QVERIFY(!find<QToolButton>(*quick.window(), "section0")->isChecked());
        quick.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(quick.focus(), QStringLiteral("section3"));
        quick.press(Qt::Key_Space);
        QCOMPARE(quick.focus(), QStringLiteral("length"));
        // From there on it goes from control to control, and back to the sections.
        QStringList seen;
        for (int i = 0; i < 12 && !seen.contains(QStringLiteral("section3")); ++i) {
            quick.press(Qt::Key_Tab);
            seen.append(quick.focus());
        }
        QVERIFY2(seen.contains(QStringLiteral("specialCount")) &&
                     seen.contains(QStringLiteral("copyButton")) &&
                     seen.contains(QStringLiteral("section3")),
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
        quick.addLogin(QStringLiteral("Archive"), QStringLiteral("https://archive.example"));
        quick.addLogin(QStringLiteral("Shop"), QStringLiteral("https://shop.example"));
        Browser browser(quick);
        quick.core.lockCurrentSafe();
        quick.open({{QStringLiteral("url"), page}, {QStringLiteral("fill"), fill}});
        QVERIFY(quick.isShown());
        QCOMPARE(quick.focus(), QStringLiteral("masterPassword"));
        QSignalSpy finished(&quick.core, &GPMAppCore::unlockFinished);
        quick.type(QStringLiteral("wrong"));
        quick.press(Qt::Key_Return);
        QVERIFY(finished.wait());
        QVERIFY(quick.isShown());
        QCOMPARE(quick.focus(), QStringLiteral("masterPassword"));
        QCOMPARE(find<QLineEdit>(*quick.window(), "masterPassword")->text(), QString());
        quick.type(testPassword);
        quick.press(Qt::Key_Return);
        QVERIFY(finished.wait());
        QCOMPARE(quick.isShown(), !fill);
        QVERIFY(!quick.provider.mainWindow()->isVisible());
        if (fill) {
            QTRY_COMPARE(textOf(browser.request(), "openmode"), QStringLiteral("currentNoReload"));
            return;
        }
        QCOMPARE(quick.focus(), QStringLiteral("quickSearch"));
        QCOMPARE(quick.chosen(), QStringLiteral("Shop"));
        // Locked again, nothing of it is left.
        quick.core.lockCurrentSafe();
        QCOMPARE(quick.focus(), QStringLiteral("masterPassword"));
        QCOMPARE(find<QListView>(*quick.window(), "quickList")->model()->rowCount(), 0);
    }

    void fillsAtOnceOnlyWhatIsPlain_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("opens");
        QTest::newRow("one login") << page << false;
        QTest::newRow("two") << QStringLiteral("https://mail.example/") << true;
        QTest::newRow("none") << QStringLiteral("https://else.example/") << true;
        QTest::newRow("not encrypted") << QStringLiteral("http://shop.example/") << true;
    }
    void fillsAtOnceOnlyWhatIsPlain()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin(QStringLiteral("Shop"), QStringLiteral("https://shop.example"));
        quick.addLogin(QStringLiteral("Mail"), QStringLiteral("https://mail.example"));
        quick.addLogin(QStringLiteral("Mail 2"), QStringLiteral("https://www.mail.example"));
        Browser browser(quick);
        QFETCH(QString, url);
        QFETCH(bool, opens);
        quick.open({{QStringLiteral("url"), url}, {QStringLiteral("fill"), true}});
        QCOMPARE(quick.isShown(), opens);
        if (!opens)
            QTRY_COMPARE(textOf(browser.request(), "openmode"), QStringLiteral("currentNoReload"));
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
        quick.open(
            {{QStringLiteral("url"), page}, {QStringLiteral("kind"), QStringLiteral("generate")}});
        auto *length = find<QSpinBox>(*quick.window(), "length");
        auto *made = find<QLineEdit>(*quick.window(), "generatedPassword");
        QCOMPARE(quick.focus(), QStringLiteral("length"));
        QCOMPARE(length->minimum(), 4);
        QCOMPARE(length->maximum(), 16);
        length->setValue(15);
        QCOMPARE(made->text().size(), 15);
        QTest::keyClick(length, Qt::Key_Return);
        QVERIFY(!quick.isShown());
        QCOMPARE(made->text(), QString());
        QTRY_COMPARE(textOf(browser.request(), "reason"), QStringLiteral("placepwd"));
        // The length is that of the next one.
        quick.open({{QStringLiteral("kind"), QStringLiteral("generate")}});
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
        dialogAsker(quick.provider.mainWindow())({{}, {}, {QStringLiteral("OK")}});
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
        quick.addLogin(QStringLiteral("Shop A"), QStringLiteral("https://archive.example"));
        quick.addLogin(QStringLiteral("Shop B"), QStringLiteral("https://shop.example"));
        quick.core.openQuickAccess();
        quick.type(QStringLiteral("shop"));
        QCOMPARE(quick.chosen(), QStringLiteral("Shop A"));
        Q_EMIT quick.core.quickAccessPageFound(page);
        // It is above now, below a heading.
        QCOMPARE(find<QListView>(*quick.window(), "quickList")->model()->index(1, 0).data(),
                 QVariant(QStringLiteral("Shop B")));
        QCOMPARE(quick.chosen(), QStringLiteral("Shop A"));
    }

    void aKeyMeantForTheRowBeforeDoesNothingWithTheNewOne()
    {
        Quick quick;
        QVERIFY(quick.createSafe());
        quick.addLogin(QStringLiteral("Archive"), QStringLiteral("https://archive.example"));
        PMLogin *shop =
            quick.addLogin(QStringLiteral("Shop"), QStringLiteral("https://shop.example"));
        Browser browser(quick);
        QApplication::clipboard()->clear();
        quick.core.openQuickAccess();
        QCOMPARE(quick.chosen(), QStringLiteral("Archive"));
        Q_EMIT quick.core.quickAccessPageFound(page);
        QCOMPARE(quick.chosen(), QStringLiteral("Shop"));
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
        quick.addLogin(QStringLiteral("Archive"), QStringLiteral("https://archive.example"));
        quick.addLogin(QStringLiteral("Shop"), QStringLiteral("https://shop.example"));
        Browser browser(quick);
        const auto answer = [&browser](QJsonObject reply, const QString &url) {
            reply.insert(QStringLiteral("tabUrl"), url);
            reply.insert(QStringLiteral("result"), QJsonObject{});
            browser.sendFrame(QStringLiteral("collectDocumentResults"), reply);
        };
        quick.core.openQuickAccess();
        QCOMPARE(quick.chosen(), QStringLiteral("Archive"));
        QTRY_VERIFY(!browser.request().isEmpty());
        // What was not asked for is no answer.
        QJsonObject other = browser.request();
        other.insert(QStringLiteral("timestamp"), QStringLiteral("1"));
        answer(other, QStringLiteral("https://archive.example/"));
        answer(browser.request(), page);
        QTRY_COMPARE(quick.chosen(), QStringLiteral("Shop"));
        QTRY_VERIFY(!quick.window()->findChild<QuickList *>()->isSettling());
        quick.press(Qt::Key_Return);
        QTRY_COMPARE(textOf(browser.request(), "openmode"), QStringLiteral("currentNoReload"));
        QTRY_COMPARE(textOf(browser.request(), "reason"), QStringLiteral("login"));
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
