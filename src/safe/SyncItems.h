#pragma once

#include "SyncMirror.h"
#include "SyncVersions.h"

/// Carries out what is planned for the items of a round. What another computer still needs is
/// removed in a step of its own, after everything that replaces it is there.
class SyncItems
{
public:
    SyncItems(SyncWork &work, SyncMirror &mirror, SyncVersions &versions);

    /// Merges one item: makes the copies, then writes the version that both sides are to hold.
    void merge(const QString &id);
    /// Removes what merging has made superfluous and takes the items into the record.
    /// @param removes whether the mirror tells of everything; nothing is removed otherwise
    void finish(bool removes);

private:
    /// What is left to do for an item.
    struct Merged
    {
        QString id;
        SyncActions actions;
        SyncHistory earlier; ///< what both sides had before
        QString attachmentHash;
        bool bytesToLocal = false;
        bool bytesToMirror = false;
    };

    bool makeCopies(const SyncVersions::Item &item, const SyncActions &actions);
    bool makeCopy(const SyncVersions::Item &item, const SyncActions::Copy &copy);
    bool bringHere(const SyncVersions::Item &item, Merged &merged);
    bool bringThere(const SyncVersions::Item &item, Merged &merged);
    bool isAsSeen(SyncSide side, const QString &fileName) const;
    QString attachmentAt(SyncSide side, const SyncVersions::Item &item, const Merged &merged) const;
    bool removeLocal(const QStringList &fileNames);
    void remember(const Merged &merged);
    void note(const QString &path, const QString &hash, bool toLocal, bool toMirror,
              const Merged &merged);

    SyncWork &m_work;
    SyncMirror &m_mirror;
    SyncVersions &m_versions;
    QVector<Merged> m_merged;
};
