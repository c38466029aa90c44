#include "ItemSelection.h"

#include "ItemFilterModel.h"
#include "ItemListView.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

ItemSelection::ItemSelection(ItemListView &list, ItemFilterModel &rows, QObject *parent)
    : QObject(parent)
    , m_list(list)
    , m_rows(rows)
{
    // Before the list connects: it moves on from a row that goes, which is not the user's doing.
    connect(&rows, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this] { m_rowsGoing = true; });
    connect(&rows, &QAbstractItemModel::modelAboutToBeReset, this, &ItemSelection::keep);
    list.setModel(&rows);
    connect(&rows, &QAbstractItemModel::rowsRemoved, this, &ItemSelection::onRowsRemoved);
    connect(&rows, &QAbstractItemModel::modelReset, this, &ItemSelection::restore);
    connect(&list, &ItemListView::selectionSettled, this, [this] {
        if (!m_marking && !m_rowsGoing)
            Q_EMIT chosen();
    });
}

QString ItemSelection::currentId() const
{
    const QStringList all = ids();
    return all.size() == 1 ? all.first() : QString();
}

QStringList ItemSelection::ids() const
{
    QModelIndexList rows = m_list.selectionModel()->selectedIndexes();
    std::sort(rows.begin(), rows.end());
    QStringList ids;
    for (const QModelIndex &row : qAsConst(rows))
        ids.append(row.data(ItemListModel::IdRole).toString());
    return ids;
}

void ItemSelection::setCurrent(const QString &id)
{
    const QScopedValueRollback<bool> marking(m_marking, true);
    const QModelIndex index = m_rows.indexOf(id);
    m_list.setCurrentIndex(index);
    if (index.isValid()) {
        m_list.selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
        m_list.scrollTo(index);
    } else {
        m_list.clearSelection();
    }
}

void ItemSelection::keep()
{
    m_kept = ids();
    m_keptCurrent = m_list.currentIndex().data(ItemListModel::IdRole).toString();
}

void ItemSelection::restore()
{
    const QScopedValueRollback<bool> marking(m_marking, true);
    const QStringList kept = std::exchange(m_kept, {});
    QItemSelection selection;
    for (const QString &id : kept) {
        const QModelIndex index = m_rows.indexOf(id);
        if (!index.isValid())
            continue;
        // Rows that follow each other are one range.
        if (!selection.isEmpty() && selection.last().bottom() + 1 == index.row())
            selection.last() = QItemSelectionRange(selection.last().topLeft(), index);
        else
            selection.select(index, index);
    }
    QModelIndex current = m_rows.indexOf(m_keptCurrent);
    if (!current.isValid() && !selection.isEmpty())
        current = selection.first().topLeft();
    m_list.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    m_list.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void ItemSelection::onRowsRemoved()
{
    // The row that came to the place of the last selected one is the selected one now.
    if (!m_list.selectionModel()->hasSelection())
        m_list.selectionModel()->select(m_list.currentIndex(), QItemSelectionModel::Select);
    m_rowsGoing = false;
}
