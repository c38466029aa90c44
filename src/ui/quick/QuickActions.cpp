#include "QuickActions.h"

#include "GPMAppCore.h"
#include "PMIdentity.h"
#include "main/ItemKinds.h"

namespace {

QString textOf(const PMListItem &item, const char *property)
{
    return item.property(property).toString();
}

} // namespace

bool QuickActions::isLocked() const
{
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    return !safe || !safe->isUnlocked();
}

QStringList QuickActions::pageIds(const QuickAccessWish &wish) const
{
    return wish.url.isEmpty() ? QStringList() : m_core.pageLogins().idsFor(wish.url);
}

bool QuickActions::fillOnly(const QuickAccessWish &wish)
{
    if (!wish.fill || isLocked())
        return false;
    const QStringList ids = pageIds(wish);
    if (ids.size() != 1)
        return false;
    fill(ids.first(), wish);
    return true;
}

PMListItem *QuickActions::item(const QString &id) const
{
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    PMListItem *found = safe ? safe->item(id) : nullptr;
    return found && !found->deleted() ? found : nullptr;
}

void QuickActions::fill(const QString &id, const QuickAccessWish &wish)
{
    if (!item(id))
        return;
    const bool belongs = pageIds(wish).contains(id);
    m_core.doItemDefaultAction(id, wish.callerId,
                               belongs ? QStringLiteral("currentNoReload") : QString());
}

bool QuickActions::copySecret(const QString &id)
{
    const PMListItem *found = item(id);
    return found && copy(*found, textOf(*found, mainSecret(found->type()).property));
}

bool QuickActions::copyUserName(const QString &id)
{
    const PMListItem *found = item(id);
    if (!found)
        return false;
    if (const auto *person = qobject_cast<const PMIdentity *>(found)) {
        const QString name = person->firstName() + QLatin1Char(' ') + person->lastName();
        return copy(*found, name.trimmed());
    }
    const bool isCard = found->type() == PMListItem::CreditCard;
    return copy(*found, textOf(*found, isCard ? "cardholder" : userNameField(found->type())));
}

bool QuickActions::copy(const PMListItem &item, const QString &text)
{
    if (text.isEmpty())
        return false;
    m_core.clipboard().copy(text, m_core.settings().clearClipboard());
    m_core.modelItemUsed(item.id());
    return true;
}
