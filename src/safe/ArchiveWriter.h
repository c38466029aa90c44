#pragma once

#include "ArchiveResult.h"
#include "SafeEnvironment.h"
#include "SafeFiles.h"
#include "WorkControl.h"

#include <QSet>

class QuaZip;

/// Writes the archive of a safe. Its lock file has to be held meanwhile.
class ArchiveWriter
{
public:
    ArchiveWriter(const SafeEnvironment &environment, const SafeFolder &folder,
                  WorkControl &control);

    /// Writes beside the target and renames at the end: on failure, which the caller logs, what was
    /// there before is still there. Only the owner may read the archive.
    ArchiveResult write(const QString &target);

    /// Whether files of two passwords lie side by side in the safe; known after write().
    bool mixedGenerations() const { return m_files.mixedGenerations; }

private:
    using Outcome = ArchiveResult::Outcome;

    Outcome writeEntries(QIODevice &device);
    Outcome writeEntry(QuaZip &zip, const SafeFiles::File &file);
    Outcome copy(QIODevice &source, QIODevice &entry);

    const SafeEnvironment &m_environment;
    SafeFolder m_folder;
    WorkControl &m_control;
    SafeFiles m_files;
    QByteArray m_piece;
    qint64 m_written = 0; ///< bytes that went into entries
    QStringList m_leftOut;
    QSet<QString> m_names; ///< of the entries written
};
