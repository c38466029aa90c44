#pragma once

#include "ItemCategory.h"

#include <QAbstractListModel>

/// The categories of the sidebar with the number of items in each.
class CategoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { CountRole = Qt::UserRole, IconNameRole, StartsGroupRole };

    explicit CategoryModel(QObject *parent = nullptr);

    void setCounts(const QVector<int> &counts);
    ItemCategory category(int row) const { return m_categories.value(row); }
    int count(const ItemCategory &category) const;
    int row(const ItemCategory &category) const { return m_categories.indexOf(category); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    QVector<ItemCategory> m_categories;
    QVector<int> m_counts;
};
