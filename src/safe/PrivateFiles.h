#pragma once

#include "RandomSource.h"

#include <QIODevice>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// Decrypted copies for other programs. Each lies in a folder of its own that the owner alone can
/// enter, until all are wiped together.
class PrivateFiles
{
public:
    using Produce = std::function<bool(QIODevice &)>;

    /// The folders where the program's private files may lie, the one to use first: in the folder
    /// that the system keeps in memory for the user, where there is one, else with the program's
    /// data.
    static QStringList places(const QString &runtimeFolder, const QString &dataFolder);

    /// @param places see places(); all of them are wiped, the first is used
    explicit PrivateFiles(QStringList places, RandomSource random = systemRandom);
    /// Wipes.
    ~PrivateFiles();
    PrivateFiles(const PrivateFiles &) = delete;
    PrivateFiles &operator=(const PrivateFiles &) = delete;

    /// How often the files were wiped; see create().
    int wipes() const;

    /// Writes a file that can only be read and returns its path; nothing, with nothing left, when
    /// that fails or the files were wiped since it was asked for. On any thread.
    /// @param fileName without folders
    /// @param wipes what wipes() said when the file was asked for, maybe long before a worker came
    ///              to it
    std::optional<QString> create(const QString &fileName, const Produce &produce, int wipes);

    /// Overwrites and removes every file, those of an earlier run too. What cannot be removed, as
    /// a file that another program holds open on some systems, is logged and tried again by the
    /// next call. True when nothing is left.
    bool wipe();

private:
    bool wipeFolder(const QString &folder) const;

    QStringList m_places;
    RandomSource m_random;
    mutable QMutex m_mutex;
    int m_wipes = 0; ///< guarded by the mutex
};
