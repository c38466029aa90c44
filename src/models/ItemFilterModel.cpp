#include "ItemFilterModel.h"

#include "ItemListModel.h"

ItemFilterModel::ItemFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    m_collator.setNumericMode(true);
    setDynamicSortFilter(true);
    sort(0);
}

void ItemFilterModel::setCategory(const ItemCategory &category)
{
    if (m_category == category)
        return;
    m_category = category;
    invalidate();
}

void ItemFilterModel::setSearch(const QString &text)
{
    if (m_search == text)
        return;
    m_search = text;
    m_words = text.toLower().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    invalidateFilter();
}

void ItemFilterModel::setSortBy(SortBy sortBy)
{
    if (m_sortBy == sortBy)
        return;
    m_sortBy = sortBy;
    invalidate();
}

bool ItemFilterModel::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    const auto type = static_cast<PMListItem::Type>(index.data(ItemListModel::TypeRole).toInt());
    if (!m_category.contains(type, index.data(ItemListModel::FavoriteRole).toBool(),
                             index.data(ItemListModel::DeletedRole).toBool(),
                             index.data(ItemListModel::UseCountRole).toInt()))
        return false;
    if (m_words.isEmpty())
        return true;
    const QString text = index.data(ItemListModel::SearchTextRole).toString();
    return std::all_of(m_words.begin(), m_words.end(),
                       [&text](const QString &word) { return text.contains(word); });
}

bool ItemFilterModel::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    // The category of the most used items has an order of its own.
    const SortBy sortBy = m_category.kind == ItemCategory::MostUsed ? SortBy::MostUsed : m_sortBy;
    if (sortBy == SortBy::MostUsed) {
        const int a = left.data(ItemListModel::UseCountRole).toInt();
        const int b = right.data(ItemListModel::UseCountRole).toInt();
        if (a != b)
            return a > b;
    } else if (sortBy != SortBy::Title) {
        const int role =
            sortBy == SortBy::Modified ? ItemListModel::ModifiedRole : ItemListModel::CreatedRole;
        const QDateTime a = left.data(role).toDateTime();
        const QDateTime b = right.data(role).toDateTime();
        if (a != b)
            return a > b;
    }
    const int order = m_collator.compare(left.data().toString(), right.data().toString());
    return order != 0 ? order < 0 : left.row() < right.row();
}
