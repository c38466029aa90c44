#pragma once

#include "dialogs/Question.h"

#include <QObject>
#include <QVector>

class GPMAppCore;
class PMListItem;

/// What a user can do with items of the open safe, by their ids. An id of no item does nothing.
class ItemActions : public QObject
{
    Q_OBJECT

public:
    ItemActions(GPMAppCore &core, Asker asker, QObject *parent = nullptr);

    PMListItem *item(const QString &id) const;
    QVector<PMListItem *> items(const QStringList &ids) const;

    void runDefault(const QString &id);
    void openAddress(const QString &id);
    void copyUserName(const QString &id);
    void copySecret(const QString &id);
    void copyText(const QString &text);
    void toggleFavorite(const QString &id);
    void setFavorite(const QStringList &ids, bool favorite);
    /// A copy of an item, which becomes one of the safe's; empty when there is none.
    QString duplicate(const QString &id);

    /// Moves items to the trash, or deletes those that are there for good; asks first. False when
    /// the user does not want to.
    bool remove(const QStringList &ids);
    void restore(const QStringList &ids);
    void restoreAll();
    void emptyTrash();

    /// Takes the last move to the trash back that was not taken back yet. False when there is none
    /// since the safe was opened.
    bool undoRemoval();
    /// Forgets what could be taken back.
    void forget() { m_removals.clear(); }

Q_SIGNALS:
    /// Items were moved to the trash.
    void movedToTrash(int count);
    void restored(const QStringList &ids);

private:
    /// Says which attachments go with items that are deleted for good.
    QString attachmentText(const QStringList &ids) const;
    void copyProperty(const QString &id, const char *property);
    void moveToTrash(const QStringList &ids);

    GPMAppCore &m_core;
    Asker m_asker;
    QVector<QStringList> m_removals; ///< moves to the trash, the last one at the end
};
