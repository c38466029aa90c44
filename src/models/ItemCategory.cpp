#include "ItemCategory.h"

#include "ItemExpiry.h"
#include "ItemListModel.h"

ItemTraits ItemTraits::of(const PMListItem &item)
{
    return {item.type(), item.favorite(), item.deleted(), item.useCount(),
            itemExpiry(item).value_or(QDate())};
}

bool ItemCategory::contains(const ItemTraits &item, const QDate &today) const
{
    return item.deleted == (kind == Trash) && containsKind(item, today);
}

bool ItemCategory::containsKind(const ItemTraits &item, const QDate &today) const
{
    switch (kind) {
    case Favourites:
        return item.favorite;
    case MostUsed:
        return item.useCount > 0;
    case Expiring:
        return item.lastDay.isValid() && expiresSoon(item.lastDay, today);
    case OfType:
        return item.type == type;
    case All:
    case Trash:
        break;
    }
    return true;
}

QVector<ItemCategory> ItemCategory::all()
{
    QVector<ItemCategory> list;
    for (const Kind kind : {All, Favourites, MostUsed, Expiring})
        list.append(ItemCategory{kind});
    for (const PMListItem::Type type :
         {PMListItem::Login, PMListItem::CreditCard, PMListItem::BankAccount, PMListItem::Identity,
          PMListItem::Passport, PMListItem::DriverLicense, PMListItem::SSN, PMListItem::SecureNote,
          PMListItem::FtpAccount, PMListItem::SoftwareLicense, PMListItem::Attachment})
        list.append(ItemCategory{OfType, type});
    list.append(ItemCategory{Trash});
    return list;
}

QVector<int> categoryCounts(const ItemListModel &model, const QDate &today)
{
    const QVector<ItemCategory> categories = ItemCategory::all();
    QVector<int> counts(categories.size(), 0);
    for (int row = 0; row < model.rowCount(); ++row) {
        const ItemTraits &item = model.entryAt(row).traits;
        for (int i = 0; i < categories.size(); ++i) {
            if (categories.at(i).contains(item, today))
                ++counts[i];
        }
    }
    int &mostUsed = counts[categories.indexOf({ItemCategory::MostUsed})];
    mostUsed = qMin(mostUsed, ItemCategory::mostUsedLimit);
    return counts;
}
