#pragma once

#include "PMListItem.h"

#include <QPixmap>
#include <QWidget>

class Theme;

/// The coloured tile of an item, or the icon of its web site.
class Tile : public QWidget
{
    Q_OBJECT

public:
    Tile(int side, const Theme &theme, QWidget *parent);

    /// @param icon null for none
    void setItem(const QString &title, PMListItem::Type type, const QPixmap &icon = {});

    /// The side of an icon in device pixels.
    int iconSide() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Theme &m_theme;
    QString m_title;
    PMListItem::Type m_type = PMListItem::UndefinedItem;
    QPixmap m_icon;
};
