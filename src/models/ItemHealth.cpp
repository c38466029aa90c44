#include "ItemHealth.h"

#include "ItemExpiry.h"
#include "PasswordStrength.h"
#include "SearchText.h"

#include <QElapsedTimer>
#include <QMessageAuthenticationCode>

#include <algorithm>
#include <utility>

namespace {

const int sliceMs = 8;
const int strongestWeakLevel = 2;
const int shortestName = 3;

/// Words that somebody who knows the item would try first.
QStringList namesOf(const PMListItem &item)
{
    const QString text =
        QStringList{item.title(), item.secondaryText(), itemDomain(item)}.join(QLatin1Char(' '));
    QStringList names;
    QString name;
    for (const QChar c : text + QLatin1Char(' ')) {
        if (c.isLetter()) {
            name.append(c);
            continue;
        }
        if (name.size() >= shortestName)
            names.append(name);
        name.clear();
    }
    return names;
}

} // namespace

ItemHealth::ItemHealth(const ItemListModel &items, QObject *parent, Clock clock,
                       RandomSource random)
    : QObject(parent)
    , m_items(items)
    , m_clock(std::move(clock))
{
    if (!random(m_key.data(), static_cast<int>(m_key.size())))
        qFatal("ItemHealth: no random bytes");
    connect(&m_timer, &QTimer::timeout, this, &ItemHealth::work);
    connect(&items, &QAbstractItemModel::modelReset, this, &ItemHealth::reset);
    connect(&items, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first) { enqueue(m_items.entryAt(first).item->id()); });
    connect(&items, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &index) { enqueue(m_items.entryAt(index.row()).item->id()); });
    connect(&items, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &, int first) {
                m_records.remove(m_items.entryAt(first).item->id());
            });
    connect(&items, &QAbstractItemModel::rowsRemoved, this, [this] {
        if (m_started)
            m_timer.start(0);
    });
}

void ItemHealth::start()
{
    if (std::exchange(m_started, true))
        return;
    reset();
}

void ItemHealth::reset()
{
    m_records.clear();
    m_pending.clear();
    for (int row = 0; m_started && row < m_items.rowCount(); ++row)
        m_pending.append(m_items.entryAt(row).item->id());
    if (m_started)
        m_timer.start(0);
}

void ItemHealth::enqueue(const QString &id)
{
    if (!m_started)
        return;
    // A change of many fields follows itself.
    if (m_pending.isEmpty() || m_pending.last() != id)
        m_pending.append(id);
    m_timer.start(0);
}

void ItemHealth::work()
{
    QElapsedTimer slice;
    slice.start();
    while (!m_pending.isEmpty() && slice.elapsed() < sliceMs) {
        if (const ItemListModel::Entry *entry = m_items.entryOf(m_pending.takeLast()))
            examine(*entry->item);
    }
    if (!m_pending.isEmpty())
        return;
    m_timer.stop();
    Q_EMIT changed();
}

void ItemHealth::examine(const PMListItem &item)
{
    const QString password = itemPassword(item);
    Record &record = m_records[item.id()];
    const QByteArray now = digest(password);
    if (record.digest == now)
        return;
    record.digest = now;
    record.level = password.isEmpty() ? 0 : passwordStrengthLevel(password);
    record.parts = record.level > 0 && record.level <= strongestWeakLevel
                       ? passwordParts(password, namesOf(item))
                       : QVector<PasswordPart>();
}

QByteArray ItemHealth::digest(const QString &password) const
{
    if (password.isEmpty())
        return {};
    QByteArray text = password.toUtf8();
    const QByteArray key = QByteArray::fromRawData(reinterpret_cast<const char *>(m_key.data()),
                                                   static_cast<int>(m_key.size()));
    const QByteArray result =
        QMessageAuthenticationCode::hash(text, key, QCryptographicHash::Sha256);
    text.fill('\0');
    return result;
}

bool ItemHealth::isWeak(const PMListItem &item) const
{
    const auto record = m_records.constFind(item.id());
    return record != m_records.constEnd() && record->level > 0 &&
           record->level <= strongestWeakLevel;
}

ItemHealth::Owners ItemHealth::owners() const
{
    Owners owners;
    owners.reserve(m_items.rowCount());
    for (int row = 0; row < m_items.rowCount(); ++row) {
        const PMListItem *item = m_items.entryAt(row).item;
        const auto record = m_records.constFind(item->id());
        if (!item->deleted() && record != m_records.constEnd() && !record->digest.isEmpty())
            owners[record->digest].append(item);
    }
    return owners;
}

QVector<HealthFinding> ItemHealth::findings() const
{
    std::vector<const ItemListModel::Entry *> entries;
    for (int row = 0; row < m_items.rowCount(); ++row) {
        const ItemListModel::Entry &entry = m_items.entryAt(row);
        if (!entry.item->deleted() && m_records.contains(entry.item->id()))
            entries.push_back(&entry);
    }
    std::sort(entries.begin(), entries.end(), [](const auto *left, const auto *right) {
        const int order = left->sortKey->compare(*right->sortKey);
        return order != 0 ? order < 0 : left->row < right->row;
    });
    QVector<HealthFinding> list;
    const Owners all = owners();
    const QDate today = m_clock().toLocalTime().date();
    for (const ItemListModel::Entry *entry : entries)
        addFindings(list, *entry->item, all, today);
    return list;
}

void ItemHealth::addFindings(QVector<HealthFinding> &list, const PMListItem &item,
                             const Owners &all, const QDate &today) const
{
    const auto add = [&](HealthProblem problem) -> HealthFinding & {
        HealthFinding finding;
        finding.problem = problem;
        finding.itemId = item.id();
        finding.ignored = isHealthIgnored(item, problem);
        list.append(finding);
        return list.last();
    };
    const Record &record = *m_records.constFind(item.id());
    if (isWeak(item)) {
        HealthFinding &finding = add(HealthProblem::Weak);
        finding.level = record.level;
        finding.parts = record.parts;
    }
    const auto same = all.constFind(record.digest);
    if (same != all.constEnd() && same->size() > 1) {
        HealthFinding &finding = add(HealthProblem::Reused);
        finding.others = same->size() - 1;
        finding.otherTitle = (same->first() == &item ? same->at(1) : same->first())->title();
    }
    if (!record.digest.isEmpty() && isOldPassword(item.modified(), today))
        add(HealthProblem::Old).date = item.modified().toLocalTime().date();
    if (item.type() == PMListItem::Login && isInsecureAddress(item.url()))
        add(HealthProblem::Insecure);
    const std::optional<QDate> last = itemExpiry(item);
    if (last && expiresSoon(*last, today))
        add(HealthProblem::Expiring).date = *last;
}
