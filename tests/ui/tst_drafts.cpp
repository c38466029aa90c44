#include "MainDesk.h"

#include <QDirIterator>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

/// A user whose typing is kept.
struct Desk : MainDesk
{
    Desk() { keepAtOnce(); }

    void keepAtOnce() const { field<QTimer>("draftTimer")->setInterval(0); }
    void startAgain()
    {
        start();
        keepAtOnce();
    }
    QString offer() const
    {
        const auto *banner = field<QWidget>("draftBanner");
        return banner->isVisible() ? find<QLabel>(*banner, "noticeHeading")->text() : QString();
    }
    void lockAndUnlock()
    {
        lock();
        unlock();
    }
    void goOn() const { click("continueDraftButton"); }
    QStringList files() const
    {
        QStringList paths;
        QDirIterator each(test.path("data/drafts"), QDir::Files, QDirIterator::Subdirectories);
        while (each.hasNext())
            paths.append(each.next());
        return paths;
    }
    /// Waits for what the drafts' worker has to do, and for what follows from that.
    void settle() const
    {
        DraftStore &drafts = safe().drafts();
        QSignalSpy loaded(&drafts, &DraftStore::loaded);
        drafts.loadAsync();
        if (!loaded.wait())
            qFatal("The drafts are not read");
    }
    void saveInVain()
    {
        QSignalSpy saved(&safe(), &GPMSafe::saved);
        click("saveButton");
        // The report of an earlier save may still come.
        if (!QTest::qWaitFor(
                [&saved] { return !saved.isEmpty() && !saved.last().first().toBool(); }))
            qFatal("Saving should fail");
    }
};

} // namespace

class TestDrafts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lockKeepsAnEditAndOffersIt_data()
    {
        QTest::addColumn<bool>("isNew");
        QTest::addColumn<bool>("exits");
        QTest::newRow("edit, lock") << false << false;
        QTest::newRow("new, lock") << true << false;
        QTest::newRow("edit, exit") << false << true;
    }
    void lockKeepsAnEditAndOffersIt()
    {
        QFETCH(bool, isNew);
        QFETCH(bool, exits);
        Desk desk;
        QString id;
        if (isNew)
            desk.press(Qt::Key_N, Qt::ControlModifier);
        else
            id = desk.addAndEdit("Cloudmail", "bea");
        desk.type("titleField", "Cloudmail");
        desk.type("loginField", "bea");
        desk.type("passwordField", "typed");
        desk.type("urlField", "half an addr");
        desk.field<QPlainTextEdit>("noteField")->setPlainText("two\nlines"_s);
        if (exits)
            desk.test.core.exitPasswordManager();
        else
            desk.lock();
        QVERIFY(desk.asker.asked.isEmpty());
        QCOMPARE(desk.files().size(), 1);
        QCOMPARE(desk.offer(), QString());
        if (exits)
            desk.startAgain();
        desk.unlock();
        QCOMPARE(desk.offer(), isNew ? "You were adding “Cloudmail” when the safe locked."_s
                                     : "You were editing “Cloudmail” when the safe locked."_s);
        if (!isNew)
            QCOMPARE(desk.test.login(id)->login(), "ana"_s);

        desk.goOn();
        QCOMPARE(desk.offer(), QString());
        QCOMPARE(desk.typed("titleField"), "Cloudmail"_s);
        QCOMPARE(desk.typed("loginField"), "bea"_s);
        QCOMPARE(desk.typed("passwordField"), "typed"_s);
        QCOMPARE(desk.typed("urlField"), "half an addr"_s);
        // Another lock, before anything else was typed, does not lose it either.
        desk.lockAndUnlock();
        desk.goOn();
        QCOMPARE(desk.typed("passwordField"), "typed"_s);
        desk.type("urlField", "mail.example");
        desk.click("saveButton");
        QTRY_COMPARE(desk.files(), QStringList());
        QCOMPARE(desk.safe().itemCount(), 1);
        const PMListItem *item = desk.safe().items().front();
        QCOMPARE(item->property("password").toString(), "typed"_s);
        QCOMPARE(item->note(), "two\nlines"_s);
        desk.lockAndUnlock();
        QCOMPARE(desk.offer(), QString());
    }

    void keepsWhileTypingForACrash()
    {
        Desk desk;
        desk.addAndEdit("Shop", "bea");
        QTRY_COMPARE(desk.files().size(), 1);
        const QString path = desk.files().first();
        const auto bytes = [&path] { return FileLayer().read(path).value_or(QByteArray()); };
        const QByteArray before = bytes();
        desk.type("loginField", "cleo");
        QTRY_VERIFY(bytes() != before);
        QCOMPARE(desk.files().size(), 1);
        // What was taken back needs no keeping.
        desk.type("loginField", "ana");
        QTRY_COMPARE(desk.files().size(), 0);
        desk.type("loginField", "dora");
        QTRY_COMPARE(desk.files().size(), 1);
        desk.click("discardButton");
        QTRY_COMPARE(desk.files().size(), 0);
    }

    void anOfferCanBeDiscarded()
    {
        Desk desk;
        desk.addAndEdit("Shop", "bea");
        desk.lockAndUnlock();
        for (const int answer : {1, 0}) {
            desk.asker.answer = answer;
            desk.click("discardDraftButton");
            QCOMPARE(desk.offer().isEmpty(), answer == 0);
        }
        QTRY_COMPARE(desk.files().size(), 0);
    }

    void severalOffersComeOneAfterTheOther()
    {
        Desk desk;
        desk.addAndEdit("Shop", "bea");
        desk.lockAndUnlock();
        desk.press(Qt::Key_N, Qt::ControlModifier);
        desk.type("titleField", "Second");
        desk.lock();
        QCOMPARE(desk.files().size(), 2);
        desk.unlock();
        QStringList offers{desk.offer()};
        desk.goOn();
        offers.append(desk.offer());
        // What is continued is not left without a word.
        desk.asker.answer = 2;
        desk.goOn();
        QCOMPARE(desk.asker.asked.size(), 1);
        offers.sort();
        QCOMPARE(offers, QStringList({"You were adding “Second” when the safe locked."_s,
                                      "You were editing “Shop” when the safe locked."_s}));
    }

    void whatBecameOfTheItemIsTold_data()
    {
        QTest::addColumn<QString>("fate");
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("items");
        QTest::addColumn<QString>("userName");
        const QString changed = "changed"_s;
        const QString trashed = "trashed"_s;
        const QString deleted = "deleted"_s;
        QTest::newRow("replaced") << changed << 0 << 1 << "bea"_s;
        QTest::newRow("both") << changed << 1 << 2 << "other device"_s;
        QTest::newRow("cancelled") << changed << 2 << 1 << "other device"_s;
        QTest::newRow("trashed") << trashed << 0 << 2 << "ana"_s;
        QTest::newRow("deleted") << deleted << -1 << 1 << QString();
    }
    void whatBecameOfTheItemIsTold()
    {
        QFETCH(QString, fate);
        QFETCH(int, answer);
        Desk desk;
        const QString id = desk.addAndEdit("Shop", "bea");
        desk.lock();
        {
            GPMSafe other;
            QVERIFY(other.open(desk.safe().folder()));
            QVERIFY(other.unlock(testPassword));
            PMListItem *item = other.item(id);
            item->setDeleted(fate == "trashed"_s);
            if (fate == "changed"_s)
                item->setProperty("login", "other device"_s);
            other.touchItem(*item);
            if (fate == "deleted"_s)
                QVERIFY(other.removeItems({id}));
        }
        desk.unlock();
        const QString offered =
            find<QLabel>(*desk.field<QWidget>("draftBanner"), "noticeText")->text();
        QVERIFY2(offered.contains(fate == "trashed"_s ? "in the trash"_s : fate),
                 qPrintable(offered));
        desk.asker.answer = answer;
        desk.goOn();
        QCOMPARE(desk.asker.asked.size(), answer < 0 ? 0 : 1);
        if (fate == "changed"_s && answer == 2) {
            QVERIFY(!desk.offer().isEmpty());
            QCOMPARE(desk.typed("loginField"), "no editor"_s);
        } else {
            QCOMPARE(desk.typed("loginField"), "bea"_s);
            desk.click("saveButton");
        }
        QTEST(desk.safe().itemCount(), "items");
        const PMLogin *login = desk.test.login(id);
        QTEST(login ? login->login() : QString(), "userName");
    }

    /// It was a former version in the trash, which goes when there are many.
    void whatIsSavedIsOneLikeEveryOther()
    {
        Desk desk;
        const QString id = desk.addAndEdit("Shop", "bea");
        PMLogin &login = *desk.test.login(id);
        login.setUnknownKeys({{}, {{QStringLiteral("formerOf"), QStringLiteral("x")}}, {}});
        login.setDeleted(true);
        desk.click("saveButton");
        QCOMPARE(login.login(), QStringLiteral("bea"));
        QVERIFY(!login.deleted() && login.unknownKeys().publicFields.isEmpty());
    }

    void whatWasTypedOutlivesItsItem()
    {
        Desk desk;
        const QString id = desk.addAndEdit("Shop", "bea");
        QVERIFY(desk.safe().removeItems({id}));
        QCOMPARE(desk.typed("loginField"), "bea"_s);
        // Also a lock: it is kept as the draft of a new item.
        desk.lockAndUnlock();
        QVERIFY(!desk.offer().isEmpty());
        desk.goOn();
        QCOMPARE(desk.typed("loginField"), "bea"_s);
        desk.click("saveButton");
        QCOMPARE(desk.safe().itemCount(), 1);
    }

    void unreadableFilesAreToldOf()
    {
        Desk desk;
        desk.addAndEdit("Shop", "bea");
        desk.lock();
        QVERIFY(FileLayer().writeBytes(desk.files().first(), "nothing of this safe"));
        desk.unlock();
        QCOMPARE(desk.offer(), "An edit that was kept could not be read."_s);
        QVERIFY(!desk.field<QPushButton>("continueDraftButton")->isVisible());
        desk.click("discardDraftButton");
        QCOMPARE(desk.offer(), QString());
        QVERIFY(desk.files().isEmpty());
    }

    void aFolderThatCannotBeWrittenDoesNotStopALock()
    {
        Desk desk;
        desk.test.file("data/drafts");
        desk.addAndEdit("Shop", "bea");
        QSignalSpy told(&desk.test.core, &GPMAppCore::message);
        desk.lock();
        QVERIFY(!desk.safe().isUnlocked());
        QCOMPARE(told.size(), 1);
        QCOMPARE(told.first().first().toString(), "Can't keep the edit."_s);
    }

    void aFailedSaveDoesNotCostTheDraft()
    {
        Desk desk;
        desk.addAndEdit("Shop", "bea");
        QTRY_COMPARE(desk.files().size(), 1);
        desk.test.withoutFolder([&desk] { desk.saveInVain(); });
        QCOMPARE(desk.files().size(), 1);
        desk.press(Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(desk.files().size(), 0);
    }

    void whatCouldNotBeSavedIsKeptByTheLock()
    {
        Desk desk;
        const QString id = desk.test.addLogin("Shop");
        desk.test.withoutFolder([&] {
            desk.test.login(id)->setLogin("bea"_s);
            desk.test.addLogin("New");
            desk.lock();
        });
        QCOMPARE(desk.files().size(), 2);
        desk.unlock();
        for (int i = 0; i < 2; ++i) {
            desk.goOn();
            desk.click("saveButton");
        }
        // The item had not changed meanwhile, about which would have been asked.
        QVERIFY(desk.asker.asked.isEmpty());
        QTRY_COMPARE(desk.files(), QStringList());
        QCOMPARE(desk.safe().itemCount(), 2);
        QCOMPARE(desk.test.login(id)->login(), "bea"_s);
    }

    void whatTheUserGaveUpIsNotKept()
    {
        Desk desk;
        const QString other = desk.test.addLogin("Other");
        const QString id = desk.addAndEdit("Shop", "bea");
        QTRY_COMPARE(desk.files().size(), 1);
        desk.test.withoutFolder([&] {
            desk.saveInVain();
            desk.test.login(other)->setNote("changed"_s);
            desk.test.core.giveUpChanges();
            desk.lock();
        });
        QCOMPARE(desk.files(), QStringList());
        desk.unlock();
        QCOMPARE(desk.offer(), QString());
        QVERIFY(desk.test.login(id)->login() != "bea"_s);
        // It was about that one lock.
        desk.test.login(other)->setNote("changed again"_s);
        desk.lockAndUnlock();
        QCOMPARE(desk.test.login(other)->note(), "changed again"_s);
    }

    void aDraftOutlivesALockWithoutASave()
    {
        Desk desk;
        desk.addAndEdit("Shop", "bea");
        QTRY_COMPARE(desk.files().size(), 1);
        desk.test.withoutFolder([&] {
            desk.saveInVain();
            desk.lock();
        });
        desk.unlock();
        QVERIFY(!desk.offer().isEmpty());
        // It was kept twice, and is offered once.
        desk.settle();
        QCOMPARE(desk.files().size(), 1);
        // A save of something else does not end what nobody has decided about.
        QSignalSpy saved(&desk.safe(), &GPMSafe::saved);
        desk.test.addLogin("Other");
        QVERIFY(saved.wait());
        desk.settle();
        QCOMPARE(desk.files().size(), 1);
    }

    void aDraftOutlivesNewWindowsWithoutASave()
    {
        Desk desk;
        desk.addAndEdit("Shop", "bea");
        QTRY_COMPARE(desk.files().size(), 1);
        desk.test.withoutFolder([&] {
            desk.saveInVain();
            desk.startAgain();
            desk.settle();
            desk.settle();
            desk.safe().drafts().wait(); // for what was asked for behind that, too
            QCOMPARE(desk.files().size(), 1);
        });
    }

    void aCorrectedDateTakesThePlaceOfTheUnfinishedOne()
    {
        Desk desk;
        desk.view->createItem(PMListItem::CreditCard);
        desk.type("titleField", "Card");
        desk.type("expireField", "1");
        desk.lockAndUnlock();
        desk.goOn();
        QCOMPARE(desk.typed("expireField"), "1"_s);
        desk.type("expireField", "03 / 2031");
        desk.lockAndUnlock();
        desk.goOn();
        QCOMPARE(desk.typed("expireField"), "03 / 2031"_s);
        desk.click("saveButton");
        const PMListItem *item = desk.safe().items().front();
        QVERIFY(item->unknownKeys().document.isEmpty());
    }
};

QTEST_MAIN(TestDrafts)
#include "tst_drafts.moc"
