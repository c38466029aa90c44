#pragma once

#include <QObject>
#include <QStringList>

class ItemFilterModel;
class ItemListView;

/// The selected items of a list. They stay so while the list changes around them, and what the
/// program selects is told from what the user does.
class ItemSelection : public QObject
{
    Q_OBJECT

public:
    /// Gives the list its rows. Both outlive it.
    ItemSelection(ItemListView &list, ItemFilterModel &rows, QObject *parent);

    /// The selected item; empty unless it is exactly one.
    QString currentId() const;
    /// The selected items from top to bottom.
    QStringList ids() const;
    /// Selects one item; an empty id, or one that is not in the list, selects none.
    void setCurrent(const QString &id);
    /// While rows are chosen anew the user does not select.
    void setCategoryChanging(bool changing) { m_marking = changing; }

Q_SIGNALS:
    /// The user selected other items. The list may change under the selection without this.
    void chosen();

private:
    void keep();
    void restore();
    void onRowsRemoved();

    ItemListView &m_list;
    ItemFilterModel &m_rows;
    QStringList m_kept; ///< what was selected before the rows are made anew
    QString m_keptCurrent;
    bool m_marking = false;   ///< the selection is not being changed by the user
    bool m_rowsGoing = false; ///< rows are being removed
};
