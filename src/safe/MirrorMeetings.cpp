#include "MirrorMeetings.h"

#include "GPMSafe.h"

#include <algorithm>

MirrorMeetings::MirrorMeetings(GPMSafe &safe, SafeState &state)
    : m_safe(safe)
    , m_state(state)
{
}

bool MirrorMeetings::start(const QString &mirrorFolder, const SyncRecord::Deletions &deleted)
{
    if (!m_state.isUnlocked() || (m_meeting && !m_meeting->isTaken()))
        return false;
    // What the last one brought may just be told of.
    if (m_meeting)
        m_meeting.release()->deleteLater();
    m_meeting = std::make_unique<SyncMeeting>(
        m_state.writer,
        SyncRound({m_state.environment, m_state.folder, m_state.password, m_state.mutex, deleted},
                  mirrorFolder),
        [this](const SyncResult &result) { takeResult(result); });
    QObject::connect(m_meeting.get(), &SyncMeeting::progress, &m_safe, &GPMSafe::meetingProgress);
    return true;
}

void MirrorMeetings::cancel()
{
    if (m_meeting)
        m_meeting->cancel();
}

void MirrorMeetings::take()
{
    if (m_meeting)
        m_meeting->take();
}

void MirrorMeetings::takeResult(const SyncResult &result)
{
    if (!m_state.isUnlocked())
        return;
    for (const SyncResult::Item &taken : result.taken)
        takeItem(taken);
    for (const QString &id : result.removed)
        dropItem(id);
    if (result.descriptionTaken)
        m_safe.readMetaFile();
    Q_EMIT m_safe.mirrorMet(result);
}

void MirrorMeetings::takeItem(const SyncResult::Item &taken)
{
    PMListItem *known = m_state.items.item(taken.name.id);
    if (known && taken.renamed) {
        m_state.items.setFileName(taken.name);
        return;
    }
    if (known && known->isChanged()) {
        keepBeside(taken, *known);
        return;
    }
    if (known && taken.document.applyTo(*known)) {
        known->setId(taken.name.id);
        known->markSaved(known->revision());
        m_state.items.setFileName(taken.name);
        return;
    }
    std::unique_ptr<PMListItem> item = taken.document.toItem();
    if (known || !item)
        return;
    item->setId(taken.name.id);
    item->markSaved(item->revision());
    m_state.items.add(std::move(item));
    m_state.items.setFileName(taken.name);
    // What a lock hides is told to nobody.
    if (m_safe.isUnlocked())
        Q_EMIT m_safe.itemAdded(taken.name.id);
}

/// An item was edited here meanwhile: that will be saved, and what came is kept as a copy.
void MirrorMeetings::keepBeside(const SyncResult::Item &taken, PMListItem &edited)
{
    m_state.items.setFileName(taken.name);
    std::unique_ptr<PMListItem> copy = taken.document.toItem();
    const QDateTime theirs = copy ? copy->modified() : QDateTime();
    if (copy && copy->type() != PMListItem::Attachment) {
        copy->setId(QString());
        copy->setTitle(syncCopyTitle(copy->title(), copy->modified(), edited.modified()));
        copy->setDeleted(true);
        m_safe.takeIn(std::move(copy));
    }
    // Else it would be told to have been left behind.
    edited.setModified(std::max(edited.modified(), theirs));
    m_safe.touchItem(edited);
    m_safe.saveChangesAsync();
}

void MirrorMeetings::dropItem(const QString &id)
{
    const PMListItem *item = m_state.items.item(id);
    // An edit that is not saved yet is later than the deletion.
    if (!item || item->isChanged())
        return;
    const bool isShown = m_safe.isUnlocked();
    if (isShown)
        Q_EMIT m_safe.itemAboutToBeRemoved(id);
    m_state.items.remove(id);
    if (isShown)
        Q_EMIT m_safe.itemRemoved(id);
}
