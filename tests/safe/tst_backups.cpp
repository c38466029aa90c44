#include "ArchiveTesting.h"
#include "BackupSchedule.h"
#include "Backups.h"
#include "SafeDescriptionFile.h"
#include "SafeImport.h"

#include <QLockFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

namespace {

using Outcome = ArchiveResult::Outcome;
using State = BackupJob::State;

const QDateTime firstDay(QDate(2026, 3, 4), QTime(12, 0));

/// What a user's edit does to the description.
void setModified(const QString &safe, qint64 modified)
{
    FileLayer files;
    SafeDescription description = *readDescription(files, safe);
    description.modified = modified;
    if (!writeDescription(files, safe, description.toJson()))
        qFatal("can't write the description");
}

/// Gives another file in place of the one whose name ends so.
class SwappedFiles : public FileLayer
{
public:
    QString ending;
    QString instead;

    std::unique_ptr<QIODevice> open(const QString &path) override
    {
        return FileLayer::open(path.endsWith(ending) ? instead : path);
    }
};

/// Counts what is read.
class CountingFile : public QFile
{
public:
    CountingFile(const QString &path, std::atomic<qint64> &count)
        : QFile(path)
        , m_count(count)
    {
        open(ReadOnly | Unbuffered);
    }

protected:
    qint64 readData(char *bytes, qint64 size) override
    {
        const qint64 count = QFile::readData(bytes, size);
        m_count += std::max<qint64>(count, 0);
        return count;
    }

private:
    std::atomic<qint64> &m_count;
};

class CountingFiles : public FileLayer
{
public:
    std::atomic<qint64> bytes{0};

    std::unique_ptr<QIODevice> open(const QString &path) override
    {
        return std::make_unique<CountingFile>(path, bytes);
    }
};

BackupJob makeJob(const QStringList &safes, const QString &folder, const QDateTime &now,
                  const std::shared_ptr<FileLayer> &files)
{
    BackupJob job;
    job.environment.files = files;
    job.environment.clock = [now] { return now; };
    job.backupFolder = folder;
    job.keep = 3;
    job.safeFolders = safes;
    return job;
}

} // namespace

class TestBackups : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_safe;
    QString m_folder; ///< of the backups

    QVector<BackupJob::Result>
    run(const QStringList &safes, int day = 0,
        const std::shared_ptr<FileLayer> &files = std::make_shared<FileLayer>(), int keep = 3)
    {
        BackupJob job = makeJob(safes, m_folder, firstDay.addDays(day), files);
        job.keep = keep;
        WorkControl control;
        return job.run(control);
    }
    BackupJob::Result
    runOne(int day = 0, const std::shared_ptr<FileLayer> &files = std::make_shared<FileLayer>())
    {
        return run({m_safe}, day, files).first();
    }
    QString newSafe(const QString &place, qint64 created)
    {
        const QString path = m_temporary->filePath(place);
        copySampleSafe(path);
        const QDir content(path + QStringLiteral("/content"));
        for (const QString &name : content.entryList(QDir::Files)) {
            if (name > QLatin1String("00000000-0000-0003"))
                QFile::remove(content.filePath(name));
        }
        QDir(path + QStringLiteral("/attachment")).removeRecursively();
        FileLayer files;
        SafeDescription description = *readDescription(files, path);
        description.created = created;
        description.modified = 0x100;
        writeDescription(files, path, description.toJson());
        return path;
    }
    QStringList files() const
    {
        return QDir(m_folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static QStringList names(const QString &safe, const QStringList &rests)
    {
        QStringList list;
        for (const QString &rest : rests)
            list.append(QStringLiteral("%1_%2.gpm").arg(safe, rest));
        return list;
    }

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_folder = m_temporary->filePath(QStringLiteral("hidden/backup"));
        m_safe = newSafe(QStringLiteral("My_safe"), 5);
    }

    void names_data()
    {
        QTest::addColumn<QString>("safe"); // none: no backup
        QTest::addColumn<qint64>("modified");
        QTest::newRow("a_20260304_ff.gpm") << QStringLiteral("a") << qint64(255);
        QTest::newRow("a_20260304_1_20260304_0.gpm") << QStringLiteral("a_20260304_1") << qint64(0);
        QTest::newRow("\xc3\xa9 [x]_20260304_19c.gpm") << QStringLiteral("é [x]") << qint64(0x19c);
        for (const char *other : {"a_2026-03-04_12-00.gpm", "a_20261304_ff.gpm", "_20260304_ff.gpm",
                                  "a_20260304_fg.gpm", "a_20260304_ff.zip", "a_20260304_.gpm"})
            QTest::newRow(other) << QString() << qint64(0);
    }
    void names()
    {
        QFETCH(QString, safe);
        QFETCH(qint64, modified);
        const QString fileName = QString::fromUtf8(QTest::currentDataTag());
        const std::optional<BackupName> name = BackupName::parse(fileName);
        QCOMPARE(name.has_value(), !safe.isEmpty());
        if (!name)
            return;
        QCOMPARE(name->safeFolder, safe);
        QCOMPARE(name->day, QDate(2026, 3, 4));
        QCOMPARE(name->modified, modified);
        QCOMPARE(name->text(), fileName);
    }

    void due_data()
    {
        QTest::addColumn<int>("interval"); // -1: switched off
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("next"); // 2026-03-31 12:00 is now
        const auto row = [](const char *name, int interval, const char *last, const char *next) {
            QTest::newRow(name) << interval << QString::fromLatin1(last)
                                << QString::fromLatin1(next);
        };
        row("off", -1, "2020-01-01T00:00:00Z", "");
        row("never run", GPMAppSettings::Month, "", "2026-03-31T12:00:00Z");
        row("daily, a second early", GPMAppSettings::Daily, "2026-03-30T12:00:01Z",
            "2026-03-31T12:00:01Z");
        row("daily", GPMAppSettings::Daily, "2026-03-30T12:00:00Z", "2026-03-31T12:00:00Z");
        row("weekly", GPMAppSettings::Week, "2026-03-25T12:00:00Z", "2026-04-01T12:00:00Z");
        row("monthly, short month", GPMAppSettings::Month, "2026-02-28T12:00:00Z",
            "2026-03-28T12:00:00Z");
        row("monthly, early", GPMAppSettings::Month, "2026-03-01T12:00:00Z",
            "2026-04-01T12:00:00Z");
        row("clock set back", GPMAppSettings::Month, "2033-03-01T12:00:00Z",
            "2026-03-31T12:00:00Z");
    }
    void due()
    {
        QFETCH(int, interval);
        QFETCH(QString, last);
        QFETCH(QString, next);
        const QDateTime now(QDate(2026, 3, 31), QTime(12, 0), Qt::UTC);
        GPMAppSettings settings(m_temporary->filePath(QStringLiteral("config")), {});
        settings.setEnableBackup(interval >= 0);
        settings.setBackupInterval(GPMAppSettings::BackupInterval(std::max(interval, 0)));
        settings.setBackupCheck(QDateTime::fromString(last, Qt::ISODate));
        const QDateTime expected = QDateTime::fromString(next, Qt::ISODate);
        QCOMPARE(nextBackup(settings, now), expected);
        QCOMPARE(isBackupDue(settings, now), expected.isValid() && expected <= now);
    }

    void aChangedSafeIsArchivedOnce()
    {
        const BackupJob::Result first = runOne();
        QCOMPARE(first.state, State::Written);
        QCOMPARE(files(), names(QStringLiteral("My_safe"), {QStringLiteral("20260304_100")}));
        QCOMPARE(QFileInfo(first.path).permissions() & (QFile::ReadGroup | QFile::ReadOther), 0);
        QCOMPARE(runProgram(QStringLiteral("unzip"), {QStringLiteral("-t"), first.path}).exitCode,
                 0);
        WorkControl control;
        const SafeEnvironment environment;
        QVERIFY(SafeImport(environment, m_temporary->filePath(QStringLiteral("safes")))
                    .run(first.path, control)
                    .good());
        QCOMPARE(runOne(1).state, State::Unchanged);
        setModified(m_safe, 0x101);
        QCOMPARE(runOne(2).state, State::Written);

        // Neither a new password nor a new name changes the time in the description.
        GPMSafe safe;
        QVERIFY(safe.open(m_safe) && safe.unlock(samplePassword));
        QVERIFY(safe.changePassword(QStringLiteral("another")));
        QCOMPARE(runOne(3).state, State::Written);
        safe.setName(QStringLiteral("Renamed"));
        QVERIFY(safe.writeMetaFile());
        QCOMPARE(runOne(4).state, State::Written);
        QCOMPARE(runOne(5).state, State::Unchanged);

        // A backup that was cut counts for nothing.
        QFile newest(m_folder + QStringLiteral("/My_safe_20260308_101.gpm"));
        QVERIFY(newest.resize(newest.size() - 30));
        QCOMPARE(runOne(6).state, State::Written);
        QCOMPARE(run({m_temporary->filePath(QStringLiteral("gone"))}).first().state,
                 State::Missing);
    }

    void rotationIsPerSafe()
    {
        const QString same = newSafe(QStringLiteral("elsewhere/My_safe"), 6);
        const QString longer = newSafe(QStringLiteral("My_safe_20260304"), 7);
        run({same, longer});
        // By their names these might be ours, but they hold no safe of ours.
        const QStringList foreign = {QStringLiteral("My_safe_20200101_1.gpm"),
                                     QStringLiteral("My_safe_export.gpm"),
                                     QStringLiteral("notes.txt")};
        for (const QString &name : foreign)
            writeFile(m_folder + QLatin1Char('/') + name, "foreign");
        const QStringList before = files();
        for (int day = 1; day <= 5; ++day) {
            setModified(m_safe, 0x200 + day);
            QCOMPARE(runOne(day).state, State::Written);
        }
        QStringList expected =
            before + names(QStringLiteral("My_safe"),
                           {QStringLiteral("20260307_203"), QStringLiteral("20260308_204"),
                            QStringLiteral("20260309_205")});
        expected.sort();
        QCOMPARE(files(), expected);

        // A count that makes no sense keeps the newest.
        setModified(m_safe, 0x300);
        QCOMPARE(run({m_safe}, 6, std::make_shared<FileLayer>(), 0).first().state, State::Written);
        expected = before + names(QStringLiteral("My_safe"), {QStringLiteral("20260310_300")});
        expected.sort();
        QCOMPARE(files(), expected);
    }

    void aClockSetBackCostsNoNewBackup()
    {
        // Made under a clock that was years ahead; then it is right again.
        for (int i = 0; i < 3; ++i) {
            setModified(m_safe, 0x900 + i);
            runOne(3000 + i);
        }
        for (int day = 0; day < 3; ++day) {
            setModified(m_safe, 0x200 + day);
            QCOMPARE(runOne(day).state, State::Written);
        }
        QCOMPARE(files(), names(QStringLiteral("My_safe"),
                                {QStringLiteral("20260304_200"), QStringLiteral("20260305_201"),
                                 QStringLiteral("20260306_202")}));
    }

    void whatMayLackSomethingPushesNothingOut()
    {
        for (int day = 0; day < 3; ++day) {
            setModified(m_safe, 0x200 + day);
            runOne(day);
        }
        const QStringList before = files();
        // Two generations of one item, as a change of password leaves them that was interrupted.
        const QString item =
            m_safe + QStringLiteral("/content/00000000-0000-0001-0000-000000001234");
        QVERIFY(QFile::copy(item, item + QStringLiteral(".1")));
        setModified(m_safe, 0x203);
        QCOMPARE(runOne(3).state, State::Written);
        QVERIFY(QFile::remove(item + QStringLiteral(".1")));
        // A file that does not open.
        auto unreadable = std::make_shared<SwappedFiles>();
        unreadable->ending = QStringLiteral("content/00000000-0000-0001-0000-000000001234");
        setModified(m_safe, 0x204);
        QCOMPARE(runOne(4, unreadable).state, State::Written);
        QCOMPARE(files(),
                 before + names(QStringLiteral("My_safe"),
                                {QStringLiteral("20260307_203"), QStringLiteral("20260308_204")}));
    }

    void aBackupThatCannotBeReadBackIsNone()
    {
        runOne();
        setModified(m_safe, 0x101);
        const QStringList before = files();
        const QString damaged = m_temporary->filePath(QStringLiteral("damaged"));
        QVERIFY(makeArchive(QStringLiteral("checksum"), m_safe, damaged));
        auto swapped = std::make_shared<SwappedFiles>();
        swapped->ending = QStringLiteral(".part");
        swapped->instead = damaged;
        const BackupJob::Result result = runOne(1, swapped);
        QCOMPARE(result.state, State::Failed);
        QCOMPARE(result.outcome, Outcome::Damaged);
        QCOMPARE(files(), before);
    }

    /// Each operation fails once, and then with everything behind it.
    void everyFailureLeavesTheEarlierBackups()
    {
        for (int day = 0; day < 3; ++day) {
            setModified(m_safe, 0x200 + day);
            runOne(day);
        }
        const QMap<QString, QByteArray> before = snapshot(m_folder);
        setModified(m_safe, 0x203);
        auto counting = std::make_shared<FaultyArchiveFiles>();
        runOne(3, counting);
        QVERIFY(counting->operations > 15);
        for (int failAt = 1; failAt <= counting->operations; ++failAt) {
            for (const bool andAllBehind : {false, true}) {
                QDir(m_folder).removeRecursively();
                QDir().mkpath(m_folder);
                for (auto file = before.begin(); file != before.end(); ++file)
                    writeFile(m_folder + QLatin1Char('/') + file.key(), file.value());
                auto faulty = std::make_shared<FaultyArchiveFiles>();
                faulty->failAt = failAt;
                faulty->andAllBehind = andAllBehind;
                const BackupJob::Result result = runOne(3, faulty);
                QMap<QString, QByteArray> after = snapshot(m_folder);
                if (result.state == State::Written) {
                    FileLayer real;
                    QVERIFY(readBackup(real, result.path).good());
                    QVERIFY(after.contains(before.lastKey()));
                    continue;
                }
                QCOMPARE(result.state, State::Failed);
                const QString unfinished = QStringLiteral("My_safe_20260307_203.gpm.part");
                QVERIFY(!after.contains(unfinished) || andAllBehind);
                after.remove(unfinished);
                QCOMPARE(after, before);
            }
        }
        // What could not be removed is cleared away by the next, and what is another's is not.
        const QString others = QStringLiteral("Another_20260307_203.gpm.part");
        for (const QString &left : {QStringLiteral("My_safe_20260307_202.gpm.part"),
                                    QStringLiteral("My_safe_20260307_202.gpm.part.AbCdEf"), others})
            writeFile(m_folder + QLatin1Char('/') + left, "left");
        setModified(m_safe, 0x204);
        QCOMPARE(runOne(4).state, State::Written);
        QCOMPARE(files(), QStringList{others} +
                              names(QStringLiteral("My_safe"),
                                    {QStringLiteral("20260306_202"), QStringLiteral("20260307_203"),
                                     QStringLiteral("20260308_204")}));
    }

    void aKilledProcessLeavesWholeBackups()
    {
        auto counting = std::make_shared<FaultyArchiveFiles>();
        for (int day = 0; day < 3; ++day) {
            setModified(m_safe, 0x200 + day);
            counting->operations = 0;
            runOne(day, counting);
        }
        setModified(m_safe, 0x203);
        FileLayer real;
        for (int dieAt = 1;; ++dieAt) {
            const int code =
                runRole({QStringLiteral("--back-up"), m_safe, m_folder, QString::number(dieAt)})
                    .exitCode;
            QVERIFY(listBackups(real, m_folder).size() >= 3);
            if (code == 0)
                break;
            QCOMPARE(code, 99);
        }
        // One that died before it removed the oldest leaves that to the next.
        setModified(m_safe, 0x204);
        QCOMPARE(runOne(4).state, State::Written);
        QCOMPARE(files(), names(QStringLiteral("My_safe"),
                                {QStringLiteral("20260306_202"), QStringLiteral("20260307_203"),
                                 QStringLiteral("20260308_204")}));
    }

    void theListReadsDescriptionsAlone()
    {
        QDir().mkpath(m_safe + QStringLiteral("/attachment"));
        QByteArray large(3000000, Qt::Uninitialized);
        systemRandom(reinterpret_cast<unsigned char *>(large.data()), large.size());
        writeFile(m_safe + QStringLiteral("/attachment/large"), large);
        runOne();
        setModified(m_safe, 0x300);
        runOne(1);
        const QString exported = m_folder + QStringLiteral("/My safe_2026-03-04_12-00.gpm");
        QVERIFY(QFile::copy(m_folder + QStringLiteral("/My_safe_20260304_100.gpm"), exported));
        QVERIFY(makeArchive(QStringLiteral("reversed"), m_safe,
                            m_folder + QStringLiteral("/by hand.gpm")));
        writeFile(m_folder + QStringLiteral("/foreign.gpm"), "foreign");

        CountingFiles counting;
        const QVector<BackupEntry> list = listBackups(counting, m_folder);
        QCOMPARE(list.size(), 4);
        QVERIFY2(counting.bytes < 1000000, qPrintable(QString::number(counting.bytes)));
        for (int i = 1; i < list.size(); ++i)
            QVERIFY(list.at(i - 1).made >= list.at(i).made);
        for (const BackupEntry &entry : list) {
            QCOMPARE(entry.description.name, QStringLiteral("Reference safe"));
            QVERIFY(entry.size > large.size());
        }
        // The day in the name stands where a copy of the file got another time.
        QCOMPARE(list.at(2).made.date(), QDate(2026, 3, 5));
        QCOMPARE(list.at(2).description.modified, qint64(0x300));
        QCOMPARE(listBackups(counting, m_folder, QStringLiteral("My_safe")).size(), 2);
    }

    void runsOfTheProgram()
    {
        QDateTime now = firstDay.toUTC();
        GPMAppSettings settings(m_temporary->filePath(QStringLiteral("config")), {},
                                [&now] { return now; });
        settings.setBackupPath({});
        settings.setRecentList({m_safe});
        SafeEnvironment environment;
        environment.clock = [&now] { return now; };
        KnownSafes known(settings, m_temporary->filePath(QStringLiteral("safes")), environment);
        Backups backups(settings, known, m_folder, environment);
        QSignalSpy finished(&backups, &Backups::finished);
        QSignalSpy failed(&backups, &Backups::failed);
        const auto runs = [&] {
            backups.check();
            const bool running = backups.isRunning();
            return running && finished.wait();
        };
        QVERIFY(!runs()); // the settings began now
        now = now.addDays(1);
        QCOMPARE(backups.next(), now);
        QVERIFY(runs());
        QCOMPARE(files().size(), 1);
        QCOMPARE(settings.backupCheck(), now);
        QVERIFY(!runs());
        const GPMAppSettings stored(m_temporary->filePath(QStringLiteral("config")), {});
        QCOMPARE(stored.backupCheck(), now);

        // A folder that cannot be written to: told once, tried again after an hour.
        setModified(m_safe, 0x101);
        settings.setBackupPath(m_safe + QStringLiteral("/safe.meta/backup"));
        now = now.addDays(1);
        QVERIFY(runs());
        QCOMPARE(failed.count(), 1);
        QVERIFY(!runs());
        now = now.addSecs(3601);
        QVERIFY(runs());
        QCOMPARE(failed.count(), 1);
        // The user asks: told again.
        QVERIFY(backups.backUpNow());
        QVERIFY(!backups.backUpNow());
        QVERIFY(finished.wait());
        QCOMPARE(failed.count(), 2);
        QVERIFY(settings.backupCheck() < now.addSecs(-3600));
        // A clock set back does not put the next try off.
        settings.setBackupPath(m_folder);
        now = now.addDays(-100);
        QVERIFY(runs());
        QCOMPARE(files().size(), 2);
        QCOMPARE(settings.backupCheck(), now);
        QCOMPARE(failed.count(), 2);
    }

    void aSafeThatIsLeftOutIsTriedAlone()
    {
        const QString other = newSafe(QStringLiteral("Other"), 8);
        QDateTime now = firstDay.toUTC();
        GPMAppSettings settings(m_temporary->filePath(QStringLiteral("config")), {},
                                [&now] { return now; });
        settings.setBackupPath(m_folder);
        settings.setRecentList({m_safe, other});
        SafeEnvironment environment;
        environment.clock = [&now] { return now; };
        KnownSafes known(settings, m_temporary->filePath(QStringLiteral("safes")), environment);
        Backups backups(settings, known, m_folder, environment);
        QSignalSpy finished(&backups, &Backups::finished);
        QSignalSpy failed(&backups, &Backups::failed);
        // As a change of password holds it.
        QLockFile held(m_safe + QStringLiteral("/.sourcelock"));
        QVERIFY(held.lock());
        now = now.addDays(1);
        backups.check();
        QVERIFY(finished.wait());
        QCOMPARE(files(), names(QStringLiteral("Other"), {QStringLiteral("20260305_100")}));
        setModified(other, 0x101);
        now = now.addSecs(30);
        backups.check();
        QVERIFY(!backups.isRunning());
        held.unlock();
        now = now.addSecs(31);
        backups.check();
        QVERIFY(finished.wait());
        QCOMPARE(files(), names(QStringLiteral("My_safe"), {QStringLiteral("20260305_100")}) +
                              names(QStringLiteral("Other"), {QStringLiteral("20260305_100")}));
        QVERIFY(failed.isEmpty());
    }

    void aCancelledRunLeavesNothing()
    {
        GPMAppSettings settings(m_temporary->filePath(QStringLiteral("config")), {});
        settings.setRecentList({m_safe});
        settings.setBackupPath(m_folder);
        settings.setBackupCheck({});
        KnownSafes known(settings, m_temporary->filePath(QStringLiteral("safes")));
        auto backups = std::make_unique<Backups>(settings, known, m_folder);
        QSignalSpy finished(backups.get(), &Backups::finished);
        connect(backups.get(), &Backups::started, this, [&] { backups->cancel(); });
        QVERIFY(backups->backUpNow());
        QVERIFY(finished.wait());
        QCOMPARE(files(), QStringList());
        QVERIFY(backups->backUpNow());
        backups->stop(); // the program ends
        QVERIFY(!backups->isRunning());
        QVERIFY(files().isEmpty());
        backups->check();
        QVERIFY(!backups->isRunning());
    }
};

static int backUpAndDie(const QStringList &arguments)
{
    auto files = std::make_shared<FaultyArchiveFiles>();
    files->failAt = arguments.value(4).toInt();
    files->fault = [] { _exit(99); };
    WorkControl control;
    const auto results =
        makeJob({arguments.value(2)}, arguments.value(3), firstDay.addDays(3), files).run(control);
    const State state = results.first().state;
    return state == State::Written || state == State::Unchanged ? 0 : 1;
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (application.arguments().value(1) == QLatin1String("--back-up"))
        return backUpAndDie(application.arguments());
    TestBackups test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_backups.moc"
