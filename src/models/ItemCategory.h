#pragma once

#include "PMListItem.h"

#include <QDate>
#include <QVector>

class ItemListModel;

/// What lists ask of every item whenever they look for those to show; copied from the items, which
/// lie scattered in memory.
struct ItemTraits
{
    PMListItem::Type type = PMListItem::UndefinedItem;
    bool favorite = false;
    bool deleted = false;
    int useCount = 0;
    QDate lastDay; ///< invalid for what does not expire

    static ItemTraits of(const PMListItem &item);
};

/// One entry of the sidebar: a set of items by their kind or state. Items in the trash belong to
/// the trash alone.
struct ItemCategory
{
    enum Kind { All, Favourites, MostUsed, Expiring, OfType, Trash };

    /// How many of the used items the category of the most used ones has.
    static constexpr int mostUsedLimit = 20;

    Kind kind = All;
    PMListItem::Type type = PMListItem::UndefinedItem; ///< of OfType

    /// Whether the item belongs to the category; for the most used ones whether it may, as only the
    /// first mostUsedLimit do.
    bool contains(const ItemTraits &item, const QDate &today) const;
    /// The same whether it is in the trash or not.
    bool containsKind(const ItemTraits &item, const QDate &today) const;

    bool operator==(const ItemCategory &other) const
    {
        return kind == other.kind && type == other.type;
    }
    bool operator!=(const ItemCategory &other) const { return !(*this == other); }

    /// All categories in the order of the sidebar.
    static QVector<ItemCategory> all();
};

/// How many items each category of ItemCategory::all() has, in that order.
QVector<int> categoryCounts(const ItemListModel &model, const QDate &today);
