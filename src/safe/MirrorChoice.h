#pragma once

#include "FileLayer.h"

#include <QMetaType>
#include <QStringList>

/// Where the mirror of a safe goes in a folder that several computers share.
struct MirrorChoice
{
    enum class Fault {
        None,
        NotThere,   ///< there is no such folder, as on a drive that is not connected
        InsideSafe, ///< the folder lies in the safe
        AroundSafe, ///< the safe lies in the folder, which carries it already
        InBackups,
        OtherSafe,   ///< the folder is, or lies in, the mirror or the folder of another safe
        Taken,       ///< another safe of this computer has that mirror, as a copy of this one would
        NotWritable, ///< its folders cannot be made: the disk is full, or the folder read-only
    };

    struct Wish
    {
        QString safeFolder;
        qint64 created = 0;   ///< of the safe, ms since the epoch; the same for all its copies
        QString sharedFolder; ///< in which the mirror is to be a folder of its own
        QString backupFolder{};
        QStringList taken{};       ///< mirrors of the other safes of this computer
        QStringList safeFolders{}; ///< of all safes of this computer
    };

    Fault fault = Fault::None;
    QString folder{};    ///< of the mirror
    bool joins = false;  ///< another computer has made it already
    QString otherName{}; ///< of the safe that is in the way

    bool good() const { return fault == Fault::None; }

    /// Looks for a mirror of the same safe first; the name of a new one follows from the safe, so
    /// that two computers which make it at the same time make the same one.
    static MirrorChoice make(FileLayer &files, const Wish &wish);
};

Q_DECLARE_METATYPE(MirrorChoice)
