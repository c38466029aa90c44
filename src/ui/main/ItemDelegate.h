#pragma once

#include "Clock.h"
#include "style/Palette.h"

#include <QFontMetrics>
#include <QStyledItemDelegate>

#include <optional>

class SiteIcons;
class Theme;

/// Draws the rows of the item list: the icon of the site or a tile, title, second line, star, and
/// words on what expires.
class ItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    struct Measures
    {
        int row = 52;
        int tile = 34;
    };

    /// @param icons the icons of sites; may be null
    ItemDelegate(const Theme &theme, SiteIcons *icons, QObject *parent, Clock clock = systemTime);
    ItemDelegate(const Theme &theme, SiteIcons *icons, const Measures &measures, QObject *parent,
                 Clock clock = systemTime);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    const Theme &theme() const { return m_theme; }
    /// What stands at the right end of a row; returns the width that it took there.
    virtual int paintMark(QPainter &painter, const QRect &row, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const;

private:
    void paintGround(QPainter &painter, const QRect &row, const QStyleOptionViewItem &option) const;
    void paintTile(QPainter &painter, const QRectF &tile, const QModelIndex &index) const;
    /// Returns the width that it took at the right of the area.
    int paintBadge(QPainter &painter, const QRect &area, const QModelIndex &index) const;
    void paintTexts(QPainter &painter, const QRect &area, const QModelIndex &index) const;
    void paintText(QPainter &painter, const QRect &area, const QString &text, const QFont &font,
                   const QFontMetrics &metrics, Palette::Role role) const;

    /// The fonts of a row. To make them for each one costs more than to draw it.
    struct Fonts
    {
        Fonts(const QFont &usual, int size);

        QFont base;
        int textSize;
        QFont title;
        QFont second;
        QFont badge;
        QFontMetrics titleMetrics;
        QFontMetrics secondMetrics;
        QFontMetrics badgeMetrics;
    };
    void prepareFonts(const QFont &base) const;

    const Theme &m_theme;
    SiteIcons *m_icons;
    Measures m_measures;
    Clock m_clock;
    mutable std::optional<Fonts> m_fonts;
};
