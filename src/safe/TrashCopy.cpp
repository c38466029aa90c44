#include "TrashCopy.h"

const QLatin1String formerOfKey("formerOf");

void toTrashCopy(PMItemDocument &document, const QString &id, const QString &title)
{
    QJsonObject &fields = document.publicFields;
    fields.insert(QStringLiteral("id"), id);
    fields.insert(QStringLiteral("deleted"), true);
    fields.insert(QStringLiteral("title"), title);
}

void takeOutOfTrash(PMListItem &item)
{
    item.setDeleted(false);
    PMListItem::UnknownKeys keys = item.unknownKeys();
    keys.publicFields.remove(formerOfKey);
    item.setUnknownKeys(keys);
}
