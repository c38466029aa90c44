#pragma once

#include "SafeDescription.h"
#include "SyncFiles.h"
#include "SyncMirror.h"
#include "SyncWork.h"

/// The files of which a safe has one each, in a round: pass id, description, and what the mirror
/// tells of deletions. Conflict copies of them are merged and cleared.
class SyncHeader
{
public:
    SyncHeader(SyncWork &work, SyncMirror &mirror);

    /// Whether the mirror is this safe's, and of which password. Done when a round may go on.
    SyncState read();
    /// Takes the items deleted here into the record.
    void noteDeletions(const SyncListing &local);
    /// Whether the mirror is to hear of a new password in the place of another.
    bool replacesPassword() const;

    /// Writes what differs. False, too, when others may not hear of it as the round is not whole.
    bool write();

private:
    enum class PassId { Equal, Take, Send, Other, Arriving };

    PassId comparePassIds();
    bool readDeletions();
    bool syncPassId();
    bool syncDescription();
    std::optional<SafeDescription> readMirrorDescription(const SafeDescription &own);
    bool sendDeletions();
    void clearCopies();
    QStringList copiesOf(const char *name) const;
    QString inMirror(const QString &name) const;

    SyncWork &m_work;
    SyncMirror &m_mirror;
    QStringList m_mirrorFiles; ///< names
    QStringList m_merged;      ///< paths of copies that are of no use any more
    /// As the mirror tells of them; nothing when it does so in a file that does not open.
    std::optional<SyncRecord::Deletions> m_sentDeletions = SyncRecord::Deletions();
    PassId m_passId = PassId::Equal;
};
