#include "DraftDocument.h"

#include <QMetaProperty>

namespace {

// Texts that are no value of their field yet, such as half a date.
const QLatin1String unfinishedKey("unfinished");

bool write(PMListItem &item, const char *name, const QVariant &value)
{
    const int index = item.metaObject()->indexOfProperty(name);
    return index >= 0 && item.metaObject()->property(index).write(&item, value);
}

} // namespace

KeptDraft keptDraft(const PMListItem &item, const ItemDraft &draft)
{
    KeptDraft kept;
    kept.isNew = draft.isNew();
    const std::unique_ptr<PMListItem> copy = PMItemDocument::fromItem(item).toItem();
    QJsonObject unfinished;
    for (const ItemField &field : draft.fields()) {
        const QVariant value = draft.value(field.property);
        if (!write(*copy, field.property, value))
            unfinished.insert(QLatin1String(field.property), value.toString());
    }
    kept.document = PMItemDocument::fromItem(*copy);
    kept.document.unknown.remove(unfinishedKey);
    if (!unfinished.isEmpty())
        kept.document.unknown.insert(unfinishedKey, unfinished);
    return kept;
}

std::unique_ptr<PMListItem> itemOfDraft(const KeptDraft &kept)
{
    PMItemDocument document = kept.document;
    document.unknown.remove(unfinishedKey);
    return document.toItem();
}

void restoreDraft(ItemDraft &draft, const KeptDraft &kept)
{
    const std::unique_ptr<PMListItem> values = kept.document.toItem();
    const QJsonObject unfinished = kept.document.unknown.value(unfinishedKey).toObject();
    const QVector<ItemField> fields = draft.fields();
    for (const ItemField &field : fields) {
        const QLatin1String name(field.property);
        QVariant value = values->property(field.property);
        // Editors choose enumerations by number.
        if (draft.value(field.property).type() == QVariant::Int)
            value = value.toInt();
        if (unfinished.contains(name))
            value = unfinished.value(name).toString();
        draft.setValue(field.property, value);
    }
}

bool holdsDraft(const PMListItem &item, const KeptDraft &kept)
{
    if (item.type() != kept.document.type)
        return false;
    // Times and counts go on by themselves.
    PMItemDocument now = PMItemDocument::fromItem(item);
    PMItemDocument then = kept.document;
    for (const char *name : {"modified", "lastAccessed", "useCount", "favorite", "deleted", "refs",
                             "icon", "secondaryText"}) {
        now.publicFields.remove(QLatin1String(name));
        then.publicFields.remove(QLatin1String(name));
    }
    // A new item gets these as it is saved.
    for (const char *name : {"id", "created"}) {
        if (!kept.isNew)
            break;
        now.publicFields.remove(QLatin1String(name));
        then.publicFields.remove(QLatin1String(name));
    }
    now.privateFields.remove(QStringLiteral("strength"));
    then.privateFields.remove(QStringLiteral("strength"));
    return now.publicFields == then.publicFields && now.privateFields == then.privateFields &&
           !then.unknown.contains(unfinishedKey);
}
