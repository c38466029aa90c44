#include "ItemListModel.h"

#include <QTimer>

ItemListModel::ItemListModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

void ItemListModel::setSafe(const std::shared_ptr<GPMSafe> &safe)
{
    // Its items have to live until the rows are gone.
    const std::shared_ptr<GPMSafe> previous = m_safe;
    if (previous)
        previous->disconnect(this);
    m_safe = safe;
    if (m_safe) {
        connect(m_safe.get(), &GPMSafe::itemsReset, this, &ItemListModel::reload);
        connect(m_safe.get(), &GPMSafe::itemAdded, this, &ItemListModel::addRow);
        connect(m_safe.get(), &GPMSafe::itemAboutToBeRemoved, this, &ItemListModel::removeRow);
    }
    reload();
}

int ItemListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant ItemListModel::data(const QModelIndex &index, int role) const
{
    const PMListItem *item = itemAt(index);
    if (!item)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return item->title();
    case IdRole:
        return item->id();
    case TypeRole:
        return item->type();
    case SecondaryTextRole:
        return item->secondaryText();
    case FavoriteRole:
        return item->favorite();
    case DeletedRole:
        return item->deleted();
    case UseCountRole:
        return item->useCount();
    case ModifiedRole:
        return item->modified();
    case CreatedRole:
        return item->created();
    case IconRole:
        return item->icon();
    case SearchTextRole:
        return QStringList{item->title(), item->secondaryText(), item->url(), item->note()}
            .join(QLatin1Char('\n'))
            .toLower();
    default:
        return {};
    }
}

PMListItem *ItemListModel::itemAt(const QModelIndex &index) const
{
    if (index.model() != this || index.row() < 0 || index.row() >= rowCount())
        return nullptr;
    return m_items[static_cast<std::size_t>(index.row())];
}

QModelIndex ItemListModel::indexOf(const QString &id) const
{
    PMListItem *item = m_safe ? m_safe->item(id) : nullptr;
    const auto row = m_rows.constFind(item);
    return row == m_rows.constEnd() ? QModelIndex() : index(*row);
}

void ItemListModel::reload()
{
    beginResetModel();
    for (PMListItem *item : m_items)
        item->disconnect(this);
    m_items = m_safe ? m_safe->items() : std::vector<PMListItem *>();
    m_rows.clear();
    for (std::size_t row = 0; row < m_items.size(); ++row) {
        m_rows.insert(m_items[row], static_cast<int>(row));
        watch(m_items[row]);
    }
    endResetModel();
    announceChange();
}

void ItemListModel::addRow(const QString &id)
{
    PMListItem *item = m_safe->item(id);
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_items.push_back(item);
    m_rows.insert(item, row);
    endInsertRows();
    watch(item);
    announceChange();
}

void ItemListModel::removeRow(const QString &id)
{
    const QModelIndex index = indexOf(id);
    if (!index.isValid())
        return;
    const int row = index.row();
    beginRemoveRows({}, row, row);
    m_items[static_cast<std::size_t>(row)]->disconnect(this);
    m_rows.remove(m_items[static_cast<std::size_t>(row)]);
    m_items.erase(m_items.begin() + row);
    for (int &other : m_rows) {
        if (other > row)
            --other;
    }
    endRemoveRows();
    announceChange();
}

void ItemListModel::watch(PMListItem *item)
{
    connect(item, &PMListItem::timestampChanged, this, [this, item] { onItemChanged(item); });
}

void ItemListModel::onItemChanged(PMListItem *item)
{
    const QModelIndex changed = index(m_rows.value(item, -1));
    if (!changed.isValid())
        return;
    Q_EMIT dataChanged(changed, changed);
    announceChange();
}

void ItemListModel::announceChange()
{
    if (m_changeAnnounced)
        return;
    m_changeAnnounced = true;
    QTimer::singleShot(0, this, [this] {
        m_changeAnnounced = false;
        Q_EMIT contentChanged();
    });
}
