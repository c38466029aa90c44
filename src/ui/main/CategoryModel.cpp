#include "CategoryModel.h"

#include "ItemKinds.h"

CategoryModel::CategoryModel(QObject *parent)
    : QAbstractListModel(parent)
    , m_categories(ItemCategory::all())
    , m_counts(m_categories.size(), 0)
{
}

void CategoryModel::setCounts(const QVector<int> &counts)
{
    if (m_counts == counts)
        return;
    m_counts = counts;
    Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int CategoryModel::count(const ItemCategory &category) const
{
    return m_counts.value(row(category));
}

int CategoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_categories.size();
}

QVariant CategoryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const ItemCategory shown = category(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return categoryName(shown);
    case Qt::AccessibleTextRole:
        return tr("%1, %2").arg(categoryName(shown), itemCountText(m_counts.value(index.row())));
    case CountRole:
        return m_counts.value(index.row());
    case IconNameRole:
        return categoryIcon(shown);
    case StartsGroupRole:
        return index.row() > 0 && category(index.row() - 1).kind != shown.kind &&
               (shown.kind == ItemCategory::OfType || shown.kind == ItemCategory::Trash);
    default:
        return {};
    }
}
