#include "ItemListModel.h"

#include "ItemExpiry.h"
#include "SearchText.h"

#include <QElapsedTimer>

namespace {

const int sliceMs = 4;

qint64 milliseconds(const QDateTime &moment)
{
    return moment.isValid() ? moment.toMSecsSinceEpoch() : 0;
}

/// The "C" locale knows nothing of case.
QLocale sortingLocale()
{
    const QLocale locale = QLocale().collation();
    return locale.language() == QLocale::C ? QLocale(QLocale::English) : locale;
}

} // namespace

const QString &ItemListModel::Entry::searchText() const
{
    if (!keptSearchText)
        keptSearchText = itemSearchText(*item);
    return *keptSearchText;
}

const QString &ItemListModel::Entry::domain() const
{
    if (!keptDomain)
        keptDomain = itemDomain(*item);
    return *keptDomain;
}

ItemListModel::ItemListModel(QObject *parent)
    : QAbstractListModel(parent)
    , m_collator(sortingLocale())
{
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    m_collator.setNumericMode(true);
    connect(&m_textTimer, &QTimer::timeout, this, &ItemListModel::makeTexts);
}

ItemListModel::~ItemListModel()
{
    // Whoever shows the rows lets go of them.
    setSafe(nullptr);
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
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant ItemListModel::data(const QModelIndex &index, int role) const
{
    const PMListItem *item = itemAt(index);
    if (item && role == Qt::AccessibleTextRole && m_describe)
        return m_describe(*item);
    if (item && role == DomainRole)
        return entryAt(index.row()).domain();
    return item ? itemData(*item, role) : QVariant();
}

QVariant ItemListModel::itemData(const PMListItem &item, int role)
{
    switch (role) {
    case Qt::DisplayRole:
        return item.title();
    case IdRole:
        return item.id();
    case TypeRole:
        return item.type();
    case SecondaryTextRole:
        return item.secondaryText();
    case FavoriteRole:
        return item.favorite();
    case DeletedRole:
        return item.deleted();
    case UseCountRole:
        return item.useCount();
    case ModifiedRole:
        return item.modified();
    case CreatedRole:
        return item.created();
    case IconRole:
        return item.icon();
    case ExpiryRole: {
        const std::optional<QDate> last = itemExpiry(item);
        return last ? QVariant(*last) : QVariant();
    }
    default:
        return {};
    }
}

PMListItem *ItemListModel::itemAt(const QModelIndex &index) const
{
    if (index.model() != this || index.row() < 0 || index.row() >= rowCount())
        return nullptr;
    return entryAt(index.row()).item;
}

const ItemListModel::Entry *ItemListModel::entryOf(const QString &id) const
{
    return m_byItem.value(m_safe ? m_safe->item(id) : nullptr);
}

QModelIndex ItemListModel::indexOf(const QString &id) const
{
    const Entry *entry = entryOf(id);
    return entry ? index(entry->row) : QModelIndex();
}

void ItemListModel::reload()
{
    beginResetModel();
    for (const std::unique_ptr<Entry> &entry : m_entries)
        entry->item->disconnect(this);
    m_byItem.clear();
    m_entries.clear();
    const std::vector<PMListItem *> items = m_safe ? m_safe->items() : std::vector<PMListItem *>();
    m_entries.reserve(items.size());
    for (PMListItem *item : items)
        m_entries.push_back(makeEntry(item, rowCount()));
    endResetModel();
    announceChange();
    m_nextTextRow = 0;
    m_textTimer.start(0);
}

void ItemListModel::addRow(const QString &id)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_entries.push_back(makeEntry(m_safe->item(id), row));
    endInsertRows();
    announceChange();
}

void ItemListModel::removeRow(const QString &id)
{
    const QModelIndex index = indexOf(id);
    if (!index.isValid())
        return;
    const int row = index.row();
    beginRemoveRows({}, row, row);
    PMListItem *item = entryAt(row).item;
    item->disconnect(this);
    m_byItem.remove(item);
    m_entries.erase(m_entries.begin() + row);
    for (auto entry = m_entries.begin() + row; entry != m_entries.end(); ++entry)
        --(*entry)->row;
    endRemoveRows();
    announceChange();
}

std::unique_ptr<ItemListModel::Entry> ItemListModel::makeEntry(PMListItem *item, int row)
{
    auto entry = std::make_unique<Entry>();
    entry->item = item;
    entry->row = row;
    fill(*entry);
    m_byItem.insert(item, entry.get());
    connect(item, &PMListItem::timestampChanged, this,
            [this, kept = entry.get()] { onItemChanged(*kept); });
    return entry;
}

void ItemListModel::fill(Entry &entry) const
{
    const PMListItem &item = *entry.item;
    entry.traits = ItemTraits::of(item);
    entry.keptSearchText.reset();
    entry.keptDomain.reset();
    entry.sortKey = m_collator.sortKey(item.title());
    entry.modified = milliseconds(item.modified());
    entry.created = milliseconds(item.created());
    entry.lastAccessed = milliseconds(item.lastAccessed());
}

void ItemListModel::onItemChanged(Entry &entry)
{
    fill(entry);
    const QModelIndex changed = index(entry.row);
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

void ItemListModel::makeTexts()
{
    // Between events, so that the first search need not wait for them.
    QElapsedTimer slice;
    slice.start();
    for (; m_nextTextRow < rowCount() && slice.elapsed() < sliceMs; ++m_nextTextRow)
        entryAt(m_nextTextRow).searchText();
    if (m_nextTextRow >= rowCount())
        m_textTimer.stop();
}
