#include "PMFieldTypes.h"
#include "PMItemFactory.h"
#include "PMLogin.h"
#include "SafeRemoval.h"
#include "SafeTesting.h"

#include <QMetaProperty>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString otherPassword = QStringLiteral("another password 2");

struct Safe
{
    Safe()
    {
        PMFieldTypes::registerMetaTypes();
        QDir().mkpath(path());
        environment.files = files;
        environment.draftsFolder = folder.filePath(QStringLiteral("data/drafts"));
        reopen({});
    }

    QString path() const { return folder.filePath(QStringLiteral("safe")); }
    QStringList draftFiles() const { return snapshot(environment.draftsFolder).keys(); }
    QString draftPath() const
    {
        return environment.draftsFolder + QLatin1Char('/') + draftFiles().first();
    }

    void openAt(const QString &place)
    {
        safe = std::make_unique<GPMSafe>(environment);
        if (!safe->open(place) || !safe->unlock(samplePassword))
            qFatal("the safe does not open");
    }

    /// The program ends and starts again.
    void reopen(const QString &password)
    {
        safe = std::make_unique<GPMSafe>(environment);
        const bool good = password.isEmpty() ? safe->init(path(), samplePassword, {}, {})
                                             : safe->open(path()) && safe->unlock(password);
        if (!good)
            qFatal("the safe does not open");
    }

    QVector<KeptDraft> load()
    {
        QVector<KeptDraft> drafts;
        bool done = false;
        QObject receiver;
        QObject::connect(&safe->drafts(), &DraftStore::loaded, &receiver,
                         [&](const QVector<KeptDraft> &list, const QStringList &bad) {
                             drafts = list;
                             unreadable = bad;
                             done = true;
                         });
        safe->drafts().loadAsync();
        if (!QTest::qWaitFor([&done] { return done; }))
            qFatal("the drafts are not loaded");
        return drafts;
    }

    KeptDraft draft(const QString &title, const QString &key = DraftStore::newKey()) const
    {
        PMLogin login;
        login.setTitle(title);
        login.setPassword(QStringLiteral("typed secret"));
        KeptDraft kept;
        kept.key = key;
        kept.document = PMItemDocument::fromItem(login);
        kept.isNew = true;
        return kept;
    }

    QTemporaryDir folder;
    std::shared_ptr<FaultyFiles> files = std::make_shared<FaultyFiles>();
    SafeEnvironment environment;
    std::unique_ptr<GPMSafe> safe;
    QStringList unreadable;
};

/// Gives every field of an item a value that no new item has.
void fill(PMListItem &item)
{
    const QMetaObject *meta = item.metaObject();
    for (int i = 1; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const int type = property.userType();
        QVariant value;
        if (qstrcmp(property.name(), "type") == 0)
            continue;
        if (property.isEnumType())
            value = property.enumerator().value(1);
        else if (type == QMetaType::QString)
            value = QLatin1String(property.name()) + QStringLiteral(" \"ü\"\n\U0001F511");
        else if (type == QMetaType::Int)
            value = 41 + i;
        else if (type == QMetaType::Bool)
            value = true;
        else if (type == QMetaType::QStringList)
            value = QStringList{QStringLiteral("one"), QStringLiteral("two")};
        else if (type == QMetaType::QDateTime)
            value = QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3, i), Qt::UTC);
        else if (type == qMetaTypeId<PMFieldTypes::Date>())
            value = QVariant::fromValue(PMFieldTypes::Date{2030, 12, 31});
        else if (type == qMetaTypeId<PMFieldTypes::Phone>())
            value = QVariant::fromValue(
                PMFieldTypes::Phone{QStringLiteral("49"), QStringLiteral("30 123")});
        if (value.isValid() && !property.write(&item, value))
            qFatal("%s can't be set", property.name());
    }
}

} // namespace

class TestDraftStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFieldOfEveryKindComesBack()
    {
        Safe test;
        QMap<QString, KeptDraft> kept;
        for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type) {
            const auto item = makeItem(static_cast<PMListItem::Type>(type));
            fill(*item);
            KeptDraft draft{DraftStore::newKey(), PMItemDocument::fromItem(*item), type % 2 == 0,
                            item->modified()};
            QVERIFY(test.safe->drafts().keep(draft));
            kept.insert(draft.key, draft);
        }
        test.reopen(samplePassword);
        const QVector<KeptDraft> drafts = test.load();
        QCOMPARE(drafts.size(), 11);
        for (const KeptDraft &draft : drafts) {
            const KeptDraft &original = kept.value(draft.key);
            const QString type = QString::number(draft.document.type);
            QCOMPARE(draft.isNew, original.isNew);
            QCOMPARE(draft.baseModified, original.baseModified);
            // Through an object, as the editor gets it.
            const auto item = draft.document.toItem();
            QVERIFY2(item, qPrintable(type));
            const PMItemDocument back = PMItemDocument::fromItem(*item);
            QCOMPARE(back.publicFields, original.document.publicFields);
            QCOMPARE(back.privateFields, original.document.privateFields);
            QVERIFY(back.unknown.isEmpty());
        }
    }

    void filesAreEncryptedAndOutsideTheSafe()
    {
        Safe test;
        const QMap<QString, QByteArray> before = snapshot(test.path());
        const QString key = DraftStore::newKey();
        QVERIFY(test.safe->drafts().keep(test.draft(QStringLiteral("Cloudmail"), key)));
        QCOMPARE(snapshot(test.path()), before);
        QCOMPARE(test.draftFiles().size(), 1);
        const QByteArray bytes = contentOf(test.draftPath());
        QVERIFY(bytes.size() > 100);
        for (const char *text : {"Cloudmail", "secret", "password"})
            QVERIFY(!bytes.contains(text) && !QByteArray::fromBase64(bytes).contains(text));
        const QFile::Permissions owner =
            QFile::ReadOwner | QFile::ReadUser | QFile::WriteOwner | QFile::WriteUser;
        QCOMPARE(QFile::permissions(test.draftPath()), owner);
        QCOMPARE(QFile::permissions(QFileInfo(test.draftPath()).path()),
                 owner | QFile::ExeOwner | QFile::ExeUser);

        test.safe->drafts().remove(key);
        test.safe->lock();
        QVERIFY(test.draftFiles().isEmpty());
    }

    void theLastOfManyWritesStands()
    {
        Safe test;
        const QString key = DraftStore::newKey();
        for (int i = 0; i < 5; ++i)
            test.safe->drafts().keepAsync(test.draft(QString::number(i), key));
        QVERIFY(test.safe->drafts().keep(test.draft(QStringLiteral("last"), key)));
        const QVector<KeptDraft> drafts = test.load();
        QCOMPARE(drafts.size(), 1);
        QCOMPARE(drafts.first().document.toItem()->title(), QStringLiteral("last"));
        // A removal comes behind a write that is under way.
        test.safe->drafts().keepAsync(test.draft(QStringLiteral("late"), key));
        test.safe->drafts().remove(key);
        QVERIFY(test.load().isEmpty());
    }

    void damagedFilesAreToldAndLeft_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut") << QByteArray("cut");
        QTest::newRow("another password") << QByteArray("password");
        QTest::newRow("an item") << QByteArray("item");
    }

    void damagedFilesAreToldAndLeft()
    {
        QFETCH(QByteArray, content);
        Safe test;
        QVERIFY(test.safe->drafts().keep(test.draft(QStringLiteral("bad"))));
        const QString bad = test.draftPath();
        if (content == "cut")
            content = contentOf(bad).chopped(20);
        const PMItemDocument item = PMItemDocument::fromItem(PMLogin());
        if (content == "password" || content == "item") {
            QVERIFY(writeItemFile(test.environment, bad,
                                  content == "item" ? samplePassword.toUtf8() : "other", item));
            content = contentOf(bad);
        }
        writeFile(bad, content);
        QVERIFY(test.safe->drafts().keep(test.draft(QStringLiteral("good"))));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("Can't read draft file.*") + bad));
        const QVector<KeptDraft> drafts = test.load();
        QCOMPARE(drafts.size(), 1);
        QCOMPARE(drafts.first().document.toItem()->title(), QStringLiteral("good"));
        QCOMPARE(test.unreadable, QStringList(bad));
        QCOMPARE(contentOf(bad), content);
    }

    void failingDiskKeepsTheFormerState()
    {
        Safe test;
        const QString key = DraftStore::newKey();
        QVERIFY(test.safe->drafts().keep(test.draft(QStringLiteral("first"), key)));
        const QRegularExpression log(QStringLiteral("DraftStore::keep"));
        test.files->failAt = test.files->operations + 1;
        QTest::ignoreMessage(QtWarningMsg, log);
        QVERIFY(!test.safe->drafts().keep(test.draft(QStringLiteral("second"), key)));
        QCOMPARE(test.load().first().document.toItem()->title(), QStringLiteral("first"));
        // The folder cannot be made: the safe locks all the same.
        QDir(test.environment.draftsFolder).removeRecursively();
        writeFile(test.environment.draftsFolder, "a file");
        QTest::ignoreMessage(QtWarningMsg, log);
        QVERIFY(!test.safe->drafts().keep(test.draft(QStringLiteral("third"))));
        test.safe->drafts().keepAsync(test.draft(QStringLiteral("fourth")));
        test.safe->lock();
        QVERIFY(!test.safe->isUnlocked());
    }

    void otherSafesDoNotSeeThem()
    {
        Safe test;
        QVERIFY(test.safe->drafts().keep(test.draft(QStringLiteral("mine"))));
        QDir().mkpath(test.folder.filePath(QStringLiteral("second")));
        test.safe = std::make_unique<GPMSafe>(test.environment);
        QVERIFY(test.safe->init(test.folder.filePath(QStringLiteral("second")), samplePassword,
                                QStringLiteral("Second"), {}));
        QVERIFY(test.load().isEmpty());
        QVERIFY(test.unreadable.isEmpty());
    }

    /// Every operation of a change of password fails once; whatever it leaves, the draft opens
    /// under the password that is then in force.
    void changeOfPasswordLosesNoDraft()
    {
        bool changed = false;
        int operation = 0;
        while (!changed) {
            Safe test;
            QVERIFY(test.safe->drafts().keep(test.draft(QStringLiteral("kept"))));
            test.files->failAt = test.files->operations + ++operation;
            changed = test.safe->changePassword(otherPassword);
            test.files->failAt = 0;
            // Not saved by a lock: as after a crash.
            test.reopen(changed ? otherPassword : samplePassword);
            const QVector<KeptDraft> drafts = test.load();
            QCOMPARE(drafts.size(), 1);
            QCOMPARE(drafts.first().document.toItem()->title(), QStringLiteral("kept"));
            QVERIFY(test.unreadable.isEmpty());
            QCOMPARE(test.draftFiles().size(), 1);
        }
        QVERIFY(operation > 3);
    }

    /// What is typed while the password changes is there under the one that is in force then.
    void typedDuringAChangeOfPassword()
    {
        for (const bool cancelled : {false, true}) {
            Safe test;
            QVERIFY(test.safe->addItem(std::make_unique<PMLogin>()));
            const QString key = DraftStore::newKey();
            QVERIFY(test.safe->drafts().keep(test.draft(QStringLiteral("former"), key)));
            QSignalSpy finished(test.safe.get(), &GPMSafe::passwordChangeFinished);
            QVERIFY(test.safe->changePasswordAsync(otherPassword, {}));
            test.safe->drafts().keepAsync(test.draft(QStringLiteral("typed"), key));
            test.safe->drafts().keepAsync(test.draft(QStringLiteral("new one")));
            if (cancelled)
                test.safe->cancelPasswordChange();
            QTRY_COMPARE(finished.count(), 1);
            test.reopen(cancelled ? samplePassword : otherPassword);
            QStringList titles;
            for (const KeptDraft &draft : test.load())
                titles.append(draft.document.toItem()->title());
            titles.sort();
            QCOMPARE(titles, QStringList({QStringLiteral("new one"), QStringLiteral("typed")}));
            QCOMPARE(test.draftFiles().size(), 2);
        }
    }

    void interruptedChangeOfPassword_data()
    {
        QTest::addColumn<QString>("inForce");
        QTest::newRow("before") << samplePassword;
        QTest::newRow("after") << otherPassword;
    }

    void interruptedChangeOfPassword()
    {
        QFETCH(QString, inForce);
        Safe test;
        QVERIFY(test.safe->drafts().keep(test.draft(QStringLiteral("kept"))));
        // The copy under the new password is there, and the old file still is.
        const QString path = test.draftPath();
        const auto next = std::make_shared<const SecretBytes>(SecretBytes::fromText(otherPassword));
        QVERIFY(test.safe->drafts().prepareChange(next).result());
        QCOMPARE(test.draftFiles().size(), 2);
        const QMap<QString, QByteArray> crashed = snapshot(test.environment.draftsFolder);
        test.safe->drafts().rollBackChange();
        test.safe->drafts().wait();
        QCOMPARE(test.draftFiles().size(), 1);
        if (inForce == otherPassword)
            QVERIFY(test.safe->changePassword(otherPassword));
        for (auto file = crashed.begin(); file != crashed.end(); ++file)
            writeFile(test.environment.draftsFolder + QLatin1Char('/') + file.key(), file.value());
        test.reopen(inForce);
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(test.load().size(), 1);
            QVERIFY(test.unreadable.isEmpty());
            QCOMPARE(test.draftPath(), path);
            QCOMPARE(test.draftFiles().size(), 1);
        }
    }

    /// In folders of one name, and with one password.
    void copiesOfASafeHaveTheirOwn()
    {
        Safe safe;
        const QString copy = safe.folder.filePath(QStringLiteral("copy/safe"));
        const QString moved = safe.folder.filePath(QStringLiteral("moved/safe"));
        // As a former version named it: whoever opens the safe first has it.
        QVERIFY(safe.safe->drafts().keep(safe.draft(QStringLiteral("Older"))));
        const QString path = safe.draftPath();
        QVERIFY(QFile::rename(path, path.left(path.lastIndexOf(QLatin1Char('.')))));
        QVERIFY(safe.safe->drafts().keep(safe.draft(QStringLiteral("Mine"))));
        QCOMPARE(safe.load().size(), 2);
        safe.safe->lock();

        writeSafe(copy, snapshot(safe.path()));
        safe.openAt(copy);
        QVERIFY(safe.load().isEmpty() && safe.unreadable.isEmpty());
        QVERIFY(safe.safe->drafts().keep(safe.draft(QStringLiteral("Of the copy"))));
        safe.safe->lock();

        QVERIFY(QDir().mkpath(QFileInfo(moved).path()) && QDir().rename(safe.path(), moved));
        safe.openAt(moved);
        QCOMPARE(safe.load().size(), 2);
        safe.safe->lock();
        WorkControl control;
        QCOMPARE(SafeRemoval(safe.environment, true).run(moved, control).outcome,
                 SafeRemoval::Outcome::Done);
        QCOMPARE(safe.draftFiles().size(), 1);
        safe.openAt(copy);
        QCOMPARE(safe.load().size(), 1);
        safe.safe->lock();
        QCOMPARE(SafeRemoval(safe.environment).run(copy, control).outcome,
                 SafeRemoval::Outcome::Done);
        QVERIFY(QDir(safe.environment.draftsFolder).isEmpty());
    }

    void whatIsWrittenOnIsNotRemovedAsSaved()
    {
        Safe test;
        const KeptDraft saved = test.draft(QStringLiteral("Saved"));
        const KeptDraft onward = test.draft(QStringLiteral("Saved"));
        QVERIFY(test.safe->drafts().keep(saved) && test.safe->drafts().keep(onward));
        test.safe->drafts().removeOnceSaved({saved.key, onward.key});
        // The lock did not come, and one is written on.
        QVERIFY(test.safe->drafts().keep(test.draft(QStringLiteral("Onward"), onward.key)));
        test.safe->lock();
        test.reopen(samplePassword);
        const QVector<KeptDraft> left = test.load();
        QCOMPARE(left.size(), 1);
        QCOMPARE(left.first().key, onward.key);
    }
};

QTEST_GUILESS_MAIN(TestDraftStore)
#include "tst_draftstore.moc"
