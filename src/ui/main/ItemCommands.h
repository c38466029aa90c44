#pragma once

#include "ItemCategory.h"
#include "MainParts.h"

#include <QObject>

class GPMAppCore;
class ItemNavigation;
class Theme;

/// What keys, menus and drops do with the items that are shown, in whatever state the editor is.
class ItemCommands : public QObject
{
    Q_OBJECT

public:
    ItemCommands(GPMAppCore &core, const Theme &theme, const MainParts &parts,
                 ItemNavigation &navigation, QWidget *view);

    /// Opens the editor of a new item, after a question about what is edited now.
    void create(PMListItem::Type type);
    /// The same of the kind of the category that is shown.
    void createHere();
    void edit();
    /// Opens the editor of an item that another window names.
    void change(const QString &id);
    void duplicate();
    /// Saves what is edited, or tries a failed save again.
    void save();
    void paste();

    void remove(const QStringList &ids);
    void removeOne(const QString &id) { remove({id}); }
    void removeSelected();
    void drop(const ItemCategory &category, const QStringList &ids);

    void logIn();
    void copyUserName();
    void copySecret();

Q_SIGNALS:
    void exportRequested(const QStringList &ids);

private:
    void connectParts();
    void showMenu(const QPoint &place);

    GPMAppCore &m_core;
    const Theme &m_theme;
    MainParts m_parts;
    ItemNavigation &m_navigation;
    QWidget *m_view;
};
