#include "MoveDesk.h"

#include "ExportDialog.h"
#include "MoveInDialog.h"

MoveDesk::MoveDesk(GPMAppCore &core, const Theme &theme, QWidget *place)
    : QObject(place)
    , m_core(core)
    , m_theme(theme)
    , m_place(place)
{
}

void MoveDesk::bringOver()
{
    MoveInDialog::open(m_core, m_theme, m_place->window());
}

void MoveDesk::exportAll()
{
    exportItems({});
}

void MoveDesk::exportItems(const QStringList &ids)
{
    ExportDialog::open(m_core, ids, m_theme, m_place->window());
}
