#pragma once

#include <QLockFile>
#include <QString>

#include <memory>
#include <optional>

/// The mark in a safe's folder that says that somebody has the safe open: a lock file with the name
/// of the computer and the number of the process. One that a process of this computer left when it
/// crashed counts for nothing.
class SafeUse
{
public:
    /// Who else has a safe open.
    struct Other
    {
        QString computer;
        bool isHere = false; ///< it is this computer
    };

    ~SafeUse() { release(); }

    /// Nothing while nobody else has the safe of the folder open, or nobody can tell.
    static std::optional<Other> other(const QString &folder);

    /// Puts the mark up until it is released or put up elsewhere. False when another's is there, or
    /// when the folder cannot be written to.
    /// @param takeOver to replace that of another computer, which may have left it behind; that of
    ///                 a program that runs on this one stays
    bool take(const QString &folder, bool takeOver = false);
    void release() { m_lock.reset(); }

private:
    std::unique_ptr<QLockFile> m_lock;
};
