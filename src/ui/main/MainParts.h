#pragma once

class ItemActions;
class ItemListPane;
class ItemListModel;
class ItemPane;
class QStackedWidget;
class SelectionPage;
class Sidebar;

/// The parts of the main view, which live as long as it does.
struct MainParts
{
    ItemListModel &items;
    ItemActions *actions;
    Sidebar *sidebar;
    ItemListPane *list;
    QStackedWidget *right; ///< holds the pane and the page of a selection
    ItemPane *pane;
    SelectionPage *selection;
};
