#pragma once

#include "SyncFiles.h"
#include "SyncPlan.h"
#include "SyncWork.h"

#include <QHash>
#include <QVector>

/// Reads what both sides hold of those items that may differ.
class SyncVersions
{
public:
    /// An item with what its files hold.
    struct Item
    {
        SyncItem plan;
        QHash<QString, PMItemDocument> documents; ///< of the readable versions, by their hash
        QHash<QString, QString> attachments;      ///< paths of attachments' files, by their hash
        QHash<QString, QString> attachmentHashes; ///< the same the other way round
    };

    SyncVersions(SyncWork &work, SyncListing local, SyncListing mirror);

    const SyncListing &listing(SyncSide side) const
    {
        return side == SyncSide::Local ? m_local : m_mirror;
    }

    /// The ids of the items with a file that is not as both sides had it, or with a deletion.
    QStringList openIds() const;
    /// The ids of the others that wait for a file.
    QStringList waitingIds(const QStringList &open) const;

    /// Whether both sides hold the bytes that they had, under whatever times; the record gets
    /// those.
    bool isAsMet(const QString &id);

    Item read(const QString &id) const;

    /// Remembers the files of an item that do not open.
    void noteUnread(const Item &item, bool waits);
    /// Forgets those that are not there any more.
    void forgetUnread();

    /// The item of which a version exists here that nobody can read; empty when there is none.
    QString unreadableHere() const;

private:
    QVector<SyncVersion> readSide(SyncSide side, const QString &id, Item &item) const;
    SyncVersion readFile(SyncSide side, const QString &fileName, const FileStamp &stamp,
                         Item &item) const;
    void readAttachments(SyncSide side, const QString &id, Item &item) const;
    /// What is remembered of a file that did not open, when it is still the same.
    const SyncRecord::Unread *unread(const QString &fileName, const FileStamp &stamp) const;
    bool isOld(const SyncRecord::Unread &file) const;
    bool isSettled(const QString &path, SyncSide side, const FileStamp &now) const;
    bool isAsMet(const char *folder, const QMap<QString, FileStamp> &local,
                 const QMap<QString, FileStamp> &mirror, const QString &id);

    SyncWork &m_work;
    SyncListing m_local;
    SyncListing m_mirror;
    bool m_passwordIsMet; ///< what did not open then does not open now
};
