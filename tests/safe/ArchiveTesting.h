#pragma once

#include "SafeTesting.h"
#include "WorkControl.h"

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

struct Ran
{
    int exitCode = -1;
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

/// Runs this test program anew in one of its roles.
inline Ran runRole(const QStringList &arguments)
{
    return runProgram(QCoreApplication::applicationFilePath(), arguments);
}

inline bool makeArchive(const QString &kind, const QString &safe, const QString &target)
{
    return runProgram(
               QStringLiteral("python3"),
               {QStringLiteral(TEST_DATA_DIR "/../safe/make_archive.py"), kind, safe, target})
               .exitCode == 0;
}
