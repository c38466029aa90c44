#include "ItemActions.h"

#include "GPMAppCore.h"

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

void ItemActions::runDefault(const QString &id)
{
    const PMListItem *found = item(id);
    // What is in the trash is not used.
    if (found && !found->deleted())
        m_core.doItemDefaultAction(id, {}, {});
}

void ItemActions::copyUserName(const QString &id)
{
    const PMListItem *found = item(id);
    if (found)
        copyProperty(id, found->type() == PMListItem::FtpAccount ? "username" : "login");
}

void ItemActions::copyPassword(const QString &id)
{
    copyProperty(id, "password");
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
    found->setFavorite(!found->favorite());
    m_core.modelItemChanged(id);
}

bool ItemActions::remove(const QString &id)
{
    const PMListItem *found = item(id);
    if (!found)
        return false;
    const bool forever = found->deleted();
    const Question question =
        forever ? Question{tr("Confirmation"),
                           tr("Do you want to delete the item forever?\nIt can not be restored."),
                           {tr("Delete forever"), tr("Cancel")},
                           1}
                : Question{tr("Confirmation"),
                           tr("Do you want to remove item?"),
                           {tr("Remove"), tr("Cancel")},
                           1};
    if (m_asker(question) != 0)
        return false;
    if (forever)
        m_core.modelItemPurged(id);
    else
        m_core.modelItemDeleted(id);
    return true;
}

void ItemActions::restore(const QString &id)
{
    m_core.modelItemRestored(id);
}

void ItemActions::restoreAll()
{
    m_core.modelRestoreAll();
}

void ItemActions::emptyTrash()
{
    const Question question{
        tr("Confirmation"),
        tr("Do you want to delete all items in the trash forever?\nThey can not be restored."),
        {tr("Delete forever"), tr("Cancel")},
        1};
    if (m_asker(question) == 0)
        m_core.modelClearTrash();
}
