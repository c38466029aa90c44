#include "ItemChanges.h"

#include "PMItemDocument.h"
#include "TrashCopy.h"

#include <QDir>
#include <QSet>
#include <QUuid>

#include <algorithm>
#include <utility>

ItemChanges::ItemChanges(FindSafe safe, QObject *parent)
    : QObject(parent)
    , m_safe(std::move(safe))
{
}

PMListItem *ItemChanges::add(std::unique_ptr<PMListItem> item)
{
    const std::shared_ptr<GPMSafe> safe = m_safe();
    PMListItem *added = safe ? safe->addItem(std::move(item)) : nullptr;
    if (added)
        safe->saveChangesAsync();
    return added;
}

void ItemChanges::changed(const QString &itemId)
{
    changeEach({itemId}, [](PMListItem &) { return true; });
}

void ItemChanges::setDeleted(const QStringList &itemIds, bool deleted)
{
    changeEach(itemIds, [deleted](PMListItem &item) {
        if (item.deleted() == deleted)
            return false;
        if (deleted)
            item.setDeleted(true);
        else
            takeOutOfTrash(item);
        return true;
    });
}

void ItemChanges::setFavorite(const QStringList &itemIds, bool favorite)
{
    changeEach(itemIds, [favorite](PMListItem &item) {
        if (item.favorite() == favorite)
            return false;
        item.setFavorite(favorite);
        return true;
    });
}

/// Sets the time of change of each item that `change` says it has changed, and saves once.
void ItemChanges::changeEach(const QStringList &itemIds, const Change &change)
{
    const std::shared_ptr<GPMSafe> safe = m_safe();
    if (!safe)
        return;
    bool found = false;
    for (const QString &id : itemIds) {
        PMListItem *item = safe->item(id);
        if (!item || !change(*item))
            continue;
        safe->touchItem(*item);
        found = true;
    }
    if (found)
        safe->saveChangesAsync();
}

QStringList ItemChanges::trashedIds() const
{
    QStringList ids;
    const std::shared_ptr<GPMSafe> safe = m_safe();
    if (!safe)
        return ids;
    for (const PMListItem *item : safe->items()) {
        if (item->deleted())
            ids.append(item->id());
    }
    return ids;
}

QStringList ItemChanges::attachmentsGoingWith(const QStringList &itemIds) const
{
    QStringList going;
    QSet<QString> kept;
    const std::shared_ptr<GPMSafe> safe = m_safe();
    if (!safe)
        return going;
    const QSet<QString> ids(itemIds.begin(), itemIds.end());
    for (const PMListItem *item : safe->items()) {
        const QStringList refs = item->refs();
        if (refs.isEmpty())
            continue;
        if (!ids.contains(item->id())) {
            kept.unite(QSet<QString>(refs.begin(), refs.end()));
            continue;
        }
        for (const QString &id : refs) {
            const PMListItem *other = safe->item(id);
            if (other && other->type() == PMListItem::Attachment && !ids.contains(id))
                going.append(id);
        }
    }
    const auto isKept = [&kept](const QString &id) { return kept.contains(id); };
    going.erase(std::remove_if(going.begin(), going.end(), isKept), going.end());
    going.removeDuplicates();
    return going;
}

void ItemChanges::purge(const QStringList &itemIds)
{
    const std::shared_ptr<GPMSafe> safe = m_safe();
    if (!safe || itemIds.isEmpty())
        return;
    if (safe->isChangingPassword()) {
        Q_EMIT message(tr("Can't delete now."),
                       tr("The password of the safe is being changed. Delete the items when that "
                          "is done."));
        return;
    }
    const QStringList all = itemIds + attachmentsGoingWith(itemIds);
    const bool removed = safe->removeItems(all);
    dropReferences(*safe, all);
    if (removed)
        return;
    Q_EMIT message(tr("Can't delete."),
                   tr("The items are still there. Check that the folder of the safe can be "
                      "written to:\n%1")
                       .arg(QDir::toNativeSeparators(safe->folder())));
}

void ItemChanges::dropReferences(GPMSafe &safe, const QStringList &ids)
{
    QSet<QString> gone;
    for (const QString &id : ids) {
        if (!safe.item(id))
            gone.insert(id);
    }
    bool changed = false;
    for (PMListItem *item : safe.items()) {
        QStringList refs = item->refs();
        const auto kept = std::remove_if(refs.begin(), refs.end(),
                                         [&gone](const QString &id) { return gone.contains(id); });
        if (kept == refs.end())
            continue;
        refs.erase(kept, refs.end());
        item->setRefs(refs);
        changed = true;
    }
    if (changed)
        safe.saveChangesAsync();
}

void ItemChanges::keepFormer(const QString &itemId, const QString &title)
{
    const std::shared_ptr<GPMSafe> safe = m_safe();
    const PMListItem *item = safe ? safe->item(itemId) : nullptr;
    if (!item)
        return;
    PMItemDocument document = PMItemDocument::fromItem(*item);
    toTrashCopy(document, QUuid::createUuid().toString(QUuid::WithoutBraces), title);
    document.publicFields.insert(formerOfKey, itemId);
    std::unique_ptr<PMListItem> copy = document.toItem();
    if (!copy)
        return;
    // Attachments belong to the item itself, and go with it.
    copy->setRefs({});
    safe->addItem(std::move(copy));
}

void ItemChanges::dropOldFormer(const QString &itemId)
{
    const std::shared_ptr<GPMSafe> safe = m_safe();
    // While the password is being changed nothing can be removed; the next time does.
    if (!safe || safe->isChangingPassword())
        return;
    std::vector<const PMListItem *> former;
    for (const PMListItem *item : safe->items()) {
        if (item->deleted() && item->unknownKeys().publicFields.value(formerOfKey) == itemId)
            former.push_back(item);
    }
    std::sort(former.begin(), former.end(), [](const PMListItem *one, const PMListItem *other) {
        return one->modified() > other->modified();
    });
    QStringList old;
    for (std::size_t i = mostFormer; i < former.size(); ++i)
        old.append(former[i]->id());
    if (!old.isEmpty())
        safe->removeItems(old);
}

void ItemChanges::countUse(const QString &itemId)
{
    const std::shared_ptr<GPMSafe> safe = m_safe();
    PMListItem *item = safe ? safe->item(itemId) : nullptr;
    if (!item)
        return;
    item->setUseCount(item->useCount() + 1);
    item->setLastAccessed(QDateTime::currentDateTimeUtc());
    safe->saveChangesAsync();
}
