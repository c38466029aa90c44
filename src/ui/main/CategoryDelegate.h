#pragma once

#include <QStyledItemDelegate>

class Theme;

/// Draws the rows of the sidebar.
class CategoryDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    CategoryDelegate(const Theme &theme, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const Theme &m_theme;
};
