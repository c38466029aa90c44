#pragma once

#include "SafeExport.h"
#include "SafeImport.h"
#include "SafeTesting.h"

#include <QCoreApplication>
#include <QProcess>

/// As FaultyFiles, with every operation that archives make.
class FaultyArchiveFiles : public FaultyFiles
{
public:
    std::unique_ptr<QIODevice> open(const QString &path) override
    {
        if (!failsWithFault())
            return FileLayer::open(path);
        return nullptr;
    }
    bool writeNew(const QString &path, const Produce &produce) override
    {
        if (!fails())
            return FileLayer::writeNew(path, produce);
        return FileLayer::writeNew(path, [&](QIODevice &device) {
            produce(device);
            device.close(); // what a killed process has written is there
            fault();
            return false;
        });
    }
    bool force(const QString &path) override { return !failsWithFault() && FileLayer::force(path); }
    bool replace(const QString &from, const QString &to) override
    {
        return !failsWithFault() && FileLayer::replace(from, to);
    }
    bool makeFolder(const QString &path) override
    {
        return !failsWithFault() && FileLayer::makeFolder(path);
    }
    bool removeFolder(const QString &path) override
    {
        return !failsWithFault() && FileLayer::removeFolder(path);
    }

private:
    bool failsWithFault()
    {
        const bool failing = fails();
        if (failing)
            fault();
        return failing;
    }
};

/// Opens the file whose path holds the text in a way of its own.
class OpeningFiles : public FileLayer
{
public:
    QString name;
    std::function<std::unique_ptr<QIODevice>(const QString &path)> change;

    std::unique_ptr<QIODevice> open(const QString &path) override
    {
        return path.contains(name) ? change(path) : FileLayer::open(path);
    }
};

using Files = std::shared_ptr<FileLayer>;

inline Files realFiles()
{
    return std::make_shared<FileLayer>();
}

inline SafeEnvironment environmentOf(const Files &files,
                                     const QDateTime &now = QDateTime(QDate(2026, 3, 4),
                                                                      QTime(12, 0), Qt::UTC))
{
    SafeEnvironment environment;
    environment.files = files;
    environment.lockWaitMs = 0;
    environment.clock = [now] { return now; };
    return environment;
}

inline ArchiveResult exportTo(const QString &folder, const QString &target,
                              const Files &files = realFiles(), WorkControl::Report report = {})
{
    WorkControl control(std::move(report));
    return exportSafe(environmentOf(files), SafeFolder(folder), target, control);
}

inline ArchiveResult importFrom(const QString &archive, const QString &safes,
                                const Files &files = realFiles(), WorkControl::Report report = {})
{
    WorkControl control(std::move(report));
    const SafeEnvironment environment = environmentOf(files);
    return SafeImport(environment, safes).run(archive, control);
}

const int smallSafeItems = 2;

/// A safe in which there is little, for tests that go over every operation.
inline void makeSmallSafe(const QString &folder)
{
    copySampleSafe(folder);
    const QDir content(folder + QStringLiteral("/content"));
    for (const QString &name : content.entryList(QDir::Files)) {
        if (name > QLatin1String("00000000-0000-0003"))
            QFile::remove(content.filePath(name));
    }
    QDir(folder + QStringLiteral("/attachment")).removeRecursively();
}

/// Folders and files in a folder, also those that are hidden.
inline QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::Dirs | QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
}

struct Ran
{
    int exitCode = -1; ///< -1: it was killed
    QString output;
};

inline Ran runProgram(const QString &program, const QStringList &arguments,
                      const QString &folder = QString())
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAll())};
}

inline bool makeArchive(const QString &kind, const QString &safe, const QString &target)
{
    return runProgram(
               QStringLiteral("python3"),
               {QStringLiteral(TEST_DATA_DIR "/../safe/make_archive.py"), kind, safe, target})
               .exitCode == 0;
}

using Outcome = ArchiveResult::Outcome;

const int itemCount = 22;
const char oldArchive[] = "what was there before";

inline bool isOwnersAlone(const QString &path)
{
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    return !(QFileInfo(path).permissions() & others);
}

/// Gives some bytes and then an error, as a drive does that is pulled out.
class BrokenDevice : public QIODevice
{
public:
    BrokenDevice() { open(ReadOnly | Unbuffered); }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *bytes, qint64 size) override
    {
        if (m_left == 0)
            return -1;
        const qint64 count = std::min(size, m_left);
        memset(bytes, 'x', static_cast<size_t>(count));
        m_left -= count;
        return count;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    qint64 m_left = 200000;
};
