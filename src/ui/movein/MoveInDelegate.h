#pragma once

#include <QStyledItemDelegate>

class Theme;

/// Draws the rows of an import's preview.
class MoveInDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    MoveInDelegate(const Theme &theme, QObject *parent);

    static int rowHeight();

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void paintMark(QPainter &painter, const QRect &cell, const QModelIndex &index) const;

    const Theme &m_theme;
};
