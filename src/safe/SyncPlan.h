#pragma once

#include "ItemFile.h"

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
    };

    QString id;
    QVector<SyncVersion> local;
    QVector<SyncVersion> mirror;
    std::optional<Met> met;
    /// When the item was deleted for good, on either side; nothing for a deletion that has lost
    /// before.
    std::optional<qint64> deleted;
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

/// The change that only one side has made since both met wins, whatever its time. Where both
/// changed, the later one wins and the others are kept as copies. A deletion wins over what is not
/// later; what it had not seen is kept as a copy. A file that is missing on one side without a
/// deletion comes back: folders of providers get emptied by accident.
SyncActions planSync(const SyncItem &item);

/// The id of the copy that keeps a version of an item.
QString syncCopyId(const QString &id, const QString &hash);

/// The title of a copy, with the times of what it keeps and of what that lost to. Dates say the
/// same in every language.
QString syncCopyTitle(const QString &title, const QDateTime &loser, const QDateTime &winner);
