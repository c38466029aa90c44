#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

/// How it stands with a safe and its copy in the cloud folder.
struct CloudStatus
{
    enum class State {
        Off,
        On, ///< not met since the program has started
        Synchronised,
        Running,
        Waiting,           ///< for files that have not arrived whole; the rest is done
        Busy,              ///< the safe is being archived, or its password changed
        NewPasswordNeeded, ///< the password was changed on another computer
        FolderMissing,
        OtherSafe, ///< the folder holds another safe by now
        FolderNotWritten,
        SafeNotWritten,
    };

    State state = State::Off;
    QString mirrorFolder{};
    QDateTime last{};      ///< when both were alike last; null when they never were
    QStringList waiting{}; ///< what waits, by title or, when that is not known, by file name
    int done = 0;          ///< of the items that may differ, while it is running
    int total = 0;         ///< 0 while that is not known

    bool isOn() const { return state != State::Off; }
    /// Whether it stays so until somebody does something about it.
    bool needsAttention() const { return state >= State::NewPasswordNeeded; }
};
