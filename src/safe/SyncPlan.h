#pragma once

#include "ItemFile.h"
#include "SyncRecord.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// What is to be done for one item so that a safe and its mirror hold the same of it. Values only:
/// nothing here touches a file.

enum class SyncSide { Local, Mirror };

/// A file that holds the item, or is said to by its name.
struct SyncVersion
{
    QString fileName;  ///< in the content folder of its side
    ItemFileName item; ///< what it is of; for a provider's conflict copy, of the original
    QString hash;      ///< of its bytes
    /// It decrypts, and the bytes of an attachment are there. What is not readable may still be
    /// arriving, or be of another password.
    bool readable = false;
    /// It does not open and has not changed for so long that it is not arriving any more.
    bool stuck = false;
    bool conflictCopy = false; ///< see SyncFileName
    qint64 modified = 0;       ///< of the item, ms since the epoch
    QByteArray content{};      ///< equal for files that hold the same item under other bytes
};

/// One item on both sides.
struct SyncItem
{
    /// The file that was the same on both sides when they last met.
    struct Met
    {
        QString hash;
        qint64 modified = 0;
        SyncHistory earlier{}; ///< what both sides had before
    };
    /// It was deleted for good, on either side.
    struct Deletion
    {
        qint64 time = 0;    ///< ms since the epoch
        SyncHistory seen{}; ///< the versions that those who deleted it knew
    };

    QString id;
    QVector<SyncVersion> local;
    QVector<SyncVersion> mirror;
    std::optional<Met> met;
    std::optional<Deletion> deleted; ///< nothing for a deletion that has lost before
    QStringList former{}; ///< hashes of bytes that the safe had of it under earlier passwords
};

struct SyncActions
{
    struct Source
    {
        SyncSide side = SyncSide::Local;
        SyncVersion version;
    };
    /// A version that lost, to be kept in the safe's trash as an item of its own.
    struct Copy
    {
        QString id; ///< the same on every computer that keeps this version
        Source source;
        qint64 winnerModified = 0; ///< of what it lost to
    };

    /// The version that both sides are to hold; nothing when none is left or none can be told.
    std::optional<Source> winner;
    ItemFileName target; ///< the name it has afterwards
    bool toLocal = false;
    bool toMirror = false;
    QVector<Copy> copies;      ///< to be made before anything is overwritten
    QStringList removeLocal;   ///< files of the content folder, each with its attachment
    QStringList removeMirror;  ///< to be removed after everything was written
    bool deletionWins = false; ///< the item goes on both sides
    bool waiting = false;      ///< a file in the mirror is not whole yet; the item stays as it is

    bool isEmpty() const
    {
        return !toLocal && !toMirror && copies.isEmpty() && removeLocal.isEmpty() &&
               removeMirror.isEmpty();
    }
};

/// What has seen the other wins: the change that only one side has made since both met, and a
/// deletion over the versions that it was made on. Of changes made without each other the later
/// one wins and the others are kept as copies; a change that a deletion had not seen is kept as a
/// copy, too, or overcomes the deletion when it is later. A version that both sides have left
/// behind does not come back. A file that is missing on one side without a deletion does: folders
/// of providers get emptied by accident.
///
/// Times of change tell versions apart, so every change of an item has to set a later one than the
/// version it was made on; see nextModified(). Whether a clock is right does not matter then.
///
/// Of a file that does not open nothing is known: it may be half of something, or of another
/// password, and the two cannot be told apart for sure. It is removed only where it has been read
/// before, as what both sides had or this one, and nothing else is ever written over.
SyncActions planSync(const SyncItem &item);

/// The id of the copy that keeps a version of an item.
QString syncCopyId(const QString &id, const QString &hash);

/// The title of a copy, with the times of what it keeps and of what that lost to. Dates say the
/// same in every language.
QString syncCopyTitle(const QString &title, const QDateTime &loser, const QDateTime &winner);
