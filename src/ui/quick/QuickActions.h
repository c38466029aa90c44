#pragma once

#include "QuickAccessWish.h"

#include <QStringList>

class GPMAppCore;
class PMListItem;

/// What is done with an item from quick access. An id of no item, or of one in the trash, does
/// nothing.
class QuickActions
{
public:
    explicit QuickActions(GPMAppCore &core)
        : m_core(core)
    {
    }

    bool isLocked() const;
    /// The logins that belong to the wish's page, in their order.
    QStringList pageIds(const QuickAccessWish &wish) const;
    /// Fills the only login of the page when that is what is wanted; false when nothing was begun.
    bool fillOnly(const QuickAccessWish &wish);

    /// Fills an item into the page when it belongs there; else a login goes to its own page.
    void fill(const QString &id, const QuickAccessWish &wish);
    /// The password, the number of a card, the mail address of a person; false when there is
    /// nothing to be copied.
    bool copySecret(const QString &id);
    /// The user name, the name on a card, the name of a person.
    bool copyUserName(const QString &id);

private:
    PMListItem *item(const QString &id) const;
    bool copy(const PMListItem &item, const QString &text);

    GPMAppCore &m_core;
};
