#pragma once

#include "PMListItem.h"

#include <QWidget>

/// The coloured tile of an item.
class Tile : public QWidget
{
    Q_OBJECT

public:
    Tile(int side, QWidget *parent);

    void setItem(const QString &title, PMListItem::Type type);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_title;
    PMListItem::Type m_type = PMListItem::UndefinedItem;
};
