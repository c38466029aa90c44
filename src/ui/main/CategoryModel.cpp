#include "CategoryModel.h"

#include "ItemKinds.h"

CategoryModel::CategoryModel(QObject *parent)
    : QAbstractListModel(parent)
    , m_categories(ItemCategory::all())
    , m_rows(m_categories)
    , m_counts(m_categories.size(), 0)
{
    showRows();
}

void CategoryModel::setCounts(const QVector<int> &counts)
{
    if (m_counts == counts)
        return;
    m_counts = counts;
    showRows();
    Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

void CategoryModel::setShown(const ItemCategory &category)
{
    m_shown = category;
    showRows();
}

void CategoryModel::showRows()
{
    const ItemCategory expiring{ItemCategory::Expiring};
    const bool wanted = count(expiring) > 0 || m_shown == expiring;
    const int there = row(expiring);
    if (wanted == (there >= 0))
        return;
    if (wanted) {
        // All rows before it are always there.
        const int place = m_categories.indexOf(expiring);
        beginInsertRows({}, place, place);
        m_rows.insert(place, expiring);
        endInsertRows();
    } else {
        beginRemoveRows({}, there, there);
        m_rows.removeAt(there);
        endRemoveRows();
    }
}

int CategoryModel::count(const ItemCategory &category) const
{
    return m_counts.value(m_categories.indexOf(category));
}

int CategoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
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
    case Qt::ToolTipRole: // all that is left of the words in a folded sidebar
        return tr("%1, %2").arg(categoryName(shown), itemCountText(count(shown)));
    case CountRole:
        return count(shown);
    case IconNameRole:
        return categoryIcon(shown);
    case StartsGroupRole:
        return index.row() > 0 && category(index.row() - 1).kind != shown.kind &&
               (shown.kind == ItemCategory::OfType || shown.kind == ItemCategory::Trash);
    default:
        return {};
    }
}
