#include "QuickDesk.h"

#include <QClipboard>
#include <QSpinBox>

/// What quick access does with the page in the browser.
class TestQuickFill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QGuiApplication::setQuitOnLastWindowClosed(false); }

    void enterFillsWhatBelongsToThePage()
    {
        Quick quick;
        quick.addSite("Archive");
        const QString shop = quick.addSite("Shop");
        Browser browser(quick);
        quick.open();
        QVERIFY(quick.isShown());
        QCOMPARE(quick.focus(), "quickSearch"_s);
        QCOMPARE(quick.chosen(), "Shop"_s);
        quick.press(Qt::Key_Return);
        QVERIFY(!quick.isShown());
        QTRY_COMPARE(browser.asked("itemid"), shop);
        QTRY_COMPARE(browser.asked("openmode"), "currentNoReload"_s);
    }

    void enterOpensThePageOfAnotherLogin()
    {
        Quick quick;
        quick.addSite("Shop");
        const QString other = quick.addSite("Other");
        quick.core.settings().setPluginOpenMode(GPMAppSettings::NewTab);
        Browser browser(quick);
        quick.open();
        quick.press(Qt::Key_Down);
        QCOMPARE(quick.chosen(), "Other"_s);
        quick.press(Qt::Key_Enter, Qt::KeypadModifier);
        QTRY_COMPARE(browser.asked("itemid"), other);
        QTRY_COMPARE(browser.asked("openmode"), "newtab"_s);
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
        quick.addSite("Archive");
        quick.addSite("Shop");
        Browser browser(quick);
        quick.core.lockCurrentSafe();
        quick.open({{"url"_s, quickPage}, {"fill"_s, fill}});
        QVERIFY(quick.isShown());
        QCOMPARE(quick.focus(), "masterPassword"_s);
        QSignalSpy finished(&quick.core, &GPMAppCore::unlockFinished);
        quick.type("wrong"_s);
        quick.press(Qt::Key_Return);
        QVERIFY(finished.wait());
        QVERIFY(quick.isShown());
        QCOMPARE(quick.focus(), "masterPassword"_s);
        QCOMPARE(quick.part<QLineEdit>("masterPassword")->text(), QString());
        quick.type(testPassword);
        quick.press(Qt::Key_Return);
        QVERIFY(finished.wait());
        QCOMPARE(quick.isShown(), !fill);
        QVERIFY(!quick.provider.mainWindow()->isVisible());
        if (fill) {
            QTRY_COMPARE(browser.asked("openmode"), "currentNoReload"_s);
            return;
        }
        QCOMPARE(quick.focus(), "quickSearch"_s);
        QCOMPARE(quick.chosen(), "Shop"_s);
        // Locked again, nothing of it is left.
        quick.core.lockCurrentSafe();
        QCOMPARE(quick.focus(), "masterPassword"_s);
        QCOMPARE(quick.list()->model()->rowCount(), 0);
    }

    void fillsAtOnceOnlyWhatIsPlain_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<bool>("opens");
        QTest::newRow("one login") << quickPage << false;
        QTest::newRow("two") << "https://mail.example/"_s << true;
        QTest::newRow("none") << "https://else.example/"_s << true;
        QTest::newRow("not encrypted") << "http://shop.example/"_s << true;
    }
    void fillsAtOnceOnlyWhatIsPlain()
    {
        Quick quick;
        quick.addSite("Shop");
        quick.addSite("Mail");
        quick.addLogin("Mail 2"_s, "https://www.mail.example"_s);
        Browser browser(quick);
        QFETCH(QString, url);
        QFETCH(bool, opens);
        quick.open({{"url"_s, url}, {"fill"_s, true}});
        QCOMPARE(quick.isShown(), opens);
        if (!opens)
            QTRY_COMPARE(browser.asked("openmode"), "currentNoReload"_s);
    }

    void placesAPassword()
    {
        Quick quick;
        Browser browser(quick);
        quick.open({{"url"_s, quickPage}, {"kind"_s, "generate"_s}});
        auto *length = quick.part<QSpinBox>("length");
        auto *made = quick.part<QLineEdit>("generatedPassword");
        QCOMPARE(quick.focus(), "length"_s);
        QCOMPARE(length->minimum(), 4);
        QCOMPARE(length->maximum(), 16);
        length->setValue(15);
        QCOMPARE(made->text().size(), 15);
        QTest::keyClick(length, Qt::Key_Return);
        QVERIFY(!quick.isShown());
        QCOMPARE(made->text(), QString());
        QTRY_COMPARE(browser.asked("reason"), "placepwd"_s);
        // The length is that of the next one.
        quick.open({{"kind"_s, "generate"_s}});
        QCOMPARE(made->text().size(), 15);
        // Nobody is there any more.
        quick.core.lockCurrentSafe();
        QVERIFY(!quick.isShown());
        QCOMPARE(made->text(), QString());
    }

    void whatWasSearchedForStaysChosen()
    {
        Quick quick;
        quick.addLogin("Shop A"_s, "https://archive.example"_s);
        quick.addLogin("Shop B"_s, "https://shop.example"_s);
        quick.core.openQuickAccess();
        quick.type("shop"_s);
        QCOMPARE(quick.chosen(), "Shop A"_s);
        Q_EMIT quick.core.quickAccessPageFound(quickPage);
        // It is above now, below a heading.
        QCOMPARE(quick.list()->model()->index(1, 0).data(), QVariant("Shop B"_s));
        QCOMPARE(quick.chosen(), "Shop A"_s);
    }

    void aKeyMeantForTheRowBeforeDoesNothingWithTheNewOne()
    {
        Quick quick;
        quick.addSite("Archive");
        quick.addSite("Shop");
        Browser browser(quick);
        QApplication::clipboard()->clear();
        quick.core.openQuickAccess();
        QCOMPARE(quick.chosen(), "Archive"_s);
        Q_EMIT quick.core.quickAccessPageFound(quickPage);
        QCOMPARE(quick.chosen(), "Shop"_s);
        quick.press(Qt::Key_C, Qt::ControlModifier);
        quick.press(Qt::Key_Return);
        QVERIFY(quick.isShown());
        QCOMPARE(QApplication::clipboard()->text(), QString());
        // The user who moves has seen it; who does not has some time to.
        quick.press(Qt::Key_Down);
        quick.press(Qt::Key_Up);
        quick.press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "secret of Shop"_s);
        QVERIFY(quick.settles());
        quick.press(Qt::Key_Return);
        QVERIFY(!quick.isShown());
    }

    void theHotkeyAsksForThePage()
    {
        Quick quick;
        quick.addSite("Archive");
        quick.addSite("Shop");
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
        answer(browser.request(), quickPage);
        QTRY_COMPARE(quick.chosen(), "Shop"_s);
        QVERIFY(quick.settles());
        quick.press(Qt::Key_Return);
        QTRY_COMPARE(browser.asked("openmode"), "currentNoReload"_s);
        QTRY_COMPARE(browser.asked("reason"), "login"_s);
    }
};

QTEST_MAIN(TestQuickFill)
#include "tst_quickfill.moc"
