#include "ItemActions.h"

#include "GPMAppCore.h"
#include "ItemKinds.h"
#include "PMItemDocument.h"

#include <algorithm>
#include <utility>

ItemActions::ItemActions(GPMAppCore &core, Asker asker, QObject *parent)
    : QObject(parent)
    , m_core(core)
    , m_asker(std::move(asker))
{
}

PMListItem *ItemActions::item(const QString &id) const
{
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    return safe ? safe->item(id) : nullptr;
}

QVector<PMListItem *> ItemActions::items(const QStringList &ids) const
{
    QVector<PMListItem *> list;
    for (const QString &id : ids) {
        if (PMListItem *found = item(id))
            list.append(found);
    }
    return list;
}

void ItemActions::runDefault(const QString &id)
{
    const PMListItem *found = item(id);
    // What is in the trash is not used.
    if (found && !found->deleted())
        m_core.doItemDefaultAction(id, {}, {});
}

void ItemActions::openAddress(const QString &id)
{
    const PMListItem *found = item(id);
    if (found && !found->url().isEmpty())
        Q_EMIT m_core.openAddress(QUrl::fromUserInput(found->url()));
}

void ItemActions::copyUserName(const QString &id)
{
    if (const PMListItem *found = item(id))
        copyProperty(id, userNameField(found->type()));
}

void ItemActions::copySecret(const QString &id)
{
    if (const PMListItem *found = item(id))
        copyProperty(id, mainSecret(found->type()).property);
}

void ItemActions::copyProperty(const QString &id, const char *property)
{
    if (const PMListItem *found = item(id))
        copyText(found->property(property).toString());
}

void ItemActions::copyText(const QString &text)
{
    if (!text.isEmpty())
        m_core.clipboard().copy(text, m_core.settings().clearClipboard());
}

void ItemActions::toggleFavorite(const QString &id)
{
    PMListItem *found = item(id);
    if (!found)
        return;
    setFavorite({id}, !found->favorite());
}

void ItemActions::setFavorite(const QStringList &ids, bool favorite)
{
    m_core.modelItemsMarked(ids, favorite);
}

QString ItemActions::duplicate(const QString &id)
{
    const PMListItem *found = item(id);
    // The bytes of an attachment belong to one item alone.
    if (!found || found->type() == PMListItem::Attachment)
        return {};
    std::unique_ptr<PMListItem> copy = m_core.modelCreateItem(found->type());
    if (!PMItemDocument::fromItem(*found).applyTo(*copy))
        return {};
    copy->setId({});
    copy->setTitle(tr("%1 (copy)").arg(found->title()));
    copy->setCreated({});
    copy->setModified({});
    copy->setLastAccessed({});
    copy->setUseCount(0);
    // Attachments are referred to by the item that they were added to.
    copy->setRefs({});
    const PMListItem *added = m_core.modelAddItem(std::move(copy));
    return added ? added->id() : QString();
}

bool ItemActions::remove(const QStringList &ids)
{
    const QVector<PMListItem *> found = items(ids);
    if (found.isEmpty())
        return false;
    const bool forever = std::all_of(found.begin(), found.end(),
                                     [](const PMListItem *item) { return item->deleted(); });
    const int count = found.size();
    const QString forOne =
        forever ? tr("Do you want to delete the item forever?\nIt can not be restored.")
                : tr("Do you want to remove item?");
    const QString forMany =
        forever ? tr("Do you want to delete %n items forever?\nThey can not be restored.", nullptr,
                     count)
                : tr("Do you want to remove %n items?", nullptr, count);
    const QString text = count == 1 ? forOne : forMany;
    const Question question{tr("Confirmation"),
                            forever ? text + attachmentText(ids) : text,
                            {forever ? tr("Delete forever") : tr("Remove"), tr("Cancel")},
                            1};
    if (m_asker(question) != 0)
        return false;
    if (forever)
        m_core.modelItemsPurged(ids);
    else
        moveToTrash(ids);
    return true;
}

QString ItemActions::attachmentText(const QStringList &ids) const
{
    const int count = m_core.attachmentsGoingWith(ids).size();
    if (count == 0)
        return {};
    return QLatin1Char('\n') +
           (count == 1 ? tr("Their attachment is deleted as well.")
                       : tr("Their %n attachments are deleted as well.", nullptr, count));
}

void ItemActions::moveToTrash(const QStringList &ids)
{
    QStringList moved;
    for (const PMListItem *found : items(ids)) {
        if (!found->deleted())
            moved.append(found->id());
    }
    if (moved.isEmpty())
        return;
    m_removals.append(moved);
    m_core.modelItemsDeleted(moved);
    Q_EMIT movedToTrash(moved.size());
}

bool ItemActions::undoRemoval()
{
    while (!m_removals.isEmpty()) {
        QStringList ids;
        for (const PMListItem *found : items(m_removals.takeLast())) {
            if (found->deleted())
                ids.append(found->id());
        }
        // Those that were restored or deleted since are none of its business.
        if (ids.isEmpty())
            continue;
        restore(ids);
        return true;
    }
    return false;
}

void ItemActions::restore(const QStringList &ids)
{
    m_core.modelItemsRestored(ids);
    Q_EMIT restored(ids);
}

void ItemActions::restoreAll()
{
    m_core.modelRestoreAll();
}

void ItemActions::emptyTrash()
{
    const Question question{
        tr("Confirmation"),
        tr("Do you want to delete all items in the trash forever?\nThey can not be restored.") +
            attachmentText(m_core.trashedIds()),
        {tr("Delete forever"), tr("Cancel")},
        1};
    if (m_asker(question) == 0)
        m_core.modelClearTrash();
}
