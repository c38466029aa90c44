#pragma once

#include "GPMSafe.h"
#include "ItemCategory.h"

#include <QAbstractListModel>
#include <QCollator>
#include <QHash>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
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
        DomainRole,
        ExpiryRole ///< the last day on which it is valid; invalid when it does not expire
    };

    /// An item with what lists ask of it again and again, made anew when the item changes. Times
    /// are milliseconds since the Unix epoch, 0 when there is none.
    struct Entry
    {
        /// itemSearchText() and itemDomain(): made when they are first asked for, as they take
        /// longer than all the rest.
        const QString &searchText() const;
        const QString &domain() const;

        PMListItem *item = nullptr;
        int row = 0;
        ItemTraits traits;
        std::optional<QCollatorSortKey> sortKey; ///< of the title
        qint64 modified = 0;
        qint64 created = 0;
        qint64 lastAccessed = 0;
        mutable std::optional<QString> keptSearchText;
        mutable std::optional<QString> keptDomain;
    };

    explicit ItemListModel(QObject *parent = nullptr);
    ~ItemListModel() override;

    /// What assistive tools say of a row; without it they say the title.
    using Describer = std::function<QString(const PMListItem &item)>;
    void setDescriber(const Describer &describe) { m_describe = describe; }

    /// Shows another safe, or none.
    void setSafe(const std::shared_ptr<GPMSafe> &safe);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// The same of an item that is not asked for by its row.
    static QVariant itemData(const PMListItem &item, int role);

    /// Null for an index that is not one of this model's.
    PMListItem *itemAt(const QModelIndex &index) const;
    /// Stays at its place in memory for as long as the row exists.
    const Entry &entryAt(int row) const { return *m_entries[static_cast<std::size_t>(row)]; }
    /// Null when there is no such item.
    const Entry *entryOf(const QString &id) const;

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
    std::unique_ptr<Entry> makeEntry(PMListItem *item, int row);
    void fill(Entry &entry) const;
    void onItemChanged(Entry &entry);
    void announceChange();
    void makeTexts();

    Describer m_describe;
    std::shared_ptr<GPMSafe> m_safe;
    QCollator m_collator;
    std::vector<std::unique_ptr<Entry>> m_entries;
    QHash<PMListItem *, Entry *> m_byItem;
    bool m_changeAnnounced = false;
    QTimer m_textTimer;    ///< runs until all have their texts
    int m_nextTextRow = 0; ///< before it all have theirs
};
