#include "TrashCopy.h"

void toTrashCopy(PMItemDocument &document, const QString &id, const QString &title)
{
    QJsonObject &fields = document.publicFields;
    fields.insert(QStringLiteral("id"), id);
    fields.insert(QStringLiteral("deleted"), true);
    fields.insert(QStringLiteral("title"), title);
}
