#include "../Text.h"
#include "ArchiveReader.h"
#include "ArchiveTesting.h"
#include "BackupJob.h"
#include "KnownSafes.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using Outcome = ArchiveResult::Outcome;

const int killedByTest = 99;
const QDateTime firstDay(QDate(2026, 3, 4), QTime(12, 0));

void setModified(const QString &safe, qint64 modified)
{
    const QString path = safe + "/safe.meta"_s;
    QJsonObject description = QJsonDocument::fromJson(contentOf(path)).object();
    description.insert("modified"_s, modified);
    writeFile(path, QJsonDocument(description).toJson());
}

/// A safe, an archive of it, and three backups, in a folder.
class Scene
{
public:
    enum Work { Export, Import, Backup };

    explicit Scene(const QString &folder)
        : m_folder(folder)
    {
    }

    QString safe() const { return m_folder + "/My safe"_s; }
    QString archives() const { return m_folder + "/out"_s; }
    QString archive() const { return archives() + "/archive.gpm"_s; }
    QString safes() const { return m_folder + "/data/safes"_s; }
    QString backups() const { return m_folder + "/backup"_s; }

    /// @param attachment its size in bytes
    void make(int attachment)
    {
        makeSmallSafe(safe());
        QByteArray bytes(attachment, Qt::Uninitialized);
        QRandomGenerator(1).generate(bytes.begin(), bytes.end());
        QDir().mkpath(safe() + "/attachment"_s);
        writeFile(safe() + "/attachment/large"_s, bytes);
        QDir().mkpath(archives());
        if (!exportTo(safe(), archive()).good())
            qFatal("can't export");
        for (int day = 0; day < 3; ++day) {
            setModified(safe(), 0x200 + day);
            if (run(Backup, realFiles(), {}, day) != Outcome::Done)
                qFatal("can't back up");
        }
        setModified(safe(), 0x300);
        m_before = snapshot(m_folder);
        m_safeBefore = snapshot(safe());
        m_safeBefore.remove(".sourcelock"_s);
    }

    /// Back to what make() left.
    void restore() const
    {
        for (const QString &name : namesIn(m_folder))
            QDir(m_folder + QLatin1Char('/') + name).removeRecursively();
        writeFiles(m_folder, m_before);
    }

    using Report = std::function<void(WorkControl &control, qint64 done, qint64 total)>;

    Outcome run(Work work, const Files &files, const Report &report = {}, int day = 5) const
    {
        const SafeEnvironment environment = environmentOf(files, firstDay.addDays(day));
        WorkControl *self = nullptr;
        WorkControl control([&](qint64 done, qint64 total) {
            if (report)
                report(*self, done, total);
        });
        self = &control;
        if (work == Export)
            return exportSafe(environment, SafeFolder(safe()), archive(), control).outcome;
        if (work == Import)
            return SafeImport(environment, safes()).run(archive(), control).outcome;
        BackupJob job;
        job.environment = environment;
        job.backupFolder = backups();
        job.keep = 3;
        job.safeFolders = QStringList{safe()};
        const BackupJob::Result result = job.run(control).first();
        if (result.state == BackupJob::State::Cancelled)
            return Outcome::Cancelled;
        return result.outcome;
    }

    /// What is wrong after work that ended in whatever way; empty when nothing is.
    /// @param good whether it said that all is well, which a killed one cannot
    QString fault(Work work, std::optional<bool> good) const
    {
        QMap<QString, QByteArray> now = snapshot(safe());
        now.remove(".sourcelock"_s);
        if (now != m_safeBefore)
            return "the safe is another"_s;
        if (QDir(archives()).entryList(QDir::Files) != QStringList{"archive.gpm"_s})
            return "a half archive is seen"_s;
        if (work != Import && !isWhole(archive()))
            return "the archive does not open"_s;
        return work == Import ? safesFault(good) : backupsFault(work == Backup ? good : false);
    }

    /// Whether nothing is left of work that did not come to its end.
    bool isTidy() const
    {
        for (const QString &folder : {archives(), safes(), backups()}) {
            for (const QString &name : namesIn(folder)) {
                if (name.contains(QLatin1String(".part")) || SafeImport::isUnfinished(name))
                    return false;
            }
        }
        return true;
    }

private:
    static bool isWhole(const QString &path)
    {
        FileLayer files;
        ArchiveReader reader(files, path);
        WorkControl control;
        return reader.open() == Outcome::Done && reader.check(control) == Outcome::Done;
    }

    QString safesFault(std::optional<bool> good) const
    {
        GPMAppSettings settings(m_folder + "/config"_s, m_folder);
        const QVector<KnownSafes::Entry> entries = KnownSafes(settings, safes()).entries();
        if (good && entries.size() != (*good ? 1 : 0))
            return "%1 safes"_s.arg(entries.size());
        for (const KnownSafes::Entry &entry : entries) {
            GPMSafe safe;
            if (!safe.open(entry.folder) || !safe.unlock(samplePassword) ||
                safe.itemCount() != smallSafeItems ||
                contentOf(entry.folder + "/attachment/large"_s) !=
                    m_safeBefore.value("attachment/large"_s))
                return "a half safe is seen"_s;
        }
        return {};
    }

    QString backupsFault(std::optional<bool> good) const
    {
        const QStringList names = QDir(backups()).entryList({"*.gpm"_s});
        for (const QString &name : names) {
            if (!isWhole(backups() + QLatin1Char('/') + name))
                return "a backup does not open"_s;
        }
        const bool hasNew = !names.filter("_300.gpm"_s).isEmpty();
        if (good && *good != hasNew)
            return "the result is not true"_s;
        return names.size() >= (hasNew ? 2 : 3) ? QString() : "a backup is lost"_s;
    }

    QString m_folder;
    QMap<QString, QByteArray> m_before;
    QMap<QString, QByteArray> m_safeBefore;
};

const char *const roleName = "--work";

QStringList roleOf(Scene::Work work, const QString &folder, const QString &moment)
{
    return {QLatin1String(roleName), QString::number(work), folder, moment};
}

/// Works in a process of its own that dies, or writes to a disk that is full.
int workAlone(const QStringList &arguments)
{
    const QString moment = arguments.value(4);
    auto files = std::make_shared<FaultyArchiveFiles>();
    if (moment == QLatin1String("full")) {
        const rlimit limit{8000, 8000};
        setrlimit(RLIMIT_FSIZE, &limit);
        signal(SIGXFSZ, SIG_IGN);
    } else {
        files->failAt = moment.toInt();
        files->fault = [] { _exit(killedByTest); };
    }
    const auto work = static_cast<Scene::Work>(arguments.value(2).toInt());
    return int(Scene(arguments.value(3)).run(work, files));
}

} // namespace

/// Exports, imports and backups that are disturbed in every way: afterwards all that was there
/// opens, and nothing half is seen.
class TestArchiveFaults : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    std::unique_ptr<Scene> m_scene;

    void make(int attachment)
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_scene = std::make_unique<Scene>(m_temporary->path());
        m_scene->make(attachment);
    }
    static void works()
    {
        QTest::addColumn<int>("work");
        QTest::newRow("export") << int(Scene::Export);
        QTest::newRow("import") << int(Scene::Import);
        QTest::newRow("backup") << int(Scene::Backup);
    }
    int operationsOf(Scene::Work work)
    {
        auto counting = std::make_shared<FaultyArchiveFiles>();
        const Outcome outcome = m_scene->run(work, counting);
        const QString fault = m_scene->fault(work, true);
        m_scene->restore();
        return outcome == Outcome::Done && fault.isEmpty() ? int(counting->operations) : 0;
    }
    /// The next undisturbed one brings everything to its end.
    void endWell(Scene::Work work)
    {
        QCOMPARE(m_scene->run(work, realFiles()), Outcome::Done);
        QCOMPARE(m_scene->fault(work, true), QString());
        QVERIFY(m_scene->isTidy());
    }

private Q_SLOTS:
    void everyOperationFails_data() { works(); }
    void everyOperationFails()
    {
        QFETCH(int, work);
        const auto kind = static_cast<Scene::Work>(work);
        make(1000);
        const int operations = operationsOf(kind);
        QVERIFY(operations >= 8);
        for (int failAt = 1; failAt <= operations; ++failAt) {
            for (const bool andAllBehind : {false, true}) {
                auto files = std::make_shared<FaultyArchiveFiles>();
                files->failAt = failAt;
                files->andAllBehind = andAllBehind;
                const bool good = m_scene->run(kind, files) == Outcome::Done;
                const QString fault = m_scene->fault(kind, good);
                QVERIFY2(fault.isEmpty(), qPrintable("%1: %2"_s.arg(failAt).arg(fault)));
                QVERIFY(m_scene->isTidy() || andAllBehind);
                m_scene->restore();
            }
        }
        auto files = std::make_shared<FaultyArchiveFiles>();
        files->failAt = operations - 2;
        files->andAllBehind = true;
        m_scene->run(kind, files);
        endWell(kind);
    }

    void aProcessDiesInEveryOperation_data() { works(); }
    void aProcessDiesInEveryOperation()
    {
        QFETCH(int, work);
        const auto kind = static_cast<Scene::Work>(work);
        make(1000);
        const int operations = operationsOf(kind);
        for (int dieAt = 1; dieAt <= operations; ++dieAt) {
            const Ran ran = runProgram(QCoreApplication::applicationFilePath(),
                                       roleOf(kind, m_temporary->path(), QString::number(dieAt)));
            QCOMPARE(ran.exitCode, killedByTest);
            const QString fault = m_scene->fault(kind, std::nullopt);
            QVERIFY2(fault.isEmpty(), qPrintable("%1: %2"_s.arg(dieAt).arg(fault)));
            if (kind != Scene::Import)
                m_scene->restore();
        }
        // Neither what they left nor the lock files of the dead are obstacles.
        endWell(kind);
    }

    void aProcessIsKilledAtRandomMoments_data() { works(); }
    void aProcessIsKilledAtRandomMoments()
    {
        QFETCH(int, work);
        const auto kind = static_cast<Scene::Work>(work);
        make(3000000);
        const QStringList role = roleOf(kind, m_temporary->path(), "0"_s);
        QRandomGenerator random(7);
        int whole = 2000; // ms that a run takes when nobody kills it; known better with each
        int killed = 0;
        for (int round = 0; round < 60 && killed < 8; ++round) {
            m_scene->restore();
            QElapsedTimer timer;
            timer.start();
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(), role);
            if (process.waitForFinished(random.bounded(whole)))
                whole = qMax(1, int(timer.elapsed()));
            process.kill();
            process.waitForFinished();
            killed += process.exitStatus() == QProcess::CrashExit ? 1 : 0;
            const QString fault = m_scene->fault(kind, std::nullopt);
            QVERIFY2(fault.isEmpty(), qPrintable(fault));
        }
        QCOMPARE(killed, 8);
        if (kind == Scene::Import)
            QDir(m_scene->safes()).removeRecursively();
        endWell(kind);
    }

    void aFullDisk_data() { works(); }
    void aFullDisk()
    {
        QFETCH(int, work);
        const auto kind = static_cast<Scene::Work>(work);
        make(20000);
        const Ran ran = runProgram(QCoreApplication::applicationFilePath(),
                                   roleOf(kind, m_temporary->path(), "full"_s));
        QCOMPARE(ran.exitCode, int(Outcome::CannotWrite));
        QCOMPARE(m_scene->fault(kind, false), QString());
        QVERIFY(m_scene->isTidy());
    }

    void aCancelHalfWay_data() { works(); }
    void aCancelHalfWay()
    {
        QFETCH(int, work);
        const auto kind = static_cast<Scene::Work>(work);
        make(300000);
        const auto cancel = [](WorkControl &control, qint64 done, qint64 total) {
            if (done * 2 > total)
                control.cancel();
        };
        QCOMPARE(m_scene->run(kind, realFiles(), cancel), Outcome::Cancelled);
        QCOMPARE(m_scene->fault(kind, false), QString());
        QVERIFY(m_scene->isTidy());
    }

    /// A folder goes away while it is written to.
    void theTargetVanishes_data() { works(); }
    void theTargetVanishes()
    {
        QFETCH(int, work);
        const auto kind = static_cast<Scene::Work>(work);
        make(1000);
        const QString gone = kind == Scene::Export   ? m_scene->archives()
                             : kind == Scene::Import ? m_temporary->filePath("data"_s)
                                                     : m_scene->backups();
        bool vanished = false;
        const auto vanish = [&](WorkControl &, qint64 done, qint64 total) {
            if (!vanished && done * 2 > total)
                vanished = QDir(gone).removeRecursively();
        };
        QCOMPARE(m_scene->run(kind, realFiles(), vanish), Outcome::CannotWrite);
        QVERIFY(vanished);
        QVERIFY(!QFile::exists(gone) || namesIn(gone).isEmpty());
        m_scene->restore();
        endWell(kind);
    }
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (application.arguments().value(1) == QLatin1String(roleName))
        return workAlone(application.arguments());
    TestArchiveFaults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_archivefaults.moc"
