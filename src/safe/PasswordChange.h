#pragma once

#include "FolderLock.h"
#include "ItemFile.h"
#include "SafeEnvironment.h"
#include "SafeFolder.h"
#include "SecretBytes.h"

#include <QMetaType>
#include <QMutex>
#include <QVector>

#include <functional>
#include <memory>

enum class PasswordChangeOutcome {
    Changed,
    Cancelled,
    Busy,       ///< another program, or an archive under way, holds the safe
    Damaged,    ///< something of the safe does not open, and would not under any other password
    NotWritten, ///< the disk may be full or the folder read-only
};
Q_DECLARE_METATYPE(PasswordChangeOutcome)

/// Writes a whole safe anew under another password, beside the old files, which stay complete until
/// removeOldFiles(). Works on values and files alone, so that it may run on any thread.
class PasswordChange
{
public:
    struct Item
    {
        ItemFileName oldName;
        PMItemDocument document; ///< its "hash" is brought up to date for an attachment
        bool attachment = false;
        quint64 revision = 0;   ///< of the item as its document was made
        QDateTime modified;     ///< of the item then
        ItemFileName newName{}; ///< chosen by the run
    };

    struct Safe
    {
        SafeEnvironment environment;
        SafeFolder folder;
        std::shared_ptr<const SecretBytes> oldPassword;
        std::shared_ptr<const SecretBytes> newPassword;
        std::shared_ptr<QMutex> mutex; ///< held to write what others write, too
        QByteArray oldDescription;
        QByteArray newDescription; ///< with another hint; empty: it stays as it is
    };

    explicit PasswordChange(Safe safe);

    /// The items have to be complete before the run.
    void add(const Item &item) { m_items.append(item); }
    int itemCount() const { return m_items.size(); }

    /// Takes the safe's lock file, which is held until removeOldFiles() or the end of the object,
    /// and writes pass id, every new file and the description. Unless it ends with Changed, the old
    /// pass id is back and no new file is left; the reason is logged.
    /// @param draftsReady whether the drafts can follow; waits for that
    /// @param progress told the number of items done, from any thread; may be empty
    PasswordChangeOutcome run(const WorkControl &control, const std::function<bool()> &draftsReady,
                              const std::function<void(int)> &progress = {});

    /// The items as written, for taking the place of the old ones.
    const QVector<Item> &items() const { return m_items; }

    /// Removes the files of the old password. One that cannot be removed is logged and left; it no
    /// longer opens and is passed over on loading.
    void removeOldFiles();

private:
    void chooseNames();
    bool isComplete() const;
    PasswordChangeOutcome rewrite(const WorkControl &control,
                                  const std::function<void(int)> &progress);
    bool backUpPassId();
    bool writePassId();
    bool writeItems(const WorkControl &control, const std::function<void(int)> &progress);
    bool writeItem(Item &item, const WorkControl &control);
    bool reencryptAttachment(Item &item, const WorkControl &control);
    bool writeNewDescription();
    void cleanUp();
    FileLayer &files() const { return *m_safe.environment.files; }

    Safe m_safe;
    FolderLock m_lock;
    QVector<Item> m_items;
    QByteArray m_oldPassId;
    bool m_descriptionTouched = false;
};
