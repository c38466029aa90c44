#pragma once

#include "PMListItem.h"

#include <QMap>
#include <QVector>

class ItemListModel;

/// One entry of the sidebar: a set of items by their kind or state. Items in the trash belong to
/// the trash alone.
struct ItemCategory
{
    enum Kind { All, Favourites, MostUsed, OfType, Trash };

    Kind kind = All;
    PMListItem::Type type = PMListItem::UndefinedItem; ///< of OfType

    bool contains(PMListItem::Type itemType, bool favorite, bool deleted, int useCount) const;

    bool operator==(const ItemCategory &other) const
    {
        return kind == other.kind && type == other.type;
    }
    bool operator!=(const ItemCategory &other) const { return !(*this == other); }

    /// All categories in the order of the sidebar.
    static QVector<ItemCategory> all();
};

/// How many items each category of ItemCategory::all() has, in that order.
QVector<int> categoryCounts(const ItemListModel &model);
