#pragma once

#include "ItemFilterModel.h"

#include <QWidget>

class EmptyState;
class ItemListModel;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QStackedWidget;
class QToolButton;
class Theme;

/// The items of one category as a list with search and sorting. One row at a time is the current
/// one; it stays while the list changes around it.
class ItemListPane : public QWidget
{
    Q_OBJECT

public:
    ItemListPane(ItemListModel &items, const Theme &theme, QWidget *parent);

    void setCategory(const ItemCategory &category);
    const ItemCategory &category() const { return m_filter->category(); }
    /// @param inCategory how many items the category has without a search
    void setCount(int inCategory, bool safeIsEmpty);
    void clearSearch();

    QString currentId() const;
    /// Makes an item the current row; an empty id, or one that is not in the list, makes none.
    void setCurrent(const QString &id);
    bool contains(const QString &id) const;
    /// The id of the first row; empty when there is none.
    QString firstId() const;

    void focusSearch();
    void focusList();
    /// Where one goes on after the safe was opened: the search, or the button for the first item.
    void takeFocus();

Q_SIGNALS:
    /// The user went to another row. The list may change under the current row without this.
    void currentChosen(const QString &id);
    /// The search left other rows than before.
    void searched();
    void activated(const QString &id);
    void removeRequested(const QString &id);
    void createRequested(PMListItem::Type type);
    void restoreAllRequested();
    void emptyTrashRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeSearch();
    void makeList();
    void makeSortMenu();
    QWidget *makeTrashBar();
    void layOut();
    void showEmptyState();
    void placeSearchKey();
    bool onSearchKey(int key);
    bool onListKey(int key);
    void setSort(ItemFilterModel::SortBy sortBy, const QString &name);

    ItemListModel &m_items;
    const Theme &m_theme;
    ItemFilterModel *m_filter;
    QLineEdit *m_search;
    QLabel *m_searchKey;
    QToolButton *m_new;
    QLabel *m_categoryName;
    QPushButton *m_sort;
    QWidget *m_trashBar;
    QStackedWidget *m_stack;
    QListView *m_list;
    EmptyState *m_empty;
    int m_inCategory = 0;
    bool m_safeIsEmpty = true;
    bool m_marking = false;   ///< the current row is being set by setCurrent()
    bool m_rowsGoing = false; ///< rows are being removed
};
