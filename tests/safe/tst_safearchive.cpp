#include "../Text.h"
#include "ArchiveEntries.h"
#include "ArchiveMessages.h"
#include "ArchiveTesting.h"
#include "KnownSafes.h"

#include <QLockFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestSafeArchive : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_safe;
    QString m_safes; ///< where imported ones go
    QString m_archive;

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_safe = m_temporary->filePath("My safe"_s);
        m_safes = m_temporary->filePath("data/safes"_s);
        m_archive = m_temporary->filePath("out/archive.gpm"_s);
        QDir().mkpath(m_temporary->filePath("out"_s));
        copySampleSafe(m_safe);
        QDir().mkpath(m_safe + "/favicon"_s);
        writeFile(m_safe + "/favicon/é.example.org"_s, QByteArray(1000, 'i'));
    }

    void everyToolOpensAnExport()
    {
        // No part of a safe: what an interrupted write left, state of this computer, a strange
        // name.
        const QString id = "00000000-0000-0001-0000-000000001234"_s;
        for (const QString &foreign :
             {"content/%1.AbCdEf"_s.arg(id), "safe.sync"_s, "safe.passid.bak"_s, "content/a:b"_s})
            writeFile(m_safe + QLatin1Char('/') + foreign, "x");
        QFile item(m_safe + "/content/"_s + id);
        QVERIFY(item.open(QIODevice::ReadWrite));
        const QDateTime time(QDate(2019, 5, 6), QTime(7, 8, 10));
        QVERIFY(item.setFileTime(time, QFileDevice::FileModificationTime));
        item.close();
        QFile old(m_safe + "/safe.restore"_s);
        QVERIFY(old.open(QIODevice::ReadWrite));
        old.setFileTime(QDateTime(QDate(1975, 1, 1), QTime(0, 0)),
                        QFileDevice::FileModificationTime);
        old.close();

        const ArchiveResult result = exportTo(m_safe, m_archive);
        QCOMPARE(result.outcome, Outcome::Done);
        QCOMPARE(result.size, QFileInfo(m_archive).size());
        QVERIFY(result.leftOut.isEmpty());
        QVERIFY(isOwnersAlone(m_archive));
        QCOMPARE(namesIn(QFileInfo(m_archive).path()), QStringList{"archive.gpm"_s});

        QStringList names = {"safe.meta"_s, "safe.restore"_s, "safe.passid"_s};
        for (const char *folder : {"content", "attachment", "favicon"}) {
            const QDir inner(m_safe + QLatin1Char('/') + QLatin1String(folder));
            for (const QString &name : inner.entryList(QDir::Files, QDir::Name)) {
                if (!name.endsWith(QLatin1String(".AbCdEf")) && name != QLatin1String("a:b"))
                    names.append(QLatin1String(folder) + QLatin1Char('/') + name);
            }
        }
        QCOMPARE(names.size(), 3 + itemCount + 2 + 1);
        const auto tool = [this](const char *program, const QStringList &arguments) {
            return runProgram(QLatin1String(program), arguments + QStringList{m_archive});
        };
        QCOMPARE(tool("zipinfo", {"-1"_s}).output.split(QLatin1Char('\n')),
                 names + QStringList{QString()});
        const QString list = tool("zipinfo", {"-T"_s}).output;
        QVERIFY(list.contains("20190506.070810 content/"_s + id));
        QVERIFY(list.contains("19800101.000000 safe.restore"_s));
        QCOMPARE(list.count(QLatin1String("-rw-------")), names.size());
        QCOMPARE(list.count(QLatin1String(" defN ")), names.size());
        QCOMPARE(tool("unzip", {"-t"_s}).exitCode, 0);
        QCOMPARE(tool("7z", {"t"_s}).exitCode, 0);
        QCOMPARE(tool("python3", {"-m"_s, "zipfile"_s, "-t"_s}).exitCode, 0);

        const QString unpacked = m_temporary->filePath("unpacked"_s);
        QCOMPARE(runProgram("unzip"_s, {m_archive, "-d"_s, unpacked}).exitCode, 0);
        const QMap<QString, QByteArray> before = snapshot(m_safe);
        const QMap<QString, QByteArray> after = snapshot(unpacked);
        QCOMPARE(after.size(), names.size());
        for (const QString &name : qAsConst(names))
            QCOMPARE(after.value(name), before.value(name));
    }

    void anEmptySafeHasItsThreeFiles()
    {
        const QString folder = m_temporary->filePath("empty"_s);
        QDir().mkpath(folder);
        GPMSafe safe;
        QVERIFY(safe.init(folder, samplePassword, "Empty"_s, QString()));
        QCOMPARE(exportTo(folder, m_archive).outcome, Outcome::Done);
        QCOMPARE(runProgram("zipinfo"_s, {"-1"_s, m_archive}).output,
                 "safe.meta\nsafe.restore\nsafe.passid\n"_s);
        QCOMPARE(importFrom(m_archive, m_safes).outcome, Outcome::Done);
    }

    void archivesOfOtherToolsImport_data()
    {
        QTest::addColumn<QStringList>("command"); // in the safe's folder; else one of the kinds
        const auto words = [](const char *text) {
            return QString::fromLatin1(text).split(QLatin1Char(' '));
        };
        QTest::newRow("ours") << QStringList{};
        QTest::newRow("zip") << words("zip -r ARCHIVE .");
        QTest::newRow("zip stored") << words("zip -0 -r ARCHIVE .");
        QTest::newRow("zip any order") << words("zip -r ARCHIVE favicon attachment content "
                                                "safe.restore safe.passid safe.meta");
        QTest::newRow("zip with Zip64") << words("zip -fz -r ARCHIVE .");
        QTest::newRow("7-Zip") << words("7z a -tzip ARCHIVE .");
        QTest::newRow("7-Zip stored") << words("7z a -tzip -mx=0 ARCHIVE .");
        for (const char *kind :
             {"reversed", "unknown entries", "streamed", "zip64", "second description only"})
            QTest::newRow(kind) << QStringList{QLatin1String(kind)};
    }
    void archivesOfOtherToolsImport()
    {
        QFETCH(QStringList, command);
        // As the tools want it, who would else append an extension.
        const QString archive = m_temporary->filePath("made.zip"_s);
        if (command.isEmpty()) {
            QCOMPARE(exportTo(m_safe, archive).outcome, Outcome::Done);
        } else if (command.size() == 1) {
            QVERIFY(makeArchive(command.first(), m_safe, archive));
        } else {
            command.replaceInStrings("ARCHIVE"_s, archive);
            const QString program = command.takeFirst();
            QCOMPARE(runProgram(program, command, m_safe).exitCode, 0);
        }
        const ArchiveResult result = importFrom(archive, m_safes);
        QCOMPARE(result.outcome, Outcome::Done);
        QCOMPARE(namesIn(m_safes), QStringList{QFileInfo(result.path).fileName()});

        QMap<QString, QByteArray> before = snapshot(m_safe);
        QMap<QString, QByteArray> after = snapshot(result.path);
        for (const char *description : {"safe.meta", "safe.restore"}) {
            before.remove(QLatin1String(description));
            QVERIFY(!after.take(QLatin1String(description)).isEmpty());
        }
        QCOMPARE(after, before);
        GPMSafe original;
        GPMSafe safe;
        QVERIFY(original.open(m_safe) && safe.open(result.path));
        const QString day = QLocale().toString(QDate(2026, 3, 4), QLocale::ShortFormat);
        QCOMPARE(safe.name(), "%1 [%2]"_s.arg(original.name(), day));
        QCOMPARE(safe.modified(), original.modified());

        QVERIFY(isOwnersAlone(result.path));
        QDirIterator each(result.path, QDir::AllEntries | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (each.hasNext())
            QVERIFY2(isOwnersAlone(each.next()), qPrintable(each.filePath()));
    }

    void whatIsNoSafeIsRefused_data()
    {
        QTest::addColumn<Outcome>("outcome");
        for (const char *kind : {"parent", "parent inside", "absolute", "drive", "drive relative",
                                 "backslashes", "backslash parent", "stream", "empty part", "dot",
                                 "line end", "nul", "symbolic link"})
            QTest::newRow(kind) << Outcome::UnsafeEntry;
        for (const char *kind : {"not a zip", "empty file"})
            QTest::newRow(kind) << Outcome::NotAnArchive;
        for (const char *kind : {"cut in the middle", "cut at the end", "checksum", "content",
                                 "unknown damaged", "sizes too small", "sizes too large"})
            QTest::newRow(kind) << Outcome::Damaged;
        for (const char *kind : {"name twice", "name in other case", "unknown name twice"})
            QTest::newRow(kind) << Outcome::NameTwice;
        for (const char *kind : {"hundred times", "hundred times elsewhere"})
            QTest::newRow(kind) << Outcome::TooLarge;
        QTest::newRow("bzip2") << Outcome::Unsupported;
        for (const char *kind :
             {"no entries", "no description", "no pass id", "empty pass id", "inside a folder"})
            QTest::newRow(kind) << Outcome::NoSafe;
    }
    void whatIsNoSafeIsRefused()
    {
        QFETCH(Outcome, outcome);
        const QString kind = QString::fromLatin1(QTest::currentDataTag());
        QVERIFY(makeArchive(kind, m_safe, m_archive));
        const QMap<QString, QByteArray> before = snapshot(m_temporary->path());
        QCOMPARE(importFrom(m_archive, m_safes).outcome, outcome);
        QVERIFY(namesIn(m_safes).isEmpty());
        QCOMPARE(snapshot(m_temporary->path()), before);
        QVERIFY(!importMessage(outcome).isEmpty());
    }

    void whatIsCutShortIsRefusedWherever()
    {
        QVERIFY(exportTo(m_safe, m_archive).good());
        const QByteArray whole = contentOf(m_archive);
        QVector<int> lengths{1, 3, 4, 29, 30, 31};
        for (int length = 100; length < whole.size(); length += whole.size() / 60)
            lengths.append(length);
        // The directory of the archive, byte by byte at its end.
        for (int missing = 1; missing < 70; ++missing)
            lengths.append(whole.size() - missing);
        for (const int length : qAsConst(lengths)) {
            writeFile(m_archive, whole.left(length));
            const Outcome outcome = importFrom(m_archive, m_safes).outcome;
            QVERIFY2(outcome == Outcome::Damaged ||
                         (length < 4 && outcome == Outcome::NotAnArchive),
                     qPrintable("%1: %2"_s.arg(length).arg(int(outcome))));
            QVERIFY(namesIn(m_safes).isEmpty());
        }
    }

    void anEncryptedArchiveIsRefused()
    {
        QCOMPARE(runProgram("zip"_s,
                            {"-P"_s, "secret"_s, "-r"_s, m_temporary->filePath("a.zip"_s), "."_s},
                            m_safe)
                     .exitCode,
                 0);
        QCOMPARE(importFrom(m_temporary->filePath("a.zip"_s), m_safes).outcome,
                 Outcome::Unsupported);
        QCOMPARE(importFrom(m_temporary->filePath("none.gpm"_s), m_safes).outcome,
                 Outcome::NotFound);
        QVERIFY(namesIn(m_safes).isEmpty());
    }

    void moreThanFourGibibytesAreTooLarge()
    {
        const qint64 limit = qint64(4) << 30;
        QVERIFY(!ArchiveEntries::isTooLarge(limit, limit));
        QVERIFY(ArchiveEntries::isTooLarge(limit + 1, limit));
        // A sparse file is counted before anything of it is read.
        QFile huge(m_safe + "/attachment/huge"_s);
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(limit));
        writeFile(m_archive, oldArchive);
        QCOMPARE(exportTo(m_safe, m_archive).outcome, Outcome::TooLarge);
        // What could not be imported for its ratio is not written either.
        QVERIFY(huge.resize(30 * 1000 * 1000));
        QCOMPARE(exportTo(m_safe, m_archive).outcome, Outcome::TooLarge);
        QCOMPARE(contentOf(m_archive), QByteArray(oldArchive));
    }

    void whatDoesNotOpenIsLeftOutAndNamed()
    {
        auto files = std::make_shared<FaultyArchiveFiles>();
        files->failAt = 10; // of those that are opened behind the writing
        const QString inOtherCase = m_safe + "/content/00000000-0000-000B-0000-000000001234"_s;
        writeFile(inOtherCase, "the same file where case does not count");
        const ArchiveResult result = exportTo(m_safe, m_archive, files);
        QCOMPARE(result.outcome, Outcome::Done);
        QCOMPARE(result.leftOut.size(), 2);
        QVERIFY(result.leftOut.contains(inOtherCase) ||
                result.leftOut.contains(
                    QString(inOtherCase).replace(QLatin1Char('B'), QLatin1Char('b'))));
        QVERIFY(importFrom(m_archive, m_safes).good());
    }

    void aSafeThatGoesAwayDuringTheExport_data()
    {
        QTest::addColumn<bool>("folderGoes");
        QTest::newRow("folder vanishes") << true;
        QTest::newRow("reading fails") << false;
    }
    void aSafeThatGoesAwayDuringTheExport()
    {
        QFETCH(bool, folderGoes);
        writeFile(m_archive, oldArchive);
        auto files = std::make_shared<OpeningFiles>();
        files->name = "attachment/00000000-0000-0016"_s;
        files->change = [&](const QString &) -> std::unique_ptr<QIODevice> {
            if (!folderGoes)
                return std::make_unique<BrokenDevice>();
            QDir(m_safe).removeRecursively();
            return nullptr;
        };
        QCOMPARE(exportTo(m_safe, m_archive, files).outcome, Outcome::SafeUnreadable);
        QCOMPARE(contentOf(m_archive), QByteArray(oldArchive));
        QCOMPARE(namesIn(QFileInfo(m_archive).path()), QStringList{"archive.gpm"_s});
    }

    void placesThatCannotBeWrittenTo()
    {
        const QString nowhere = m_temporary->filePath("gone/archive.gpm"_s);
        QCOMPARE(exportTo(m_safe, nowhere).outcome, Outcome::CannotWrite);
        QCOMPARE(exportTo(m_safes, m_archive).outcome, Outcome::NotFound);
        QCOMPARE(exportTo(m_temporary->path(), m_archive).outcome, Outcome::NoSafe);
        QVERIFY(!QFile::exists(m_archive));
        QVERIFY(exportTo(m_safe, m_archive).good());
        // A file where the folder of the safes should be.
        QCOMPARE(importFrom(m_archive, m_archive).outcome, Outcome::CannotWrite);
        QVERIFY(importFrom(m_archive, m_safes).good());
    }

    void nothingChangesTheFilesDuringAnExport()
    {
        auto files = std::make_shared<OpeningFiles>();
        files->name = "safe.passid"_s;
        bool changed = true;
        GPMSafe safe(environmentOf(std::make_shared<FileLayer>()));
        QVERIFY(safe.open(m_safe) && safe.unlock(samplePassword));
        files->change = [&](const QString &path) {
            changed = safe.changePassword("another"_s);
            return std::make_unique<QFile>(path);
        };
        exportTo(m_safe, m_archive, files);
        QVERIFY(!changed);

        QLockFile held(m_safe + "/.sourcelock"_s);
        QVERIFY(held.lock());
        writeFile(m_archive, oldArchive);
        QCOMPARE(exportTo(m_safe, m_archive).outcome, Outcome::SafeBusy);
        QCOMPARE(contentOf(m_archive), QByteArray(oldArchive));
    }

    /// As the program does it: the last edit is still being written, and the loop goes on.
    void exportAndImportInTheBackground()
    {
        GPMSafe safe;
        QVERIFY(safe.open(m_safe) && safe.unlock(samplePassword));
        PMListItem *item = safe.items().front();
        item->setTitle("The last edit"_s);
        safe.touchItem(*item);
        safe.saveChangesAsync();
        const std::unique_ptr<ArchiveTask> exporting = safe.exportArchive(m_archive);
        QSignalSpy exported(exporting.get(), &ArchiveTask::finished);
        QSignalSpy progress(exporting.get(), &ArchiveTask::progress);
        exporting->start();
        QVERIFY(exported.wait());
        QVERIFY(exporting->result().good());
        QVERIFY(progress.count() > 2);
        QCOMPARE(progress.last().at(0), progress.last().at(1));

        GPMAppSettings settings(m_temporary->filePath("config"_s), m_temporary->path());
        KnownSafes known(settings, m_safes, patient());
        QStringList folders;
        for (int i = 0; i < 2; ++i) {
            const std::unique_ptr<ArchiveTask> importing = known.importArchive(m_archive);
            QSignalSpy imported(importing.get(), &ArchiveTask::finished);
            importing->start();
            QVERIFY(imported.wait());
            folders.prepend(importing->result().path);
        }
        QCOMPARE(settings.recentList(), folders);
        const QVector<KnownSafes::Entry> entries = known.entries();
        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries.at(0).name, entries.at(1).name);
        const std::shared_ptr<GPMSafe> copy = known.open(folders.first());
        QVERIFY(copy->unlock(samplePassword));
        QCOMPARE(copy->itemCount(), itemCount);
        QCOMPARE(copy->item(item->id())->title(), "The last edit"_s);
        QBuffer bytes;
        QVERIFY(bytes.open(QIODevice::WriteOnly));
        QVERIFY(copy->readAttachment("00000000-0000-000b-0000-000000001234"_s, bytes));
    }

    void anOlderDescriptionTravels()
    {
        const QByteArray passId = contentOf(m_safe + "/safe.passid"_s);
        for (const char *gone : {"safe.passid", "safe.meta", "safe.restore"})
            QVERIFY(QFile::remove(m_safe + QLatin1Char('/') + QLatin1String(gone)));
        writeFile(m_safe + "/safe.content"_s,
                  "{\"name\": \"Old\", \"pass_id\": \"" + passId + "\"}");
        QVERIFY(exportTo(m_safe, m_archive).good());
        const ArchiveResult result = importFrom(m_archive, m_safes);
        QVERIFY(result.good());
        QCOMPARE(contentOf(result.path + "/safe.passid"_s), passId);
        GPMSafe safe;
        QVERIFY(safe.open(result.path) && safe.name().startsWith("Old ["_s));
    }
};

QTEST_GUILESS_MAIN(TestSafeArchive)

#include "tst_safearchive.moc"
