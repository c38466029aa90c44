#pragma once

#include <QMenu>

class ItemActions;
class Theme;

/// The menu of the selected items: what can be done with that many of their kinds.
class ItemMenu : public QMenu
{
    Q_OBJECT

public:
    ItemMenu(ItemActions &actions, const QStringList &ids, const Theme &theme, QWidget *parent);

Q_SIGNALS:
    void editRequested();
    void duplicateRequested();
    void exportRequested();
    void removeRequested();

private:
    void addForOne(const QString &id);
    void addForTrash(const QStringList &ids);
    QAction *add(const char *name, const char *icon, const QString &text, const char *keys = "");

    ItemActions &m_actions;
    const Theme &m_theme;
};
