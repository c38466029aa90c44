#include "SafeUse.h"
#include "SafesDesk.h"

#include <QLockFile>

namespace {

const QDateTime noon(QDate(2026, 5, 4), QTime(12, 0), Qt::UTC);

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
        const auto row = [&safe](const char *name, const QStringList &lines) {
            QTest::newRow(name) << safe << lines;
        };
        row("nothing known", {"looking…"_s, "Not opened yet"_s});
        safe.isRead = true;
        safe.details.backupsKnown = true;
        safe.details.size = 4300000;
        safe.fact.itemCount = 61;
        safe.fact.lastOpened = noon.addDays(-3);
        row("locked", {"61 items · 4.1 MB"_s, "Last opened 3 days ago · no backup yet"_s});
        safe.isOpen = true;
        safe.fact.mirrorFolder = "/cloud/x"_s;
        safe.fact.lastSynchronised = noon.addDays(-1);
        safe.copyOf = "Old"_s;
        row("open, in the cloud, a copy",
            {"61 items · 4.1 MB · in the cloud folder · a copy of “Old”"_s,
             "Open · synchronised yesterday · no backup yet"_s});
        safe.details.place = SafePlace::DriveGone;
        row("drive", {"Folder not found: it was on a drive that is not connected"_s});
    }
    void linesTellHowItStandsWithASafe()
    {
        QFETCH(SafeInfo, safe);
        QFETCH(QStringList, lines);
        QCOMPARE(safeLines(safe, noon), lines);
    }

    void keysLeadThroughTheList()
    {
        SafesDesk desk;
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
        QDialog *rename = desk.dialogOf<QDialog>(*list, "renameDialog");
        QVERIFY(rename);
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
        SafesDesk desk;
        QVERIFY(desk.makeSafe("One"));
        SafesDialog *list = desk.openList();
        desk.choose(*list, "One", "renameAction");
        QDialog *rename = desk.dialogOf<QDialog>(*list, "renameDialog");
        QVERIFY(rename);
        find<QLineEdit>(*rename, "nameField")->setText("Home"_s);
        rename->accept();
        QTRY_VERIFY(desk.window->windowTitle().startsWith("Home"_s));
        desk.test.addLogin("Shop"_s);
        QVERIFY(desk.test.core.saveCurrentSafe());
        GPMSafe again;
        QVERIFY(again.open(desk.path("One")));
        QCOMPARE(again.name(), "Home"_s);
    }

    void deletingAsksForThePasswordAndClosesTheSafeFirst()
    {
        SafesDesk desk;
        QVERIFY(desk.makeSafe("One"));
        QVERIFY(desk.makeSafe("Two"));
        SafesDialog *list = desk.openList();
        desk.choose(*list, "Two", "deleteAction");
        auto *question = desk.dialogOf<DeleteSafeDialog>(*list);
        QVERIFY(question);
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
        SafesDesk desk;
        QVERIFY(desk.makeSafe("One"));
        // The deletion waits for this.
        QLockFile lock(desk.path("One/.sourcelock"));
        QVERIFY(lock.tryLock(0));
        SafesDialog *list = desk.openList();
        desk.choose(*list, "One", "deleteAction");
        auto *question = desk.dialogOf<DeleteSafeDialog>(*list);
        QVERIFY(question);
        SafesDesk::confirm(*question);
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
        SafesDesk desk;
        QVERIFY(desk.makeSafe("One"));
        const std::shared_ptr<GPMSafe> safe = desk.test.core.currentSafe();
        QLockFile lock(desk.path("One/.sourcelock"));
        QVERIFY(lock.tryLock(0));
        QSignalSpy changed(safe.get(), &GPMSafe::passwordChangeFinished);
        QVERIFY(desk.test.core.changePassword("next"_s, "new hint"_s));
        SafesDialog *list = desk.openList();
        desk.choose(*list, "One", "renameAction");
        QDialog *rename = desk.dialogOf<QDialog>(*list, "renameDialog");
        QVERIFY(rename);
        find<QLineEdit>(*rename, "nameField")->setText("Home"_s);
        rename->accept();
        QCOMPARE(desk.asker.asked.size(), 1);
        QVERIFY(desk.asker.asked.first().text.contains("password"_s));
        QVector<bool> renamed;
        desk.test.core.knownSafes().rename(safe->folder(), "Home"_s, safe,
                                           [&](bool done) { renamed.append(done); });
        QCOMPARE(renamed, QVector<bool>{false});
        lock.unlock();
        QTRY_COMPARE(changed.size(), 1);
        QVERIFY(safe->isPassword("next"_s));
        QCOMPARE(safe->name(), "One"_s);
    }

    void aSafeThatIsOpenElsewhereIsNotDeletedAndToldOf()
    {
        SafesDesk desk;
        QVERIFY(desk.makeSafe("One"));
        desk.test.core.lockCurrentSafe();
        QFile mark(desk.path("One/.openlock"));
        QVERIFY(mark.open(QIODevice::WriteOnly) && mark.write("1\nglaceron\nattic\n") > 0);
        mark.close();
        SafesDialog *list = desk.openList();
        desk.choose(*list, "One", "deleteAction");
        auto *question = desk.dialogOf<DeleteSafeDialog>(*list);
        QVERIFY(question);
        SafesDesk::confirm(*question);
        ProgressDialog *progress = desk.finished();
        QVERIFY(progress);
        QVERIFY(find<QLabel>(*progress, "progressText")->text().contains("another program"_s));
        QCOMPARE(desk.listed(), QStringList{"One"_s});

        // Unlocking tells first, and goes on when the user wants it again.
        UnlockLogic &logic = desk.window->pages().unlockLogic();
        desk.window->switchSafe(desk.path("One"));
        logic.unlock(testPassword);
        QTRY_VERIFY(logic.isOpenElsewhere());
        QVERIFY(logic.message().contains("attic"_s));
        logic.unlock(testPassword);
        QTRY_VERIFY(desk.test.core.currentSafe()->isUnlocked());
        QVERIFY(mark.open(QIODevice::ReadOnly) && !mark.readAll().contains("attic"));
    }
};

QTEST_MAIN(TestSafes)
#include "tst_safes.moc"
