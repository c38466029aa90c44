#include "SafeUse.h"
#include "UiTesting.h"
#include "dialogs/ProgressDialog.h"
#include "lock/CreateSafePage.h"
#include "lock/PagesStack.h"
#include "lock/SecureWindow.h"
#include "lock/UnlockLogic.h"
#include "main/MainView.h"
#include "safes/ArchiveDesk.h"
#include "safes/DeleteSafeDialog.h"
#include "safes/SafeDesk.h"
#include "style/Theme.h"
#include "wizard/NewSafePage.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QLockFile>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

namespace {

const QDateTime noon(QDate(2026, 5, 4), QTime(12, 0), Qt::UTC);

/// The program's windows with a user who answers what was prepared.
struct Desk
{
    Desk()
    {
        window = std::make_unique<SecureWindow>(
            test.core, theme, new MainView(test.core, theme, asker.asker()), asker.asker());
        FileChooser chooser;
        chooser.openFile = [this](const QString &, const QString &) { return chosen; };
        chooser.saveFile = [this](const QString &, const QString &, const QString &) {
            return chosen;
        };
        chooser.folder = [this](const QString &) { return chosen; };
        desk.setWindow({window.get(), [this] { return window->leaveByUser(); },
                        [this](const QString &folder) { window->switchSafe(folder); },
                        [this] { window->createSafe(); }},
                       {asker.asker(), chooser, [this](const QString &path) { shown = path; }});
        window->show();
    }

    QString path(const char *name) const { return test.folder.filePath(QLatin1String(name)); }

    bool makeSafe(const char *name)
    {
        return test.core.createSafe(QLatin1String(name), testPassword, "h"_s, path(name));
    }

    SafesDialog *openList()
    {
        desk.openList();
        auto *list = window->findChild<SafesDialog *>();
        return QTest::qWaitFor([list] { return !list->isReading(); }) ? list : nullptr;
    }

    QStringList listed()
    {
        QStringList names;
        for (const KnownSafes::Entry &entry : test.core.knownSafes().entries())
            names.append(entry.name);
        return names;
    }

    template <typename Dialog>
    Dialog *dialog()
    {
        Dialog *found = nullptr;
        const bool came = QTest::qWaitFor([&] {
            for (QWidget *top : QApplication::topLevelWidgets()) {
                auto *candidate = qobject_cast<Dialog *>(top);
                if (candidate && candidate->isVisible())
                    found = candidate;
            }
            return found != nullptr;
        });
        return came ? found : nullptr;
    }

    /// Chooses a command of a safe's menu.
    void choose(SafesDialog &list, const char *safe, const char *action)
    {
        for (SafeRow *row : list.findChildren<SafeRow *>()) {
            if (row->safe().name == QLatin1String(safe) && row->isVisible())
                row->findChild<QAction *>(QLatin1String(action))->trigger();
        }
        QCoreApplication::processEvents();
    }

    TestCore test;
    Theme theme;
    TestAsker asker;
    QString chosen;
    QString shown;
    SafeDesk desk{test.core, theme};
    std::unique_ptr<SecureWindow> window;
};

} // namespace

Q_DECLARE_METATYPE(SafeInfo)

class TestSafes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesTellHowItStandsWithASafe_data()
    {
        QTest::addColumn<SafeInfo>("safe");
        QTest::addColumn<QStringList>("lines");

        SafeInfo safe;
        safe.name = "Work"_s;
        QTest::newRow("nothing known") << safe << QStringList{"looking…"_s, "Not opened yet"_s};
        safe.isRead = true;
        safe.details.backupsKnown = true;
        safe.details.size = 4300000;
        safe.fact.itemCount = 61;
        safe.fact.lastOpened = noon.addDays(-3);
        QTest::newRow("locked") << safe
                                << QStringList{"61 items · 4.1 MB"_s,
                                               "Last opened 3 days ago · no backup yet"_s};
        safe.isOpen = true;
        safe.fact.mirrorFolder = "/cloud/x"_s;
        safe.fact.lastSynchronised = noon.addDays(-1);
        safe.copyOf = "Old"_s;
        QTest::newRow("open, in the cloud, a copy")
            << safe
            << QStringList{"61 items · 4.1 MB · in the cloud folder · a copy of “Old”"_s,
                           "Open · synchronised yesterday · no backup yet"_s};
        safe.details.place = SafePlace::DriveGone;
        QTest::newRow("drive") << safe
                               << QStringList{QStringLiteral(
                                      "Folder not found: it was on a drive that is not connected")};
    }
    void linesTellHowItStandsWithASafe()
    {
        QFETCH(SafeInfo, safe);
        QFETCH(QStringList, lines);
        QCOMPARE(safeLines(safe, noon), lines);
    }

    void keysLeadThroughTheList()
    {
        Desk desk;
        QVERIFY(desk.makeSafe("One"));
        QVERIFY(desk.makeSafe("Two"));
        SafesDialog *list = desk.openList();
        QVERIFY(list);
        QTRY_VERIFY(list->focusWidget() &&
                    list->focusWidget()->objectName() == QLatin1String("safeRow"));
        QCOMPARE(list->focusWidget()->accessibleName(), "Two"_s);
        QTest::keyClick(list->focusWidget(), Qt::Key_Down);
        QCOMPARE(list->focusWidget()->accessibleName(), "One"_s);
        QTest::keyClick(list->focusWidget(), Qt::Key_Down);
        QCOMPARE(list->focusWidget()->accessibleName(), "One"_s);

        QTest::keyClick(list->focusWidget(), Qt::Key_F2);
        QTRY_VERIFY(list->findChild<QDialog *>("renameDialog"_s));
        auto *rename = list->findChild<QDialog *>("renameDialog"_s);
        find<QLineEdit>(*rename, "nameField")->setText("Uno"_s);
        QTest::keyClick(rename, Qt::Key_Return);
        QTRY_COMPARE(desk.listed(), (QStringList{"Two"_s, "Uno"_s}));
        QTRY_VERIFY(!list->isReading());
        QCOMPARE(list->focusWidget()->accessibleName(), "Uno"_s);

        // Opens the other one, which locks this one.
        QTest::keyClick(list->focusWidget(), Qt::Key_Return);
        QTRY_COMPARE(desk.test.core.currentSafe()->folder(), desk.path("One"));
        QVERIFY(!desk.test.core.currentSafe()->isUnlocked());
        QTRY_VERIFY(!desk.window->findChild<SafesDialog *>());
    }

    void theOpenSafeKeepsItsNewNameOverASave()
    {
        Desk desk;
        QVERIFY(desk.makeSafe("One"));
        SafesDialog *list = desk.openList();
        desk.choose(*list, "One", "renameAction");
        QTRY_VERIFY(list->findChild<QDialog *>("renameDialog"_s));
        auto *rename = list->findChild<QDialog *>("renameDialog"_s);
        find<QLineEdit>(*rename, "nameField")->setText("Home"_s);
        rename->accept();
        QVERIFY(desk.window->windowTitle().startsWith("Home"_s));
        desk.test.addLogin("Shop"_s);
        QVERIFY(desk.test.core.saveCurrentSafe());
        GPMSafe again;
        QVERIFY(again.open(desk.path("One")));
        QCOMPARE(again.name(), "Home"_s);
    }

    void deletingAsksForThePasswordAndClosesTheSafeFirst()
    {
        Desk desk;
        QVERIFY(desk.makeSafe("One"));
        QVERIFY(desk.makeSafe("Two"));
        SafesDialog *list = desk.openList();
        desk.choose(*list, "Two", "deleteAction");
        QTRY_VERIFY(list->findChild<DeleteSafeDialog *>());
        auto *question = list->findChild<DeleteSafeDialog *>();
        auto *password = find<QLineEdit>(*question, "deletePassword");
        QTest::keyClicks(password, "wrong"_s);
        QTest::keyClick(password, Qt::Key_Return);
        QTRY_VERIFY(!find<QLabel>(*question, "deleteMessage")->text().isEmpty());
        QVERIFY(desk.test.core.currentSafe()->isUnlocked());
        QVERIFY(QFile::exists(desk.path("Two/safe.meta")));

        QTest::keyClicks(password, testPassword);
        QTest::keyClick(password, Qt::Key_Return);
        QTRY_COMPARE(desk.listed(), QStringList{"One"_s});
        QTRY_VERIFY(!QDir(desk.path("Two")).exists());
        QVERIFY(!desk.test.core.currentSafe());
        QVERIFY(QFile::exists(desk.path("One/safe.meta")));
    }

    void aSafeThatIsBeingDeletedIsNotOpened()
    {
        Desk desk;
        QVERIFY(desk.makeSafe("One"));
        // The deletion waits for this.
        QLockFile lock(desk.path("One/.sourcelock"));
        QVERIFY(lock.tryLock(0));
        SafesDialog *list = desk.openList();
        desk.choose(*list, "One", "deleteAction");
        QTRY_VERIFY(list->findChild<DeleteSafeDialog *>());
        auto *question = list->findChild<DeleteSafeDialog *>();
        find<QLineEdit>(*question, "deletePassword")->setText(testPassword);
        find<QPushButton>(*question, "deleteButton")->click();
        auto *progress = desk.dialog<ProgressDialog>();
        QVERIFY(progress && progress->isRunning());
        QVERIFY(desk.listed().isEmpty());
        desk.window->switchSafe(desk.path("One"));
        QVERIFY(!desk.test.core.currentSafe());

        // Another language makes the windows anew; the safe is forgotten all the same.
        delete progress;
        lock.unlock();
        QTRY_VERIFY(!QDir(desk.path("One")).exists());
        QTRY_VERIFY(desk.test.core.knownSafes().listed(desk.path("One")).isEmpty());
        QVERIFY(desk.test.core.settings().recentList().isEmpty());
    }

    void aSafeKeepsItsNameWhileItsPasswordIsChanged()
    {
        Desk desk;
        QVERIFY(desk.makeSafe("One"));
        const std::shared_ptr<GPMSafe> safe = desk.test.core.currentSafe();
        QLockFile lock(desk.path("One/.sourcelock"));
        QVERIFY(lock.tryLock(0));
        QSignalSpy changed(safe.get(), &GPMSafe::passwordChangeFinished);
        QVERIFY(desk.test.core.changePassword("next"_s, "new hint"_s));
        SafesDialog *list = desk.openList();
        desk.choose(*list, "One", "renameAction");
        QTRY_VERIFY(list->findChild<QDialog *>("renameDialog"_s));
        auto *rename = list->findChild<QDialog *>("renameDialog"_s);
        find<QLineEdit>(*rename, "nameField")->setText("Home"_s);
        rename->accept();
        QCOMPARE(desk.asker.asked.size(), 1);
        QVERIFY(desk.asker.asked.first().text.contains("password"_s));
        QVERIFY(!desk.test.core.knownSafes().rename(safe->folder(), "Home"_s, safe.get()));
        lock.unlock();
        QTRY_COMPARE(changed.size(), 1);
        QVERIFY(safe->isPassword("next"_s));
        QCOMPARE(safe->name(), "One"_s);
    }

    void aSafeThatIsOpenElsewhereIsNotDeletedAndToldOf()
    {
        Desk desk;
        QVERIFY(desk.makeSafe("One"));
        desk.test.core.lockCurrentSafe();
        QFile mark(desk.path("One/.openlock"));
        QVERIFY(mark.open(QIODevice::WriteOnly) && mark.write("1\nglaceron\nattic\n") > 0);
        mark.close();
        SafesDialog *list = desk.openList();
        desk.choose(*list, "One", "deleteAction");
        QTRY_VERIFY(list->findChild<DeleteSafeDialog *>());
        auto *question = list->findChild<DeleteSafeDialog *>();
        find<QLineEdit>(*question, "deletePassword")->setText(testPassword);
        find<QPushButton>(*question, "deleteButton")->click();
        auto *progress = desk.dialog<ProgressDialog>();
        QVERIFY(progress);
        QTRY_VERIFY(!progress->isRunning());
        QVERIFY(find<QLabel>(*progress, "progressText")->text().contains("another program"_s));
        QCOMPARE(desk.listed(), QStringList{"One"_s});

        // Unlocking tells first, and goes on when the user wants it again.
        UnlockLogic &logic = desk.window->pages().unlockLogic();
        desk.window->switchSafe(desk.path("One"));
        logic.unlock(testPassword);
        QVERIFY(logic.isOpenElsewhere());
        QVERIFY(logic.message().contains("attic"_s));
        logic.unlock(testPassword);
        QTRY_VERIFY(desk.test.core.currentSafe()->isUnlocked());
        QVERIFY(mark.open(QIODevice::ReadOnly) && !mark.readAll().contains("attic"));
    }

    void aGoneSafeIsLocatedButNotTakenForAnother()
    {
        Desk desk;
        QVERIFY(desk.makeSafe("One"));
        QVERIFY(desk.makeSafe("Two"));
        QVERIFY(QDir().rename(desk.path("One"), desk.path("moved")));
        SafesDialog *list = desk.openList();
        QPushButton *locate = find<QPushButton>(*list, "locateButton");
        QVERIFY(locate);
        desk.chosen = desk.path("Two");
        locate->click();
        QTRY_COMPARE(desk.asker.asked.size(), 1);
        QCOMPARE(desk.asker.asked.first().title, "Another safe"_s);
        desk.chosen = desk.path("moved");
        find<QPushButton>(*list, "locateButton")->click();
        QTRY_VERIFY(!desk.test.core.knownSafes().listed(desk.path("moved")).isEmpty());
        QTRY_VERIFY(!list->isReading());
        QTRY_VERIFY(!find<QPushButton>(*list, "locateButton"));
        QCOMPARE(desk.listed().size(), 2);

        UnlockLogic &logic = desk.window->pages().unlockLogic();
        logic.choose("/media/ana/no such stick/safe"_s);
        QVERIFY(logic.message().contains("drive"_s));
        logic.choose(desk.path("no such folder"));
        QVERIFY(!logic.message().contains("drive"_s));
    }

    void anArchiveGoesOutAndComesBack()
    {
        Desk desk;
        QVERIFY(desk.makeSafe("One"));
        desk.test.addLogin("Shop"_s);
        desk.chosen = desk.path("out.gpm");
        desk.desk.exportCurrent();
        auto *progress = desk.dialog<ProgressDialog>();
        QVERIFY(progress);
        QTRY_VERIFY(!progress->isRunning());
        QVERIFY(QFile::exists(desk.path("out.gpm")));
        find<QPushButton>(*progress, "wayButton")->click();
        QCOMPARE(desk.shown, desk.test.folder.path());

        // From the lock page: the new safe is the chosen one, locked.
        desk.window->lockByUser();
        desk.chosen = desk.path("out.gpm");
        desk.desk.importArchive();
        QTRY_COMPARE(desk.listed().size(), 2);
        QTRY_VERIFY(desk.test.core.currentSafe()->folder() != desk.path("One"));
        UnlockLogic &logic = desk.window->pages().unlockLogic();
        logic.unlock(testPassword);
        QTRY_VERIFY(desk.test.core.currentSafe()->isUnlocked());
        QCOMPARE(desk.test.core.currentSafe()->itemCount(), 1);
    }

    void aFileIsNotReplacedUnasked()
    {
        QTemporaryDir folder;
        QFile taken(folder.filePath("Work.gpm"_s));
        QVERIFY(taken.open(QIODevice::WriteOnly));
        taken.close();
        QWidget window;
        bool asked = false;
        QTimer::singleShot(0, &window, [&] {
            auto *dialog = window.findChild<QFileDialog *>();
            QTimer::singleShot(0, dialog, [&] {
                auto *question = dialog->findChild<QMessageBox *>();
                asked = question != nullptr;
                if (question)
                    question->reject();
                dialog->reject();
            });
            find<QLineEdit>(*dialog, "fileNameEdit")->setText("Work"_s);
            QMetaObject::invokeMethod(dialog, "accept");
        });
        QCOMPARE(askForTarget(&window, {}, folder.filePath("Home.gpm"_s)), QString());
        QVERIFY(asked);

        // A dialog that leaves the suffix away is shown again with the name that is taken.
        QStringList proposed;
        const auto ask = [&](const QString &path) {
            proposed << QFileInfo(path).fileName();
            return proposed.size() > 1 ? path : folder.filePath("Work"_s);
        };
        QCOMPARE(targetWithSuffix(ask, "Home.gpm"_s), taken.fileName());
        QCOMPARE(proposed, QStringList({"Home.gpm"_s, "Work.gpm"_s}));
        QVERIFY(taken.remove());
        proposed.clear();
        QCOMPARE(targetWithSuffix(ask, "Home.gpm"_s), taken.fileName());
        QCOMPARE(proposed.size(), 1);
    }

    void anImportThatFailsSaysWhy()
    {
        Desk desk;
        QVERIFY(desk.makeSafe("One"));
        QFile file(desk.path("no.gpm"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no archive") > 0);
        file.close();
        desk.chosen = file.fileName();
        desk.desk.importArchive();
        auto *progress = desk.dialog<ProgressDialog>();
        QVERIFY(progress);
        QTRY_VERIFY(!progress->isRunning());
        const QStringList lines =
            find<QLabel>(*progress, "progressText")->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.first(), "Import from \"no.gpm\" failed!"_s);
        QVERIFY(lines.value(1).size() > 20);
        QCOMPARE(desk.listed().size(), 1);
    }

    void aNewSafeGoesWhereTheUserWantsIt()
    {
        Desk desk;
        QVERIFY(QDir().mkpath(desk.path("documents/letters")));
        desk.window->pages().setFolderChoice([&desk] { return desk.path("documents"); });
        desk.window->createSafe();
        auto *page = desk.window->findChild<CreateSafePage *>();
        find<QPushButton>(*page, "chooseFolderButton")->click();
        const std::pair<const char *, QString> fields[] = {{"newSafeName", "Club: 1/2"_s},
                                                           {"newSafePassword", testPassword},
                                                           {"newSafeConfirm", testPassword},
                                                           {"newSafeHint", "h"_s}};
        for (const auto &field : fields)
            QTest::keyClicks(find<QLineEdit>(*page, field.first), field.second);
        find<QPushButton>(*page, "createButton")->click();
        QVERIFY(desk.test.core.currentSafe());
        const QString folder = desk.test.core.currentSafe()->folder();
        QCOMPARE(QFileInfo(folder).path(), desk.path("documents"));
        QVERIFY(QFile::exists(folder + "/safe.meta"_s));
        QVERIFY(QDir(desk.path("documents/letters")).exists());
    }

    void theFirstStepsTakeASafeThatIsThereAlready()
    {
        Desk desk;
        QVERIFY(desk.makeSafe("Old"));
        desk.test.core.selectSafe({});
        desk.test.core.knownSafes().remove(desk.path("Old"));
        desk.chosen = desk.path("Old");
        NewSafePage page(desk.test.core, desk.theme, nullptr,
                         {[&desk] { desk.desk.openFolder(); }, [] {}});
        QVERIFY(!page.canGoOn());
        find<QPushButton>(page, "openFolderLink")->click();
        QVERIFY(page.canGoOn());
        QVERIFY(page.goOn());
        QVERIFY(find<QLabel>(page, "safeMade")->text().contains("Old"_s));
        QCOMPARE(desk.window->pages().unlockLogic().chosenFolder(), desk.path("Old"));
        QVERIFY(!desk.test.core.currentSafe()->isUnlocked());
    }

    void theNameOfAnArchiveIsOneThatFilesMayHave()
    {
        const QDateTime moment(QDate(2026, 11, 21), QTime(9, 5));
        QCOMPARE(ArchiveDesk::archiveName("Home"_s, moment), "Home_2026-11-21_09-05.gpm"_s);
        QVERIFY(!ArchiveDesk::archiveName("a/b\\c"_s, moment)
                     .contains(QRegularExpression("[/\\\\]"_s)));
    }
};

QTEST_MAIN(TestSafes)
#include "tst_safes.moc"
