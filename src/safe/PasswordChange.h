#pragma once

#include "ItemFile.h"
#include "SafeEnvironment.h"
#include "SafeFolder.h"

#include <QStringList>
#include <QVector>

#include <atomic>
#include <functional>

/// Writes a whole safe anew under another password, beside the old files, which stay complete until
/// removeOldFiles(). Works on values and files alone, so that it may run on any thread.
class PasswordChange
{
public:
    struct Item
    {
        ItemFileName oldName;
        ItemFileName newName;
        PMItemDocument document; ///< its "hash" is brought up to date for an attachment
        bool attachment = false;
    };

    /// What is to be done for an item: its next generation is the first whose files are not there,
    /// so that what an interrupted change left stays as it is.
    static Item plan(const PMListItem &item, const ItemFileName &name, const SafeFolder &folder);

    /// Whether every attachment has its bytes.
    static bool isComplete(const QVector<Item> &items, const SafeFolder &folder);

    /// Both passwords have to outlive the object.
    PasswordChange(const SafeEnvironment &environment, const SafeFolder &folder,
                   const QByteArray &oldPassword, const QByteArray &newPassword,
                   QVector<Item> items);

    /// Writes the pass id and every new file. On failure, logged, the old pass id is back and no
    /// new file is left.
    /// @param progress told the number of items done, from any thread; may be empty
    /// @param cancelled stops the run when it becomes true; may be null
    bool run(const std::function<void(int)> &progress = {},
             const std::atomic<bool> *cancelled = nullptr);

    /// The items as written, for taking the place of the old ones.
    const QVector<Item> &items() const { return m_items; }

    /// Removes the files of the old password. One that cannot be removed is logged and left; it no
    /// longer opens and is passed over on loading.
    void removeOldFiles();

private:
    bool backUpPassId();
    bool writePassId();
    bool writeItems(const std::function<void(int)> &progress, const std::atomic<bool> *cancelled);
    bool writeItem(Item &item);
    bool reencryptAttachment(Item &item);
    void cleanUp();

    const SafeEnvironment &m_environment;
    SafeFolder m_folder;
    QByteArray m_oldPassword;
    QByteArray m_newPassword;
    QVector<Item> m_items;
    QByteArray m_oldPassId;
};
