#pragma once

#include "ArchiveResult.h"
#include "SafeEnvironment.h"
#include "SafeFolder.h"
#include "WorkControl.h"

#include <QThreadPool>

#include <atomic>

class ArchiveReader;

/// Makes a safe from an archive: unpacks into a folder that nobody sees, completes it, and gives it
/// its name at the end. On any thread.
class SafeImport
{
public:
    /// @param safesFolder where the new safe gets a folder of its own; made when missing
    SafeImport(const SafeEnvironment &environment, const QString &safesFolder);

    /// A failure is logged and leaves no folder. `path` of the result is the new safe's folder. Its
    /// name is the old one with today's date.
    ArchiveResult run(const QString &archivePath, WorkControl &control);

    /// Whether a folder of the standard place is one that an import works in.
    static bool isUnfinished(const QString &folderName);
    /// Such a folder, and the lock file of those who work in one.
    static QString workFolder(const QString &safesFolder, const QString &id);
    static QString lockPath(const QString &safesFolder);

private:
    using Outcome = ArchiveResult::Outcome;

    Outcome makeSafe(const QString &archivePath, const QString &newFolder, WorkControl &control);
    void clearUnfinished() const;
    Outcome unpack(ArchiveReader &reader, WorkControl &control);
    Outcome complete();
    bool force(const QString &path);
    bool writePassId(const QString &fromDescription);

    const SafeEnvironment &m_environment;
    QString m_safesFolder;
    SafeFolder m_work;
    std::atomic<bool> m_notForced{false};
    QThreadPool m_forcing; ///< waits for the disk, which likes to do several at once
};
