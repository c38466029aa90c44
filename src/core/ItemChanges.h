#pragma once

#include "GPMSafe.h"

#include <QObject>

#include <functional>
#include <memory>

/// What the user does to the items of the open safe. Every command saves; without an unlocked safe
/// none does anything.
class ItemChanges : public QObject
{
    Q_OBJECT

public:
    using FindSafe = std::function<std::shared_ptr<GPMSafe>()>;

    /// @param safe the open one; null while there is none
    explicit ItemChanges(FindSafe safe, QObject *parent = nullptr);

    /// Takes a new item in; null when the safe is locked.
    PMListItem *add(std::unique_ptr<PMListItem> item);
    /// The item's fields were edited.
    void changed(const QString &itemId);
    /// Moves items to the trash, or back.
    void setDeleted(const QStringList &itemIds, bool deleted);
    void setFavorite(const QStringList &itemIds, bool favorite);
    /// Deletes items for good, with the attachments that go with them.
    void purge(const QStringList &itemIds);
    /// Keeps what an item holds now as a copy in the trash, before it is overwritten.
    /// @param title of the copy
    void keepFormer(const QString &itemId, const QString &title);
    /// Deletes all but the latest of an item's copies in the trash, as they would fill the safe. A
    /// synchronisation under way ends within, which may change or remove any item.
    void dropOldFormer(const QString &itemId);
    static constexpr int mostFormer = 5;
    /// A browser was given the item.
    void countUse(const QString &itemId);

    QStringList trashedIds() const;
    QStringList attachmentsGoingWith(const QStringList &itemIds) const;

Q_SIGNALS:
    /// Something that the user has to know.
    void message(const QString &title, const QString &text);

private:
    using Change = std::function<bool(PMListItem &item)>;

    void changeEach(const QStringList &itemIds, const Change &change);
    void dropReferences(GPMSafe &safe, const QStringList &ids);

    FindSafe m_safe;
};
