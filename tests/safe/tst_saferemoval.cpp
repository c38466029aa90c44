#include "KnownSafes.h"
#include "SafeDetails.h"
#include "SafeRemoval.h"
#include "SafeTesting.h"
#include "SafeUse.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>

namespace {

/// Fails to rename, too.
class StuckFiles : public FaultyFiles
{
public:
    bool replace(const QString &from, const QString &to) override
    {
        return !fails() && FaultyFiles::replace(from, to);
    }
};

SafeRemoval::Result
removeSafe(const QString &folder,
           const std::shared_ptr<FileLayer> &files = std::make_shared<FileLayer>())
{
    SafeEnvironment environment;
    environment.files = files;
    environment.lockWaitMs = 0;
    WorkControl control;
    return SafeRemoval(environment).run(folder, control);
}

/// Another program that has a safe open.
class OtherProgram
{
public:
    explicit OtherProgram(const QString &folder)
    {
        m_process.start(QCoreApplication::applicationFilePath(), {"--hold"_s, folder});
        if (!m_process.waitForReadyRead() || m_process.readLine().trimmed() != "held")
            qFatal("the other program does not run");
    }
    ~OtherProgram() { crash(); }

    void crash()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

} // namespace

Q_DECLARE_METATYPE(SafePlace)

class TestSafeRemoval : public QObject
{
    Q_OBJECT

private:
    const QString foreign = "holiday.jpg"_s;

private Q_SLOTS:
    void onlyWhatBelongsToASafeGoes_data()
    {
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QStringList>("staying");

        QTest::newRow("nothing else") << QStringList() << QStringList();
        QTest::newRow("what the program left")
            << QStringList{"safe.passid.bak"_s,
                           "safe.sync"_s,
                           "safe.deleted"_s,
                           "safe.meta.aBcDeF"_s,
                           "content/00000000-0000-0001-0000-000000001234.2"_s,
                           "favicon/shop.example.png"_s}
            << QStringList();
        for (const char *name : {"holiday.jpg", "content/notes.txt", "safe.metal", ".hidden",
                                 "favicon/more/a.png", "other/safe.meta"})
            QTest::newRow(name) << QStringList{QLatin1String(name)}
                                << QStringList{QLatin1String(name)};
    }
    void onlyWhatBelongsToASafeGoes()
    {
        QFETCH(QStringList, added);
        QFETCH(QStringList, staying);
        const QTemporaryDir home;
        const QString folder = home.filePath("safe"_s);
        copySampleSafe(folder);
        for (const QString &name : qAsConst(added)) {
            QVERIFY(QDir().mkpath(QFileInfo(folder + QLatin1Char('/') + name).path()));
            writeFile(folder + QLatin1Char('/') + name, "x");
        }
        const SafeRemoval::Result result = removeSafe(folder);
        QCOMPARE(result.outcome, SafeRemoval::Outcome::Done);
        QCOMPARE(QStringList(snapshot(home.path()).keys()),
                 QStringList(staying).replaceInStrings(QRegularExpression("^"_s), "safe/"_s));
        QCOMPARE(result.foreign.isEmpty(), staying.isEmpty());
        QCOMPARE(result.left, staying.isEmpty() ? QString() : folder);
        QCOMPARE(QDir(folder).exists(), !staying.isEmpty());
    }

    void aFailureLeavesASafeThatOpensOrNone_data()
    {
        QTest::addColumn<bool>("amongOthers");
        QTest::newRow("alone in its folder") << false;
        QTest::newRow("among other files") << true;
    }
    void aFailureLeavesASafeThatOpensOrNone()
    {
        QFETCH(bool, amongOthers);
        for (const bool fromThere : {false, true}) {
            int at = 0;
            for (bool failed = true; failed;) {
                const QTemporaryDir home;
                const QString folder = home.filePath("safe"_s);
                copySampleSafe(folder);
                if (amongOthers)
                    writeFile(folder + "/holiday.jpg"_s, "x");
                const auto files = std::make_shared<StuckFiles>();
                files->failAt = ++at;
                files->andAllBehind = fromThere;
                const SafeRemoval::Result result = removeSafe(folder, files);
                failed = files->operations >= at;

                GPMSafe safe;
                const bool opens = safe.open(folder) && safe.unlock(samplePassword);
                QCOMPARE(opens, result.outcome == SafeRemoval::Outcome::Failed);
                if (opens)
                    QVERIFY(safe.itemCount() > 5 && safe.unreadableFiles().isEmpty());
                else
                    QVERIFY(!safe.isOpen());
                QCOMPARE(QFile::exists(folder + "/holiday.jpg"_s), amongOthers);
                // What could not be removed is named.
                if (!opens && !amongOthers)
                    QCOMPARE(result.left.isEmpty(), snapshot(home.path()).isEmpty());
            }
            QVERIFY(at > 10);
        }
    }

    void whatADeletionLeftIsClearedAndNotListed()
    {
        const QTemporaryDir home;
        const QString safes = home.filePath("safes"_s);
        copySampleSafe(safes + "/.deleted-1"_s);
        copySampleSafe(safes + "/one"_s);
        GPMAppSettings settings(home.filePath("config"_s), home.path());
        const KnownSafes known(settings, safes, patient());
        QCOMPARE(known.entries().size(), 1);
        SafeRemoval(known.environment()).clearUnfinished(safes);
        QCOMPARE(QDir(safes).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{"one"_s});
    }

    void whoElseHasASafeOpenIsNoticed()
    {
        const QTemporaryDir home;
        copySampleSafe(home.path());
        QVERIFY(!SafeUse::other(home.path()));
        SafeUse ours;
        {
            OtherProgram program(home.path());
            const auto other = SafeUse::other(home.path());
            QVERIFY(other && other->isHere);
            QVERIFY(!ours.take(home.path()));
            // It runs, so its mark stays even when the user goes on.
            QVERIFY(!ours.take(home.path(), true));
            QCOMPARE(removeSafe(home.path()).outcome, SafeRemoval::Outcome::InUse);
            // It would go on to save items under the old password.
            GPMSafe safe;
            QVERIFY(safe.open(home.path()) && safe.unlock(samplePassword));
            QVERIFY(!safe.changePassword("new"_s));
            safe.lock();
            program.crash();
            QVERIFY(!SafeUse::other(home.path()));
        }
        QVERIFY(ours.take(home.path()));
        QVERIFY(!SafeUse::other(home.path()));
        ours.release();
        QVERIFY(!QFile::exists(home.filePath(".openlock"_s)));

        // Another computer may have left it behind, or not: the user decides.
        writeFile(home.filePath(".openlock"_s), "4711\nglaceron\nattic\n");
        const auto other = SafeUse::other(home.path());
        QVERIFY(other && !other->isHere);
        QCOMPARE(other->computer, "attic"_s);
        QVERIFY(!ours.take(home.path()));
        QVERIFY(ours.take(home.path(), true));
    }

    void aSafeThatIsArchivedOrNoneIsNotDeleted()
    {
        const QTemporaryDir home;
        QCOMPARE(removeSafe(home.path()).outcome, SafeRemoval::Outcome::NotFound);
        copySampleSafe(home.path());
        QLockFile archiving(home.filePath(".sourcelock"_s));
        QVERIFY(archiving.tryLock(0));
        QCOMPARE(removeSafe(home.path()).outcome, SafeRemoval::Outcome::Busy);
        GPMSafe safe;
        QVERIFY(safe.open(home.path()) && safe.unlock(samplePassword));
    }

    void detailsTellWhatAListShows()
    {
        const QTemporaryDir home;
        const QString one = home.filePath("one"_s);
        const QString copy = home.filePath("copy"_s);
        const QString other = home.filePath("other"_s);
        copySampleSafe(one);
        copySampleSafe(copy);
        copySampleSafe(other);
        writeFile(other + "/safe.passid"_s, "another one");
        QVERIFY(QDir().mkpath(home.filePath("empty"_s)));
        const QStringList folders{one, copy, other, home.filePath("empty"_s),
                                  home.filePath("gone"_s)};
        SafeDetailsReader reader(std::make_shared<FileLayer>());
        reader.start(folders, home.path());
        QTRY_VERIFY(!reader.isReading());
        QVERIFY(reader.of(one)->size > 2000);
        QVERIFY(reader.of(one)->copyOf.isEmpty());
        QCOMPARE(reader.of(copy)->copyOf, one);
        QVERIFY(reader.of(other)->copyOf.isEmpty());
        QCOMPARE(reader.of(folders.at(3))->place, SafePlace::NoSafe);
        QCOMPARE(reader.of(folders.at(4))->place, SafePlace::FolderGone);
    }

    void aDriveIsToldFromAFolder_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("mounted");
        QTest::addColumn<SafePlace>("place");
        const auto row = [](const char *folder, bool mounted, SafePlace place) {
            QTest::addRow("%s %d", folder, mounted)
                << QString::fromLatin1(folder) << mounted << place;
        };
        row("/home/ana/safe", false, SafePlace::FolderGone);
        row("/media/ana/stick/safe", false, SafePlace::DriveGone);
        row("/media/ana/stick/safe", true, SafePlace::FolderGone);
        row("/run/media/ana/stick", false, SafePlace::DriveGone);
        row("/mnt/share/safes/one", false, SafePlace::DriveGone);
        row("E:/safe", false, SafePlace::DriveGone);
        row("E:/safe", true, SafePlace::FolderGone);
        row("/mediathek/ana/stick", false, SafePlace::FolderGone);
    }
    void aDriveIsToldFromAFolder()
    {
        QFETCH(QString, folder);
        QFETCH(bool, mounted);
        QFETCH(SafePlace, place);
        QCOMPARE(whyGone(folder, [mounted](const QString &) { return mounted; }), place);
    }
};

int main(int count, char *arguments[])
{
    QCoreApplication application(count, arguments);
    if (count == 3 && qstrcmp(arguments[1], "--hold") == 0) {
        SafeUse use;
        std::puts(use.take(QString::fromLocal8Bit(arguments[2])) ? "held" : "not held");
        std::fflush(stdout);
        return QCoreApplication::exec();
    }
    TestSafeRemoval test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_saferemoval.moc"
