#pragma once

#include "GPMSafe.h"

#include <QAbstractListModel>
#include <QHash>

#include <memory>
#include <vector>

/// The items of a safe as rows, kept up to date while the safe changes; empty while it is locked.
class ItemListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        IdRole = Qt::UserRole,
        TypeRole,
        SecondaryTextRole,
        FavoriteRole,
        DeletedRole,
        UseCountRole,
        ModifiedRole,
        CreatedRole,
        IconRole,
        SearchTextRole ///< everything that a search looks at, in lower case
    };

    explicit ItemListModel(QObject *parent = nullptr);

    /// Shows another safe, or none.
    void setSafe(const std::shared_ptr<GPMSafe> &safe);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Null for an index that is not one of this model's.
    PMListItem *itemAt(const QModelIndex &index) const;

    /// Invalid when there is no such item.
    QModelIndex indexOf(const QString &id) const;

Q_SIGNALS:
    /// Rows came, went or changed: counts are to be made anew. Once for any number of changes in
    /// one turn of the event loop.
    void contentChanged();

private:
    void reload();
    void addRow(const QString &id);
    void removeRow(const QString &id);
    void watch(PMListItem *item);
    void onItemChanged(PMListItem *item);
    void announceChange();

    std::shared_ptr<GPMSafe> m_safe;
    std::vector<PMListItem *> m_items;
    QHash<PMListItem *, int> m_rows;
    bool m_changeAnnounced = false;
};
