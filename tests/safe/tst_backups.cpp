#include "ArchiveTesting.h"
#include "BackupSchedule.h"
#include "Backups.h"
#include "SafeDescriptionFile.h"

#include <QLockFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

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

/// Counts what is read.
class CountingFile : public QFile
{
public:
    CountingFile(const QString &path, qint64 &count)
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
    qint64 &m_count;
};

/// Gives another file in place of the one whose path holds the text.
std::shared_ptr<OpeningFiles> swapped(const QString &name, const QString &instead)
{
    auto files = std::make_shared<OpeningFiles>();
    files->name = name;
    files->change = [instead](const QString &) { return FileLayer().open(instead); };
    return files;
}

/// The backups of the program, with a clock that the test sets.
struct Program
{
    Program(const QString &folder, const QStringList &safes)
        : settings(folder + QStringLiteral("/config"), {}, [this] { return now; })
        , known(settings, folder + QStringLiteral("/safes"), environment())
        , backups(settings, known, folder + QStringLiteral("/hidden/backup"), environment())
        , finished(&backups, &Backups::finished)
        , failed(&backups, &Backups::failed)
    {
        settings.setBackupPath({});
        settings.setRecentList(safes);
    }

    SafeEnvironment environment()
    {
        SafeEnvironment result;
        result.clock = [this] { return now; };
        return result;
    }
    /// Whether the timer starts a run now; waits for its end.
    bool runs()
    {
        backups.check();
        return backups.isRunning() && finished.wait();
    }

    QDateTime now = firstDay.toUTC();
    GPMAppSettings settings;
    KnownSafes known;
    Backups backups;
    QSignalSpy finished;
    QSignalSpy failed;
};

} // namespace

class TestBackups : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    QStringList m_known;
    QString m_safe;
    QString m_folder; ///< of the backups

    QVector<BackupJob::Result> run(const QStringList &safes, int day = 0,
                                   const Files &layer = realFiles(), int keep = 3)
    {
        BackupJob job;
        job.environment = environmentOf(layer, firstDay.addDays(day));
        job.backupFolder = m_folder;
        job.keep = keep;
        job.safeFolders = safes;
        job.knownFolders = m_known;
        WorkControl control;
        return job.run(control);
    }
    BackupJob::Result runOne(int day = 0, const Files &layer = realFiles())
    {
        return run({m_safe}, day, layer).first();
    }
    /// A backup on each of three days.
    void runThreeDays()
    {
        for (int day = 0; day < 3; ++day) {
            setModified(m_safe, 0x200 + day);
            QCOMPARE(runOne(day).state, State::Written);
        }
    }
    QString newSafe(const QString &place, qint64 created)
    {
        const QString path = m_temporary->filePath(place);
        makeSmallSafe(path);
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
        m_known.clear();
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
        QVERIFY(importFrom(first.path, m_temporary->filePath(QStringLiteral("safes"))).good());
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
        QCOMPARE(run({m_safe}, 6, realFiles(), 0).first().state, State::Written);
        expected = before + names(QStringLiteral("My_safe"), {QStringLiteral("20260310_300")});
        expected.sort();
        QCOMPARE(files(), expected);
    }

    void copiesInFoldersOfOneNameRotateApart()
    {
        const QString copy = newSafe(QStringLiteral("elsewhere/My_safe"), 5);
        m_known = QStringList{m_safe, copy};
        for (int day = 0; day <= 4; ++day) {
            setModified(m_safe, 0x200 + day);
            setModified(copy, 0x300 + day);
            for (const BackupJob::Result &result : run(m_known, day))
                QCOMPARE(result.state, State::Written);
        }
        QStringList expected;
        for (const QString &safe : qAsConst(m_known)) {
            for (int day = 2; day <= 4; ++day)
                expected.append(BackupName{QStringLiteral("My_safe"), firstDay.addDays(day).date(),
                                           (safe == copy ? 0x300 : 0x200) + day,
                                           BackupName::placeOf(safe)}
                                    .text());
        }
        expected.sort();
        QCOMPARE(files(), expected);
        // The copy is taken off the list: what there is of it stays.
        m_known = QStringList{m_safe};
        setModified(m_safe, 0x400);
        QCOMPARE(runOne(5).state, State::Written);
        QCOMPARE(files().size(), 6);
        for (const QString &file : qAsConst(expected))
            QVERIFY(!file.contains(BackupName::placeOf(copy)) || files().contains(file));
    }

    void aClockSetBackCostsNoNewBackup()
    {
        // Made under a clock that was years ahead; then it is right again.
        for (int i = 0; i < 3; ++i) {
            setModified(m_safe, 0x900 + i);
            runOne(3000 + i);
        }
        runThreeDays();
        QCOMPARE(files(), names(QStringLiteral("My_safe"),
                                {QStringLiteral("20260304_200"), QStringLiteral("20260305_201"),
                                 QStringLiteral("20260306_202")}));
    }

    void whatMayLackSomethingPushesNothingOut()
    {
        runThreeDays();
        const QStringList before = files();
        // Two generations of one item, as a change of password leaves them that was interrupted.
        const QString item =
            m_safe + QStringLiteral("/content/00000000-0000-0001-0000-000000001234");
        QVERIFY(QFile::copy(item, item + QStringLiteral(".1")));
        setModified(m_safe, 0x203);
        QCOMPARE(runOne(3).state, State::Written);
        QVERIFY(QFile::remove(item + QStringLiteral(".1")));
        // A file that does not open.
        const Files unreadable = swapped(item, {});
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
        const BackupJob::Result result = runOne(1, swapped(QStringLiteral(".part"), damaged));
        QCOMPARE(result.state, State::Failed);
        QCOMPARE(result.outcome, Outcome::Damaged);
        QCOMPARE(files(), before);
    }

    void whatAKilledRunLeftIsClearedAway()
    {
        runThreeDays();
        const QString others = QStringLiteral("Another_20260307_203.gpm.part");
        for (const QString &left : {QStringLiteral("My_safe_20260307_202.gpm.part"),
                                    QStringLiteral("My_safe_20260307_202.gpm.part.AbCdEf"), others})
            writeFile(m_folder + QLatin1Char('/') + left, "left");
        setModified(m_safe, 0x204);
        QCOMPARE(runOne(4).state, State::Written);
        QCOMPARE(files(), QStringList{others} +
                              names(QStringLiteral("My_safe"),
                                    {QStringLiteral("20260305_201"), QStringLiteral("20260306_202"),
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

        OpeningFiles counting;
        qint64 bytes = 0;
        counting.change = [&bytes](const QString &path) {
            return std::make_unique<CountingFile>(path, bytes);
        };
        const QVector<BackupEntry> list = listBackups(counting, m_folder);
        QCOMPARE(list.size(), 4);
        QVERIFY2(bytes < 1000000, qPrintable(QString::number(bytes)));
        for (int i = 1; i < list.size(); ++i)
            QVERIFY(list.at(i - 1).made >= list.at(i).made);
        for (const BackupEntry &entry : list) {
            QCOMPARE(entry.description.name, QStringLiteral("Reference safe"));
            QVERIFY(entry.size > large.size());
        }
        // The day in the name stands where a copy of the file got another time.
        QCOMPARE(list.at(2).made.date(), QDate(2026, 3, 5));
        QVERIFY(!list.at(2).timeKnown && list.at(0).timeKnown);
        QCOMPARE(list.at(2).description.modified, qint64(0x300));
        QCOMPARE(listBackups(counting, m_folder, QStringLiteral("My_safe")).size(), 2);
    }

    /// What the settings and the list of safes tell.
    void theOverviewIsTrue()
    {
        const QString other = newSafe(QStringLiteral("Other"), 8);
        const QString gone = m_temporary->filePath(QStringLiteral("gone"));
        // Another safe whose folder has the same name.
        const QString same = newSafe(QStringLiteral("elsewhere/My_safe"), 6);
        Program program(m_temporary->path(), {m_safe, other, gone, same});
        BackupOverview overview = program.backups.overview().result();
        QCOMPARE(overview.place, BackupOverview::Place::Usable); // it can be made
        QVERIFY(overview.archives.isEmpty());

        run({m_safe, other}, 0);
        setModified(other, 0x101);
        const QString damaged = m_folder + QStringLiteral("/My_safe_20260401_100.gpm");
        writeFile(damaged,
                  contentOf(m_folder + QStringLiteral("/My_safe_20260304_100.gpm")).left(400));
        writeFile(m_folder + QStringLiteral("/letter.gpm"), "Dear Ana");
        overview = program.backups.overview().result();
        QMap<QString, Outcome> outcomes;
        for (const BackupEntry &entry : qAsConst(overview.archives))
            outcomes.insert(QFileInfo(entry.path).fileName(), entry.outcome);
        const QMap<QString, Outcome> expected{
            {QStringLiteral("My_safe_20260304_100.gpm"), Outcome::Done},
            {QStringLiteral("Other_20260304_100.gpm"), Outcome::Done},
            {QStringLiteral("My_safe_20260401_100.gpm"), Outcome::Damaged},
            {QStringLiteral("letter.gpm"), Outcome::NotAnArchive}};
        QCOMPARE(outcomes, expected);
        QCOMPARE(overview.safes.size(), 4);
        const auto safe = [&](int i) { return overview.safes.at(i); };
        QCOMPARE(safe(0).last->name->day, firstDay.date());
        QVERIFY(safe(0).unchanged && !safe(1).unchanged);
        QVERIFY(safe(1).last && !safe(2).available && !safe(3).last);

        program.settings.setBackupPath(m_safe + QStringLiteral("/safe.meta/backup"));
        QCOMPARE(program.backups.overview().result().place, BackupOverview::Place::NotThere);
        program.settings.setBackupPath(m_safe + QStringLiteral("/safe.meta"));
        QCOMPARE(program.backups.overview().result().place, BackupOverview::Place::NotWritable);
    }

    void runsOfTheProgram()
    {
        Program program(m_temporary->path(), {m_safe});
        Backups &backups = program.backups;
        QDateTime &now = program.now;
        QVERIFY(!program.runs()); // the settings began now
        now = now.addDays(1);
        QCOMPARE(backups.next(), now);
        QVERIFY(program.runs());
        QCOMPARE(files().size(), 1);
        QCOMPARE(program.settings.backupCheck(), now);
        QVERIFY(!program.runs());
        QCOMPARE(backups.next(), now.addDays(1));
        const GPMAppSettings stored(m_temporary->filePath(QStringLiteral("config")), {});
        QCOMPARE(stored.backupCheck(), now);

        // A folder that cannot be written to: told once, tried again after an hour.
        setModified(m_safe, 0x101);
        program.settings.setBackupPath(m_safe + QStringLiteral("/safe.meta/backup"));
        now = now.addDays(1);
        QVERIFY(program.runs());
        QCOMPARE(program.failed.count(), 1);
        QCOMPARE(backups.lastResults().first().outcome, Outcome::CannotWrite);
        QVERIFY(!program.runs());
        QCOMPARE(backups.next(), now.addSecs(3600));
        now = now.addSecs(3601);
        QVERIFY(program.runs());
        QCOMPARE(program.failed.count(), 1);
        // The user asks: told again, unless it is shown anyway.
        for (const bool shown : {true, false}) {
            backups.setShown(shown);
            QVERIFY(backups.backUpNow());
            QVERIFY(!backups.backUpNow());
            QVERIFY(program.finished.wait());
            QCOMPARE(program.failed.count(), shown ? 1 : 2);
        }
        QVERIFY(program.settings.backupCheck() < now.addSecs(-3600));
        // A clock set back does not put the next try off.
        program.settings.setBackupPath(m_folder);
        now = now.addDays(-100);
        QCOMPARE(backups.next(), now);
        QVERIFY(program.runs());
        QCOMPARE(files().size(), 2);
        QCOMPARE(program.settings.backupCheck(), now);
        QCOMPARE(program.failed.count(), 2);
    }

    void aSafeThatIsLeftOutIsTriedAlone()
    {
        const QString other = newSafe(QStringLiteral("Other"), 8);
        Program program(m_temporary->path(), {m_safe, other});
        // As a change of password holds it.
        QLockFile held(m_safe + QStringLiteral("/.sourcelock"));
        QVERIFY(held.lock());
        program.now = program.now.addDays(1);
        QVERIFY(program.runs());
        QCOMPARE(files(), names(QStringLiteral("Other"), {QStringLiteral("20260305_100")}));
        QCOMPARE(program.backups.next(), program.now.addSecs(60));
        setModified(other, 0x101);
        program.now = program.now.addSecs(30);
        QVERIFY(!program.runs());
        held.unlock();
        program.now = program.now.addSecs(31);
        QVERIFY(program.runs());
        QCOMPARE(files(), names(QStringLiteral("My_safe"), {QStringLiteral("20260305_100")}) +
                              names(QStringLiteral("Other"), {QStringLiteral("20260305_100")}));
        QVERIFY(program.failed.isEmpty());
    }

    void aCancelledRunLeavesNothing()
    {
        Program program(m_temporary->path(), {m_safe});
        Backups &backups = program.backups;
        connect(&backups, &Backups::started, this, [&] { backups.cancel(); });
        QVERIFY(backups.backUpNow());
        QVERIFY(program.finished.wait());
        QCOMPARE(files(), QStringList());
        QVERIFY(backups.backUpNow());
        backups.stop(); // the program ends
        QVERIFY(!backups.isRunning());
        QVERIFY(files().isEmpty());
        program.settings.setBackupCheck({});
        QVERIFY(!program.runs());
    }
};

QTEST_GUILESS_MAIN(TestBackups)

#include "tst_backups.moc"
