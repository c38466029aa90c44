#include "BackupTest.h"

class TestBackups : public BackupTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }

    void names_data()
    {
        QTest::addColumn<QString>("safe"); // none: no backup
        QTest::addColumn<qint64>("modified");
        QTest::newRow("a_20260304_ff.gpm") << "a"_s << qint64(255);
        QTest::newRow("a_20260304_1_20260304_0.gpm") << "a_20260304_1"_s << qint64(0);
        QTest::newRow("\xc3\xa9 [x]_20260304_19c.gpm") << "é [x]"_s << qint64(0x19c);
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
        GPMAppSettings settings(m_temporary->filePath("config"_s), {});
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
        QCOMPARE(files(), archives("My_safe"_s, {"20260304_100"_s}));
        QCOMPARE(QFileInfo(first.path).permissions() & (QFile::ReadGroup | QFile::ReadOther), 0);
        QCOMPARE(runProgram("unzip"_s, {"-t"_s, first.path}).exitCode, 0);
        QVERIFY(importFrom(first.path, m_temporary->filePath("safes"_s)).good());
        QCOMPARE(runOne(1).state, State::Unchanged);
        setModified(m_safe, 0x101);
        QCOMPARE(runOne(2).state, State::Written);

        // Neither a new password nor a new name changes the time in the description.
        GPMSafe safe;
        QVERIFY(safe.open(m_safe) && safe.unlock(samplePassword));
        QVERIFY(safe.changePassword("another"_s));
        QCOMPARE(runOne(3).state, State::Written);
        safe.setName("Renamed"_s);
        QVERIFY(safe.writeMetaFile());
        QCOMPARE(runOne(4).state, State::Written);
        QCOMPARE(runOne(5).state, State::Unchanged);

        // A backup that was cut counts for nothing.
        QFile newest(m_folder + "/My_safe_20260308_101.gpm"_s);
        QVERIFY(newest.resize(newest.size() - 30));
        QCOMPARE(runOne(6).state, State::Written);
        QCOMPARE(run({m_temporary->filePath("gone"_s)}).first().state, State::Missing);
    }

    void rotationIsPerSafe()
    {
        const QString same = newSafe("elsewhere/My_safe"_s, 6);
        const QString longer = newSafe("My_safe_20260304"_s, 7);
        run({same, longer});
        // By their names these might be ours, but they hold no safe of ours.
        const QStringList foreign = {"My_safe_20200101_1.gpm"_s, "My_safe_export.gpm"_s,
                                     "notes.txt"_s};
        for (const QString &name : foreign)
            writeFile(m_folder + QLatin1Char('/') + name, "foreign");
        const QStringList before = files();
        for (int day = 1; day <= 5; ++day) {
            setModified(m_safe, 0x200 + day);
            QCOMPARE(runOne(day).state, State::Written);
        }
        QStringList expected =
            before + archives("My_safe"_s, {"20260307_203"_s, "20260308_204"_s, "20260309_205"_s});
        expected.sort();
        QCOMPARE(files(), expected);

        // A count that makes no sense keeps the newest.
        setModified(m_safe, 0x300);
        QCOMPARE(run({m_safe}, 6, realFiles(), 0).first().state, State::Written);
        expected = before + archives("My_safe"_s, {"20260310_300"_s});
        expected.sort();
        QCOMPARE(files(), expected);
    }

    void copiesInFoldersOfOneNameRotateApart()
    {
        const QString copy = newSafe("elsewhere/My_safe"_s, 5);
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
                expected.append(BackupName{"My_safe"_s, firstDay.addDays(day).date(),
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
        QCOMPARE(files(),
                 archives("My_safe"_s, {"20260304_200"_s, "20260305_201"_s, "20260306_202"_s}));
    }

    void whatMayLackSomethingPushesNothingOut()
    {
        runThreeDays();
        const QStringList before = files();
        // Two generations of one item, as a change of password leaves them that was interrupted.
        const QString item = m_safe + "/content/00000000-0000-0001-0000-000000001234"_s;
        QVERIFY(QFile::copy(item, item + ".1"_s));
        setModified(m_safe, 0x203);
        QCOMPARE(runOne(3).state, State::Written);
        QVERIFY(QFile::remove(item + ".1"_s));
        // A file that does not open.
        const Files unreadable = swapped(item, {});
        setModified(m_safe, 0x204);
        QCOMPARE(runOne(4, unreadable).state, State::Written);
        QCOMPARE(files(), before + archives("My_safe"_s, {"20260307_203"_s, "20260308_204"_s}));
    }

    void aBackupThatCannotBeReadBackIsNone()
    {
        runOne();
        setModified(m_safe, 0x101);
        const QStringList before = files();
        const QString damaged = m_temporary->filePath("damaged"_s);
        QVERIFY(makeArchive("checksum"_s, m_safe, damaged));
        const BackupJob::Result result = runOne(1, swapped(".part"_s, damaged));
        QCOMPARE(result.state, State::Failed);
        QCOMPARE(result.outcome, Outcome::Damaged);
        QCOMPARE(files(), before);
    }

    void whatAKilledRunLeftIsClearedAway()
    {
        runThreeDays();
        const QString others = "Another_20260307_203.gpm.part"_s;
        for (const QString &left :
             {"My_safe_20260307_202.gpm.part"_s, "My_safe_20260307_202.gpm.part.AbCdEf"_s, others})
            writeFile(m_folder + QLatin1Char('/') + left, "left");
        setModified(m_safe, 0x204);
        QCOMPARE(runOne(4).state, State::Written);
        QCOMPARE(files(),
                 QStringList{others} +
                     archives("My_safe"_s, {"20260305_201"_s, "20260306_202"_s, "20260308_204"_s}));
    }
};

QTEST_GUILESS_MAIN(TestBackups)
#include "tst_backups.moc"
