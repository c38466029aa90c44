#include "BackupTest.h"

/// What the program tells of its backups, and how its runs go.
class TestBackupRuns : public BackupTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }

    void theListReadsDescriptionsAlone()
    {
        QDir().mkpath(m_safe + "/attachment"_s);
        QByteArray large(3000000, Qt::Uninitialized);
        systemRandom(reinterpret_cast<unsigned char *>(large.data()), large.size());
        writeFile(m_safe + "/attachment/large"_s, large);
        runOne();
        setModified(m_safe, 0x300);
        runOne(1);
        const QString exported = m_folder + "/My safe_2026-03-04_12-00.gpm"_s;
        QVERIFY(QFile::copy(m_folder + "/My_safe_20260304_100.gpm"_s, exported));
        QVERIFY(makeArchive("reversed"_s, m_safe, m_folder + "/by hand.gpm"_s));
        writeFile(m_folder + "/foreign.gpm"_s, "foreign");

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
            QCOMPARE(entry.description.name, "Reference safe"_s);
            QVERIFY(entry.size > large.size());
        }
        // The day in the name stands where a copy of the file got another time.
        QCOMPARE(list.at(2).made.date(), QDate(2026, 3, 5));
        QVERIFY(!list.at(2).timeKnown && list.at(0).timeKnown);
        QCOMPARE(list.at(2).description.modified, qint64(0x300));
        QCOMPARE(listBackups(counting, m_folder, "My_safe"_s).size(), 2);
    }

    /// What the settings and the list of safes tell.
    void theOverviewIsTrue()
    {
        const QString other = newSafe("Other"_s, 8);
        const QString gone = m_temporary->filePath("gone"_s);
        // Another safe whose folder has the same name.
        const QString same = newSafe("elsewhere/My_safe"_s, 6);
        Program program(m_temporary->path(), {m_safe, other, gone, same});
        BackupOverview overview = program.backups.overview().result();
        QCOMPARE(overview.place, BackupOverview::Place::Usable); // it can be made
        QVERIFY(overview.archives.isEmpty());

        run({m_safe, other}, 0);
        setModified(other, 0x101);
        const QString damaged = m_folder + "/My_safe_20260401_100.gpm"_s;
        writeFile(damaged, contentOf(m_folder + "/My_safe_20260304_100.gpm"_s).left(400));
        writeFile(m_folder + "/letter.gpm"_s, "Dear Ana");
        overview = program.backups.overview().result();
        QMap<QString, Outcome> outcomes;
        for (const BackupEntry &entry : qAsConst(overview.archives))
            outcomes.insert(QFileInfo(entry.path).fileName(), entry.outcome);
        const QMap<QString, Outcome> expected{{"My_safe_20260304_100.gpm"_s, Outcome::Done},
                                              {"Other_20260304_100.gpm"_s, Outcome::Done},
                                              {"My_safe_20260401_100.gpm"_s, Outcome::Damaged},
                                              {"letter.gpm"_s, Outcome::NotAnArchive}};
        QCOMPARE(outcomes, expected);
        QCOMPARE(overview.safes.size(), 4);
        const auto safe = [&](int i) { return overview.safes.at(i); };
        QCOMPARE(safe(0).last->name->day, firstDay.date());
        QVERIFY(safe(0).unchanged && !safe(1).unchanged);
        QVERIFY(safe(1).last && !safe(2).available && !safe(3).last);

        program.settings.setBackupPath(m_safe + "/safe.meta/backup"_s);
        QCOMPARE(program.backups.overview().result().place, BackupOverview::Place::NotThere);
        program.settings.setBackupPath(m_safe + "/safe.meta"_s);
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
        const GPMAppSettings stored(m_temporary->filePath("config"_s), {});
        QCOMPARE(stored.backupCheck(), now);

        // A folder that cannot be written to: told once, tried again after an hour.
        setModified(m_safe, 0x101);
        program.settings.setBackupPath(m_safe + "/safe.meta/backup"_s);
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
        const QString other = newSafe("Other"_s, 8);
        Program program(m_temporary->path(), {m_safe, other});
        // As a change of password holds it.
        QLockFile held(m_safe + "/.sourcelock"_s);
        QVERIFY(held.lock());
        program.now = program.now.addDays(1);
        QVERIFY(program.runs());
        QCOMPARE(files(), archives("Other"_s, {"20260305_100"_s}));
        QCOMPARE(program.backups.next(), program.now.addSecs(60));
        setModified(other, 0x101);
        program.now = program.now.addSecs(30);
        QVERIFY(!program.runs());
        held.unlock();
        program.now = program.now.addSecs(31);
        QVERIFY(program.runs());
        QCOMPARE(files(), archives("My_safe"_s, {"20260305_100"_s}) +
                              archives("Other"_s, {"20260305_100"_s}));
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

QTEST_GUILESS_MAIN(TestBackupRuns)
#include "tst_backupruns.moc"
