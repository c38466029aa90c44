#pragma once

#include "ItemFilterModel.h"

#include <QPushButton>

class QActionGroup;
class Theme;

/// Shows the order of the item list, and changes it through its menu.
class SortButton : public QPushButton
{
    Q_OBJECT

public:
    SortButton(const Theme &theme, QWidget *parent);

    /// Marks an order without telling.
    void setOrder(ItemFilterModel::SortBy order);

Q_SIGNALS:
    void orderChosen(ItemFilterModel::SortBy order);

private:
    QActionGroup *m_choices;
};
