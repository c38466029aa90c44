#include "ProgramDesk.h"
#include "SafeDescriptionFile.h"
#include "backups/BackupRow.h"
#include "backups/BackupTexts.h"
#include "backups/RestoreDialog.h"
#include "lock/PagesStack.h"
#include "lock/UnlockLogic.h"
#include "style/Theme.h"

#include <QAbstractButton>
#include <QLabel>

Q_DECLARE_METATYPE(BackupJob::Result)

namespace {

using State = BackupJob::State;

/// The program's windows over one safe, with the page of backups in the settings open.
struct Program : ProgramDesk
{
    Program()
        : settings(&ProgramDesk::settings())
    {
        find<QListWidget>(*settings, "settingsPages")->setCurrentRow(Setting::Backup);
    }

    QString text(const char *label) const
    {
        const auto *found = find<QLabel>(*settings, label);
        return found->isVisible() ? found->text() : QString();
    }
    void press(const char *button) const { find<QAbstractButton>(*settings, button)->click(); }

    void backUp()
    {
        QSignalSpy finished(&backups(), &Backups::finished);
        press("backUpNowButton");
        QVERIFY(finished.wait());
    }
    Backups &backups() { return test.core.backups(); }
    template <typename Window>
    Window *dialog() const
    {
        return window().findChild<Window *>();
    }

    SettingsDialog *settings;
};

BackupJob::Result result(const char *name, State state,
                         ArchiveResult::Outcome outcome = ArchiveResult::Outcome::Done)
{
    return {"/safes/x"_s, QLatin1String(name), state, outcome};
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestBackupWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qRegisterMetaType<QVector<BackupJob::Result>>("QVector<BackupJob::Result>");
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    }

    void moments_data()
    {
        QTest::addColumn<QDateTime>("moment");
        QTest::addColumn<QString>("text");
        const QDate today(2026, 3, 4);
        const auto row = [](const char *name, const QDate &day, const QTime &time) {
            QTest::newRow(name) << QDateTime(day, time) << QString::fromLatin1(name);
        };
        row("today at 00:05", today, {0, 5});
        // Less than a day ago, and yet another day.
        row("yesterday at 23:50", today.addDays(-1), {23, 50});
        row("tomorrow at 09:12", today.addDays(1), {9, 12});
        row("06/03/2026 at 09:12", today.addDays(2), {9, 12});
        row("02/03/2026 at 09:12", today.addDays(-2), {9, 12});
    }
    void moments()
    {
        QFETCH(QDateTime, moment);
        QFETCH(QString, text);
        const QDateTime now = QDateTime(QDate(2026, 3, 4), QTime(0, 10)).toUTC();
        QCOMPARE(BackupTexts::moment(moment.toUTC(), now), text);
        // A copy of the file has the time of the copy.
        QCOMPARE(BackupTexts::moment(moment, now, false), text.section(QLatin1Char(' '), 0, 0));
    }

    void endsOfARun_data()
    {
        using Outcome = ArchiveResult::Outcome;
        QTest::addColumn<QVector<BackupJob::Result>>("results");
        QTest::addColumn<bool>("good");
        QTest::addColumn<QString>("parts");
        const auto row = [](const char *name, bool good, const QVector<BackupJob::Result> &results,
                            const char *parts) {
            QTest::newRow(name) << results << good << QString::fromUtf8(parts);
        };
        row("written", true, {result("A", State::Written), result("B", State::Unchanged)},
            "checked: “A”.|Unchanged|“B”");
        row("missing", false, {result("A", State::Written), result("B", State::Missing)},
            "checked: “A”|not there: “B”|connect it");
        row("failed", false,
            {result("A", State::Failed, Outcome::CannotWrite),
             result("B", State::Failed, Outcome::SafeUnreadable)},
            "“A”. The archive can't be written|free space|“B”. Some of the safe's files can't be");
        row("cancelled", false, {result("A", State::Cancelled)}, "Cancelled: “A”");
        row("postponed", false, {result("A", State::Postponed)}, "again in a minute");
    }
    void endsOfARun()
    {
        QFETCH(QVector<BackupJob::Result>, results);
        QFETCH(bool, good);
        QFETCH(QString, parts);
        const BackupTexts::Report report = BackupTexts::report(results);
        QCOMPARE(report.good, good);
        for (const QString &part : parts.split(QLatin1Char('|')))
            QVERIFY2(report.text.contains(part), qPrintable(report.text));
    }

    void theRowFollowsRuns()
    {
        Program program;
        // The settings say when the program first ran; that is no backup.
        QTRY_COMPARE(program.text("backupHeadline"), "No backup yet"_s);
        QVERIFY(program.text("backupNext").startsWith("Next backup: tomorrow"_s));
        program.backUp();
        QVERIFY(program.text("backupReport").contains("checked: “Personal”"_s));
        QTRY_VERIFY(program.text("backupHeadline").startsWith("Last backup: today at"_s));
        program.backUp();
        QVERIFY(program.text("backupReport").startsWith("Unchanged"_s));
        // One of two safes is changed since.
        program.test.addLogin("Shop"_s);
        QVERIFY(program.test.core.createSafe("Work"_s, testPassword, {}));
        QTRY_COMPARE(program.text("backupSafes").count(QLatin1Char('\n')), 1);
        QTRY_VERIFY(program.text("backupSafes").contains("Work: not backed up yet"_s));
        QVERIFY(program.text("backupSafes").contains("changed since"_s));

        // A run that the timer starts, and that the user stops.
        const auto connection = connect(&program.backups(), &Backups::started, this, [&program] {
            QVERIFY(find<QWidget>(*program.settings, "backupProgress")->isVisible());
            program.press("backUpNowButton"); // Cancel by now
        });
        QSignalSpy finished(&program.backups(), &Backups::finished);
        program.test.core.settings().setBackupCheck({});
        program.backups().check();
        QVERIFY(finished.wait());
        disconnect(connection);
        QVERIFY(program.text("backupReport").startsWith("Cancelled"_s));
        QVERIFY(!find<QWidget>(*program.settings, "backupProgress")->isVisible());

        program.test.core.settings().setEnableBackup(false);
        QCOMPARE(program.text("backupNext"), "Automatic backups are off."_s);
    }

    /// Told where the user looks, once.
    void aFailureIsToldOnce()
    {
        Program program;
        QSignalSpy told(&program.test.core, &GPMAppCore::message);
        const QString folder = program.test.core.currentSafe()->folder() + "/safe.meta/backup"_s;
        program.test.core.settings().setBackupPath(folder);
        QTRY_VERIFY(program.text("backupPlaceFault").contains("is not there"_s));
        program.backUp();
        QVERIFY(program.text("backupReport").contains("can't be written"_s));
        QVERIFY(told.isEmpty());
        QVERIFY(program.text("backupNext").startsWith("Next backup: to"_s));
        program.settings->close();
        QTRY_VERIFY(!program.dialog<SettingsDialog>());
        QSignalSpy finished(&program.backups(), &Backups::finished);
        QVERIFY(program.backups().backUpNow());
        QVERIFY(finished.wait());
        QCOMPARE(told.count(), 1);
    }

    void theListShowsEveryArchive()
    {
        TestCore test;
        Theme theme;
        test.createSafe();
        QSignalSpy finished(&test.core.backups(), &Backups::finished);
        RestoreDialog::Parts parts{test.core.backups(), test.core.settings()};
        QString other = test.folder.filePath("other"_s);
        parts.chooseFolder = [&other](QWidget *, const QString &) { return other; };
        RestoreDialog dialog(parts, theme, nullptr);
        dialog.setAttribute(Qt::WA_DeleteOnClose, false);
        dialog.show();
        auto *list = find<QListWidget>(dialog, "backupList");
        const auto *restore = find<QAbstractButton>(dialog, "restoreButton");
        QVERIFY(!list->isVisible() && !restore->isEnabled());

        // One that the timer makes while the list is shown.
        QVERIFY(test.core.backups().backUpNow() && finished.wait());
        QTRY_COMPARE(list->count(), 1);
        QVERIFY(restore->isEnabled());
        const QDir folder(test.core.backups().folder());
        const QString good = folder.filePath(folder.entryList({"*.gpm"_s}).first());
        QVERIFY(QDir().mkpath(other));
        const QString damaged = other + "/work_20200304_ff.gpm"_s;
        QVERIFY(QFile::copy(good, damaged) && QFile(damaged).resize(300));
        QVERIFY(QFile::copy(good, other + "/work_20190304_ff.gpm"_s));

        find<QAbstractButton>(dialog, "otherFolderButton")->click();
        QTRY_COMPARE(list->count(), 2);
        QCOMPARE(list->item(0)->text(), "work_20200304_ff.gpm"_s);
        QVERIFY(list->item(0)->data(Qt::AccessibleTextRole).toString().contains("Damaged"_s));
        QVERIFY(!restore->isEnabled());
        QVERIFY(find<QLabel>(dialog, "restoreWord")->text().contains("damaged"_s));
        QSignalSpy chosen(&dialog, &RestoreDialog::chosen);
        QTest::keyClick(list, Qt::Key_Return);
        QVERIFY(chosen.isEmpty());
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(list->currentItem()->text(), "Personal"_s);
        // The day alone: the time of the copy says nothing.
        QVERIFY(list->currentItem()
                    ->data(Qt::AccessibleTextRole)
                    .toString()
                    .startsWith("Personal, 04/03/2019 · "_s));
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(chosen.count(), 1);
        QVERIFY(!dialog.isVisible());
    }

    void theListFollowsTheSettings()
    {
        Program program;
        program.backUp();
        program.press("restoreFromButton");
        auto *dialog = program.dialog<RestoreDialog>();
        auto *list = find<QListWidget>(*dialog, "backupList");
        QTRY_COMPARE(list->count(), 1);
        program.test.core.settings().setBackupPath(program.test.folder.filePath("new"_s));
        QTRY_COMPARE(list->count(), 0);
        QVERIFY(!find<QWidget>(*dialog, "restoreButton")->isEnabled());
    }

    void aBackupBecomesASafeAgain()
    {
        Program program;
        const QString id = program.test.addLogin("Shop"_s);
        const QString before = program.test.core.currentSafe()->folder();
        QVERIFY(program.test.core.saveCurrentSafe());
        program.backUp();
        program.test.core.modelItemPurged(id);
        QVERIFY(program.test.core.saveCurrentSafe());
        const QByteArray description = contentOf(before + "/safe.meta"_s);

        program.press("restoreFromButton");
        auto *dialog = program.dialog<RestoreDialog>();
        QTRY_VERIFY(find<QWidget>(*dialog, "restoreButton")->isEnabled());
        find<QAbstractButton>(*dialog, "restoreButton")->click();
        QWidget *progress = find<QWidget>(*program.ui.mainWindow(), "progressDialog");
        auto *way = find<QAbstractButton>(*progress, "wayButton");
        QTRY_VERIFY(way->isVisible());
        QVERIFY(find<QLabel>(*progress, "progressText")->text().startsWith("“Personal ["_s));
        way->click();

        GPMAppCore &core = program.test.core;
        const QString after = core.knownSafes().entries().first().folder;
        QVERIFY(after != before);
        QCOMPARE(program.ui.mainWindow()->findChild<PagesStack *>()->unlockLogic().chosenFolder(),
                 after);
        QVERIFY(core.selectSafe(after) && core.currentSafe()->unlock(testPassword));
        QVERIFY(core.currentSafe()->item(id));
        QCOMPARE(contentOf(before + "/safe.meta"_s), description);
    }

    /// Whoever has no safe, or none that opens, gets there too.
    void fromTheLockPages()
    {
        TestCore test;
        PMUiProvider ui(
            test.core, [] { return true; }, test.folder.path());
        ui.connectCore();
        ui.createMainWindow();
        ui.openMainView({});
        ui.bringToFront();
        for (const char *link : {"restoreFromCreateLink", "restoreLink"}) {
            auto *button = find<QAbstractButton>(*ui.mainWindow(), link);
            QVERIFY(button->isVisible());
            button->click();
            auto *dialog = ui.mainWindow()->findChild<RestoreDialog *>();
            QVERIFY(dialog && dialog->isVisible());
            dialog->close();
            QTRY_VERIFY(!ui.mainWindow()->findChild<RestoreDialog *>());
            test.createSafe();
            test.core.lockCurrentSafe();
        }
    }
};

QTEST_MAIN(TestBackupWindows)
#include "tst_backupwindows.moc"
