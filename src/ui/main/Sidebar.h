#pragma once

#include "CloudStatus.h"
#include "ItemCategory.h"

#include <QWidget>

class CategoryListView;
class CategoryModel;
class QAction;
class QBoxLayout;
class QMenu;
class SafeSwitcher;
class Theme;

/// The name of the safe, the categories of its items, and the ways to what is not about one item.
class Sidebar : public QWidget
{
    Q_OBJECT

public:
    Sidebar(const Theme &theme, QWidget *parent);

    void setSafe(const QString &name);
    /// What the name of the safe opens.
    void setSafeMenu(QMenu *menu);
    /// @param counts the number of items in each category of ItemCategory::all()
    void setCounts(const QVector<int> &counts);
    int count(const ItemCategory &category) const;
    /// How it stands with the safe's copy in the cloud folder.
    void setCloud(const CloudStatus &status, const QDateTime &now);

    /// Marks a category without telling.
    void setCategory(const ItemCategory &category);
    void takeFocus();
    void setSetUpDone(bool done);

    /// Shows icons without words, which takes a quarter of the width.
    void setFolded(bool folded);
    static int fullWidth();
    static int foldedWidth();

Q_SIGNALS:
    void categoryChosen(const ItemCategory &category);
    void itemsDropped(const ItemCategory &category, const QStringList &ids);
    void restoreAllRequested();
    void emptyTrashRequested();
    void lockRequested();
    void generatorRequested();
    void healthRequested();
    void settingsRequested();
    void shortcutsRequested();
    void helpRequested();
    void setUpRequested();
    void exitRequested();

private:
    QBoxLayout *makeFoot(const Theme &theme);
    QWidget *makeMenuButton(const Theme &theme);
    void onCurrentChanged(const QModelIndex &index);

    CategoryModel *m_model;
    CategoryListView *m_list;
    SafeSwitcher *m_switcher;
    QBoxLayout *m_head;
    QBoxLayout *m_foot;
    QAction *m_setUp = nullptr;
    bool m_marking = false;
};
