#include "QuickDesk.h"

#include "GPMAppCore.h"
#include "QuickAccessWindow.h"
#include "RandomSource.h"
#include "main/MainView.h"

QuickDesk::QuickDesk(GPMAppCore &core, UiSettings &settings, const Theme &theme,
                     RecentPasswords &recent)
    : m_core(core)
    , m_settings(settings)
    , m_theme(theme)
    , m_recent(recent)
{
    m_making.setSingleShot(true);
    m_making.setInterval(0);
    connect(&m_making, &QTimer::timeout, this, &QuickDesk::make);
    connect(&core, &GPMAppCore::requestQuickAccess, this, &QuickDesk::open);
    connect(&core, &GPMAppCore::quickAccessPageFound, this, [this](const QString &url) {
        if (m_window)
            m_window->takePage(url);
    });
}

QuickDesk::~QuickDesk() = default;

void QuickDesk::setMain(MainView *view, UnlockLogic *unlock)
{
    // It shows what belongs to the former one.
    m_window.reset();
    m_view = view;
    m_unlock = unlock;
    if (m_view)
        m_making.start();
    else
        m_making.stop();
}

void QuickDesk::make()
{
    if (m_window || !m_view)
        return;
    m_window = std::make_unique<QuickAccessWindow>(
        QuickAccessWindow::Parts{
            m_core,
            m_view->items(),
            m_view->siteIcons(),
            *m_unlock,
            {m_settings, m_core.settings(), m_core.clipboard(), m_recent, &systemRandom}},
        m_theme);
    connect(m_window.get(), &QuickAccessWindow::mainWindowRequested, this,
            &QuickDesk::mainWindowRequested);
}

void QuickDesk::open(const QuickAccessWish &wish)
{
    make();
    if (!m_window)
        return;
    // The hotkey that opened it closes it, too.
    if (m_window->isVisible() && m_window->isActiveWindow() && wish.url.isEmpty())
        m_window->hide();
    else
        m_window->open(wish);
}
