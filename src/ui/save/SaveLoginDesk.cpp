#include "SaveLoginDesk.h"

#include "GPMAppCore.h"
#include "SaveLoginDialog.h"
#include "SavePlace.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace {

QVector<QRect> usableScreens()
{
    QVector<QRect> areas{QGuiApplication::primaryScreen()->availableGeometry()};
    for (const QScreen *screen : QGuiApplication::screens())
        areas.append(screen->availableGeometry());
    return areas;
}

} // namespace

SaveLoginDesk::SaveLoginDesk(GPMAppCore &core, const Theme &theme, QObject *parent)
    : QObject(parent)
    , m_core(core)
    , m_theme(theme)
{
    connect(&core.loginSaving(), &LoginSaving::offerChanged, this, &SaveLoginDesk::follow);
}

SaveLoginDesk::~SaveLoginDesk()
{
    delete m_dialog;
}

void SaveLoginDesk::follow()
{
    if (!m_core.loginSaving().offer())
        drop();
    else if (m_dialog)
        m_dialog->showOffer();
    else
        show();
}

void SaveLoginDesk::show()
{
    m_dialog = new SaveLoginDialog(m_core, m_theme);
    const QRect browser = m_core.loginSaving().offer()->request.place;
    m_dialog->move(placeBesidePage(browser, m_dialog->size(), usableScreens()));
    m_dialog->show();
    m_dialog->raise();
}

void SaveLoginDesk::drop()
{
    SaveLoginDialog *dialog = std::exchange(m_dialog, nullptr);
    if (!dialog)
        return;
    // One of its buttons may have led here.
    dialog->hide();
    dialog->deleteLater();
}

void SaveLoginDesk::renew()
{
    if (!m_dialog)
        return;
    drop();
    show();
}
