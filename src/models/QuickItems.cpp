#include "QuickItems.h"

#include <algorithm>
#include <utility>

namespace {

/// To sort all anew takes less than to move so many of them.
const int mostMoves = 50;
const int batch = 60;

bool byTitle(const ItemListModel::Entry *left, const ItemListModel::Entry *right)
{
    const int titles = left->sortKey->compare(*right->sortKey);
    return titles != 0 ? titles < 0 : left->item->id() < right->item->id();
}

bool byUse(const ItemListModel::Entry *left, const ItemListModel::Entry *right)
{
    if (left->traits.useCount != right->traits.useCount)
        return left->traits.useCount > right->traits.useCount;
    if (left->lastAccessed != right->lastAccessed)
        return left->lastAccessed > right->lastAccessed;
    return byTitle(left, right);
}

} // namespace

const QVector<PMListItem::Type> &QuickItems::kinds()
{
    static const QVector<PMListItem::Type> list{PMListItem::Login, PMListItem::CreditCard,
                                                PMListItem::Identity};
    return list;
}

QuickItems::QuickItems(const ItemListModel &source, QObject *parent, Clock clock)
    : QAbstractListModel(parent)
    , m_source(source)
    , m_clock(std::move(clock))
{
    using Model = QAbstractItemModel;
    connect(&source, &Model::modelAboutToBeReset, this, &QuickItems::drop);
    connect(&source, &Model::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { onInserted(first, last); });
    connect(&source, &Model::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &, int first, int last) { onAboutToBeRemoved(first, last); });
    connect(&source, &Model::dataChanged, this,
            [this](const QModelIndex &first) { onChanged(first.row()); });
    connect(&source, &ItemListModel::contentChanged, this, &QuickItems::refresh);
}

void QuickItems::setKind(PMListItem::Type kind)
{
    if (std::exchange(m_kind, kind) != kind)
        touch();
}

void QuickItems::setPageIds(const QStringList &ids)
{
    if (std::exchange(m_pageIds, ids) != ids)
        touch();
}

void QuickItems::setSearch(const QString &text, const SearchTerms &terms)
{
    if (std::exchange(m_search, text) == text)
        return;
    m_query = ItemQuery(text, terms);
    touch();
}

void QuickItems::setActive(bool active)
{
    m_active = active;
    refresh();
}

void QuickItems::touch()
{
    m_stale = true;
    refresh();
}

/// The items are about to go.
void QuickItems::drop()
{
    beginResetModel();
    m_rows.clear();
    m_shown = 0;
    endResetModel();
    m_sorted.clear();
    m_changes = -1;
    m_stale = true;
}

void QuickItems::onInserted(int first, int last)
{
    m_stale = true;
    for (int row = first; row <= last && m_changes >= 0; ++row) {
        const Entry *entry = &m_source.entryAt(row);
        if (!kinds().contains(entry->traits.type))
            continue;
        m_sorted.insert(std::lower_bound(m_sorted.begin(), m_sorted.end(), entry, byTitle), entry);
        m_changes = m_changes < mostMoves ? m_changes + 1 : -1;
    }
}

void QuickItems::onAboutToBeRemoved(int first, int last)
{
    const auto isGoing = [&](const Entry *entry) {
        return entry && entry->row >= first && entry->row <= last;
    };
    m_sorted.erase(std::remove_if(m_sorted.begin(), m_sorted.end(), isGoing), m_sorted.end());
    const bool isShown = std::any_of(m_rows.begin(), m_rows.end(),
                                     [&](const Row &row) { return isGoing(row.entry); });
    m_stale = true;
    if (!isShown)
        return;
    beginResetModel();
    m_rows.clear();
    m_shown = 0;
    endResetModel();
}

void QuickItems::onChanged(int row)
{
    m_stale = true;
    const Entry *entry = &m_source.entryAt(row);
    if (m_changes < 0 || !kinds().contains(entry->traits.type))
        return;
    m_sorted.erase(std::remove(m_sorted.begin(), m_sorted.end(), entry), m_sorted.end());
    m_sorted.insert(std::lower_bound(m_sorted.begin(), m_sorted.end(), entry, byTitle), entry);
    m_changes = m_changes < mostMoves ? m_changes + 1 : -1;
}

void QuickItems::sortAll()
{
    m_sorted.clear();
    for (int row = 0; row < m_source.rowCount(); ++row) {
        const Entry *entry = &m_source.entryAt(row);
        if (kinds().contains(entry->traits.type))
            m_sorted.push_back(entry);
    }
    std::sort(m_sorted.begin(), m_sorted.end(), byTitle);
    m_changes = 0;
}

std::vector<const ItemListModel::Entry *> QuickItems::mostUsed() const
{
    std::vector<const Entry *> used;
    std::copy_if(m_sorted.begin(), m_sorted.end(), std::back_inserter(used),
                 [this](const Entry *entry) {
                     return entry->traits.type == m_kind && entry->traits.useCount > 0 &&
                            !entry->traits.deleted && !m_taken.contains(entry);
                 });
    const auto end = used.begin() + qMin(static_cast<int>(used.size()), mostUsedLimit);
    std::partial_sort(used.begin(), end, used.end(), byUse);
    used.erase(end, used.end());
    return used;
}

bool QuickItems::accepts(const Entry *entry) const
{
    if (entry->traits.deleted || m_taken.contains(entry))
        return false;
    return m_query.isEmpty() || m_query.matches(entry->traits, entry->searchText(), false, m_today);
}

void QuickItems::addGroup(Group group, PMListItem::Type kind,
                          const std::vector<const Entry *> &entries)
{
    const std::size_t heading = m_rows.size();
    m_rows.push_back({nullptr, group, kind, 0});
    for (const Entry *entry : entries) {
        if (entry->traits.type != kind || !accepts(entry))
            continue;
        m_rows.push_back({entry, group, kind, 0});
        ++m_rows[heading].count;
        if (group != Group::All)
            m_taken.insert(entry);
    }
    if (m_rows[heading].count == 0)
        m_rows.pop_back();
}

void QuickItems::refresh()
{
    if (!m_active || !m_stale)
        return;
    if (m_changes < 0)
        sortAll();
    beginResetModel();
    m_rows.clear();
    m_taken.clear();
    // Once: the system looks for its time zone each time.
    m_today = m_clock().toLocalTime().date();
    std::vector<const Entry *> ofPage;
    for (const QString &id : qAsConst(m_pageIds)) {
        if (const Entry *entry = m_source.entryOf(id))
            ofPage.push_back(entry);
    }
    addGroup(Group::Page, m_kind, ofPage);
    addGroup(Group::MostUsed, m_kind, mostUsed());
    addGroup(Group::All, m_kind, m_sorted);
    for (const PMListItem::Type kind : kinds()) {
        if (kind != m_kind && isSearching())
            addGroup(Group::All, kind, m_sorted);
    }
    m_stale = false;
    m_shown = qMin(batch, static_cast<int>(m_rows.size()));
    endResetModel();
}

int QuickItems::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_shown;
}

bool QuickItems::canFetchMore(const QModelIndex &parent) const
{
    return !parent.isValid() && m_shown < static_cast<int>(m_rows.size());
}

void QuickItems::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent))
        return;
    const int more = qMin(batch, static_cast<int>(m_rows.size()) - m_shown);
    beginInsertRows({}, m_shown, m_shown + more - 1);
    m_shown += more;
    endInsertRows();
}

QVariant QuickItems::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Row &row = m_rows[static_cast<std::size_t>(index.row())];
    if (row.entry && role == Qt::AccessibleTextRole)
        return m_source.data(m_source.index(row.entry->row), role);
    if (row.entry)
        return ItemListModel::itemData(*row.entry->item, role);
    switch (role) {
    case GroupRole:
        return static_cast<int>(row.group);
    case ItemListModel::TypeRole:
        return row.kind;
    case CountRole:
        return row.count;
    default:
        return {};
    }
}

Qt::ItemFlags QuickItems::flags(const QModelIndex &index) const
{
    if (!itemAt(index.row()))
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

PMListItem *QuickItems::itemAt(int row) const
{
    if (row < 0 || row >= rowCount())
        return nullptr;
    const Entry *entry = m_rows[static_cast<std::size_t>(row)].entry;
    return entry ? entry->item : nullptr;
}

int QuickItems::itemRow(int from, int steps) const
{
    const int way = steps < 0 ? -1 : 1;
    int left = qAbs(steps);
    int found = itemAt(from) ? from : -1;
    for (int row = from + way; row >= 0 && row < rowCount() && left > 0; row += way) {
        if (!itemAt(row))
            continue;
        found = row;
        --left;
    }
    return found;
}

int QuickItems::rowOf(const QString &id)
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&id](const Row &row) {
        return row.entry && row.entry->item->id() == id;
    });
    if (found == m_rows.end())
        return -1;
    const auto row = static_cast<int>(found - m_rows.begin());
    while (row >= m_shown)
        fetchMore({});
    return row;
}
