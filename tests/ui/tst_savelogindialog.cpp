#include "UiTesting.h"
#include "save/ExcludedSitesPanel.h"
#include "save/SaveLoginDesk.h"
#include "save/SavePlace.h"
#include "style/Theme.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>

class TestSaveLoginDialog : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestCore> m_test;
    Theme m_theme;
    std::unique_ptr<SaveLoginDesk> m_desk;

    QWidget *dialog() const
    {
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->isVisible() && top->objectName() == QLatin1String("saveLoginDialog"))
                return top;
        }
        return nullptr;
    }
    template <class T>
    T *part(const char *name) const
    {
        return find<T>(*dialog(), name);
    }
    QString text(const char *name) const { return part<QLabel>(name)->text(); }
    bool isShown(const char *name) const { return part<QWidget>(name)->isVisible(); }
    void press(const char *name) { QTest::mouseClick(part<QAbstractButton>(name), Qt::LeftButton); }
    void type(const char *field, const QString &typed)
    {
        part<QLineEdit>(field)->selectAll();
        QTest::keyClicks(part<QLineEdit>(field), typed);
    }
    bool offer(const char *user, const char *password, const char *site = "https://shop.example/in")
    {
        m_test->core.saveLogin({}, {{"title"_s, "Every Shop"_s},
                                    {"url"_s, QLatin1String(site)},
                                    {"posx"_s, 1e9},
                                    {"posy"_s, -1e9},
                                    {"login"_s, QLatin1String(user)},
                                    {"password"_s, QLatin1String(password)}});
        return dialog() != nullptr;
    }
    bool isGone() const
    {
        return QTest::qWaitFor([this] { return !dialog(); });
    }
    /// Title, user name and password of the logins in the safe, without the trash.
    QStringList logins() const
    {
        QStringList lines;
        for (const PMListItem *item : m_test->core.currentSafe()->items()) {
            const auto *login = qobject_cast<const PMLogin *>(item);
            if (!login->deleted())
                lines.append(QStringList{login->title(), login->login(), login->password()}.join(
                    QLatin1Char('|')));
        }
        lines.sort();
        return lines;
    }

private Q_SLOTS:
    void init()
    {
        m_test = std::make_unique<TestCore>();
        QVERIFY(m_test->createSafe());
        m_theme.apply();
        m_desk = std::make_unique<SaveLoginDesk>(m_test->core, m_theme);
    }
    void cleanup()
    {
        m_desk.reset();
        m_test.reset();
    }

    void enterSavesWhatIsShown()
    {
        QVERIFY(offer("ana", "s3cret"));
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QVERIFY(screen.contains(dialog()->frameGeometry()));
        QVERIFY(dialog()->testAttribute(Qt::WA_ShowWithoutActivating));
        QCOMPARE(text("saveLoginHeadline"), "Save this login?"_s);
        QCOMPARE(text("saveLoginHost"), "shop.example"_s);
        QVERIFY(!isShown("saveInto"));
        QCOMPARE(part<QLineEdit>("savePassword")->displayText(), QString(6, QChar(0x2022)));
        type("saveTitle", "My shop"_s);
        QTest::keyClick(part<QLineEdit>("saveTitle"), Qt::Key_Return);
        QVERIFY(isGone());
        QCOMPARE(logins(), QStringList{"My shop|ana|s3cret"_s});
    }

    void escapeIsNotNow()
    {
        QVERIFY(offer("ana", "one"));
        QTest::keyClick(dialog(), Qt::Key_Escape);
        QVERIFY(isGone());
        QVERIFY(logins().isEmpty());
        QVERIFY(!offer("ana", "one"));
        QVERIFY(offer("ana", "two"));
        QVERIFY(offer("bob", "x", "https://bank.example")); // waits
        QCOMPARE(text("saveLoginHost"), "shop.example"_s);
        part<QLineEdit>("savePassword")->actions().last()->trigger();
        QCOMPARE(part<QLineEdit>("savePassword")->displayText(), "two"_s);
        dialog()->close();
        QCOMPARE(text("saveLoginHost"), "bank.example"_s);
        QCOMPARE(part<QLineEdit>("savePassword")->displayText(), QString(QChar(0x2022)));
    }

    void anotherLoginIsChosenForTheUpdate()
    {
        m_test->addLogin("First"_s, "ana"_s);
        m_test->addLogin("Second"_s, "bob"_s);
        QVERIFY(offer("ana", "new"));
        QCOMPARE(text("saveLoginHeadline"), "Update this login?"_s);
        auto *into = part<QComboBox>("saveInto");
        QCOMPARE(into->currentText(), "First (ana)"_s);
        QVERIFY(!isShown("saveTitle") && !isShown("formerUserName"));
        QTest::keyClicks(into, "Sec"_s);
        QCOMPARE(into->currentText(), "Second (bob)"_s);
        QCOMPARE(text("formerUserName"), "Until now: bob"_s);
        QTest::keyClick(into, Qt::Key_End);
        QCOMPARE(text("saveLoginHeadline"), "Save this login?"_s);
        QVERIFY(isShown("saveTitle"));
        QTest::keyClick(into, Qt::Key_Up);
        QTest::keyClick(part<QLineEdit>("saveUserName"), Qt::Key_Return);
        QVERIFY(isGone());
        QCOMPARE(logins(), (QStringList{"First|ana|secret of First"_s, "Second|ana|new"_s}));
    }

    void neverUntilTheSettingsSayOtherwise()
    {
        ExcludedSitesPanel panel(m_test->core.loginSaving(), nullptr);
        panel.show();
        QVERIFY(offer("ana", "one"));
        press("neverButton");
        QVERIFY(isGone());
        QVERIFY(!offer("bob", "two"));
        const auto *list = find<QListWidget>(panel, "excludedSites");
        QCOMPARE(list->item(0)->text(), "shop.example"_s);
        QTest::mouseClick(find<QAbstractButton>(panel, "askAgainButton"), Qt::LeftButton);
        QCOMPARE(list->count(), 0);
        QVERIFY(offer("bob", "two"));
    }

    void aLockedSafeIsUnlockedInPlace()
    {
        m_test->addLogin("First"_s, "ana"_s);
        m_test->core.lockCurrentSafe();
        QVERIFY(offer("ana", "new"));
        QVERIFY(!isShown("saveTitle"));
        QVERIFY(text("timeLeft").contains("60"_s));
        type("masterPassword", "wrong"_s);
        QTest::keyClick(part<QLineEdit>("masterPassword"), Qt::Key_Return);
        QTRY_VERIFY(isShown("saveLoginMessage"));
        type("masterPassword", testPassword);
        QTest::keyClick(part<QLineEdit>("masterPassword"), Qt::Key_Return);
        QTRY_COMPARE(text("saveLoginHeadline"), "Update this login?"_s);
        QTRY_COMPARE(dialog()->focusWidget(), part<QWidget>("saveButton"));
        QTest::keyClick(dialog()->focusWidget(), Qt::Key_Return);
        QVERIFY(isGone());
        QCOMPARE(logins(), QStringList{"First|ana|new"_s});

        m_test->core.lockCurrentSafe();
        QVERIFY(offer("ana", "new"));
        type("masterPassword", testPassword);
        press("saveButton");
        QTRY_COMPARE(text("saveLoginHeadline"), "Already saved"_s);
        press("saveButton");
        QVERIFY(isGone());
    }

    void longNamesMakeItNoWider()
    {
        m_test->addLogin("Short"_s, "ana"_s);
        QVERIFY(offer("ana", "one"));
        const int usual = dialog()->minimumSizeHint().width();
        m_test->core.loginSaving().decline();
        const QByteArray user(250, 'u');
        m_test->addLogin(QString(200, QLatin1Char('t')), QString::fromLatin1(user).toUpper());
        const QByteArray host = QByteArray(60, 'a') + '.' + QByteArray(60, 'b') + '.';
        QVERIFY(offer(user.constData(), "one", ("https://" + host + "shop.example/").constData()));
        QVERIFY(isShown("formerUserName"));
        QCOMPARE(dialog()->minimumSizeHint().width(), usual);
    }

    void itGoesWithTheLock()
    {
        QVERIFY(offer("ana", "one"));
        m_test->core.lockCurrentSafe();
        QVERIFY(isGone());
        QVERIFY(!m_test->core.loginSaving().offer());
    }

    void aSaveThatFailsLosesNothing()
    {
        QVERIFY(offer("ana", "one"));
        const QString content = m_test->core.currentSafe()->folder() + "/content"_s;
        QVERIFY(QDir().rename(content, content + ".away"_s));
        QFile inTheWay(content);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        press("saveButton");
        QTRY_VERIFY(isShown("saveLoginMessage"));
        QCOMPARE(part<QLineEdit>("savePassword")->text(), "one"_s);
        QCOMPARE(part<QAbstractButton>("notNowButton")->text(), "Close"_s);
        QVERIFY(inTheWay.remove());
        QVERIFY(QDir().rename(content + ".away"_s, content));
        QCOMPARE(dialog()->focusWidget(), part<QWidget>("saveButton"));
        press("saveButton");
        QVERIFY(isGone());
        QCOMPARE(logins(), QStringList{"Every Shop|ana|one"_s});
    }

    // Where the browser's window is said to be, and where the window of 300 x 200 goes.
    void place_data()
    {
        QTest::addColumn<QRect>("browser");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("on the screen") << QRect(100, 50, 800, 600) << QPoint(576, 146);
        QTest::newRow("on the other") << QRect(1100, 0, 700, 600) << QPoint(1476, 96);
        QTest::newRow("mostly outside") << QRect(-500, -300, 700, 500) << QPoint(0, 96);
        QTest::newRow("nowhere") << QRect(90000, 90000, 9, 9) << QPoint(676, 96);
        QTest::newRow("not told") << QRect() << QPoint(676, 96);
        QTest::newRow("at the bottom") << QRect(0, 700, 1000, 68) << QPoint(676, 568);
    }
    void place()
    {
        QFETCH(QRect, browser);
        const QVector<QRect> screens{{0, 0, 1000, 768}, {1000, 0, 1000, 768}};
        QTEST(placeBesidePage(browser, {300, 200}, screens), "place");
    }
};

QTEST_MAIN(TestSaveLoginDialog)
#include "tst_savelogindialog.moc"
