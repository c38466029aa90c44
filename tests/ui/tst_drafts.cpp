#include "PMItemFactory.h"
#include "UiTesting.h"
#include "drafts/DraftDocument.h"
#include "main/ItemPane.h"
#include "main/MainView.h"
#include "style/Theme.h"

#include <QDir>
#include <QDirIterator>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

/// A user before a main view that follows the safe as its window does.
struct Desk
{
    Desk()
    {
        if (!test.createSafe())
            qFatal("No safe to test with");
        start();
    }

    void start()
    {
        view = std::make_unique<MainView>(test.core, theme, asker.asker());
        QObject::connect(&test.core, &GPMAppCore::safeLockedChanged, view.get(),
                         [this](bool locked) {
                             if (locked)
                                 view->closeSafe();
                             else
                                 view->openSafe(test.core.currentSafe());
                         });
        view->openSafe(test.core.currentSafe());
        view->resize(1000, 680);
        view->show();
        view->activateWindow();
        if (!QTest::qWaitForWindowActive(view.get()))
            qFatal("The view got no keyboard");
        find<QTimer>("draftTimer")->setInterval(0);
    }

    template <typename Object>
    Object *find(const char *name) const
    {
        return view->findChild<Object *>(QLatin1String(name));
    }
    void click(const char *name) const { find<QAbstractButton>(name)->click(); }
    void type(const char *field, const QString &text) const
    {
        auto *line = find<QLineEdit>(field);
        if (!line)
            qFatal("Nothing is edited");
        line->setText(text);
    }
    QString typed(const char *field) const
    {
        const auto *line = find<QLineEdit>(field);
        return line ? line->text() : QStringLiteral("no editor");
    }
    QString offer() const
    {
        const auto *banner = find<QWidget>("draftBanner");
        return banner->isVisible()
                   ? banner->findChild<QLabel *>(QStringLiteral("noticeHeading"))->text()
                   : QString();
    }
    QString offerText() const
    {
        return find<QWidget>("draftBanner")
            ->findChild<QLabel *>(QStringLiteral("noticeText"))
            ->text();
    }

    QStringList files() const
    {
        QStringList paths;
        QDirIterator each(test.folder.filePath(QStringLiteral("data/drafts")), QDir::Files,
                          QDirIterator::Subdirectories);
        while (each.hasNext())
            paths.append(each.next());
        return paths;
    }

    void lock() { test.core.lockCurrentSafe(); }
    void unlock()
    {
        QSignalSpy open(&test.core, &GPMAppCore::safeLockedChanged);
        bool loaded = false;
        QObject receiver;
        QObject::connect(&test.core.currentSafe()->drafts(), &DraftStore::loaded, &receiver,
                         [&loaded] { loaded = true; });
        test.core.unlockCurrentSafe(testPassword);
        if (!open.wait() || !QTest::qWaitFor([&loaded] { return loaded; }))
            qFatal("The safe does not open");
    }

    /// Waits for what the drafts' worker has to do, and for what follows from that.
    void settle() const
    {
        DraftStore &drafts = test.core.currentSafe()->drafts();
        QSignalSpy loaded(&drafts, &DraftStore::loaded);
        drafts.loadAsync();
        if (!loaded.wait())
            qFatal("The drafts are not read");
    }

    /// While the folder is away nothing can be saved.
    void takeAway(const std::function<void()> &act)
    {
        const std::shared_ptr<GPMSafe> safe = test.core.currentSafe();
        const QString content = safe->folder() + QStringLiteral("/content");
        if (!safe->saveChanges() || !QDir().rename(content, content + QStringLiteral("-away")))
            qFatal("The folder is in use");
        act();
        QDir().rename(content + QStringLiteral("-away"), content);
    }
    void saveInVain()
    {
        QSignalSpy saved(test.core.currentSafe().get(), &GPMSafe::saved);
        click("saveButton");
        // The report of an earlier save may still come.
        if (!QTest::qWaitFor(
                [&saved] { return !saved.isEmpty() && !saved.last().first().toBool(); }))
            qFatal("Saving should fail");
    }

    QString addAndEdit(const QString &title, const QString &userName)
    {
        const QString id = test.addLogin(title);
        find<QListView>("itemList")
            ->setCurrentIndex(find<QListView>("itemList")->model()->index(0, 0));
        click("editButton");
        type("loginField", userName);
        return id;
    }

    TestCore test;
    Theme theme;
    TestAsker asker;
    std::unique_ptr<MainView> view;
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
        if (isNew) {
            QTest::keyClick(desk.view.get(), Qt::Key_N, Qt::ControlModifier);
            desk.type("titleField", QStringLiteral("Cloudmail"));
            desk.type("loginField", QStringLiteral("bea"));
        } else {
            id = desk.addAndEdit(QStringLiteral("Cloudmail"), QStringLiteral("bea"));
        }
        desk.type("passwordField", QStringLiteral("typed"));
        desk.type("urlField", QStringLiteral("half an addr"));
        desk.find<QPlainTextEdit>("noteField")->setPlainText(QStringLiteral("two\nlines"));
        if (exits)
            desk.test.core.exitPasswordManager();
        else
            desk.lock();
        QVERIFY(desk.asker.asked.isEmpty());
        QCOMPARE(desk.files().size(), 1);
        QCOMPARE(desk.offer(), QString());
        if (exits)
            desk.start();
        desk.unlock();
        QCOMPARE(desk.offer(),
                 isNew ? QStringLiteral("You were adding “Cloudmail” when the safe locked.")
                       : QStringLiteral("You were editing “Cloudmail” when the safe locked."));
        if (!isNew)
            QCOMPARE(desk.test.login(id)->login(), QStringLiteral("ana"));

        desk.click("continueDraftButton");
        QCOMPARE(desk.offer(), QString());
        QCOMPARE(desk.typed("titleField"), QStringLiteral("Cloudmail"));
        QCOMPARE(desk.typed("loginField"), QStringLiteral("bea"));
        QCOMPARE(desk.typed("passwordField"), QStringLiteral("typed"));
        QCOMPARE(desk.typed("urlField"), QStringLiteral("half an addr"));
        // Another lock, before anything else was typed, does not lose it either.
        desk.lock();
        desk.unlock();
        desk.click("continueDraftButton");
        QCOMPARE(desk.typed("passwordField"), QStringLiteral("typed"));
        desk.type("urlField", QStringLiteral("mail.example"));
        desk.click("saveButton");
        QTRY_COMPARE(desk.files(), QStringList());
        QCOMPARE(desk.test.core.currentSafe()->itemCount(), 1);
        const PMListItem *item = desk.test.core.currentSafe()->items().front();
        QCOMPARE(item->property("password").toString(), QStringLiteral("typed"));
        QCOMPARE(item->note(), QStringLiteral("two\nlines"));
        desk.lock();
        desk.unlock();
        QCOMPARE(desk.offer(), QString());
    }

    void keepsWhileTypingForACrash()
    {
        Desk desk;
        desk.addAndEdit(QStringLiteral("Shop"), QStringLiteral("bea"));
        QTRY_COMPARE(desk.files().size(), 1);
        const QString path = desk.files().first();
        const auto bytes = [&path] {
            QFile file(path);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        const QByteArray before = bytes();
        desk.type("loginField", QStringLiteral("cleo"));
        QTRY_VERIFY(bytes() != before);
        QCOMPARE(desk.files().size(), 1);
        // What was taken back needs no keeping.
        desk.type("loginField", QStringLiteral("ana"));
        QTRY_COMPARE(desk.files().size(), 0);
        desk.type("loginField", QStringLiteral("dora"));
        QTRY_COMPARE(desk.files().size(), 1);
        desk.click("discardButton");
        QTRY_COMPARE(desk.files().size(), 0);
    }

    void anOfferCanBeDiscarded()
    {
        Desk desk;
        desk.addAndEdit(QStringLiteral("Shop"), QStringLiteral("bea"));
        desk.lock();
        desk.unlock();
        desk.asker.answer = 1;
        desk.click("discardDraftButton");
        QVERIFY(!desk.offer().isEmpty());
        desk.asker.answer = 0;
        desk.click("discardDraftButton");
        QCOMPARE(desk.offer(), QString());
        QTRY_COMPARE(desk.files().size(), 0);
    }

    void severalOffersComeOneAfterTheOther()
    {
        Desk desk;
        desk.addAndEdit(QStringLiteral("Shop"), QStringLiteral("bea"));
        desk.lock();
        desk.unlock();
        QTest::keyClick(desk.view.get(), Qt::Key_N, Qt::ControlModifier);
        desk.type("titleField", QStringLiteral("Second"));
        desk.lock();
        QCOMPARE(desk.files().size(), 2);
        desk.unlock();
        QStringList offers{desk.offer()};
        desk.click("continueDraftButton");
        offers.append(desk.offer());
        // What is continued is not left without a word.
        desk.asker.answer = 2;
        desk.click("continueDraftButton");
        QCOMPARE(desk.asker.asked.size(), 1);
        offers.sort();
        QCOMPARE(offers,
                 QStringList({QStringLiteral("You were adding “Second” when the safe locked."),
                              QStringLiteral("You were editing “Shop” when the safe locked.")}));
    }

    void whatBecameOfTheItemIsTold_data()
    {
        QTest::addColumn<QString>("fate");
        QTest::addColumn<QString>("told");
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("items");
        QTest::addColumn<QString>("userName");
        const QString changed = QStringLiteral("changed");
        QTest::newRow("replaced") << changed << changed << 0 << 1 << QStringLiteral("bea");
        QTest::newRow("both") << changed << changed << 1 << 2 << QStringLiteral("other device");
        QTest::newRow("cancelled")
            << changed << changed << 2 << 1 << QStringLiteral("other device");
        QTest::newRow("trashed") << QStringLiteral("trashed") << QStringLiteral("in the trash") << 0
                                 << 2 << QStringLiteral("ana");
        QTest::newRow("deleted") << QStringLiteral("deleted") << QStringLiteral("deleted") << -1
                                 << 1 << QString();
    }

    void whatBecameOfTheItemIsTold()
    {
        QFETCH(QString, fate);
        QFETCH(QString, told);
        QFETCH(int, answer);
        Desk desk;
        const QString id = desk.addAndEdit(QStringLiteral("Shop"), QStringLiteral("bea"));
        desk.lock();
        {
            GPMSafe other;
            QVERIFY(other.open(desk.test.core.currentSafe()->folder()));
            QVERIFY(other.unlock(testPassword));
            PMListItem *item = other.item(id);
            if (fate == QStringLiteral("deleted"))
                QVERIFY(other.removeItems({id}));
            else if (fate == QStringLiteral("trashed"))
                item->setDeleted(true);
            else
                item->setProperty("login", QStringLiteral("other device"));
            if (fate != QStringLiteral("deleted"))
                other.touchItem(*item);
        }
        desk.unlock();
        QVERIFY2(desk.offerText().contains(told), qPrintable(desk.offerText()));
        desk.asker.answer = answer;
        desk.click("continueDraftButton");
        QCOMPARE(desk.asker.asked.size(), answer < 0 ? 0 : 1);
        if (fate == QStringLiteral("changed") && answer == 2) {
            QVERIFY(!desk.offer().isEmpty());
            QCOMPARE(desk.typed("loginField"), QStringLiteral("no editor"));
        } else {
            QCOMPARE(desk.typed("loginField"), QStringLiteral("bea"));
            desk.click("saveButton");
        }
        QTEST(desk.test.core.currentSafe()->itemCount(), "items");
        QFETCH(QString, userName);
        if (!userName.isEmpty())
            QCOMPARE(desk.test.login(id)->login(), userName);
    }

    void whatWasTypedOutlivesItsItem()
    {
        Desk desk;
        const QString id = desk.addAndEdit(QStringLiteral("Shop"), QStringLiteral("bea"));
        QVERIFY(desk.test.core.currentSafe()->removeItems({id}));
        QCOMPARE(desk.typed("loginField"), QStringLiteral("bea"));
        // Also a lock: it is kept as the draft of a new item.
        desk.lock();
        desk.unlock();
        QVERIFY(!desk.offer().isEmpty());
        desk.click("continueDraftButton");
        QCOMPARE(desk.typed("loginField"), QStringLiteral("bea"));
        desk.click("saveButton");
        QCOMPARE(desk.test.core.currentSafe()->itemCount(), 1);
    }

    void unreadableFilesAreToldOf()
    {
        Desk desk;
        desk.addAndEdit(QStringLiteral("Shop"), QStringLiteral("bea"));
        desk.lock();
        QFile file(desk.files().first());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("nothing of this safe");
        file.close();
        desk.unlock();
        QCOMPARE(desk.offer(), QStringLiteral("An edit that was kept could not be read."));
        QVERIFY(!desk.find<QPushButton>("continueDraftButton")->isVisible());
        desk.click("discardDraftButton");
        QCOMPARE(desk.offer(), QString());
        QVERIFY(desk.files().isEmpty());
    }

    void aFolderThatCannotBeWrittenDoesNotStopALock()
    {
        Desk desk;
        QFile inTheWay(desk.test.folder.filePath(QStringLiteral("data/drafts")));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        desk.addAndEdit(QStringLiteral("Shop"), QStringLiteral("bea"));
        QSignalSpy told(&desk.test.core, &GPMAppCore::message);
        desk.lock();
        QVERIFY(!desk.test.core.currentSafe()->isUnlocked());
        QCOMPARE(told.size(), 1);
        QCOMPARE(told.first().first().toString(), QStringLiteral("Can't keep the edit."));
    }

    void aFailedSaveDoesNotCostTheDraft()
    {
        Desk desk;
        desk.addAndEdit(QStringLiteral("Shop"), QStringLiteral("bea"));
        QTRY_COMPARE(desk.files().size(), 1);
        const std::shared_ptr<GPMSafe> safe = desk.test.core.currentSafe();
        QVERIFY(safe->saveChanges());
        const QString content = safe->folder() + QStringLiteral("/content");
        QVERIFY(QDir().rename(content, content + QStringLiteral("-away")));
        QSignalSpy saved(safe.get(), &GPMSafe::saved);
        desk.click("saveButton");
        QVERIFY(saved.wait());
        QCOMPARE(saved.last().first().toBool(), false);
        QVERIFY(QDir().rename(content + QStringLiteral("-away"), content));
        QCOMPARE(desk.files().size(), 1);
        QTest::keyClick(desk.view.get(), Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(desk.files().size(), 0);
    }

    void whatCouldNotBeSavedIsKeptByTheLock()
    {
        Desk desk;
        const QString id = desk.test.addLogin(QStringLiteral("Shop"));
        desk.takeAway([&] {
            desk.test.login(id)->setLogin(QStringLiteral("bea"));
            desk.test.addLogin(QStringLiteral("New"));
            desk.lock();
        });
        QCOMPARE(desk.files().size(), 2);
        desk.unlock();
        for (int i = 0; i < 2; ++i) {
            desk.click("continueDraftButton");
            desk.click("saveButton");
        }
        // The item had not changed meanwhile, about which would have been asked.
        QVERIFY(desk.asker.asked.isEmpty());
        QTRY_COMPARE(desk.files(), QStringList());
        QCOMPARE(desk.test.core.currentSafe()->itemCount(), 2);
        QCOMPARE(desk.test.login(id)->login(), QStringLiteral("bea"));
    }

    void whatTheUserGaveUpIsNotKept()
    {
        Desk desk;
        const QString other = desk.test.addLogin(QStringLiteral("Other"));
        const QString id = desk.addAndEdit(QStringLiteral("Shop"), QStringLiteral("bea"));
        QTRY_COMPARE(desk.files().size(), 1);
        desk.takeAway([&] {
            desk.saveInVain();
            desk.test.login(other)->setNote(QStringLiteral("changed"));
            desk.test.core.giveUpChanges();
            desk.lock();
        });
        QCOMPARE(desk.files(), QStringList());
        desk.unlock();
        QCOMPARE(desk.offer(), QString());
        QVERIFY(desk.test.login(id)->login() != QStringLiteral("bea"));
        // It was about that one lock.
        desk.test.login(other)->setNote(QStringLiteral("changed again"));
        desk.lock();
        desk.unlock();
        QCOMPARE(desk.test.login(other)->note(), QStringLiteral("changed again"));
    }

    void aDraftOutlivesALockWithoutASave()
    {
        Desk desk;
        desk.addAndEdit(QStringLiteral("Shop"), QStringLiteral("bea"));
        QTRY_COMPARE(desk.files().size(), 1);
        desk.takeAway([&] {
            desk.saveInVain();
            desk.lock();
        });
        desk.unlock();
        QVERIFY(!desk.offer().isEmpty());
        // It was kept twice, and is offered once.
        desk.settle();
        QCOMPARE(desk.files().size(), 1);
        // A save of something else does not end what nobody has decided about.
        QSignalSpy saved(desk.test.core.currentSafe().get(), &GPMSafe::saved);
        desk.test.addLogin(QStringLiteral("Other"));
        QVERIFY(saved.wait());
        desk.settle();
        QCOMPARE(desk.files().size(), 1);
    }

    void aDraftOutlivesNewWindowsWithoutASave()
    {
        Desk desk;
        desk.addAndEdit(QStringLiteral("Shop"), QStringLiteral("bea"));
        QTRY_COMPARE(desk.files().size(), 1);
        desk.takeAway([&] {
            desk.saveInVain();
            desk.start();
            desk.settle();
            desk.settle();
            QCOMPARE(desk.files().size(), 1);
        });
    }

    void aCorrectedDateTakesThePlaceOfTheUnfinishedOne()
    {
        Desk desk;
        desk.view->createItem(PMListItem::CreditCard);
        desk.type("titleField", QStringLiteral("Card"));
        desk.type("expireField", QStringLiteral("1"));
        desk.lock();
        desk.unlock();
        desk.click("continueDraftButton");
        QCOMPARE(desk.typed("expireField"), QStringLiteral("1"));
        desk.type("expireField", QStringLiteral("03 / 2031"));
        desk.lock();
        desk.unlock();
        desk.click("continueDraftButton");
        QCOMPARE(desk.typed("expireField"), QStringLiteral("03 / 2031"));
        desk.click("saveButton");
        const PMListItem *item = desk.test.core.currentSafe()->items().front();
        QVERIFY(item->unknownKeys().document.isEmpty());
    }

    void everyKindGoesThroughTheEditorsDraft_data()
    {
        QTest::addColumn<int>("type");
        for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type)
            QTest::addRow("kind %d", type) << type;
    }

    void everyKindGoesThroughTheEditorsDraft()
    {
        QFETCH(int, type);
        PMFieldTypes::registerMetaTypes();
        const auto kind = static_cast<PMListItem::Type>(type);
        const auto item = makeItem(kind);
        ItemDraft edited(*item, itemFields(kind), true);
        int unfinished = 0;
        for (const ItemField &field : edited.fields()) {
            QVariant value = edited.value(field.property);
            if (value.type() == QVariant::String)
                value = QStringLiteral("typed in %1").arg(QLatin1String(field.property));
            else if (value.type() == QVariant::Int)
                value = 2;
            else if (value.userType() == qMetaTypeId<PMFieldTypes::Phone>())
                value = QVariant::fromValue(
                    PMFieldTypes::Phone{QStringLiteral("49"), QStringLiteral("30")});
            else if (value.userType() == qMetaTypeId<PMFieldTypes::Date>())
                // Of two dates one is not finished.
                value = ++unfinished % 2 == 1 ? QVariant(QStringLiteral("29.0"))
                                              : QVariant::fromValue(PMFieldTypes::Date{2030, 2, 3});
            edited.setValue(field.property, value);
        }
        const KeptDraft kept = keptDraft(*item, edited);
        QVERIFY(kept.isNew);
        QVERIFY(!holdsDraft(*item, kept));
        // Through the text of the file.
        const auto json = kept.document.toJson({});
        KeptDraft read;
        read.document = *PMItemDocument::fromJson(*json, {});
        ItemDraft restored(*makeItem(kind), itemFields(kind), true);
        restoreDraft(restored, read);
        for (const ItemField &field : edited.fields()) {
            const QVariant before = edited.value(field.property);
            const QVariant after = restored.value(field.property);
            const bool same = before.userType() == after.userType() &&
                              (before == after || before.value<PMFieldTypes::Date>() ==
                                                      after.value<PMFieldTypes::Date>());
            if (before.userType() == qMetaTypeId<PMFieldTypes::Phone>())
                QCOMPARE(after.value<PMFieldTypes::Phone>(), before.value<PMFieldTypes::Phone>());
            else
                QVERIFY2(same, field.property);
        }
    }
};

QTEST_MAIN(TestDrafts)
#include "tst_drafts.moc"
