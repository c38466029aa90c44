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
        record.files.insert("content/a"_s, {"h"_s, {7, 11}, {7, 13}, 5, {2, 4}});
        record.unread.insert("b"_s, {"i"_s, {3, 17}, 9, true, false});
        record.former.insert("a"_s, {"j"_s, "k"_s});
        record.setPassId("first"_s);
        record.setPassId("second"_s);
        record.addDeletions({{"x"_s, {1600000000123, 0, {8, 1}}}});
        const std::optional<SyncRecord> read = SyncRecord::fromJson(record.toJson());
        QVERIFY(read);
        QVERIFY(*read == record);
        QCOMPARE(read->earlierPassIds, QStringList{"first"_s});
        const SyncRecord::File file = read->files.value("content/a"_s);
        QCOMPARE(file.hash, "h"_s);
        QVERIFY(file.local == (FileStamp{7, 11}) && file.mirror == (FileStamp{7, 13}));
        QCOMPARE(file.modified, 5);
        QCOMPARE(read->deletions.value("x"_s).time, 1600000000123);
    }

    void refusesDamage_data()
    {
        QTest::addColumn<QByteArray>("json");
        SyncRecord record;
        record.files.insert("content/a"_s, {"h"_s, {7, 11}, {7, 13}, 5});
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
        const QString id = "x"_s;
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
        const QString id = "00000000-0000-000b-0000-00000000a234"_s;
        const auto row = [&id](const char *title, const char *ending, const QString &item,
                               bool conflictCopy) {
            QTest::newRow(title) << id + QString::fromUtf8(ending) << item << conflictCopy;
        };
        const QString next = id + ".12"_s;
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
        QTest::newRow("user's file") << "notes.txt"_s << QString() << false;
        QTest::newRow("description's copy")
            << "safe (conflicted copy 2026-01-31).meta"_s << QString() << false;
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
        const QString original = "safe.meta"_s;
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
                             << QStringList{"/a b"_s};
        QTest::newRow("two")
            << QByteArray("{\"business\": {\"path\": \"/w\"}, \"personal\": {\"path\": \"/h/\"}}")
            << QStringList{"/h"_s, "/w"_s};
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
        QCOMPARE(providerInfoFiles("C:/R"_s, "C:/L"_s, {}),
                 QStringList({"C:/R/Dropbox/info.json"_s, "C:/L/Dropbox/info.json"_s}));
        QCOMPARE(providerInfoFiles({}, {}, "/home/a"_s),
                 QStringList{"/home/a/.dropbox/info.json"_s});

        // A folder that is gone and an unreadable file are passed over.
        const QTemporaryDir folder;
        const QString gone = folder.filePath("gone.json"_s);
        const QString good = folder.filePath("good.json"_s);
        writeFile(gone, "{\"personal\": {\"path\": \"/there/is/no/such/folder\"}}");
        writeFile(good,
                  QByteArray("{\"business\": {\"path\": \"") + folder.path().toUtf8() + "\"}}");
        FileLayer files;
        const QVector<SyncFolder> found =
            providerFolders(files, {folder.filePath("missing.json"_s), gone, good});
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.first().path, folder.path());
        QCOMPARE(found.first().account, SyncFolder::Account::Business);
    }

    void findsSafes()
    {
        const QTemporaryDir cloud;
        copySampleSafe(cloud.filePath("mine"_s));
        copySampleSafe(cloud.filePath("arriving"_s));
        QVERIFY(QFile::remove(cloud.filePath("arriving/safe.passid"_s)));
        QVERIFY(QDir().mkpath(cloud.filePath("photos"_s)));
        FileLayer files;
        for (const QString &place : {cloud.path(), cloud.filePath("mine"_s)}) {
            const QVector<MirroredSafe> safes = mirroredSafes(files, place);
            QCOMPARE(safes.size(), 1);
            QCOMPARE(safes.first().path, cloud.filePath("mine"_s));
            QVERIFY(!safes.first().name.isEmpty() && safes.first().created > 0);
        }
    }
};

QTEST_GUILESS_MAIN(TestSyncRecord)
#include "tst_syncrecord.moc"
