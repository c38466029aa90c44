#include "GPMSafeSyncHelper.h"
#include "MirrorChoice.h"
#include "MirrorImport.h"
#include "MirrorRemoval.h"
#include "SafeTesting.h"
#include "SyncFolders.h"

#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(MirrorChoice::Fault)

namespace {

using Fault = MirrorChoice::Fault;

void makeSafe(const QString &folder, qint64 created)
{
    if (!QDir().mkpath(folder))
        qFatal("can't make %s", qPrintable(folder));
    SafeEnvironment world;
    world.clock = [created] { return QDateTime::fromMSecsSinceEpoch(created, Qt::UTC); };
    if (!GPMSafe(world).init(folder, samplePassword, QStringLiteral("Work"), {}))
        qFatal("can't make a safe");
}

} // namespace

class TestMirrorFolders : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    FileLayer m_files;

    QString path(const char *name) const { return m_temporary->filePath(QLatin1String(name)); }
    MirrorChoice choose(const char *safe, qint64 created, const char *shared)
    {
        return MirrorChoice::make(m_files, {path(safe),
                                            created,
                                            path(shared),
                                            path("cloud/backups"),
                                            {path("cloud/of")},
                                            {path("own"), path("live/copy")}});
    }

private Q_SLOTS:
    void init() { m_temporary = std::make_unique<QTemporaryDir>(); }

    void choosesOneFolderForASafe_data()
    {
        QTest::addColumn<qint64>("created");
        QTest::addColumn<QString>("shared");
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("joins");
        const auto row = [](const char *name, qint64 created, const char *shared, Fault fault,
                            const char *folder = "", bool joins = false) {
            QTest::newRow(name) << created << shared << fault << folder << joins;
        };
        row("new", 4711, "cloud", Fault::None, "cloud/safe-1267");
        row("there under any name", 1000, "cloud", Fault::None, "cloud/mine", true);
        row("the mirror itself", 1000, "cloud/mine", Fault::None, "cloud/mine", true);
        row("being made by another computer", 77, "cloud", Fault::None, "cloud/safe-4d", true);
        row("name without time", 0, "cloud", Fault::None, "cloud/safe-own");
        row("gone", 4711, "elsewhere", Fault::NotThere);
        row("in the safe", 4711, "own/content", Fault::InsideSafe);
        row("around the safe", 4711, ".", Fault::AroundSafe);
        row("by a link", 4711, "link", Fault::InsideSafe);
        row("backups", 4711, "cloud/backups", Fault::InBackups);
        row("another mirror", 4711, "cloud/mine", Fault::OtherSafe);
        row("inside another mirror", 1000, "cloud/mine/content", Fault::OtherSafe);
        row("name taken by another safe", 88, "cloud", Fault::OtherSafe);
        row("mirror of a copy here", 2000, "cloud", Fault::Taken);
        row("a copy in use", 5000, "live", Fault::OtherSafe);
        row("linked safe", 4711, "linked", Fault::None, "linked/safe-1267");
        row("name leads to the safe", 4712, "linked", Fault::InsideSafe);
    }

    void choosesOneFolderForASafe()
    {
        makeSafe(path("own"), 4711);
        makeSafe(path("cloud/mine"), 1000);
        makeSafe(path("cloud/of"), 2000);
        makeSafe(path("cloud/safe-58"), 3000); // 88 in hexadecimal
        QVERIFY(QDir().mkpath(path("cloud/safe-4d")) && QDir().mkpath(path("cloud/backups")));
        QVERIFY(QFile::link(path("own"), path("link")));
        makeSafe(path("live/copy"), 5000);
        QVERIFY(QDir().mkpath(path("linked")));
        QVERIFY(QFile::link(path("own"), path("linked/mine")));
        QVERIFY(QFile::link(path("own"), path("linked/safe-1268"))); // 4712 in hexadecimal
        QFETCH(qint64, created);
        QFETCH(QString, shared);
        QFETCH(QString, folder);
        const MirrorChoice choice = choose("own", created, shared.toLatin1().constData());
        QTEST(choice.fault, "fault");
        QCOMPARE(choice.folder, folder.isEmpty() ? QString() : m_temporary->filePath(folder));
        QTEST(choice.joins, "joins");
        QCOMPARE(choice.otherName.isEmpty(), choice.fault != Fault::OtherSafe);
    }

    /// What is imported opens; what is not whole, another version or foreign stays behind.
    void importsASafe()
    {
        copySampleSafe(path("cloud/sample"));
        const QString conflict = path("cloud/sample/content/") +
                                 QStringLiteral("00000000-0000-0000-0000-000000000001 (Ana's "
                                                "conflicted copy 2026-01-02)");
        writeFile(conflict, "x");
        writeFile(path("cloud/sample/content/desktop.ini"), "x");
        writeFile(path("cloud/sample/content/00000000-0000-0000-0000-000000000002"), "");
        // Half of an item, and of an attachment's bytes.
        const QByteArray item =
            contentOf(path("cloud/sample/content/00000000-0000-0001-0000-000000001234"));
        writeFile(path("cloud/sample/content/00000000-0000-0000-0000-000000000003"),
                  item.left(item.size() / 2 | 1));
        const QString bytes = QStringLiteral("/attachment/00000000-0000-000b-0000-000000001234");
        const QByteArray whole = contentOf(path("cloud/sample") + bytes);
        writeFile(path("cloud/sample") + bytes, whole.chopped(7));
        const SafeEnvironment world;
        WorkControl control;
        const ArchiveResult result =
            MirrorImport(world, path("safes")).run(path("cloud/sample"), control);
        QVERIFY(result.good());
        GPMSafe safe;
        QVERIFY(safe.open(result.path) && safe.unlock(samplePassword));
        QVERIFY(safe.unreadableFiles().isEmpty());
        QVERIFY(!QFile::exists(result.path + bytes));
        GPMSafe original;
        QVERIFY(original.open(QStringLiteral(TEST_DATA_DIR "/safe")));
        QVERIFY(original.unlock(samplePassword));
        QCOMPARE(safe.itemCount(), original.itemCount());
        QCOMPARE(safe.created(), original.created());
        QCOMPARE(safe.name(), original.name());
    }

    /// Whatever fails, nothing is left of the import and the mirror is as it was.
    void aFailedImportLeavesNothing()
    {
        copySampleSafe(path("cloud/sample"));
        const QMap<QString, QByteArray> before = snapshot(path("cloud"));
        class FullDisk : public FileLayer
        {
        public:
            std::function<void()> reached = [] {};
            bool good = false;
            bool writeNew(const QString &path, const Produce &produce) override
            {
                reached();
                return FileLayer::writeNew(path, produce) && good;
            }
        };
        SafeEnvironment world;
        const auto files = std::make_shared<FullDisk>();
        world.files = files;
        WorkControl control;
        const auto run = [&](const char *mirror) {
            return MirrorImport(world, path("safes")).run(path(mirror), control).outcome;
        };
        QCOMPARE(run("cloud/sample"), ArchiveResult::Outcome::CannotWrite);
        QCOMPARE(run("cloud/none"), ArchiveResult::Outcome::NotFound);
        QCOMPARE(run("cloud"), ArchiveResult::Outcome::NoSafe);
        const QString passId = path("cloud/sample/safe.passid");
        const QByteArray whole = contentOf(passId);
        // With half of it, which has the form of a whole text, the safe would never open.
        writeFile(passId, whole.left(whole.size() / 128 * 64));
        QCOMPARE(run("cloud/sample"), ArchiveResult::Outcome::NotArrived);
        writeFile(passId, whole);
        files->good = true;
        files->reached = [&control] { control.cancel(); };
        QCOMPARE(run("cloud/sample"), ArchiveResult::Outcome::Cancelled);
        QCOMPARE(snapshot(path("cloud")), before);
        QVERIFY(QDir(path("safes"))
                    .entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)
                    .isEmpty());
    }

    void removesOnlyItsOwn()
    {
        copySampleSafe(path("cloud/sample"));
        const QString deletions = path("cloud/sample/safe.deletions");
        writeFile(deletions, "x");
        writeFile(path("cloud/sample/safe.deletions (conflicted copy)"), "x");
        const qint64 created = mirroredSafes(m_files, path("cloud")).value(0).created;
        QVERIFY(created > 0);
        QVERIFY(!removeMirror(m_files, path("cloud/sample"), created + 1, {}));
        QVERIFY(QFile::exists(deletions));
        writeFile(path("cloud/sample/notes.txt"), "mine");
        QVERIFY(removeMirror(m_files, path("cloud/sample"), created, {}));
        QDir(path("cloud/sample/favicon")).removeRecursively(); // mirrors have none
        QCOMPARE(snapshot(path("cloud")).keys(), QStringList{QStringLiteral("sample/notes.txt")});
        QVERIFY(QFile::remove(path("cloud/sample/notes.txt")));
        QVERIFY(removeMirror(m_files, path("cloud/sample"), created, {}));
        QVERIFY(!QFileInfo::exists(path("cloud/sample")));
    }

    /// A safe in use, whatever leads to it, and what may be another's.
    void removesNothingElse()
    {
        copySampleSafe(path("own"));
        copySampleSafe(path("cloud/bare"));
        const qint64 created = mirroredSafes(m_files, path("own")).value(0).created;
        QVERIFY(QDir().mkpath(path("cloud/trap")));
        QVERIFY(QFile::link(path("own"), path("cloud/link")));
        QVERIFY(QFile::link(path("own/content"), path("cloud/trap/content")));
        QVERIFY(QFile::remove(path("cloud/bare/safe.meta")));
        const QString restore = path("cloud/bare/safe.restore");
        const QByteArray description = contentOf(path("own/safe.meta"));
        writeFile(restore, "{}");
        const QMap<QString, QByteArray> before = snapshot(m_temporary->path());
        QVERIFY(!removeMirror(m_files, path("own"), created, {path("own/content/..")}));
        for (const char *mirror : {"cloud/link", "cloud/trap", "cloud/bare"})
            QVERIFY2(!removeMirror(m_files, path(mirror), created, {}), mirror);
        QCOMPARE(snapshot(m_temporary->path()), before);
        writeFile(restore, description);
        QVERIFY(!removeMirror(m_files, path("cloud/bare"), created + 1, {}));
        QVERIFY(removeMirror(m_files, path("cloud/bare"), created, {}));
        QVERIFY(!QFileInfo::exists(restore));
    }
};

QTEST_GUILESS_MAIN(TestMirrorFolders)
#include "tst_mirrorfolders.moc"
