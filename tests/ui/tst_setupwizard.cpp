#include "PMUiProvider.h"
#include "UiTesting.h"
#include "wizard/SetupWizard.h"
#include "wizard/WizardPage.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace {

struct Start
{
    Start()
        : provider(test.core, [] { return true; })
    {
        provider.connectCore();
        provider.prepareFirstLaunch();
        provider.createMainWindow();
        provider.mainWindow()->show();
        provider.openMainView(QString());
    }

    SetupWizard *wizard() const { return provider.mainWindow()->findChild<SetupWizard *>(); }
    QPushButton *button(const char *name) const { return find<QPushButton>(*wizard(), name); }
    QAction *menuEntry() const { return find<QAction>(*provider.mainWindow(), "setUpAction"); }

    void enter(const char *field, const QString &text) const
    {
        QTest::keyClicks(find<QLineEdit>(*wizard(), field), text);
    }

    TestCore test;
    PMUiProvider provider;
};

/// A page that counts what is done with it.
class CountingPage : public WizardPage
{
public:
    CountingPage(bool works, QVector<QString> &log, QWidget *parent)
        : WizardPage(parent)
        , m_works(works)
        , m_log(log)
    {
    }
    bool goOn() override
    {
        m_log.append("go on"_s);
        return m_works;
    }
    bool canSkip() const override { return true; }
    void clearSecrets() override { m_log.append("clear"_s); }

private:
    bool m_works;
    QVector<QString> &m_log;
};

} // namespace

class TestSetupWizard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepDone()
    {
        Start start;
        const QPointer<SetupWizard> wizard = start.wizard();
        QVERIFY(wizard && wizard->isVisible());
        QCOMPARE(wizard->step(), "safe"_s);
        QVERIFY(!start.button("wizardOnward")->isEnabled());
        start.enter("newSafeName", "Home"_s);
        start.enter("newSafePassword", testPassword);
        QVERIFY(!find<QLabel>(*wizard, "newSafePasswordMessage")->text().isEmpty());
        start.enter("newSafeConfirm", testPassword);
        start.enter("newSafeHint", "the usual"_s);
        QTest::keyClick(find<QLineEdit>(*wizard, "newSafeHint"), Qt::Key_Return);
        QVERIFY(wizard && wizard->isVisible());
        QCOMPARE(start.test.core.currentSafe()->name(), "Home"_s);
        QVERIFY(start.test.core.currentSafe()->isUnlocked());
        QVERIFY(start.menuEntry()->isVisible());

        // Back shows what was made, not the fields once more.
        start.button("wizardBack")->click();
        QVERIFY(find<QLabel>(*wizard, "safeMade")->text().contains("Home"_s));
        QVERIFY(!find<QLineEdit>(*wizard, "newSafePassword")->isVisible());
        QCOMPARE(find<QLineEdit>(*wizard, "newSafePassword")->text(), QString());
        while (wizard->step() != QLatin1String("ready"))
            start.button("wizardOnward")->click();
        start.button("wizardOnward")->click();
        QVERIFY(!wizard->isVisible());
        QVERIFY(!start.menuEntry()->isVisible());
    }

    void everyStepSkipped()
    {
        Start start;
        const QPointer<SetupWizard> wizard = start.wizard();
        start.enter("newSafePassword", testPassword);
        while (wizard->step() != QLatin1String("ready"))
            start.button("wizardSkip")->click();
        QCOMPARE(find<QLineEdit>(*wizard, "newSafePassword")->text(), QString());
        start.button("wizardOnward")->click();
        QVERIFY(!start.test.core.currentSafe());
        QVERIFY(find<QLineEdit>(*start.provider.mainWindow(), "newSafeName")->isVisible());
    }

    void leftInTheMiddle()
    {
        Start start;
        const QPointer<SetupWizard> wizard = start.wizard();
        start.enter("newSafePassword", testPassword);
        QTest::keyClick(wizard, Qt::Key_Escape);
        QTRY_VERIFY(!wizard);
        // It does not come by itself again, but is found again without the safe, which is there
        // now.
        QVERIFY(start.test.createSafe());
        start.provider.bringToFront();
        QVERIFY(!start.wizard());
        QVERIFY(start.menuEntry()->isVisible());
        start.menuEntry()->trigger();
        QVERIFY(start.wizard()->step() != QLatin1String("safe"));
        // A lock puts it away like every question.
        start.test.core.lockCurrentSafe();
        QTRY_VERIFY(!start.wizard());
    }

    void onlyStepsThatExist()
    {
        Theme theme;
        QVector<QString> log;
        const auto step = [&log](const char *id, bool exists, bool works) {
            return WizardStep{
                id,
                QString::fromLatin1(id),
                {},
                [exists] { return exists; },
                [&log, works](QWidget *parent) { return new CountingPage(works, log, parent); }};
        };
        SetupWizard wizard({step("one", true, true), step("missing", false, true),
                            step("fails", true, false), step("last", true, true)},
                           theme, nullptr);
        wizard.show();
        QSignalSpy completed(&wizard, &SetupWizard::completed);
        auto *onward = find<QPushButton>(wizard, "wizardOnward");
        QVERIFY(!find<QPushButton>(wizard, "wizardBack")->isVisible());
        onward->click();
        QCOMPARE(wizard.step(), "fails"_s);
        log.clear();
        onward->click();
        QCOMPARE(wizard.step(), "fails"_s);
        QCOMPARE(log, QVector<QString>{"go on"_s});
        find<QPushButton>(wizard, "wizardSkip")->click();
        QCOMPARE(wizard.step(), "last"_s);
        QVERIFY(log.contains("clear"_s));
        QVERIFY(!find<QPushButton>(wizard, "wizardSkip")->isVisible());
        QCOMPARE(onward->text(), "Done"_s);
        wizard.goTo("missing"_s);
        QCOMPARE(wizard.step(), "last"_s);
        onward->click();
        QCOMPARE(completed.count(), 1);
    }
};

QTEST_MAIN(TestSetupWizard)
#include "tst_setupwizard.moc"
