#pragma once

#include "SyncState.h"
#include "SyncVersions.h"
#include "WorkControl.h"

#include <QMutex>

struct SyncResult
{
    /// An item that came from the mirror or was made as a copy.
    struct Item
    {
        ItemFileName name;
        PMItemDocument document;
    };

    SyncState state = SyncState::Done;
    QVector<Item> taken;
    QStringList removed; ///< ids of items that are gone
    QStringList waiting; ///< ids of items that stay as they are until a file is whole
    bool descriptionTaken = false;
    int received = 0; ///< items that came from the mirror
    int sent = 0;     ///< items written to the mirror
    int copies = 0;   ///< versions that lost and were put into the trash
};

/// One meeting of a safe with its mirror: reads both, merges item by item, writes what is missing
/// on either side and remembers it. On the writer of the safe, so that no save comes in between.
/// After an interruption at any moment the next round goes on from what is there.
class SyncRound
{
public:
    struct Safe
    {
        SafeEnvironment environment;
        SafeFolder folder;
        std::shared_ptr<const SecretBytes> password;
        std::shared_ptr<QMutex> mutex;   ///< held for each write to the safe
        QMap<QString, qint64> deleted{}; ///< items just deleted and when, ms since the epoch
    };

    SyncRound(Safe safe, const QString &mirrorFolder);

    SyncResult run(WorkControl &control);

private:
    enum class PassId { Equal, Take, Send, Other, Arriving };

    SyncState prepare();
    PassId comparePassIds();
    void readRecord();
    void noteDeletions(const SyncListing &local);
    bool readMirrorDeletions();
    void carryOut(const QString &id);
    bool makeCopies(const SyncVersions::Item &item, const SyncActions &actions);
    bool makeCopy(const SyncVersions::Item &item, const SyncActions::Copy &copy);
    bool writeWinner(const SyncVersions::Item &item, const SyncActions &actions);
    bool writeBytes(SyncSide side, const SyncVersions::Item &item, const SyncActions &actions);
    bool writeTo(SyncSide side, const SyncActions &actions);
    bool syncPassId();
    bool syncDescription();
    bool sendDeletions();
    void removeSuperseded(bool headerSynced);
    bool removeFiles(SyncSide side, const QStringList &names, const QString &keep);
    void remember(const SyncVersions::Item &item, const SyncActions &actions);
    void saveRecord();
    bool fail(SyncSide side, const QString &path);
    QMutex *mutexOf(SyncSide side) const;
    const SafeFolder &folder(SyncSide side) const;
    FileLayer &files() const { return *m_safe.environment.files; }

    struct Merged
    {
        SyncVersions::Item item;
        SyncActions actions;
    };

    Safe m_safe;
    SafeFolder m_mirror;
    SyncRecord m_record;
    std::optional<SyncRecord> m_recordBefore; ///< as it is on the disk
    SyncRecord::Deletions m_sentDeletions;    ///< as the mirror tells of them
    std::optional<SyncVersions> m_versions;
    QVector<Merged> m_merged;
    PassId m_passId = PassId::Equal;
    SyncResult m_result;
};
