#include "ItemCategory.h"

#include "ItemListModel.h"

bool ItemCategory::contains(PMListItem::Type itemType, bool favorite, bool deleted,
                            int useCount) const
{
    if (deleted != (kind == Trash))
        return false;
    switch (kind) {
    case Favourites:
        return favorite;
    case MostUsed:
        return useCount > 0;
    case OfType:
        return itemType == type;
    case All:
    case Trash:
        break;
    }
    return true;
}

QVector<ItemCategory> ItemCategory::all()
{
    QVector<ItemCategory> list;
    for (const Kind kind : {All, Favourites, MostUsed})
        list.append(ItemCategory{kind});
    for (const PMListItem::Type type :
         {PMListItem::Login, PMListItem::CreditCard, PMListItem::BankAccount, PMListItem::Identity,
          PMListItem::Passport, PMListItem::DriverLicense, PMListItem::SSN, PMListItem::SecureNote,
          PMListItem::FtpAccount, PMListItem::SoftwareLicense, PMListItem::Attachment})
        list.append(ItemCategory{OfType, type});
    list.append(ItemCategory{Trash});
    return list;
}

QVector<int> categoryCounts(const ItemListModel &model)
{
    const QVector<ItemCategory> categories = ItemCategory::all();
    QVector<int> counts(categories.size(), 0);
    for (int row = 0; row < model.rowCount(); ++row) {
        const PMListItem *item = model.itemAt(model.index(row));
        for (int i = 0; i < categories.size(); ++i) {
            if (categories.at(i).contains(item->type(), item->favorite(), item->deleted(),
                                          item->useCount()))
                ++counts[i];
        }
    }
    return counts;
}
