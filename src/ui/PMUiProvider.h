#pragma once

#include "PMTranslator.h"
#include "UiSettings.h"

#include <QObject>
#include <QPointer>
#include <QVector>

#include <memory>

class GPMAppCore;
class QUrl;
class SecureWindow;
class Theme;
class TrayIcon;

/// The user interface as a whole: owns the window, the tray icon and the translator, and carries
/// out what the core asks of it.
class PMUiProvider : public QObject
{
    Q_OBJECT

public:
    explicit PMUiProvider(GPMAppCore &core, QObject *parent = nullptr);
    ~PMUiProvider() override;

    PMTranslator &translator() { return m_translator; }

    /// Connects the core's signals. Once, before a window is shown.
    void connectCore();
    void prepareFirstLaunch();

    /// The number of the screen on which the main window was last.
    int mainWindowScreenNumber() const;

    /// Makes the main window, hidden, and the tray icon.
    void createMainWindow();
    QWidget *mainWindow() const;

    /// Brings the page up that comes first; once, later it would wipe what the user entered. With
    /// the address of a browser's page the window comes to the front as well.
    void openMainView(const QString &url);

public Q_SLOTS:
    void bringToFront();

private:
    void showMessage(const QString &title, const QString &text);
    void closeMessages();
    void openAddress(const QUrl &url);
    void showAbout();
    void lock();
    void exitByUser();
    void showFirstPage();
    void saveWindowState();
    void onLockedChanged(bool locked);

    GPMAppCore &m_core;
    UiSettings m_settings;
    PMTranslator m_translator;
    std::unique_ptr<Theme> m_theme;
    std::unique_ptr<SecureWindow> m_window;
    std::unique_ptr<TrayIcon> m_tray;
    bool m_firstPageChosen = false;
    QVector<QPointer<QWidget>> m_safeMessages; ///< those shown while the safe was open
};
