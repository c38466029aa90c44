#include "../Text.h"
#include "SyncSides.h"

#include <sys/stat.h>

class TestSyncRound : public SyncSides
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }

    void exchanges()
    {
        const QString id = add(m_one, "first"_s);
        const QString file = attach(m_two, "some bytes");
        meet();
        QCOMPARE(m_one.items(), m_two.items());
        QCOMPARE(m_one.items().size(), 2);
        QVERIFY(m_one.items().join(QLatin1Char('|')).contains("some bytes"_s));

        // A round with nothing new writes nothing.
        const int before = m_one.files->operations;
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
        QCOMPARE(m_one.files->operations.load(), before);

        rename(m_one, id, "mine"_s);
        m_two.time += day;
        rename(m_two, id, "theirs"_s);
        meet();
        QCOMPARE(m_one.items(), m_two.items());
        QCOMPARE(m_one.items().size(), 3);
        QCOMPARE(m_one.items()
                     .filter(QRegularExpression(QStringLiteral(
                         "mine \\(20\\d\\d-\\d\\d-\\d\\d \\d\\d:\\d\\d / .*\\) \\(trash\\)")))
                     .size(),
                 1);

        remove(m_two, file);
        meet();
        QCOMPARE(m_one.items(), m_two.items());
        QCOMPARE(m_one.items().size(), 2);
        QVERIFY(!QFile::exists(inMirror("attachment/"_s + file)));
    }

    void takesNamesOfBothSides()
    {
        meet();
        m_one.work([](GPMSafe &safe) {
            safe.setName("Renamed"_s);
            QVERIFY(safe.writeMetaFile());
        });
        m_two.time += day; // and saves an item later
        add(m_two, "other"_s);
        meet();
        for (Computer *computer : {&m_one, &m_two}) {
            computer->work([](GPMSafe &safe) { QCOMPARE(safe.name(), "Renamed"_s); });
        }
    }

    void followsAnotherPassword()
    {
        const QString id = add(m_one, "first"_s);
        attach(m_one, "some bytes");
        meet();
        changePassword(m_one, newPassword);
        rename(m_two, id, "changed meanwhile"_s);
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
        const QMap<QString, QByteArray> before = snapshot(m_mirror);
        QCOMPARE(m_two.synchronise(m_mirror).state, SyncState::NewPasswordNeeded);
        QCOMPARE(snapshot(m_mirror), before);
        changePassword(m_two, newPassword);
        meet();
        QCOMPARE(m_one.items(), m_two.items());
        QVERIFY(m_one.items().contains(id + " changed meanwhile"_s));
        QCOMPARE(QDir(inMirror("content"_s)).entryList(QDir::Files).size(), 2);
        QCOMPARE(contentOf(inMirror("safe.passid"_s)), contentOf(m_two.folder + "/safe.passid"_s));
    }

    /// Two computers change the password, and the one whose change is not to count has died in the
    /// middle of its round: what it left in the mirror opens nowhere.
    void clearsWhatAnotherPasswordLeft()
    {
        const QString id = add(m_one, "first"_s);
        meet();
        changePassword(m_one, "not to count 1"_s);
        m_one.files->failPath = m_one.folder + "/safe.sync"_s;
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::SafeNotWritten);
        m_one.files->failPath.clear();
        changePassword(m_two, newPassword);
        writeFile(inMirror("safe.passid"_s), contentOf(m_two.folder + "/safe.passid"_s));
        QCOMPARE(m_two.synchronise(m_mirror).state, SyncState::Waiting);
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::NewPasswordNeeded);
        changePassword(m_one, newPassword);
        meet();
        QCOMPARE(m_two.items(), QStringList{id + " first"_s});
        QCOMPARE(QDir(inMirror("content"_s)).entryList(QDir::Files).size(), 1);
    }

    void clearsConflictCopiesAndLeavesForeignFiles()
    {
        const QString id = add(m_one, "first"_s);
        meet();
        rename(m_two, id, "second"_s);
        const QString copy = inMirror("content/%1 (two's conflicted copy 2026-01-31)"_s.arg(id));
        writeFile(copy, contentOf(m_two.folder + "/content/"_s + id));
        const QString foreign = inMirror("content/notes.txt"_s);
        writeFile(foreign, "mine");
        writeFile(inMirror("desktop.ini"_s), "system");
        meet();
        QVERIFY(!QFile::exists(copy));
        QCOMPARE(contentOf(foreign), QByteArray("mine"));
        QVERIFY(QFile::exists(inMirror("desktop.ini"_s)));
        QVERIFY(m_one.items().contains(id + " second"_s));
        QCOMPARE(m_one.items(), m_two.items());
    }

    void refusesWhatIsNotItsMirror()
    {
        add(m_one, "first"_s);
        meet();
        const QMap<QString, QByteArray> before = snapshot(m_one.folder);
        QCOMPARE(m_one.synchronise(m_mirror + "gone"_s).state, SyncState::MirrorMissing);
        QByteArray meta = contentOf(inMirror("safe.meta"_s));
        writeFile(inMirror("safe.meta"_s), meta.replace("\"created\": 1", "\"created\": 2"));
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::OtherSafe);
        QCOMPARE(snapshot(m_one.folder), before);
    }

    /// What somebody does who can write to the mirror but not open the safe.
    void withstands_data()
    {
        QTest::addColumn<QString>("deed");
        for (const char *deed :
             {"old version", "old version beside", "another item's file", "forged deletions",
              "old pass id", "link in place of an item", "link in place of the pass id",
              "link in place of a folder", "endless item", "pipe", "emptied folder"})
            QTest::newRow(deed) << QString::fromLatin1(deed);
    }
    void withstands()
    {
        QFETCH(const QString, deed);
        const QString id = add(m_one, "first"_s);
        const QString other = add(m_one, "other"_s);
        meet();
        const QString file = inMirror("content/"_s + id);
        const QString passId = inMirror("safe.passid"_s);
        const QByteArray oldVersion = contentOf(file);
        const QByteArray oldPassId = contentOf(passId);
        rename(m_one, id, "second"_s);
        meet();
        if (deed == QLatin1String("old pass id")) {
            for (Computer *computer : {&m_one, &m_two}) {
                changePassword(*computer, newPassword);
                QCOMPARE(computer->synchronise(m_mirror).state, SyncState::Done);
            }
        }
        const QStringList expected = m_one.items();
        const QString outside = m_temporary->filePath("outside"_s);
        writeFile(outside, "mine");

        SyncRecord forged;
        forged.addDeletions({{id, {m_one.time + day, 0, {}}}});
        const QHash<QString, std::function<void()>> deeds{
            {"old version"_s, [&] { writeFile(file, oldVersion); }},
            {"old version beside"_s, [&] { writeFile(file + " (1)"_s, oldVersion); }},
            {"another item's file"_s,
             [&] { writeFile(file, contentOf(inMirror("content/"_s + other))); }},
            {"forged deletions"_s,
             [&] { writeFile(inMirror("safe.deletions"_s), forged.toJson()); }},
            {"old pass id"_s, [&] { writeFile(passId, oldPassId); }},
            {"link in place of an item"_s,
             [&] { QVERIFY(QFile::remove(file) && QFile::link(outside, file)); }},
            {"link in place of the pass id"_s,
             [&] { QVERIFY(QFile::remove(passId) && QFile::link(outside, passId)); }},
            {"link in place of a folder"_s,
             [&] {
                 const QString folder = inMirror("content"_s);
                 QVERIFY(QDir().rename(folder, m_temporary->filePath("moved"_s)));
                 QVERIFY(QFile::link(m_temporary->filePath("moved"_s), folder));
             }},
            {"endless item"_s,
             [&] {
                 QFile endless(file);
                 QVERIFY(endless.open(QIODevice::WriteOnly) && endless.resize(1LL << 40));
             }},
            {"pipe"_s,
             [&] {
                 QVERIFY(QFile::remove(passId));
                 QCOMPARE(mkfifo(QFile::encodeName(passId), 0600), 0);
             }},
            {"emptied folder"_s,
             [&] {
                 QVERIFY(QDir(m_mirror).removeRecursively());
                 QVERIFY(SyncMirror::enableSynchronization(*m_one.files, m_mirror));
             }},
        };
        deeds.value(deed)();
        for (int round = 0; round < 2; ++round) {
            for (Computer *computer : {&m_two, &m_one}) {
                const SyncResult result = computer->synchronise(m_mirror);
                QVERIFY(result.state != SyncState::NewPasswordNeeded);
                QVERIFY(result.removed.isEmpty() && result.taken.isEmpty());
                QCOMPARE(computer->items(), expected);
            }
        }
        QCOMPARE(contentOf(outside), QByteArray("mine"));
        QVERIFY(!snapshot(m_mirror).values().contains(
            deed == QLatin1String("old version") ? oldVersion : QByteArray("nothing")));
    }

    /// On a file system that counts in steps of two seconds.
    void seesASecondChangeOfTheSameTimeAndLength()
    {
        const QString id = add(m_one, "first"_s);
        meet();
        const QString file = m_one.folder + "/content/"_s + id;
        const auto time = std::filesystem::last_write_time(file.toStdString());
        const qint64 length = QFileInfo(file).size();
        PMLogin changed;
        changed.setId(id);
        changed.setTitle("other"_s);
        changed.setModified(m_one.environment().clock());
        do {
            QVERIFY(writeItemFile(m_one.environment(), file, m_one.password.toUtf8(),
                                  PMItemDocument::fromItem(changed)));
            changed.setNote(changed.note().size() > 200 ? QString()
                                                        : changed.note() + QLatin1Char('x'));
        } while (QFileInfo(file).size() != length);
        std::filesystem::last_write_time(file.toStdString(), time);
        meet();
        QCOMPARE(m_two.items(), QStringList{id + " other"_s});
    }

    void clearsCopiesOfTheOtherFiles()
    {
        const QString id = add(m_one, "first"_s);
        meet();
        m_two.work([](GPMSafe &safe) {
            safe.setName("Renamed"_s);
            QVERIFY(safe.writeMetaFile());
        });
        remove(m_two, id);
        // The provider of the second computer finds that the first one was quicker.
        const QString replica = m_temporary->filePath("replica"_s);
        writeSafe(replica, snapshot(m_mirror));
        QCOMPARE(m_two.synchronise(replica).state, SyncState::Done);
        for (const char *name : {"passid", "meta", "restore", "deletions"}) {
            const QString ending = QLatin1Char('.') + QLatin1String(name);
            writeFile(inMirror("safe (Ana's conflicted copy 2026-01-02)"_s + ending),
                      contentOf(replica + "/safe"_s + ending));
        }
        const QStringList foreign{"safe (1).meta"_s, "safe-MY.passid"_s, "safe (mine).meta"_s};
        for (const QString &name : foreign)
            writeFile(inMirror(name), "{\"created\": 5, \"name\": \"Other\"}");
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
        QVERIFY(m_one.items().isEmpty());
        m_one.work([](GPMSafe &safe) { QCOMPARE(safe.name(), "Renamed"_s); });
        const QStringList left = QDir(m_mirror)
                                     .entryList({"safe?*.*"_s}, QDir::Files, QDir::Name)
                                     .filter(QRegularExpression("[ -]"_s));
        QCOMPARE(QSet<QString>(left.begin(), left.end()),
                 QSet<QString>(foreign.begin(), foreign.end()));
    }
};

QTEST_GUILESS_MAIN(TestSyncRound)
#include "tst_syncround.moc"
