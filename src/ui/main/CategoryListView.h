#pragma once

#include "ItemCategory.h"

#include <QListView>
#include <QPersistentModelIndex>

class CategoryDelegate;
class CategoryModel;
class Theme;

/// The categories of the sidebar. Items can be dropped on some of them; the trash has a menu.
class CategoryListView : public QListView
{
    Q_OBJECT

public:
    CategoryListView(CategoryModel &model, const Theme &theme, QWidget *parent);

    /// Shows icons alone.
    void setFolded(bool folded);

Q_SIGNALS:
    void itemsDropped(const ItemCategory &category, const QStringList &ids);
    void restoreAllRequested();
    void emptyTrashRequested();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QModelIndex targetOf(const QDropEvent &event) const;
    void setTarget(const QModelIndex &target);

    CategoryModel &m_model;
    const Theme &m_theme;
    CategoryDelegate *m_delegate;
    QPersistentModelIndex m_target; ///< what items are being dragged over
};
