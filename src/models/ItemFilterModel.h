#pragma once

#include "Clock.h"
#include "ItemCategory.h"
#include "ItemListModel.h"
#include "ItemQuery.h"

#include <functional>

/// The rows of an ItemListModel that belong to a category and match a search, sorted. A change of
/// one item moves its row; a change of what is asked for resets the model.
class ItemFilterModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum class SortBy { Title, Domain, Modified, Created, LastUsed, MostUsed };
    Q_ENUM(SortBy)

    explicit ItemFilterModel(QObject *parent = nullptr, Clock clock = systemTime);

    /// The source has to outlive the model.
    void setSourceModel(const ItemListModel *source);

    void setCategory(const ItemCategory &category);
    const ItemCategory &category() const { return m_category; }

    /// Every word of the text has to occur in an item; see SearchTerms for the other ones.
    void setSearch(const QString &text);
    QString search() const { return m_search; }
    const ItemQuery &query() const { return m_query; }
    void setTerms(const SearchTerms &terms);

    /// Tells which passwords are weak; without it none is.
    void setWeakCheck(std::function<bool(const PMListItem &)> isWeak) { m_isWeak = isWeak; }
    /// Looks anew at every item, as when the day or what is weak changed.
    void refresh();

    void setSortBy(SortBy sortBy);
    SortBy sortBy() const { return m_sortBy; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

    /// Null for an index that is not one of this model's.
    PMListItem *itemAt(const QModelIndex &index) const;
    /// Invalid when the item is not among the rows.
    QModelIndex indexOf(const QString &id) const;

    QDate today() const { return m_clock().toLocalTime().date(); }

private:
    using Entry = ItemListModel::Entry;
    using Entries = std::vector<const Entry *>;

    SortBy order() const;
    bool less(const Entry *left, const Entry *right) const;
    bool accepts(const Entry &entry) const;
    bool matches(const Entry &entry) const;
    Entries filtered() const;
    void sortAll();
    void reset(bool sorted);
    void takeAll();
    void onInserted(int first, int last);
    void onAboutToBeRemoved(int first, int last);
    void onChanged(const Entry *entry);
    void insert(const Entry *entry);
    void remove(const Entry *entry);
    void show(const Entry *entry);
    void hide(const Entry *entry);
    void move(const Entry *entry);
    Entries::iterator place(Entries::iterator begin, Entries::iterator end, const Entry *entry);

    const ItemListModel *m_source = nullptr;
    Clock m_clock;
    ItemCategory m_category;
    QString m_search;
    SearchTerms m_terms = SearchTerms::english();
    ItemQuery m_query;
    QDate m_today; ///< of the rows as they are
    std::function<bool(const PMListItem &)> m_isWeak;
    SortBy m_sortBy = SortBy::Title;
    Entries m_all;   ///< every item in the order that is asked for
    Entries m_shown; ///< those that are rows
};

/// The format in which rows are dragged: ids of items, one a line.
extern const char itemIdsMimeType[];
