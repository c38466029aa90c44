#pragma once

#include "Clock.h"
#include "ItemListModel.h"
#include "ItemQuery.h"

#include <QSet>
#include <QStringList>

#include <vector>

/// The rows of quick access: the items of one kind under headings, those that belong to the page
/// first, then the most used, then all others; while something is searched for also those of the
/// other kinds that can be filled. No item stands twice, none of the trash at all. Rows are made
/// while the model is active and only when something has changed; views get them a batch at a time,
/// as they need time for each.
class QuickItems : public QAbstractListModel
{
    Q_OBJECT

public:
    enum class Group { Page, MostUsed, All };
    Q_ENUM(Group)

    /// Beside the roles of ItemListModel.
    enum Role {
        GroupRole = ItemListModel::ExpiryRole + 1, ///< of a heading; invalid for an item
        CountRole                                  ///< of the items below a heading
    };

    /// How many of the used items stand among the most used ones.
    static constexpr int mostUsedLimit = 8;

    /// The kinds that can be filled, in their order.
    static const QVector<PMListItem::Type> &kinds();

    /// @param source outlives the model
    explicit QuickItems(const ItemListModel &source, QObject *parent = nullptr,
                        Clock clock = systemTime);

    void setKind(PMListItem::Type kind);
    PMListItem::Type kind() const { return m_kind; }
    /// The ids of the items that belong to the page, in their order.
    void setPageIds(const QStringList &ids);
    const QStringList &pageIds() const { return m_pageIds; }
    void setSearch(const QString &text, const SearchTerms &terms);
    bool isSearching() const { return !m_query.isEmpty(); }

    /// While it is not active it keeps its rows as they are as long as their items exist.
    void setActive(bool active);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;

    /// Null for headings and for what is no row.
    PMListItem *itemAt(int row) const;
    /// The nearest row with an item so many items away, as far as there are some; -1 without any.
    int itemRow(int from, int steps) const;
    /// -1 when the item is not among the rows. Rows up to it are then there for views.
    int rowOf(const QString &id);

private:
    using Entry = ItemListModel::Entry;

    struct Row
    {
        const Entry *entry; ///< null for a heading
        Group group;
        PMListItem::Type kind;
        int count;
    };

    void touch();
    void drop();
    void refresh();
    void sortAll();
    void onInserted(int first, int last);
    void onAboutToBeRemoved(int first, int last);
    void onChanged(int row);
    std::vector<const Entry *> mostUsed() const;
    bool accepts(const Entry *entry) const;
    void addGroup(Group group, PMListItem::Type kind, const std::vector<const Entry *> &entries);

    const ItemListModel &m_source;
    Clock m_clock;
    PMListItem::Type m_kind = PMListItem::Login;
    QStringList m_pageIds;
    QString m_search;
    ItemQuery m_query;
    bool m_active = false;
    bool m_stale = true;
    int m_changes = -1;                  ///< since all were sorted; -1 when they are to be
    std::vector<const Entry *> m_sorted; ///< all of these kinds by title
    QSet<const Entry *> m_taken;         ///< while rows are made
    QDate m_today;                       ///< of the rows as they are
    std::vector<Row> m_rows;
    int m_shown = 0; ///< of the rows, those that views have
};
