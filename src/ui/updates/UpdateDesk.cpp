#include "UpdateDesk.h"

#include "GPMAppSettings.h"
#include "Logger.h"
#include "MachineIdentity.h"
#include "Platform.h"
#include "UiSettings.h"
#include "UpdatePanel.h"
#include "UpdateQuery.h"

#include <QApplication>

#include <chrono>

using namespace std::chrono_literals;

namespace {

const std::chrono::milliseconds afterStart = 20s;
const std::chrono::milliseconds between = 10min;

GPMUpdateChecker::Parts partsOf(const GPMAppSettings &settings, UiSettings &uiSettings,
                                Platform &platform)
{
    const QString productId = platform.windowsVersionCode() == 0 ? QStringLiteral("gpm-linux")
                                                                 : QStringLiteral("gpm-windows");
    GPMUpdateChecker::Parts parts;
    parts.version = QCoreApplication::applicationVersion();
    parts.productId = productId;
    parts.machineHash = [productId] {
        return UpdateQuery::machineHash(machineIdentity(), productId);
    };
    parts.isWanted = [&settings] { return settings.checkUpdates(); };
    parts.lastCheck = [&uiSettings] { return uiSettings.lastUpdateCheck(); };
    parts.setLastCheck = [&uiSettings](const QDateTime &moment) {
        uiSettings.setLastUpdateCheck(moment);
    };
    parts.installedVersion = [&platform] {
        return QString::fromStdString(platform.currentUserRegistryValue(
            "Software\\Glaceron\\Glaceron Password Manager", "CurrentVersion"));
    };
    parts.log = [](const QString &line) { Logger::instance().write(line, Logger::Debug); };
    return parts;
}

} // namespace

UpdateDesk::UpdateDesk(const GPMAppSettings &settings, UiSettings &uiSettings, Platform &platform,
                       const Theme &theme)
    : m_settings(settings)
    , m_uiSettings(uiSettings)
    , m_theme(theme)
    , m_checker(new GPMUpdateChecker(partsOf(settings, uiSettings, platform), this))
{
    m_checker->setEndpoint(QUrl(QStringLiteral(GLACERON_UPDATE_URL)));
    connect(m_checker, &GPMUpdateChecker::newVersionFound, this, &UpdateDesk::onNews);
    connect(m_checker, &GPMUpdateChecker::stateChanged, this, [this] {
        // Taken back, or installed in the meantime.
        if (m_checker->state() == GPMUpdateChecker::UpToDate)
            m_waiting = {};
    });
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_timer.setInterval(between);
        m_checker->checkIfDue();
        tellWaiting();
    });
}

UpdateDesk::~UpdateDesk()
{
    delete m_dialog;
}

void UpdateDesk::setMain(QWidget *main)
{
    if (m_dialog && m_dialog->isVisible())
        m_waiting = m_shown;
    delete m_dialog;
    m_main = main;
    if (main)
        main->installEventFilter(this);
}

bool UpdateDesk::eventFilter(QObject *watched, QEvent *event)
{
    // What opens the window may open others yet.
    if (watched == m_main && event->type() == QEvent::WindowActivate)
        QMetaObject::invokeMethod(this, &UpdateDesk::tellWaiting, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void UpdateDesk::start()
{
    if (m_checker->hasEndpoint() && !m_timer.isActive())
        m_timer.start(afterStart);
}

void UpdateDesk::tellWaiting()
{
    const bool seen = m_main && m_main->isVisible() && !m_main->isMinimized();
    if (m_waiting.version.isEmpty() || !seen || QApplication::activeModalWidget() ||
        !m_settings.checkUpdates())
        return;
    show(m_waiting);
}

QWidget *UpdateDesk::makePanel(QWidget *parent)
{
    auto *panel = new UpdatePanel(*m_checker, parent);
    connect(panel, &UpdatePanel::newsRequested, this, [this] { show(m_checker->news()); });
    return panel;
}

void UpdateDesk::onNews(const UpdateNews &news, bool byUser)
{
    if (byUser) {
        show(news);
        return;
    }
    // Written so that a senseless word in the settings keeps nothing from the user.
    const QString shown = m_uiSettings.lastUpdateVersionShow();
    if (shown == news.version || isNewerVersion(shown, news.version))
        return;
    m_waiting = news;
    tellWaiting();
}

void UpdateDesk::show(const UpdateNews &news)
{
    m_shown = news; // which may be the one that waits
    m_waiting = {};
    delete m_dialog;
    m_dialog = new NewVersionDialog(m_shown, m_checker->version(), m_theme, m_main);
    connect(m_dialog, &NewVersionDialog::pageRequested, this, &UpdateDesk::pageRequested);
    m_uiSettings.setLastUpdateVersionShow(m_shown.version);
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
}
