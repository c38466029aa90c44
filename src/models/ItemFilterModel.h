#pragma once

#include "ItemCategory.h"

#include <QCollator>
#include <QSortFilterProxyModel>

/// The rows of an ItemListModel that belong to a category and match a search, sorted.
class ItemFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    enum class SortBy { Title, MostUsed, Modified, Created };
    Q_ENUM(SortBy)

    explicit ItemFilterModel(QObject *parent = nullptr);

    void setCategory(const ItemCategory &category);
    const ItemCategory &category() const { return m_category; }

    /// Every word of the text has to occur in an item.
    void setSearch(const QString &text);
    QString search() const { return m_search; }

    void setSortBy(SortBy sortBy);
    SortBy sortBy() const { return m_sortBy; }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    QCollator m_collator;
    ItemCategory m_category;
    QString m_search;
    QStringList m_words;
    SortBy m_sortBy = SortBy::Title;
};
