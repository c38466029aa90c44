#pragma once

#include "ItemFile.h"
#include "SecretBytes.h"

#include <QFuture>
#include <QStringList>

#include <map>
#include <memory>

/// One file of the content folder after the attempt to read it.
struct LoadedFile
{
    ItemFileName name;
    std::optional<PMItemDocument> document;
};

/// The names of the item files of a content folder, in order; nothing when the folder cannot be
/// listed.
std::optional<QStringList> itemFileNames(const QString &contentFolder);

/// Reads item files on the worker pool: each takes two key derivations. The future reports progress
/// and can be cancelled.
QFuture<LoadedFile> loadItemFiles(const QStringList &fileNames, const QString &contentFolder,
                                  std::shared_ptr<const SecretBytes> password,
                                  std::shared_ptr<FileLayer> files);

/// The items of a safe as they come off the disk: of several generations of one id the highest that
/// opened is the item.
class LoadedItems
{
public:
    struct Entry
    {
        ItemFileName name;
        std::unique_ptr<PMListItem> item;
        QDateTime written;  ///< when the item had last changed as the disk has it; null for none
        quint64 queued = 0; ///< the revision that a save under way has in hand; 0 for none
    };

    /// Makes the item of a file. Items are made on the thread that calls this.
    void add(const LoadedFile &file);

    std::map<QString, Entry> takeEntries() { return std::move(m_entries); }

    /// Names of the files that could not be read and whose item is not there from another one.
    QStringList unreadableFiles() const;

    /// Whether it looks as if a change of password had been interrupted, given that some items
    /// could not be read: either older files of others are there that do not open, or none opens.
    bool looksInterrupted() const;

private:
    std::map<QString, Entry> m_entries;
    QList<ItemFileName> m_failed;
};
