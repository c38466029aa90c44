#pragma once

#include <QStyledItemDelegate>

class Theme;

/// Draws the rows of the item list: tile, title, second line, star.
class ItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    ItemDelegate(const Theme &theme, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintGround(QPainter &painter, const QRect &row, const QStyleOptionViewItem &option) const;
    void paintTexts(QPainter &painter, const QRect &area, const QFont &font,
                    const QModelIndex &index) const;

    const Theme &m_theme;
};
