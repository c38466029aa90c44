#pragma once

#include <QStyledItemDelegate>

class Theme;

/// Draws the rows of the sidebar.
class CategoryDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    CategoryDelegate(const Theme &theme, QObject *parent);

    /// The part of an item's place that its row is drawn in.
    static QRect rowRect(const QRect &item, const QModelIndex &index);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// Paints icons without words.
    void setFolded(bool folded) { m_folded = folded; }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintTexts(QPainter &painter, const QRect &row, QFont font, const QModelIndex &index,
                    bool selected) const;

    const Theme &m_theme;
    bool m_folded = false;
};
