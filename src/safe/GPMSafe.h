#pragma once

#include "ArchiveTask.h"
#include "DraftStore.h"
#include "MirrorMeetings.h"
#include "SafeAttachments.h"
#include "SafePasswordChange.h"
#include "SafeSaving.h"
#include "SafeState.h"
#include "SafeUnlock.h"

#include <QFutureWatcher>
#include <QObject>

#include <functional>
#include <memory>
#include <vector>

/// One safe: a folder with a description, a check of the master password, and one encrypted file
/// for each item and each attachment. Closed, then open (its description is known), then unlocked
/// (password and items are held), then locked again.
///
/// The object and its items live on the GUI thread; key derivation and file writes of the
/// asynchronous calls run on workers. A failed call logs one line and leaves what was there.
class GPMSafe : public QObject
{
    Q_OBJECT

public:
    explicit GPMSafe(SafeEnvironment environment = {}, QObject *parent = nullptr);
    /// Locks first, which saves.
    ~GPMSafe() override;

    /// Makes a new safe in an existing folder that holds none, and leaves it unlocked and empty.
    /// On failure the folder is as it was.
    bool init(const QString &folder, const QString &password, const QString &name,
              const QString &hint);

    /// Attaches to the folder of a safe and reads its description.
    bool open(const QString &folder);
    /// The same with the description that somebody has just read there.
    bool open(const QString &folder, const SafeDescription &description);
    bool readMetaFile();

    /// Writes the description, to another path when one is given.
    bool writeMetaFile(const QString &targetPath = {});

    /// Gives the safe another name and writes the description, behind what is being written.
    QFuture<bool> renameAsync(const QString &name);

    /// Checks the password and loads the items; they are there when it returns.
    bool unlock(const QString &password);

    /// The same on the workers. unlockProgress() and then unlockFinished() follow; a call while one
    /// runs cancels that one without a signal.
    /// @param mirrorFolder where another computer may have given the safe its password; may be
    /// empty
    void unlockAsync(const QString &password, const QString &mirrorFolder = {});
    void cancelUnlock();

    /// What a lock does with changes that cannot be written.
    enum class Unsaved {
        Keep, ///< keeps them as drafts
        Ask   ///< lockFailed() asks, as long as no other lock comes in between
    };

    /// Locks at once: nothing of the safe is shown or given out any more. What is changed is saved
    /// on the writer, which needs the password as long; then password and items are forgotten, and
    /// lockSettled() follows. What cannot be written is kept as drafts, and saved() tells. With
    /// nothing to write, all of that has happened when it returns.
    void lockAsync(Unsaved unsaved = Unsaved::Keep);
    /// The same with its end awaited.
    void lock() { lockWithin(-1); }
    /// @param quietMs gives up when nothing gets on for so long, and keeps drafts; -1: never
    void lockWithin(int quietMs);
    /// Whether a lock is still saving. Unlocking waits for it.
    bool isSettling() const { return m_lock.step != Lock::None; }
    /// The next lock, or the one that asks, neither saves nor keeps what is changed.
    void giveUpChanges() { m_givesUp = true; }
    /// Unlocks the safe again, as the answer to lockFailed().
    void reopen();

    /// Writes every changed item. False when one could not be written: it stays marked as changed,
    /// the others are written.
    bool saveChanges();

    /// The same on a worker; saved() follows. Calls are carried out in order.
    void saveChangesAsync();

    /// Re-encrypts the whole safe. On failure the old password stays in force, every file is as
    /// before and no new one is left.
    bool changePassword(const QString &newPassword,
                        const std::function<void(int done, int total)> &progress = {});

    /// The same on the writer, with a new hint; passwordChangeProgress() and then
    /// passwordChangeFinished() follow. Until then edits are kept in memory and saved behind it,
    /// items cannot be removed, and the mirror is not met. Locking cancels it. False when it cannot
    /// begin.
    bool changePasswordAsync(const QString &newPassword, const QString &hint);
    /// passwordChangeFinished() follows, with Changed when every file was written already.
    void cancelPasswordChange() { m_passwordChange.cancel(); }
    bool isChangingPassword() const { return m_passwordChange.isRunning(); }

    /// Whether locking has to wait for something that is being written.
    bool isWriting() const
    {
        return isChangingPassword() || m_state.writer.activeThreadCount() > 0;
    }

    /// Makes the safe and its mirror alike on the writer; mirrorMet() follows. It gives way to
    /// everything else that writes. False when the safe is locked or a meeting is under way.
    /// @param deleted items removed since the last meeting
    bool meetMirror(const QString &mirrorFolder, const SyncRecord::Deletions &deleted);
    /// Stops a meeting soon; mirrorMet() follows.
    void cancelMeeting() { m_meetings.cancel(); }

    /// A task, to be started, that writes the safe with all that was saved before this call into
    /// one archive. Locked or not, needs no password. Null while no safe is open.
    std::unique_ptr<ArchiveTask> exportArchive(const QString &archivePath);

    /// Whether this is the password of the unlocked safe.
    bool isPassword(const QString &password) const;

    const QString &folder() const { return m_state.folder.root(); }
    /// Name of the folder, which stays while the safe's own name may change.
    QString id() const;
    QString name() const { return m_state.description.name; }
    QString hint() const { return m_state.description.hint; }
    QDateTime created() const;
    QDateTime modified() const;
    /// Takes effect on disk with the next write of the description.
    void setName(const QString &name) { m_state.description.name = name; }
    void setHint(const QString &hint) { m_state.description.hint = hint; }

    bool isOpen() const { return !folder().isEmpty(); }
    bool isUnlocked() const { return m_state.isUnlocked() && !isSettling(); }
    /// Whether the last lock could save everything.
    bool savedAtLock() const { return m_savedAtLock; }

    /// The items in order of their ids; owned by the safe, gone when it locks.
    std::vector<PMListItem *> items() const
    {
        return isUnlocked() ? m_state.items.items() : std::vector<PMListItem *>();
    }
    /// Null when there is no such item.
    PMListItem *item(const QString &id) const
    {
        return isUnlocked() ? m_state.items.item(id) : nullptr;
    }
    int itemCount() const { return isUnlocked() ? m_state.items.count() : 0; }

    /// Files of the content folder that could not be read when the safe was unlocked; they are left
    /// as they are.
    const QStringList &unreadableFiles() const { return m_state.unreadableFiles; }

    /// Whether a change of password was interrupted: some items open with the new password alone,
    /// the others still with the old one, and the copy of the old pass id opens them all.
    bool isChangeInterrupted() const { return m_state.changeInterrupted; }

    /// Takes a new item in; gives it an id and its times where it has none. It reaches the disk
    /// with the next save. Null, with nothing taken in, when the safe is locked or has an item of
    /// that id.
    PMListItem *addItem(std::unique_ptr<PMListItem> item);

    /// Takes a new attachment in with the bytes of an open device, which are encrypted at once.
    PMListItem *addAttachment(std::unique_ptr<PMListItem> item, QIODevice &bytes)
    {
        return isUnlocked() ? m_attachments.add(std::move(item), bytes) : nullptr;
    }

    /// The same on a worker, in the order of the calls; attachmentDone() follows. Once it is in,
    /// the item of the given id refers to it, and everything is saved. Locking waits for it.
    void addAttachmentAsync(std::unique_ptr<PMListItem> item, const AttachmentSource &source,
                            const QString &parentId = {})
    {
        if (isUnlocked())
            m_attachments.addAsync(std::move(item), source, parentId);
    }

    /// Decrypts an attachment's bytes into an open device, which is to be thrown away on failure.
    bool readAttachment(const QString &id, QIODevice &destination) const
    {
        const std::optional<AttachmentReader> reader = attachmentReader(id);
        return reader && reader->read(destination);
    }
    /// What does so on another thread; nothing when there is no such item.
    std::optional<AttachmentReader> attachmentReader(const QString &id) const
    {
        return isUnlocked() ? m_attachments.reader(id) : std::nullopt;
    }
    /// The size of an attachment's bytes, up to 15 above the true one; -1 when they are missing.
    qint64 attachmentSize(const QString &id) const { return m_attachments.size(id); }

    /// The edits of this safe that were not saved.
    DraftStore &drafts() { return m_drafts; }

    /// Marks an item as changed now; see nextModified().
    void touchItem(PMListItem &item);

    /// Deletes items for good: notes them in the list of deleted items, then removes their files.
    /// False when the note cannot be written, or a file not removed: its item is still there.
    bool removeItems(const QStringList &ids);

    /// Notes ids in the list of deleted items.
    bool commitDeleted(const QStringList &ids);

Q_SIGNALS:
    void unlockProgress(int done, int total);
    void unlockFinished(SafeUnlock::Outcome outcome);
    void saved(bool good, const QStringList &failedPaths);
    void passwordChangeProgress(int done, int total);
    void passwordChangeFinished(PasswordChangeOutcome outcome);
    /// A new attachment is in, or is not because of a fault; its title is that of the given item.
    void attachmentDone(const QString &id, const QString &title, AttachmentFault fault);
    /// How far a meeting is, counted in items that may differ.
    void meetingProgress(int done, int total);
    /// The items are those that a meeting with the mirror brought.
    void mirrorMet(const SyncResult &result);
    void itemsReset();
    void itemAdded(const QString &id);
    /// The item is still there; views let go of it now.
    void itemAboutToBeRemoved(const QString &id);
    void itemRemoved(const QString &id);
    void lockedChanged(bool locked);
    /// A lock that was to ask could not save everything. Whoever hears it answers before it
    /// returns: lockAsync() tries again, reopen() and giveUpChanges() say so; else drafts are kept.
    void lockFailed();
    /// A lock is done: nothing is written any more, and nothing is held.
    void lockSettled();

private:
    bool canUnlock() const;
    bool mayChangePassword(const QString &newPassword) const;
    void onPasswordChangeFinished(PasswordChangeOutcome outcome);
    void takeUnlocked(SafeUnlock &unlock);
    void onUnlockFinished(SafeUnlock::Outcome outcome);
    friend class MirrorMeetings;
    friend class SafeAttachments;
    /// addItem() for the safe's own parts, while a lock waits for them, too.
    PMListItem *takeIn(std::unique_ptr<PMListItem> item);
    void waitForWriter();
    void settle();
    void awaitWriter();
    void settleOn();
    void onLastSave();
    bool waitForStep(int quietMs);
    void giveUpWriting();
    void finishLock(const SaveJob::Result &result);

    /// A lock that still saves.
    struct Lock
    {
        enum Step {
            None,
            UnderWay, ///< waits for what the writer has in hand
            LastSave, ///< writes what is still changed
            Asking,
            Drafts ///< keeps what could not be written
        };
        Step step = None;
        Unsaved unsaved = Unsaved::Keep;
        bool isTold = false;       ///< lockedChanged() was emitted
        QFutureWatcher<void> idle; ///< of the step
    };

    SafeState m_state;
    Lock m_lock;
    bool m_givesUp = false;
    bool m_savedAtLock = true;
    std::unique_ptr<SafeUnlock> m_unlock;
    SafeSaving m_saving;
    SafeAttachments m_attachments;
    MirrorMeetings m_meetings;
    DraftStore m_drafts;
    SafePasswordChange m_passwordChange;
    bool m_saveWaits = false; ///< for the end of a change of password
};
