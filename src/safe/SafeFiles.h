#pragma once

#include "SafeFolder.h"

#include <QStringList>

#include <optional>

/// The files of a safe that belong into an archive: its descriptions and pass id, then those of
/// content, attachment and favicon.
struct SafeFiles
{
    struct File
    {
        QString entryName; ///< its path inside the folder, with forward slashes
        QString path;
        qint64 size = 0;
    };

    QVector<File> files;
    qint64 totalSize = 0; ///< in bytes
    /// Files of two passwords lie side by side, as an interrupted change of password leaves them.
    bool mixedGenerations = false;

    /// Nothing when a folder of the safe cannot be listed.
    static std::optional<SafeFiles> list(const SafeFolder &folder);

private:
    bool addFolder(const SafeFolder &folder, const char *name);
    void add(const QString &entryName, const QString &path);
};
