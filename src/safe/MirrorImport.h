#pragma once

#include "ArchiveResult.h"
#include "SafeEnvironment.h"
#include "SafeFolder.h"
#include "WorkControl.h"

#include <QVector>

/// Makes a safe of this computer out of a mirror: copies it into a folder that nobody sees, and
/// gives that its name at the end. What has not arrived in the mirror yet comes with the first
/// meeting. On any thread.
class MirrorImport
{
public:
    /// @param safesFolder where the safe gets a folder of its own; made when missing
    MirrorImport(const SafeEnvironment &environment, const QString &safesFolder);

    /// A failure is logged and leaves no folder. `path` of the result is the safe's folder.
    ArchiveResult run(const QString &mirrorFolder, WorkControl &control);

private:
    using Outcome = ArchiveResult::Outcome;

    struct File
    {
        QString from;
        QString to;
        qint64 size = 0;
        bool isAttachment = false;
    };

    Outcome makeSafe(const QString &mirrorFolder, const QString &newFolder, WorkControl &control);
    Outcome plan(const SafeFolder &mirror);
    Outcome copyAll(WorkControl &control);
    bool copy(const File &file, WorkControl &control);
    bool isWhole(const File &file) const;
    bool complete(const QByteArray &description, const QByteArray &passId);

    const SafeEnvironment &m_environment;
    QString m_safesFolder;
    SafeFolder m_work;
    QVector<File> m_files;
    bool m_readFailed = false;
};
