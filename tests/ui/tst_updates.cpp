#include "PMUiProvider.h"
#include "SideWindows.h"
#include "UiSettings.h"
#include "UiTesting.h"
#include "updates/UpdateDesk.h"

#include <QAbstractButton>
#include <QFileInfo>
#include <QLabel>

namespace {

UpdateNews newsOf(const char *version)
{
    return {QLatin1String(version), QUrl("https://glaceron.example/get"_s), "<b>Better</b>"_s};
}

/// The program's main window, and what it tells of newer versions.
struct Program
{
    explicit Program(const QString &shownBefore = {})
        : ui((remember(shownBefore), test.core), [] { return true; })
    {
        QCoreApplication::setApplicationVersion("1.1.32"_s);
        start(ui);
    }

    void remember(const QString &shownBefore)
    {
        UiSettings settings(QFileInfo(test.core.settings().filePath()).path());
        settings.setLastUpdateVersionShow(shownBefore);
        settings.store();
    }

    static void start(PMUiProvider &ui)
    {
        ui.connectCore();
        ui.createMainWindow();
        ui.openMainView({});
        ui.bringToFront();
    }

    UpdateDesk &desk() { return ui.sideWindows().updates(); }

    void learns(const char *version, bool byUser = false)
    {
        Q_EMIT desk().checker().newVersionFound(newsOf(version), byUser);
    }

    NewVersionDialog *dialog() const
    {
        // One that was closed is deleted a moment later.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return ui.mainWindow()->findChild<NewVersionDialog *>();
    }

    bool tells(const char *version) const
    {
        const NewVersionDialog *shown = dialog();
        const QString text = "Version %1 is here"_s.arg(QLatin1String(version));
        if (!shown || !shown->isVisible())
            return false;
        const QList<QLabel *> labels = shown->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&text](const QLabel *label) { return label->text() == text; });
    }

    TestCore test;
    PMUiProvider ui;
};

} // namespace

class TestUpdates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oncePerVersion()
    {
        Program program;
        program.learns("1.2.0");
        QVERIFY(program.tells("1.2.0"));
        QCOMPARE(find<QLabel>(*program.dialog(), "newVersionText")->textFormat(), Qt::PlainText);
        program.dialog()->close();
        program.learns("1.2.0");
        QVERIFY(!program.dialog());

        // Nor after the next start.
        const UiSettings kept(QFileInfo(program.test.core.settings().filePath()).path());
        QCOMPARE(kept.lastUpdateVersionShow(), "1.2.0"_s);
        program.learns("1.1.99");
        QVERIFY(!program.dialog());
        program.learns("1.10.0");
        QVERIFY(program.tells("1.10.0"));
        program.dialog()->close();
        // Who asks is told again.
        program.learns("1.10.0", true);
        QVERIFY(program.tells("1.10.0"));
    }

    void aSenselessSettingSilencesNothing()
    {
        Program program("newest"_s);
        program.learns("1.2.0");
        QVERIFY(program.tells("1.2.0"));
    }

    void noMoreThanIsWanted()
    {
        Program program;
        program.ui.mainWindow()->hide();
        program.learns("1.2.0");
        program.test.core.settings().setCheckUpdates(false);
        program.ui.bringToFront();
        QEvent activated(QEvent::WindowActivate);
        QCoreApplication::sendEvent(program.ui.mainWindow(), &activated);
        QCoreApplication::processEvents();
        QVERIFY(!program.dialog());
    }

    void waitsForTheUser()
    {
        Program program;
        QWidget *window = program.ui.mainWindow();
        window->hide();
        program.learns("1.2.0");
        QVERIFY(!program.dialog());
        program.ui.bringToFront();
        QApplication::setActiveWindow(window);
        QTRY_VERIFY(program.tells("1.2.0"));
        // The windows are made anew in another size of texts.
        program.ui.sideWindows().updates().setMain(window);
        QVERIFY(!program.dialog());
        QEvent activated(QEvent::WindowActivate);
        QCoreApplication::sendEvent(window, &activated);
        QTRY_VERIFY(program.tells("1.2.0"));
    }

    void onlyAClickOpensThePage()
    {
        Program program;
        program.desk().disconnect(SIGNAL(pageRequested(QUrl)));
        QSignalSpy pages(&program.desk(), &UpdateDesk::pageRequested);
        program.learns("1.2.0");
        find<QAbstractButton>(*program.dialog(), "laterButton")->click();
        QCOMPARE(pages.size(), 0);
        program.learns("1.2.0", true);
        find<QAbstractButton>(*program.dialog(), "openPageButton")->click();
        QCOMPARE(pages.size(), 1);
        QCOMPARE(pages.first().first().toUrl(), newsOf("1.2.0").page);
        QVERIFY(!program.dialog());
    }

    void settingsTellTheTruth()
    {
        Program program;
        QWidget owner;
        QScopedPointer<QWidget> panel(program.desk().makePanel(&owner));
        QVERIFY(find<QAbstractButton>(*panel, "checkNowButton")->isHidden());
        QVERIFY(find<QLabel>(*panel, "updateDetail")->text().contains(QLatin1String("never")));

        // Nobody listens there.
        program.desk().checker().setEndpoint(QUrl("http://127.0.0.1:1/"_s));
        panel.reset(program.desk().makePanel(&owner));
        auto *check = find<QAbstractButton>(*panel, "checkNowButton");
        const auto *detail = find<QLabel>(*panel, "updateDetail");
        QVERIFY(!check->isHidden());
        QCOMPARE(detail->text(), "Not checked yet"_s);
        check->click();
        QCOMPARE(detail->text(), "Checking…"_s);
        QTRY_COMPARE_WITH_TIMEOUT(program.desk().checker().state(), GPMUpdateChecker::Failed,
                                  20000);
        QVERIFY(detail->text().contains(QLatin1String("no answer")));
        QCOMPARE(detail->property("tone").toString(), "error"_s);
    }
};

QTEST_MAIN(TestUpdates)
#include "tst_updates.moc"
