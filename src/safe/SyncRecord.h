#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// A file's length and time: what tells without reading it that it may have changed.
struct FileStamp
{
    qint64 length = -1;
    qint64 time = 0; ///< of its last change, ms since an epoch of the system's own

    bool operator==(const FileStamp &other) const
    {
        return length == other.length && time == other.time;
    }
    bool operator!=(const FileStamp &other) const { return !(*this == other); }
};

/// The versions of one item that somebody has seen, each by its time of change, ms since the epoch.
/// In order, and no more than the latest ones.
using SyncHistory = QVector<qint64>;

SyncHistory joined(const SyncHistory &history, const SyncHistory &more);

/// Those before a version.
SyncHistory before(const SyncHistory &history, qint64 modified);

/// What the synchronisation of a safe remembers: each file as it was when the safe and its mirror
/// last met, and the items deleted for good.
struct SyncRecord
{
    struct File
    {
        QString hash;          ///< of the bytes, the same on both sides; see fileHash()
        FileStamp local;       ///< the file in the safe
        FileStamp mirror;      ///< the file in the mirror
        qint64 modified = 0;   ///< of the item in it, ms since the epoch
        SyncHistory earlier{}; ///< what both sides had before

        bool operator==(const File &other) const
        {
            return hash == other.hash && local == other.local && mirror == other.mirror &&
                   modified == other.modified && earlier == other.earlier;
        }
    };

    /// An item that was deleted for good at some time, ms since the epoch.
    struct Deletion
    {
        qint64 time = 0;
        qint64 revived = 0; ///< the time of the latest deletion that a later change overcame
        SyncHistory seen{}; ///< the versions that those who deleted it knew

        bool counts() const { return time > revived; }
        bool operator==(const Deletion &other) const
        {
            return time == other.time && revived == other.revived && seen == other.seen;
        }
    };
    using Deletions = QMap<QString, Deletion>; ///< by id

    /// A file in the mirror that did not open, so that it is not tried again until it changes.
    struct Unread
    {
        QString hash;
        FileStamp stamp;
        qint64 since = 0;   ///< when it was first seen with these bytes, ms since the epoch
        bool waits = false; ///< its item waits for it
        bool stuck = false; ///< it was so old that the item went on without it

        bool operator==(const Unread &other) const
        {
            return hash == other.hash && stamp == other.stamp && since == other.since &&
                   waits == other.waits && stuck == other.stuck;
        }
    };

    QMap<QString, File> files;    ///< by path inside the safe, as "content/<name>"
    QMap<QString, Unread> unread; ///< by name in the mirror's content folder
    Deletions deletions;
    /// By id: the bytes that the safe's item had under earlier passwords, as hashes, the latest
    /// last.
    QMap<QString, QStringList> former;
    QByteArray description;     ///< the safe's description that both sides had, as JSON
    QString passId;             ///< hash of the pass id that both sides had
    QStringList earlierPassIds; ///< and of those before, the latest last

    /// Notes the hash of the pass id that both sides have now.
    void setPassId(const QString &hash);
    /// Takes over what others know; the later times count, so that the order does not matter.
    void addDeletions(const Deletions &more);

    bool operator==(const SyncRecord &other) const
    {
        return files == other.files && unread == other.unread && deletions == other.deletions &&
               former == other.former && description == other.description &&
               passId == other.passId && earlierPassIds == other.earlierPassIds;
    }

    QByteArray toJson() const;
    /// Nothing for a text that is no such record; entries that make no sense are left out.
    static std::optional<SyncRecord> fromJson(const QByteArray &json);
};
