#pragma once

#include "ItemCategory.h"

#include <QAbstractListModel>

/// The categories of the sidebar with the number of items in each. That of the expiring items is a
/// row only while it has some, or is the one that is shown.
class CategoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { CountRole = Qt::UserRole, IconNameRole, StartsGroupRole };

    explicit CategoryModel(QObject *parent = nullptr);

    /// @param counts of the categories of ItemCategory::all()
    void setCounts(const QVector<int> &counts);
    /// Makes a category the one that is shown.
    void setShown(const ItemCategory &category);
    ItemCategory category(int row) const { return m_rows.value(row); }
    int count(const ItemCategory &category) const;
    int row(const ItemCategory &category) const { return m_rows.indexOf(category); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    void showRows();

    QVector<ItemCategory> m_categories;
    QVector<ItemCategory> m_rows;
    ItemCategory m_shown;
    QVector<int> m_counts;
};
