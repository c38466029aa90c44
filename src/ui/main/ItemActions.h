#pragma once

#include "dialogs/Question.h"

#include <QObject>

class GPMAppCore;
class PMListItem;

/// What a user can do with an item of the open safe, by its id. An id of no item does nothing.
class ItemActions : public QObject
{
    Q_OBJECT

public:
    ItemActions(GPMAppCore &core, Asker asker, QObject *parent = nullptr);

    PMListItem *item(const QString &id) const;

    void runDefault(const QString &id);
    void copyUserName(const QString &id);
    void copyPassword(const QString &id);
    void copyText(const QString &text);
    void toggleFavorite(const QString &id);

    /// Moves an item to the trash, or deletes one that is there for good; asks first. False when
    /// the user does not want to.
    bool remove(const QString &id);
    void restore(const QString &id);
    void restoreAll();
    void emptyTrash();

private:
    void copyProperty(const QString &id, const char *property);

    GPMAppCore &m_core;
    Asker m_asker;
};
