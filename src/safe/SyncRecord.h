#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

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

/// What the synchronisation of a safe remembers: each file as it was when the safe and its mirror
/// last met, and the items deleted for good.
struct SyncRecord
{
    struct File
    {
        QString hash;        ///< of the bytes, the same on both sides; see fileHash()
        FileStamp local;     ///< the file in the safe
        FileStamp mirror;    ///< the file in the mirror
        qint64 modified = 0; ///< of the item in it, ms since the epoch

        bool operator==(const File &other) const
        {
            return hash == other.hash && local == other.local && mirror == other.mirror &&
                   modified == other.modified;
        }
    };

    /// An item that was deleted for good at some time, ms since the epoch.
    struct Deletion
    {
        qint64 time = 0;
        qint64 revived = 0; ///< the time of the latest deletion that a later change overcame

        bool counts() const { return time > revived; }
        bool operator==(const Deletion &other) const
        {
            return time == other.time && revived == other.revived;
        }
    };
    using Deletions = QMap<QString, Deletion>; ///< by id

    QMap<QString, File> files; ///< by path inside the safe, as "content/<name>"
    Deletions deletions;
    QByteArray description; ///< the safe's description that both sides had, as JSON
    QString passId;         ///< hash of the pass id that both sides had

    /// Takes over what others know; the later times count, so that the order does not matter.
    void addDeletions(const Deletions &more);

    bool operator==(const SyncRecord &other) const
    {
        return files == other.files && deletions == other.deletions &&
               description == other.description && passId == other.passId;
    }

    QByteArray toJson() const;
    /// Nothing for a text that is no such record; entries that make no sense are left out.
    static std::optional<SyncRecord> fromJson(const QByteArray &json);
};
