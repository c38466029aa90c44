#pragma once

#include "PMListItem.h"

#include <QMenu>

class Theme;

/// The kinds of which an item can be made.
class NewItemMenu : public QMenu
{
    Q_OBJECT

public:
    NewItemMenu(const Theme &theme, QWidget *parent);

Q_SIGNALS:
    void chosen(PMListItem::Type type);
};
