#include "SafesDesk.h"
#include "lock/CreateSafePage.h"
#include "safes/ArchiveDesk.h"
#include "wizard/NewSafePage.h"

/// Safes that come from elsewhere or go there: other folders, archives, the first steps.
class TestFoundSafes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aGoneSafeIsLocatedButNotTakenForAnother()
    {
        SafesDesk desk;
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
        SafesDesk desk;
        QVERIFY(desk.makeSafe("One"));
        desk.test.addLogin("Shop"_s);
        desk.chosen = desk.path("out.gpm");
        desk.desk.exportCurrent();
        ProgressDialog *progress = desk.finished();
        QVERIFY(progress);
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

    void anImportThatFailsSaysWhy()
    {
        SafesDesk desk;
        QVERIFY(desk.makeSafe("One"));
        desk.chosen = desk.test.file("no.gpm", "no archive");
        desk.desk.importArchive();
        ProgressDialog *progress = desk.finished();
        QVERIFY(progress);
        const QStringList lines =
            find<QLabel>(*progress, "progressText")->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.first(), "Import from \"no.gpm\" failed!"_s);
        QVERIFY(lines.value(1).size() > 20);
        QCOMPARE(desk.listed().size(), 1);
    }

    void aNewSafeGoesWhereTheUserWantsIt()
    {
        SafesDesk desk;
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
        SafesDesk desk;
        QVERIFY(desk.makeSafe("Old"));
        desk.test.core.selectSafe({});
        desk.test.core.knownSafes().remove(desk.path("Old"));
        desk.chosen = desk.path("Old");
        NewSafePage page(desk.test.core, desk.theme, nullptr,
                         {[&desk] { desk.desk.openFolder(); }, [] {}});
        QVERIFY(!page.canGoOn());
        find<QPushButton>(page, "openFolderLink")->click();
        QTRY_VERIFY(page.canGoOn());
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

QTEST_MAIN(TestFoundSafes)
#include "tst_foundsafes.moc"
