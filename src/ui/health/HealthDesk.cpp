#include "HealthDesk.h"

#include "GPMAppCore.h"
#include "HealthDialog.h"
#include "ItemFilterModel.h"

HealthDesk::HealthDesk(GPMAppCore &core, const ItemListModel &items, const Theme &theme,
                       QWidget *parent)
    : QObject(parent)
    , m_core(core)
    , m_items(items)
    , m_theme(theme)
    , m_parent(parent)
    , m_health(items)
{
}

void HealthDesk::serve(ItemFilterModel &list)
{
    list.setWeakCheck([this](const PMListItem &item) { return m_health.isWeak(item); });
    connect(&list, &QAbstractItemModel::modelReset, this, [this, &list] {
        if (list.query().wantsWeak())
            m_health.start();
    });
    connect(&m_health, &ItemHealth::changed, &list, [&list] {
        if (list.query().wantsWeak())
            list.refresh();
    });
}

void HealthDesk::open()
{
    if (!m_dialog) {
        m_dialog = new HealthDialog(m_health, m_items, m_theme, m_parent->window());
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_dialog, &HealthDialog::changeRequested, this, &HealthDesk::changeRequested);
        connect(m_dialog, &HealthDialog::pageRequested, &m_core, &GPMAppCore::openAddress);
        connect(m_dialog, &HealthDialog::ignoredChanged, &m_core,
                [this] { m_core.currentSafe()->saveChangesAsync(); });
    }
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
}

void HealthDesk::onDayChanged()
{
    if (m_dialog)
        m_dialog->refresh();
}

void HealthDesk::close()
{
    delete m_dialog;
}
