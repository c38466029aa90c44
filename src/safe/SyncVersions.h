#pragma once

#include "SecretBytes.h"
#include "SyncFiles.h"
#include "SyncPlan.h"

#include <QHash>
#include <QVector>

#include <memory>

/// Reads what both sides hold of those items that may differ, on any thread.
class SyncVersions
{
public:
    struct Side
    {
        SafeFolder folder;
        SyncListing listing;
    };
    /// An item with what its files hold.
    struct Item
    {
        SyncItem plan;
        QHash<QString, PMItemDocument> documents; ///< of the readable versions, by their hash
        QHash<QString, QString> attachments;      ///< paths of attachments' files, by their hash
    };

    SyncVersions(SafeEnvironment environment, std::shared_ptr<const SecretBytes> password,
                 Side local, Side mirror, const SyncRecord &record);

    const Side &local() const { return m_local; }
    const Side &mirror() const { return m_mirror; }

    /// The ids of the items with a file that is not as both sides had it, or with a deletion.
    QStringList openIds() const;

    Item read(const QString &id) const;

private:
    QVector<SyncVersion> readSide(const Side &side, bool isLocal, const QString &id,
                                  Item &item) const;
    void readAttachments(const Side &side, const QString &id, Item &item) const;
    bool isSettled(const QString &path, FileStamp SyncRecord::File::*stamp,
                   const FileStamp &now) const;

    SafeEnvironment m_environment;
    std::shared_ptr<const SecretBytes> m_password;
    Side m_local;
    Side m_mirror;
    const SyncRecord &m_record;
};
