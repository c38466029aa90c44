#pragma once

#include "ItemLoader.h"
#include "PasswordChange.h"
#include "SaveJob.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

/// The items of an unlocked safe with the names of their files, in order of their ids.
class ItemStore
{
public:
    using Entries = std::map<QString, LoadedItems::Entry>;

    /// Takes other items in, and gives the former ones away.
    Entries exchange(Entries entries);

    int count() const { return static_cast<int>(m_entries.size()); }
    std::vector<PMListItem *> items() const;
    /// Null when there is no such item.
    PMListItem *item(const QString &id) const;
    std::optional<ItemFileName> fileName(const QString &id) const;

    /// Takes an item in under its id. Null, with nothing taken in, when there is one of that id.
    PMListItem *add(std::unique_ptr<PMListItem> item);
    void remove(const QString &id) { m_entries.erase(id); }

    /// The name of the file that holds an item from now on.
    void setFileName(const ItemFileName &name);

    /// The items with changes that are not on the disk, as values.
    QVector<SaveJob::Item> changed() const;
    bool hasChanged() const;
    /// The same without what a save under way has in hand, for a save that begins now.
    QVector<SaveJob::Item> takeForSaving();
    void markSaved(const QVector<SaveJob::Item> &saved);
    /// A save has failed: what is still changed is in nobody's hand.
    void forgetQueued();

    /// An item as a change of password writes it; nothing when there is none.
    std::optional<PasswordChange::Item> forPasswordChange(const QString &id) const;
    /// What was edited meanwhile stays marked as changed.
    void takePasswordChange(const QVector<PasswordChange::Item> &written);

private:
    static SaveJob::Item valueOf(const LoadedItems::Entry &entry);

    Entries m_entries;
};
