#pragma once

#include "ItemCategory.h"

#include <QWidget>

class CategoryModel;
class ElidedLabel;
class QBoxLayout;
class QLabel;
class QListView;
class Theme;

/// The name of the safe, the categories of its items, and the ways to what is not about one item.
class Sidebar : public QWidget
{
    Q_OBJECT

public:
    Sidebar(const Theme &theme, QWidget *parent);

    void setSafeName(const QString &name);
    /// @param counts the number of items in each category of ItemCategory::all()
    void setCounts(const QVector<int> &counts);
    int count(const ItemCategory &category) const;

    /// Marks a category without telling.
    void setCategory(const ItemCategory &category);
    void takeFocus();

Q_SIGNALS:
    void categoryChosen(const ItemCategory &category);
    void lockRequested();
    void generatorRequested();
    void healthRequested();
    void settingsRequested();
    void helpRequested();
    void exitRequested();

private:
    QBoxLayout *makeFoot(const Theme &theme);
    QWidget *makeMenuButton(const Theme &theme);
    void onCurrentChanged(const QModelIndex &index);

    CategoryModel *m_model;
    QListView *m_list;
    ElidedLabel *m_name;
    QLabel *m_state;
    bool m_marking = false;
};
