#pragma once

#include "ItemFilterModel.h"

#include <QWidget>

class ElidedLabel;
class EmptyState;
class ItemListView;
class ItemSelection;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QToolButton;
class SiteIcons;
class SortButton;
class TrashBar;
class Theme;

/// The items of one category as a list with search and sorting. Any number of them is selected;
/// they stay so while the list changes around them.
class ItemListPane : public QWidget
{
    Q_OBJECT

public:
    ItemListPane(ItemListModel &items, const Theme &theme, QWidget *parent,
                 const Clock &clock = systemTime);

    QSize minimumSizeHint() const override;

    void setCategory(const ItemCategory &category);
    const ItemCategory &category() const { return m_filter->category(); }
    /// @param inCategory how many items the category has without a search
    void setCount(int inCategory, bool safeIsEmpty);
    void clearSearch();
    /// Where the icons of sites are; empty for nowhere.
    SiteIcons &icons() { return *m_icons; }
    void setIconFolder(const QString &folder);

    /// The name of the order in which the items stand, and that order by its name.
    QString order() const;
    void setOrder(const QString &name);

    ItemFilterModel &filter() { return *m_filter; }

    /// Another day has begun: what expires is another matter.
    void onDayChanged();

    /// The selected item; empty unless it is exactly one.
    QString currentId() const;
    /// The selected items from top to bottom.
    QStringList selectedIds() const;
    /// Selects one item; an empty id, or one that is not in the list, selects none.
    void setCurrent(const QString &id);
    void selectAll();
    bool contains(const QString &id) const;
    /// The id of the first row; empty when there is none.
    QString firstId() const;

    void focusSearch();
    void focusList();
    /// Where one goes on after the safe was opened: the search, or the button for the first item.
    void takeFocus();

Q_SIGNALS:
    /// The user selected other items. The list may change under the selection without this.
    void selectionChosen();
    /// The search left other rows than before.
    void searched();
    void activated(const QString &id);
    /// What is selected was clicked, or is to be gone into.
    void opened();
    void removeRequested(const QStringList &ids);
    /// A menu for the selected items is to open at a place of the screen.
    void menuRequested(const QPoint &place);
    void orderChosen();
    void createRequested(PMListItem::Type type);
    /// The items of another program are to come in.
    void bringOverRequested();
    void restoreAllRequested();
    void emptyTrashRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeSearch();
    void makeList(const Clock &clock);
    void layOut();
    void showEmptyState();
    void showPlaceholder();
    bool onSearchKey(int key);
    bool onListKey(int key);
    void requestMenu(const QPoint &position);
    void onOrderChosen(ItemFilterModel::SortBy order);

    const Theme &m_theme;
    ItemFilterModel *m_filter;
    SiteIcons *m_icons;
    QLineEdit *m_search;
    QLabel *m_searchKey;
    QToolButton *m_new;
    ElidedLabel *m_categoryName;
    SortButton *m_sort;
    TrashBar *m_trashBar;
    QStackedWidget *m_stack;
    ItemListView *m_list;
    ItemSelection *m_selection;
    EmptyState *m_empty;
    int m_inCategory = 0;
    bool m_safeIsEmpty = true;
};
