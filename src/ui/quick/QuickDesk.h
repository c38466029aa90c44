#pragma once

#include "QuickAccessWish.h"

#include <QObject>
#include <QTimer>

#include <memory>

class GPMAppCore;
class MainView;
class QuickAccessWindow;
class RecentPasswords;
class Theme;
class UiSettings;
class UnlockLogic;

/// Opens quick access when somebody wants it, over a window that is made ahead.
class QuickDesk : public QObject
{
    Q_OBJECT

public:
    /// Everything outlives this.
    QuickDesk(GPMAppCore &core, UiSettings &settings, const Theme &theme, RecentPasswords &recent);
    ~QuickDesk() override;

    /// Shows the items of another main view, and unlocks with its means; both have to outlive their
    /// use here.
    void setMain(MainView *view, UnlockLogic *unlock);

    /// What is shown; null before the first time that there was nothing else to do.
    QuickAccessWindow *window() const { return m_window.get(); }

public Q_SLOTS:
    void open(const QuickAccessWish &wish);

Q_SIGNALS:
    void mainWindowRequested();

private:
    void make();

    GPMAppCore &m_core;
    UiSettings &m_settings;
    const Theme &m_theme;
    RecentPasswords &m_recent;
    MainView *m_view = nullptr;
    UnlockLogic *m_unlock = nullptr;
    std::unique_ptr<QuickAccessWindow> m_window;
    QTimer m_making;
};
