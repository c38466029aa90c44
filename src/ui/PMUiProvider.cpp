#include "PMUiProvider.h"

#include "CaptureGuard.h"
#include "GPMAppCore.h"
#include "HotkeyShortcuts.h"
#include "SideWindows.h"
#include "TrayIcon.h"
#include "WebPages.h"
#include "WindowActivation.h"
#include "WorkWindows.h"
#include "browsers/ApprovalDesk.h"
#include "cloud/CloudDesk.h"
#include "dialogs/Question.h"
#include "lock/PagesStack.h"
#include "lock/SecureWindow.h"
#include "lock/UnlockLogic.h"
#include "main/MainView.h"
#include "main/SafeMenu.h"
#include "quick/QuickDesk.h"
#include "safes/ArchiveDesk.h"
#include "safes/SafeDesk.h"
#include "save/ExcludedSitesPanel.h"
#include "save/SaveLoginDesk.h"
#include "settings/SettingsTable.h"
#include "style/Theme.h"
#include "wizard/FirstRun.h"

#include <QApplication>
#include <QDebug>
#include <QDesktopServices>
#include <QFileInfo>
#include <QScreen>
#include <QShortcut>
#include <QUrl>

#include <utility>

PMUiProvider::PMUiProvider(GPMAppCore &core, std::function<bool()> hasTray,
                           const QString &translations, QObject *parent)
    : QObject(parent)
    , m_core(core)
    , m_hasTray(std::move(hasTray))
    , m_settings(QFileInfo(core.settings().filePath()).path())
    , m_translator(translations.isEmpty()
                       ? PMTranslator::folderOf(QCoreApplication::applicationDirPath())
                       : translations)
    , m_theme(std::make_unique<Theme>())
    , m_capture(CaptureGuard::create(core.platform(), m_settings.hiddenFromCapture()))
{
    m_theme->setMode(m_settings.themeMode());
    m_theme->setTextPercent(m_settings.textPercent());
    m_theme->setMotionOff(m_settings.motionOff());
    m_sideWindows = std::make_unique<SideWindows>(m_core, m_settings, *m_theme,
                                                  std::bind(&PMUiProvider::allSettings, this));
    m_safeDesk = std::make_unique<SafeDesk>(m_core, *m_theme);
    m_cloud = std::make_unique<CloudDesk>(m_core, *m_theme);
    m_saveLogin = std::make_unique<SaveLoginDesk>(m_core, *m_theme);
    m_safeDesk->setCloudOffers({[this] { return m_core.cloudFolders().found().offers.size(); },
                                [this] { m_cloud->openImport(); }});
    m_approvals = std::make_unique<ApprovalDesk>(m_core.approvals(), [this] { bringToFront(); });
    m_quick =
        std::make_unique<QuickDesk>(m_core, m_settings, *m_theme, m_sideWindows->recentPasswords());
    connect(m_quick.get(), &QuickDesk::mainWindowRequested, this, &PMUiProvider::bringToFront);
    makeFirstRun();
}

PMUiProvider::~PMUiProvider()
{
    m_quick->setMain(nullptr, nullptr);
    m_window.reset();
}

QVector<Setting> PMUiProvider::allSettings()
{
    return SettingsTable({m_core.settings(), m_settings, *m_theme, m_translator,
                          [this](const QString &language) { return setLanguage(language); },
                          [this](int percent) { return setTextPercent(percent); },
                          [this](QWidget *row) { return m_sideWindows->makeBackupRow(row); },
                          [this](QWidget *row) { return m_sideWindows->makePasswordRow(row); },
                          [this](QWidget *row) { return m_cloud->makePanel(row); },
                          [this](QWidget *row) { return m_sideWindows->makeBrowserPanel(row); },
                          [this](QWidget *row) -> QWidget * {
                              return new ExcludedSitesPanel(m_core.loginSaving(), row);
                          },
                          [this](QWidget *row) { return m_sideWindows->updates().makePanel(row); },
                          m_sideWindows->updates().checker().hasEndpoint(),
                          m_core.guard().seesInput(), &m_core.siteIcons(), m_capture.get()})
        .settings();
}

void PMUiProvider::makeFirstRun()
{
    const auto chooseLanguage = [this](const QString &language) {
        if (!setLanguage(language))
            return false;
        m_core.settings().setLanguageFile(language);
        m_core.settings().storeSettings();
        return true;
    };
    m_firstRun =
        std::make_unique<FirstRun>(m_core, m_settings, *m_theme, m_translator, chooseLanguage);
    m_firstRun->setPluginParts([this] { return m_sideWindows->pluginParts(); });
    connect(m_firstRun.get(), &FirstRun::cloudImportRequested, m_cloud.get(),
            &CloudDesk::openImport);
}

void PMUiProvider::connectCore()
{
    connect(&m_core, &GPMAppCore::message, this, &PMUiProvider::showMessage);
    connect(&m_core, &GPMAppCore::openAddress, this, &openWebPage);
    connect(&m_core, &GPMAppCore::requestShowMainWindow, this, &PMUiProvider::bringToFront);
    connect(&m_core, &GPMAppCore::requestLock, this, &PMUiProvider::closeMessages);
    connect(&m_core, &GPMAppCore::requestLock, this, &PMUiProvider::closePopups);
    connect(&m_core, &GPMAppCore::safeLockedChanged, this, &PMUiProvider::onLockedChanged);
    connect(&m_core, &GPMAppCore::quitRequested, this, [this] {
        saveWindowState();
        QCoreApplication::quit();
    });
}

void PMUiProvider::prepareFirstLaunch()
{
    // What an earlier installation left may not fit this screen.
    m_settings.forgetWindows();
    m_firstRun->expect();
}

void PMUiProvider::createMainWindow()
{
    m_theme->apply();
    auto *view = new MainView(m_core, *m_theme);
    m_window = std::make_unique<SecureWindow>(m_core, *m_theme, view);
    m_window->setTrayCheck(m_hasTray);
    m_sideWindows->setMain(m_window.get());
    m_quick->setMain(view, &m_window->pages().unlockLogic());
    m_cloud->setMain(m_window.get());
    m_approvals->setMain(m_window.get());
    m_firstRun->setMain(m_window.get());
    connectSafeDesk(*view);
    connectView(*view);
    view->setItemOrder(m_settings.itemOrder());
    connect(m_window.get(), &SecureWindow::exitRequested, this, &PMUiProvider::exitByUser);
    connect(m_window.get(), &SecureWindow::settingsRequested, m_sideWindows.get(),
            &SideWindows::openSettings);
    connect(m_window.get(), &SecureWindow::cloudImportRequested, m_cloud.get(),
            &CloudDesk::openImport);
    connect(m_cloud.get(), &CloudDesk::safeChosen, m_window.get(), &SecureWindow::switchSafe);
    connect(m_window.get(), &SecureWindow::restoreRequested, m_sideWindows.get(),
            &SideWindows::openRestore);
    connect(m_window.get(), &SecureWindow::hidden, this, &PMUiProvider::saveWindowState);
    connect(makeLockShortcut(m_core.settings(), *m_window), &QShortcut::activated, this,
            &PMUiProvider::lock);
    connect(makeQuickAccessShortcut(m_core.settings(), *m_window), &QShortcut::activated, &m_core,
            &GPMAppCore::openQuickAccess);
    m_settings.restoreGeometry(*m_window);
    view->restoreSplitter(m_settings.splitter(m_window->objectName()));
    makeTray();
}

void PMUiProvider::connectView(MainView &view)
{
    connect(&view, &MainView::generatorRequested, m_sideWindows.get(), &SideWindows::openGenerator);
    connect(&view, &MainView::fieldGeneratorRequested, m_sideWindows.get(),
            &SideWindows::openGeneratorFor);
    connect(&view, &MainView::settingsRequested, m_sideWindows.get(), &SideWindows::openSettings);
    connect(&view, &MainView::changePasswordRequested, m_sideWindows.get(),
            &SideWindows::openChangePassword);
    connect(&view, &MainView::lockRequested, this, &PMUiProvider::lock);
    connect(&view.safeMenu(), &SafeMenu::synchronizeRequested, m_cloud.get(),
            &CloudDesk::synchronize);
    connect(&view, &MainView::safeChosen, m_window.get(), &SecureWindow::switchSafe);
    connect(&view, &MainView::createSafeRequested, m_window.get(), &SecureWindow::createSafe);
    connect(&view, &MainView::itemOrderChanged, this,
            [this, &view] { m_settings.setItemOrder(view.itemOrder()); });
    view.setSetUpDone(m_firstRun->isDone());
    connect(m_firstRun.get(), &FirstRun::doneChanged, &view,
            [this, &view] { view.setSetUpDone(m_firstRun->isDone()); });
    connect(&view, &MainView::setUpRequested, m_firstRun.get(), &FirstRun::open);
    connect(&view, &MainView::helpRequested, this, &PMUiProvider::showAbout);
    connect(&view, &MainView::exitRequested, this, &PMUiProvider::exitByUser);
}

void PMUiProvider::connectSafeDesk(MainView &view)
{
    SecureWindow *window = m_window.get();
    const SafeDesk::Ways ways{
        dialogAsker(window), dialogFileChooser(window, m_settings),
        [](const QString &path) { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }};
    m_safeDesk->setWindow({window, [window] { return window->leaveByUser(); },
                           [window](const QString &folder) { window->switchSafe(folder); },
                           [window] { window->createSafe(); }},
                          ways);
    window->pages().setFolderChoice(
        [choose = ways.choose] { return choose.folder(tr("Choose the folder of the safe")); });
    m_firstRun->setSafeWays(
        {[this] { m_safeDesk->openFolder(); }, [this] { m_safeDesk->importArchive(); }});
    connect(window, &SecureWindow::safesRequested, m_safeDesk.get(), &SafeDesk::openList);
    connect(window, &SecureWindow::importRequested, m_safeDesk.get(), &SafeDesk::importArchive);
    connect(m_sideWindows.get(), &SideWindows::restoreRequested, window,
            [this, window](const QString &archive) {
                m_safeDesk->archives().restore(archive, window);
            });
    const SafeMenu &menu = view.safeMenu();
    connect(&menu, &SafeMenu::safesRequested, m_safeDesk.get(), &SafeDesk::openList);
    connect(&menu, &SafeMenu::exportSafeRequested, m_safeDesk.get(), &SafeDesk::exportCurrent);
}

void PMUiProvider::makeTray()
{
    m_tray = std::make_unique<TrayIcon>(this);
    connect(m_tray.get(), &TrayIcon::openRequested, &m_core, &GPMAppCore::onSystrayIconActivated);
    connect(m_tray.get(), &TrayIcon::generatorRequested, m_sideWindows.get(),
            &SideWindows::openGenerator);
    connect(m_tray.get(), &TrayIcon::settingsRequested, m_sideWindows.get(),
            &SideWindows::openSettings);
    connect(m_tray.get(), &TrayIcon::helpRequested, this, &PMUiProvider::showAbout);
    connect(m_tray.get(), &TrayIcon::lockRequested, this, &PMUiProvider::lock);
    connect(m_tray.get(), &TrayIcon::exitRequested, this, &PMUiProvider::exitByUser);
    connect(m_tray.get(), &TrayIcon::quickAccessRequested, &m_core, &GPMAppCore::openQuickAccess);
    m_tray->setQuickHotkey(m_core.settings().pluginHotkey());
    connect(&m_core.settings(), &GPMAppSettings::pluginHotkeyChanged, m_tray.get(),
            &TrayIcon::setQuickHotkey);
    m_tray->setLockHotkey(m_core.settings().lockHotkey());
    connect(&m_core.settings(), &GPMAppSettings::lockHotkeyChanged, m_tray.get(),
            &TrayIcon::setLockHotkey);
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    m_tray->setLocked(!safe || !safe->isUnlocked());
    m_tray->show();
}

bool PMUiProvider::setLanguage(const QString &language)
{
    if (m_window && !m_window->content().mayLeave())
        return false;
    if (m_translator.translate(language, true).isEmpty())
        return false;
    rebuildSoon();
    return true;
}

bool PMUiProvider::setTextPercent(int percent)
{
    if (m_window && !m_window->content().mayLeave())
        return false;
    m_theme->setTextPercent(percent);
    rebuildSoon();
    return true;
}

void PMUiProvider::rebuildSoon()
{
    // The window that asked for it is still at work.
    if (m_window && !std::exchange(m_rebuilding, true))
        QMetaObject::invokeMethod(this, &PMUiProvider::rebuildWindows, Qt::QueuedConnection);
}

void PMUiProvider::rebuildWindows()
{
    // To make the windows anew is less to go wrong than to change every text and measure of every
    // one of them in place.
    m_rebuilding = false;
    saveWindowState();
    const bool settingsOpen = m_sideWindows->hasSettingsOpen();
    std::unique_ptr<SecureWindow> former = std::move(m_window);
    WorkWindows work(*former);
    createMainWindow();
    m_window->content().goTo(former->content().place());
    if (m_firstPageChosen)
        showFirstPage();
    if (former->isVisible()) {
        m_window->setWindowState(former->windowState());
        m_window->show();
    }
    if (settingsOpen)
        m_sideWindows->openSettings();
    m_firstRun->showExpected();
    former.reset();
    // What blocks the new window blocks all that is not above it.
    QWidget *modal = QApplication::activeModalWidget();
    work.moveTo(modal ? *modal : *m_window);
    m_saveLogin->renew();
}

QWidget *PMUiProvider::mainWindow() const
{
    return m_window.get();
}

void PMUiProvider::openMainView(const QString &url)
{
    if (!m_window)
        return;
    if (!std::exchange(m_firstPageChosen, true))
        showFirstPage();
    if (!url.isEmpty())
        bringToFront();
    else if (!m_window->isVisible() && !m_hasTray())
        m_window->showMinimized();
    m_firstRun->showExpected();
    m_sideWindows->updates().start();
}

void PMUiProvider::showFirstPage()
{
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    if (safe && safe->isUnlocked())
        return;
    PagesStack &pages = m_window->pages();
    if (!safe)
        pages.unlockLogic().chooseFirst(m_settings.lastUsedSafe());
    pages.showFirstPage();
}

void PMUiProvider::bringToFront()
{
    if (!m_window)
        return;
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    putInFront(*m_window->windowHandle(), m_window->objectName());
    m_window->raise();
    m_window->activateWindow();
    m_firstRun->showExpected();
}

void PMUiProvider::showMessage(const QString &title, const QString &text)
{
    // Not modal and without a loop of its own: it may come while the safe is being locked.
    auto *dialog = new QuestionDialog({title, text, {tr("OK")}}, m_window.get());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setModal(false);
    if (const auto &safe = m_core.currentSafe(); safe && safe->isUnlocked())
        m_safeMessages.append(dialog);
    bringToFront();
    dialog->show();
}

void PMUiProvider::closeMessages()
{
    // They may name items. What goes wrong while the safe is being locked comes later and stays.
    const QVector<QPointer<QWidget>> messages = std::exchange(m_safeMessages, {});
    for (const QPointer<QWidget> &message : messages) {
        if (message)
            message->close();
    }
}

void PMUiProvider::closePopups()
{
    // An open menu would keep mouse and keyboard to itself, in front of the lock page.
    while (QWidget *popup = QApplication::activePopupWidget()) {
        if (!popup->close())
            return;
    }
}

void PMUiProvider::showAbout()
{
    showMessage(tr("Glaceron Password Manager"),
                tr("Version %1\n\nCtrl+N adds a login, Ctrl+F searches, Ctrl+E edits, Ctrl+S "
                   "saves.\nCtrl+B copies the user name, Ctrl+Shift+C the password.\nCtrl+Return "
                   "logs in, Ctrl+L locks the safe, Ctrl+Q ends the program.\n\nThe typeface is "
                   "Inter (SIL Open Font License), the icons are Tabler Icons (MIT License).")
                    .arg(QCoreApplication::applicationVersion()));
}

void PMUiProvider::lock()
{
    if (m_window->content().isEnabled())
        m_window->lockByUser();
}

void PMUiProvider::exitByUser()
{
    m_window->exitByUser();
}

void PMUiProvider::saveWindowState()
{
    if (!m_window)
        return;
    m_settings.saveGeometry(*m_window);
    m_settings.saveSplitter(m_window->objectName(), m_window->content().splitterState());
    m_settings.setMainWindowScreenNumber(
        qMax(0, QGuiApplication::screens().indexOf(m_window->screen())));
}

void PMUiProvider::onLockedChanged(bool locked)
{
    if (m_tray)
        m_tray->setLocked(locked);
    if (!locked)
        m_settings.setLastUsedSafe(m_core.currentSafe()->folder());
}
