#pragma once

#include "SafeEnvironment.h"
#include "SafeFolder.h"
#include "WorkControl.h"

#include <QStringList>

/// Deletes a safe from the disk: its own files, its drafts and nothing else. In one step the safe
/// is gone, and only then its files are removed, so that an interruption leaves a safe that opens
/// or none. On any thread.
class SafeRemoval
{
public:
    enum class Outcome {
        Done,
        NotFound, ///< there is no such folder, or no safe in it
        Busy,     ///< its password is being changed, or it is being archived
        InUse,    ///< another program has it open
        Failed,   ///< nothing was removed, the safe is as it was
    };

    struct Result
    {
        Outcome outcome = Outcome::Done;
        /// What is still there: the folder, when files lie in it that are not the safe's, or what
        /// could not be removed. Empty when everything is gone.
        QString left;
        QStringList foreign; ///< files and folders that are not the safe's, inside the folder
    };

    /// @param hasNamesake see DraftStore::removeAll()
    explicit SafeRemoval(const SafeEnvironment &environment, bool hasNamesake = false)
        : m_environment(environment)
        , m_hasNamesake(hasNamesake)
    {
    }

    /// A failure is logged.
    Result run(const QString &folder, WorkControl &control) const;

    /// Whether a folder is what a deletion has begun to remove.
    static bool isUnfinished(const QString &folderName);
    /// Removes what interrupted deletions left beside other safes.
    void clearUnfinished(const QString &safesFolder) const;

private:
    struct Content
    {
        QStringList files;   ///< the safe's, inside the folder
        QStringList folders; ///< the safe's
        QStringList foreign;
    };

    static Content listContent(const SafeFolder &folder);
    Result removeWhole(const SafeFolder &folder, const Content &content) const;
    Result removeAmong(const SafeFolder &folder, const Content &content) const;
    void removeFiles(const QString &root, const Content &content) const;

    const SafeEnvironment &m_environment;
    bool m_hasNamesake;
};
