#include "SafeTesting.h"
#include "SyncFileName.h"
#include "SyncFolders.h"
#include "SyncRecord.h"

#include <QTemporaryDir>
#include <QtTest>

class TestSyncRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatItKnows()
    {
        SyncRecord record;
        record.files.insert(QStringLiteral("content/a"),
                            {QStringLiteral("h"), {7, 11}, {7, 13}, 5, {2, 4}});
        record.unread.insert(QStringLiteral("b"), {QStringLiteral("i"), {3, 17}, 9, true, false});
        record.former.insert(QStringLiteral("a"), {QStringLiteral("j"), QStringLiteral("k")});
        record.setPassId(QStringLiteral("first"));
        record.setPassId(QStringLiteral("second"));
        record.addDeletions({{QStringLiteral("x"), {1600000000123, 0, {8, 1}}}});
        const std::optional<SyncRecord> read = SyncRecord::fromJson(record.toJson());
        QVERIFY(read);
        QVERIFY(*read == record);
        QCOMPARE(read->earlierPassIds, QStringList{QStringLiteral("first")});
        const SyncRecord::File file = read->files.value(QStringLiteral("content/a"));
        QCOMPARE(file.hash, QStringLiteral("h"));
        QVERIFY(file.local == (FileStamp{7, 11}) && file.mirror == (FileStamp{7, 13}));
        QCOMPARE(file.modified, 5);
        QCOMPARE(read->deletions.value(QStringLiteral("x")).time, 1600000000123);
    }

    void refusesDamage_data()
    {
        QTest::addColumn<QByteArray>("json");
        SyncRecord record;
        record.files.insert(QStringLiteral("content/a"),
                            {QStringLiteral("h"), {7, 11}, {7, 13}, 5});
        const QByteArray good = record.toJson();
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut short") << good.left(good.size() / 2);
        QTest::newRow("of a later version")
            << QByteArray(good).replace("\"version\":1", "\"version\":2");
        QTest::newRow("something else") << QByteArray("{\"name\":\"safe\"}");
    }

    void refusesDamage()
    {
        QFETCH(const QByteArray, json);
        QVERIFY(!SyncRecord::fromJson(json));
    }

    void joinsDeletionsInAnyOrder()
    {
        const QString id = QStringLiteral("x");
        const SyncRecord::Deletions first{{id, {100, 0}}};
        const SyncRecord::Deletions second{{id, {50, 100}}};
        SyncRecord one;
        one.addDeletions(first);
        QVERIFY(one.deletions.value(id).counts());
        one.addDeletions(second);
        SyncRecord other;
        other.addDeletions(second);
        other.addDeletions(first);
        QCOMPARE(one.toJson(), other.toJson());
        QVERIFY(!one.deletions.value(id).counts());
    }

    void knowsNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("item"); // empty: none of the safe's
        QTest::addColumn<bool>("conflictCopy");
        const QString id = QStringLiteral("00000000-0000-000b-0000-00000000a234");
        const auto row = [&id](const char *title, const char *ending, const QString &item,
                               bool conflictCopy) {
            QTest::newRow(title) << id + QString::fromUtf8(ending) << item << conflictCopy;
        };
        const QString next = id + QStringLiteral(".12");
        row("item", "", id, false);
        row("later generation", ".12", next, false);
        row("plain copy", " (conflicted copy 2026-01-31)", id, true);
        row("somebody's copy", " (Zoë's laptop's conflicted copy 2026-01-31)", id, true);
        row("second copy", " (conflicted copy 2026-01-31 1)", id, true);
        row("copy of a generation", " (conflicted copy 2026-01-31).12", next, true);
        row("copy behind the ending", ".12 (Conflicted Copy)", next, true);
        row("other mark", ".sync-conflict-20260131-101112-ABC7DEF", id, true);
        row("other mark of a generation", ".sync-conflict-20260131-101112-ABC7DEF.12", next, true);
        row("German", " (In Konflikt stehende Kopie von Ana 2026-01-31)", id, true);
        row("Russian", " (конфликтующая копия с ана 2026-01-31)", id, true);
        row("without a word for it", " (Ana 2026-01-31)", id, true);
        row("number in brackets", " (1)", id, true);
        row("number in brackets, of a generation", " (2).12", next, true);
        row("number", " 2", id, true);
        row("name of a computer", "-DESKTOP-4AB12", id, true);
        row("two marks", " (conflicted copy 2026-01-31) (1)", id, true);
        row("server's mark", "_conflict-20260131-101112", id, true);
        row("user's name for it", "-old", {}, false);
        row("interrupted write", ".AbCdEf", {}, false);
        row("interrupted write of a generation", ".1.AbCdEf", {}, false);
        row("user's copy", " (copy)", {}, false);
        row("no number", ".012", {}, false);
        QTest::newRow("user's file") << QStringLiteral("notes.txt") << QString() << false;
        QTest::newRow("description's copy")
            << QStringLiteral("safe (conflicted copy 2026-01-31).meta") << QString() << false;
    }

    void knowsNames()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, item);
        QFETCH(const bool, conflictCopy);
        const std::optional<SyncFileName> known = SyncFileName::parse(name);
        QCOMPARE(known ? known->item.text() : QString(), item);
        QCOMPARE(known && known->conflictCopy, conflictCopy);
    }

    void knowsCopiesOfOtherFiles()
    {
        const QString original = QStringLiteral("safe.meta");
        for (const char *copy :
             {"safe (conflicted copy 2026-01-31).meta", "safe.sync-conflict-20260131-101112-A.meta",
              "safe-LAPTOP.meta", "safe (1).meta", "safe.meta (Ana 2026-01-31)"})
            QVERIFY2(isConflictCopyOf(QString::fromLatin1(copy), original), copy);
        for (const char *other : {"safe.meta", "safe (copy).meta", "safe-old.meta", "safe2.meta",
                                  "safe (1).passid", "my safe (1).meta"})
            QVERIFY2(!isConflictCopyOf(QString::fromLatin1(other), original), other);
    }

    void findsTheFoldersOfAccounts_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("folders");
        QTest::newRow("one") << QByteArray("{\"personal\": {\"path\": \"/a b\", \"host\": 1}}")
                             << QStringList{QStringLiteral("/a b")};
        QTest::newRow("two")
            << QByteArray("{\"business\": {\"path\": \"/w\"}, \"personal\": {\"path\": \"/h/\"}}")
            << QStringList{QStringLiteral("/h"), QStringLiteral("/w")};
        QTest::newRow("no path") << QByteArray("{\"personal\": {\"host\": 1}}") << QStringList();
        QTest::newRow("not absolute")
            << QByteArray("{\"personal\": {\"path\": \"box\"}}") << QStringList();
        QTest::newRow("not a text")
            << QByteArray("{\"personal\": {\"path\": 5}, \"business\": 3}") << QStringList();
        QTest::newRow("damaged") << QByteArray("{\"personal\": {\"path\": \"/a") << QStringList();
    }

    void findsTheFoldersOfAccounts()
    {
        QFETCH(const QByteArray, json);
        QFETCH(const QStringList, folders);
        QStringList found;
        for (const SyncFolder &folder : parseProviderInfo(json))
            found.append(folder.path);
        QCOMPARE(found, folders);
    }

    void looksWhereTheProviderWrites()
    {
        QCOMPARE(providerInfoFiles(QStringLiteral("C:/R"), QStringLiteral("C:/L"), {}),
                 QStringList({QStringLiteral("C:/R/Dropbox/info.json"),
                              QStringLiteral("C:/L/Dropbox/info.json")}));
        QCOMPARE(providerInfoFiles({}, {}, QStringLiteral("/home/a")),
                 QStringList{QStringLiteral("/home/a/.dropbox/info.json")});

        // A folder that is gone and an unreadable file are passed over.
        const QTemporaryDir folder;
        const QString gone = folder.filePath(QStringLiteral("gone.json"));
        const QString good = folder.filePath(QStringLiteral("good.json"));
        writeFile(gone, "{\"personal\": {\"path\": \"/there/is/no/such/folder\"}}");
        writeFile(good,
                  QByteArray("{\"business\": {\"path\": \"") + folder.path().toUtf8() + "\"}}");
        FileLayer files;
        const QVector<SyncFolder> found =
            providerFolders(files, {folder.filePath(QStringLiteral("missing.json")), gone, good});
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.first().path, folder.path());
        QCOMPARE(found.first().account, SyncFolder::Account::Business);
    }

    void findsSafes()
    {
        const QTemporaryDir cloud;
        copySampleSafe(cloud.filePath(QStringLiteral("mine")));
        copySampleSafe(cloud.filePath(QStringLiteral("arriving")));
        QVERIFY(QFile::remove(cloud.filePath(QStringLiteral("arriving/safe.passid"))));
        QVERIFY(QDir().mkpath(cloud.filePath(QStringLiteral("photos"))));
        FileLayer files;
        for (const QString &place : {cloud.path(), cloud.filePath(QStringLiteral("mine"))}) {
            const QVector<MirroredSafe> safes = mirroredSafes(files, place);
            QCOMPARE(safes.size(), 1);
            QCOMPARE(safes.first().path, cloud.filePath(QStringLiteral("mine")));
            QVERIFY(!safes.first().name.isEmpty() && safes.first().created > 0);
        }
    }
};

QTEST_GUILESS_MAIN(TestSyncRecord)
#include "tst_syncrecord.moc"
