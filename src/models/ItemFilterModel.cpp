#include "ItemFilterModel.h"

#include <QMimeData>

#include <algorithm>
#include <utility>

const char itemIdsMimeType[] = "application/x-glaceron-item-ids";

ItemFilterModel::ItemFilterModel(QObject *parent, Clock clock)
    : QAbstractListModel(parent)
    , m_clock(std::move(clock))
    , m_today(today())
{
}

void ItemFilterModel::setSourceModel(const ItemListModel *source)
{
    if (m_source)
        m_source->disconnect(this);
    m_source = source;
    // Rows are let go of while their items are still there.
    connect(source, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        beginResetModel();
        m_shown.clear();
        m_all.clear();
    });
    connect(source, &QAbstractItemModel::modelReset, this, [this] {
        takeAll();
        endResetModel();
    });
    connect(source, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { onInserted(first, last); });
    connect(source, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &, int first, int last) { onAboutToBeRemoved(first, last); });
    connect(source, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &changed) { onChanged(&m_source->entryAt(changed.row())); });
    beginResetModel();
    takeAll();
    endResetModel();
}

void ItemFilterModel::setCategory(const ItemCategory &category)
{
    if (m_category == category)
        return;
    const SortBy before = order();
    m_category = category;
    reset(order() == before);
}

void ItemFilterModel::setSearch(const QString &text)
{
    if (m_search == text)
        return;
    m_search = text;
    const ItemQuery query(text, m_terms);
    // As a word grows, only what was found before can be found.
    const bool narrower = query.isWithin(m_query) && m_today == today();
    m_query = query;
    if (!narrower) {
        reset(true);
        return;
    }
    beginResetModel();
    m_shown.erase(std::remove_if(m_shown.begin(), m_shown.end(),
                                 [this](const Entry *entry) { return !matches(*entry); }),
                  m_shown.end());
    endResetModel();
}

void ItemFilterModel::setTerms(const SearchTerms &terms)
{
    m_terms = terms;
    m_query = ItemQuery(m_search, m_terms);
    refresh();
}

void ItemFilterModel::refresh()
{
    m_today = today();
    if (filtered() != m_shown)
        reset(true);
}

void ItemFilterModel::setSortBy(SortBy sortBy)
{
    if (m_sortBy == sortBy)
        return;
    m_sortBy = sortBy;
    reset(false);
}

int ItemFilterModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant ItemFilterModel::data(const QModelIndex &index, int role) const
{
    const PMListItem *item = itemAt(index);
    return item ? ItemListModel::itemData(*item, role) : QVariant();
}

Qt::ItemFlags ItemFilterModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

QStringList ItemFilterModel::mimeTypes() const
{
    return {QLatin1String(itemIdsMimeType)};
}

QMimeData *ItemFilterModel::mimeData(const QModelIndexList &indexes) const
{
    QStringList ids;
    for (const QModelIndex &index : indexes)
        ids.append(index.data(ItemListModel::IdRole).toString());
    auto *data = new QMimeData;
    data->setData(QLatin1String(itemIdsMimeType), ids.join(QLatin1Char('\n')).toUtf8());
    return data;
}

PMListItem *ItemFilterModel::itemAt(const QModelIndex &index) const
{
    if (index.model() != this || index.row() < 0 || index.row() >= rowCount())
        return nullptr;
    return m_shown[static_cast<std::size_t>(index.row())]->item;
}

QModelIndex ItemFilterModel::indexOf(const QString &id) const
{
    const Entry *entry = m_source ? m_source->entryOf(id) : nullptr;
    const auto place = std::find(m_shown.begin(), m_shown.end(), entry);
    return place == m_shown.end() ? QModelIndex() : index(int(place - m_shown.begin()));
}

ItemFilterModel::SortBy ItemFilterModel::order() const
{
    // The category of the most used items has an order of its own.
    return m_category.kind == ItemCategory::MostUsed ? SortBy::MostUsed : m_sortBy;
}

bool ItemFilterModel::less(const Entry *left, const Entry *right) const
{
    qint64 difference = 0; // the greater comes first
    switch (order()) {
    case SortBy::Title:
        break;
    case SortBy::Domain:
        // What has no domain comes behind what has one.
        if (left->domain().isEmpty() != right->domain().isEmpty())
            return right->domain().isEmpty();
        difference = right->domain().compare(left->domain());
        break;
    case SortBy::Modified:
        difference = left->modified - right->modified;
        break;
    case SortBy::Created:
        difference = left->created - right->created;
        break;
    case SortBy::LastUsed:
        difference = left->lastAccessed - right->lastAccessed;
        break;
    case SortBy::MostUsed:
        difference = left->traits.useCount - right->traits.useCount;
        break;
    }
    if (difference != 0)
        return difference > 0;
    const int titles = left->sortKey->compare(*right->sortKey);
    return titles != 0 ? titles < 0 : left->item->id() < right->item->id();
}

bool ItemFilterModel::matches(const Entry &entry) const
{
    return m_query.isEmpty() ||
           m_query.matches(entry.traits, entry.searchText(),
                           m_query.wantsWeak() && m_isWeak && m_isWeak(*entry.item), m_today);
}

bool ItemFilterModel::accepts(const Entry &entry) const
{
    const bool belongs = m_query.wantsTrash() && entry.traits.deleted
                             ? m_category.containsKind(entry.traits, m_today)
                             : m_category.contains(entry.traits, m_today);
    return belongs && matches(entry);
}

ItemFilterModel::Entries ItemFilterModel::filtered() const
{
    Entries rows;
    rows.reserve(m_all.size());
    if (m_category.kind != ItemCategory::MostUsed) {
        std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(rows),
                     [this](const Entry *entry) { return accepts(*entry); });
        return rows;
    }
    // They are the first ones whatever is searched for among them.
    int taken = 0;
    for (const Entry *entry : m_all) {
        if (!m_category.contains(entry->traits, m_today))
            continue;
        if (matches(*entry))
            rows.push_back(entry);
        if (++taken == ItemCategory::mostUsedLimit)
            break;
    }
    return rows;
}

void ItemFilterModel::sortAll()
{
    std::sort(m_all.begin(), m_all.end(),
              [this](const Entry *left, const Entry *right) { return less(left, right); });
}

void ItemFilterModel::reset(bool sorted)
{
    beginResetModel();
    m_today = today();
    if (!sorted)
        sortAll();
    m_shown = filtered();
    endResetModel();
}

void ItemFilterModel::takeAll()
{
    m_all.clear();
    for (int row = 0; row < m_source->rowCount(); ++row)
        m_all.push_back(&m_source->entryAt(row));
    sortAll();
    m_today = today();
    m_shown = filtered();
}

void ItemFilterModel::onInserted(int first, int last)
{
    for (int row = first; row <= last; ++row)
        insert(&m_source->entryAt(row));
}

void ItemFilterModel::onAboutToBeRemoved(int first, int last)
{
    for (int row = first; row <= last; ++row)
        remove(&m_source->entryAt(row));
}

ItemFilterModel::Entries::iterator ItemFilterModel::place(Entries::iterator begin,
                                                          Entries::iterator end, const Entry *entry)
{
    return std::lower_bound(begin, end, entry, [this](const Entry *left, const Entry *right) {
        return less(left, right);
    });
}

void ItemFilterModel::insert(const Entry *entry)
{
    m_all.insert(place(m_all.begin(), m_all.end(), entry), entry);
    if (m_category.kind == ItemCategory::MostUsed)
        refresh();
    else if (accepts(*entry))
        show(entry);
}

void ItemFilterModel::remove(const Entry *entry)
{
    m_all.erase(std::find(m_all.begin(), m_all.end(), entry));
    hide(entry);
    if (m_category.kind == ItemCategory::MostUsed)
        refresh();
}

void ItemFilterModel::onChanged(const Entry *entry)
{
    m_all.erase(std::find(m_all.begin(), m_all.end(), entry));
    m_all.insert(place(m_all.begin(), m_all.end(), entry), entry);
    if (m_category.kind == ItemCategory::MostUsed) {
        refresh();
    } else {
        const bool shown = std::find(m_shown.begin(), m_shown.end(), entry) != m_shown.end();
        const bool accepted = accepts(*entry);
        if (accepted && !shown)
            show(entry);
        else if (!accepted)
            hide(entry);
        else
            move(entry);
    }
    const QModelIndex now = indexOf(entry->item->id());
    if (now.isValid())
        Q_EMIT dataChanged(now, now);
}

void ItemFilterModel::show(const Entry *entry)
{
    const auto target = place(m_shown.begin(), m_shown.end(), entry);
    const int row = int(target - m_shown.begin());
    beginInsertRows({}, row, row);
    m_shown.insert(target, entry);
    endInsertRows();
}

void ItemFilterModel::hide(const Entry *entry)
{
    const auto old = std::find(m_shown.begin(), m_shown.end(), entry);
    if (old == m_shown.end())
        return;
    const int row = int(old - m_shown.begin());
    beginRemoveRows({}, row, row);
    m_shown.erase(old);
    endRemoveRows();
}

void ItemFilterModel::move(const Entry *entry)
{
    const auto old = std::find(m_shown.begin(), m_shown.end(), entry);
    // The others are in order on either side of it.
    auto target = place(m_shown.begin(), old, entry);
    if (target == old)
        target = place(old + 1, m_shown.end(), entry);
    const int from = int(old - m_shown.begin());
    const int to = int(target - m_shown.begin());
    if (to == from || to == from + 1)
        return;
    beginMoveRows({}, from, from, {}, to);
    if (to < from)
        std::rotate(target, old, old + 1);
    else
        std::rotate(old, old + 1, target);
    endMoveRows();
}
