#pragma once

#include "PMTranslator.h"
#include "UiSettings.h"

#include <QObject>
#include <QPointer>
#include <QSystemTrayIcon>
#include <QVector>

#include <functional>
#include <memory>

class ApprovalDesk;
class CaptureGuard;
class CloudDesk;
class FirstRun;
class GPMAppCore;
class MainView;
class QuickDesk;
class SafeDesk;
class SaveLoginDesk;
class SecureWindow;
class SideWindows;
class Theme;
class TrayIcon;
struct Setting;

/// The user interface as a whole: owns the window, the tray icon and the translator, and carries
/// out what the core asks of it.
class PMUiProvider : public QObject
{
    Q_OBJECT

public:
    /// @param hasTray tells whether the system shows tray icons now
    /// @param translations the folder of the languages; the default one is beside the program
    explicit PMUiProvider(GPMAppCore &core,
                          std::function<bool()> hasTray = &QSystemTrayIcon::isSystemTrayAvailable,
                          const QString &translations = {}, QObject *parent = nullptr);
    ~PMUiProvider() override;

    PMTranslator &translator() { return m_translator; }
    SideWindows &sideWindows() { return *m_sideWindows; }

    /// Connects the core's signals. Once, before a window is shown.
    void connectCore();
    void prepareFirstLaunch();

    /// The number of the screen on which the main window was last.
    int mainWindowScreenNumber() const { return m_settings.mainWindowScreenNumber(); }

    /// Makes the main window, hidden, and the tray icon.
    void createMainWindow();
    QWidget *mainWindow() const;

    /// Brings the page up that comes first; once, later it would wipe what the user entered. With
    /// the address of a browser's page the window comes to the front as well. Without a tray a
    /// hidden window is shown minimised, as nothing else could bring it back.
    void openMainView(const QString &url);

    /// Switches to a language of the translator and shows everything in it. False when the user
    /// wants to go on editing or the language cannot be loaded: then nothing has changed.
    bool setLanguage(const QString &language);
    /// The same with the size of texts, in percent of the usual one.
    bool setTextPercent(int percent);

public Q_SLOTS:
    void bringToFront();

private:
    /// All that can be set.
    QVector<Setting> allSettings();
    void makeFirstRun();
    void showMessage(const QString &title, const QString &text);
    void closeMessages();
    void closePopups();
    void showAbout();
    void lock();
    void exitByUser();
    void showFirstPage();
    void connectSafeDesk(MainView &view);
    void connectView(MainView &view);
    void makeTray();
    void rebuildSoon();
    void rebuildWindows();
    void saveWindowState();
    void onLockedChanged(bool locked);

    GPMAppCore &m_core;
    std::function<bool()> m_hasTray;
    UiSettings m_settings;
    PMTranslator m_translator;
    std::unique_ptr<Theme> m_theme;
    std::unique_ptr<SideWindows> m_sideWindows;
    std::unique_ptr<SafeDesk> m_safeDesk;
    std::unique_ptr<CloudDesk> m_cloud;
    std::unique_ptr<SaveLoginDesk> m_saveLogin;
    std::unique_ptr<ApprovalDesk> m_approvals;
    std::unique_ptr<CaptureGuard> m_capture; ///< null where windows cannot be hidden
    std::unique_ptr<FirstRun> m_firstRun;
    std::unique_ptr<QuickDesk> m_quick;
    std::unique_ptr<SecureWindow> m_window;
    std::unique_ptr<TrayIcon> m_tray;
    bool m_firstPageChosen = false;
    bool m_rebuilding = false;
    QVector<QPointer<QWidget>> m_safeMessages; ///< those shown while the safe was open
};
