#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>

/// How writing or reading the archive of a safe ended.
class ArchiveResult
{
    Q_GADGET

public:
    enum class Outcome {
        Done,
        Cancelled,
        NotFound,       ///< there is no such archive, or no such folder
        SafeBusy,       ///< a change of password or another archive of the safe is under way
        SafeUnreadable, ///< a file of the safe cannot be read, or its folder has gone
        CannotWrite,    ///< a full disk, a folder that may not be written to or has gone
        TooLarge,       ///< more than 4 GiB, or a hundred times the archive's size, unpacked
        NotAnArchive,
        Damaged,     ///< cut short, or a checksum that does not fit
        Unsupported, ///< an entry with a password, or packed in a way that is not read
        UnsafeEntry, ///< an entry that leaves the folder, or a symbolic link
        NameTwice,
        NotArrived, ///< files of a cloud folder have not come to this computer yet
        NoSafe,     ///< there is no safe in the archive, or in the folder
    };
    Q_ENUM(Outcome)

    Outcome outcome = Outcome::Done;
    QString path{}; ///< the archive written, or the folder of the safe that was made
    QStringList
        leftOut{};   ///< files of the safe that could not be opened and are not in the archive
    qint64 size = 0; ///< of the archive, in bytes

    bool good() const { return outcome == Outcome::Done; }
};

Q_DECLARE_METATYPE(ArchiveResult)
