#include "ItemStore.h"

#include <algorithm>
#include <utility>

ItemStore::Entries ItemStore::exchange(Entries entries)
{
    return std::exchange(m_entries, std::move(entries));
}

std::vector<PMListItem *> ItemStore::items() const
{
    std::vector<PMListItem *> list;
    list.reserve(m_entries.size());
    for (const auto &[id, entry] : m_entries)
        list.push_back(entry.item.get());
    return list;
}

PMListItem *ItemStore::item(const QString &id) const
{
    const auto entry = m_entries.find(id);
    return entry == m_entries.end() ? nullptr : entry->second.item.get();
}

std::optional<ItemFileName> ItemStore::fileName(const QString &id) const
{
    const auto entry = m_entries.find(id);
    return entry == m_entries.end() ? std::nullopt : std::make_optional(entry->second.name);
}

PMListItem *ItemStore::add(std::unique_ptr<PMListItem> item)
{
    const QString id = item->id();
    if (m_entries.count(id) > 0)
        return nullptr;
    PMListItem *added = item.get();
    m_entries[id] = {ItemFileName{id, 0}, std::move(item), {}, 0};
    return added;
}

void ItemStore::setFileName(const ItemFileName &name)
{
    LoadedItems::Entry &entry = m_entries.at(name.id);
    entry.name = name;
    entry.queued = 0;
}

SaveJob::Item ItemStore::valueOf(const LoadedItems::Entry &entry)
{
    const PMListItem &item = *entry.item;
    return {entry.name.id,   item.revision(), entry.name, PMItemDocument::fromItem(item),
            item.modified(), entry.written};
}

QVector<SaveJob::Item> ItemStore::changed() const
{
    QVector<SaveJob::Item> list;
    for (const auto &[id, entry] : m_entries) {
        if (entry.item->isChanged())
            list.append(valueOf(entry));
    }
    return list;
}

bool ItemStore::hasChanged() const
{
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [](const auto &each) { return each.second.item->isChanged(); });
}

QVector<SaveJob::Item> ItemStore::takeForSaving()
{
    QVector<SaveJob::Item> list;
    for (auto &[id, entry] : m_entries) {
        if (!entry.item->isChanged() || entry.queued == entry.item->revision())
            continue;
        list.append(valueOf(entry));
        entry.queued = entry.item->revision();
    }
    return list;
}

void ItemStore::forgetQueued()
{
    for (auto &[id, entry] : m_entries)
        entry.queued = 0;
}

void ItemStore::markSaved(const QVector<SaveJob::Item> &saved)
{
    for (const SaveJob::Item &item : saved) {
        const auto entry = m_entries.find(item.id);
        // Under another file name the item was written after this, or is to be.
        if (entry == m_entries.end() || entry->second.name.text() != item.fileName.text())
            continue;
        entry->second.item->markSaved(item.revision);
        entry->second.written = item.modified;
    }
}

std::optional<PasswordChange::Item> ItemStore::forPasswordChange(const QString &id) const
{
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return std::nullopt;
    const PMListItem &item = *found->second.item;
    return PasswordChange::Item{found->second.name, PMItemDocument::fromItem(item),
                                item.type() == PMListItem::Attachment, item.revision(),
                                item.modified()};
}

void ItemStore::takePasswordChange(const QVector<PasswordChange::Item> &written)
{
    for (const PasswordChange::Item &change : written) {
        LoadedItems::Entry &entry = m_entries.at(change.oldName.id);
        const bool editedSince = entry.item->revision() != change.revision;
        entry.name = change.newName;
        entry.queued = 0;
        entry.written = change.modified;
        if (change.attachment)
            entry.item->setProperty(
                "hash", change.document.publicFields.value(QStringLiteral("hash")).toString());
        if (!editedSince)
            entry.item->markSaved(entry.item->revision());
    }
}
