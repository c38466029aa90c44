#pragma once

#include "ItemHealth.h"

#include <QPointer>

class GPMAppCore;
class HealthDialog;
class ItemFilterModel;
class Theme;

/// Brings the health of the open safe's items to its window and to the search.
class HealthDesk : public QObject
{
    Q_OBJECT

public:
    HealthDesk(GPMAppCore &core, const ItemListModel &items, const Theme &theme, QWidget *parent);

    /// Lets a list search for weak passwords.
    void serve(ItemFilterModel &list);

    void open();
    void close();
    /// Another day has begun.
    void onDayChanged();

Q_SIGNALS:
    /// An item is to be opened in the editor.
    void changeRequested(const QString &id);

private:
    GPMAppCore &m_core;
    const ItemListModel &m_items;
    const Theme &m_theme;
    QWidget *m_parent;
    ItemHealth m_health;
    QPointer<HealthDialog> m_dialog;
};
