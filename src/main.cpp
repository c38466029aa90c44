#include "Application.h"
#include "GPMAppCore.h"
#include "GPMAppSettings.h"
#include "LooseWork.h"
#include "MessageHandler.h"
#include "OwnerOnlyFile.h"
#include "PMCountryTable.h"
#include "PMFieldTypes.h"
#include "PMUiProvider.h"
#include "Platform.h"
#include "SecretMemory.h"
#include "SplashScreen.h"
#include "StartArguments.h"
#include "style/Style.h"

#include <QDebug>
#include <QFontDatabase>
#include <QScreen>
#include <QStandardPaths>
#include <QThreadPool>
#include <QUuid>

#include <memory>

#include <cstdlib>

namespace {

const int longestLookMs = 500;
const int longestWorkMs = 10000;

void translate(PMTranslator &translator, GPMAppSettings &settings)
{
    if (!settings.firstStart()) {
        translator.translate(settings.languageFile(), true);
        return;
    }
    const QStringList languages = QLocale::system().uiLanguages();
    for (const QString &language : languages) {
        const QString code = language.left(2);
        if (!translator.hasTranslation(code))
            continue;
        // Later starts read the choice from the settings.
        settings.setLanguageFile(translator.translate(code, false));
        return;
    }
    // English too has plural forms of its own.
    translator.translate({}, true);
}

/// The version that the installer wrote; without a registry that of the build.
QString installedVersion(Platform &platform)
{
    if (platform.windowsVersionCode() == 0)
        return Application::applicationVersion();
    return QString::fromStdString(platform.currentUserRegistryValue(
        "Software\\Glaceron\\Glaceron Password Manager", "DisplayVersion"));
}

SplashScreen *showSplash(const PMUiProvider &ui, Platform &platform)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    QScreen *screen = screens.value(ui.mainWindowScreenNumber(), QGuiApplication::primaryScreen());
    auto *splash = new SplashScreen(SplashScreen::picture(screen ? screen->devicePixelRatio() : 1));
    splash->setAttribute(Qt::WA_DeleteOnClose);
    splash->setVersionText(installedVersion(platform));
    splash->setStyleSheet(QStringLiteral("color: white; font: 11pt 'Segoe UI Semibold, Tahoma';"));
    splash->show(screen ? screen->geometry() : QRect(), 1000);
    return splash;
}

void ensureInstanceId(GPMAppSettings &settings)
{
    makeOwnerOnlyFolder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    if (!settings.instanceId().isEmpty())
        return;
    settings.setInstanceId(QUuid::createUuid().toString(QUuid::Id128));
    settings.storeSettings();
}

void prepareFonts()
{
    const int id = QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/SG-R.TTF"));
    const QString family = QFontDatabase::applicationFontFamilies(id).value(0);
    QFont font = family.isEmpty() ? QApplication::font() : QFont(family);
    font.setPointSize(Style::basePointSize());
    QApplication::setFont(font);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
}

} // namespace

int main(int argc, char *argv[])
{
    keepOutOfCrashDumps();
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "1");
    Application application(argc, argv);
    if (application.isRunning())
        return application.sendMessage(Application::applicationName(), 5000) ? 0 : 1;

    Application::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    installMessageHandler();
    qDebug() << QString(78, QLatin1Char('-'));

    qDebug() << "main"
             << "Load translations...";
    GPMAppCore &core = GPMAppCore::instance();
    auto ui = std::make_unique<PMUiProvider>(core);
    GPMAppSettings &settings = core.settings();
    translate(ui->translator(), settings);

    SplashScreen *splash = nullptr;
    if (!startsInTray(Application::arguments()))
        splash = showSplash(*ui, core.platform());
    Application::processEvents();

    qDebug() << "main"
             << "Verify app instance id...";
    ensureInstanceId(settings);
    Application::processEvents();

    qDebug() << "main"
             << "Start socket server...";
    core.startServer();
    ui->connectCore();
    core.startWatching();
    QObject::connect(&application, &QtSingleApplication::messageReceived, ui.get(),
                     &PMUiProvider::bringToFront);
    QObject::connect(&core, &GPMAppCore::safeLockedChanged, [](bool locked) {
        if (!locked)
            closeMemoryToOthers();
    });
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &core, [&core] {
        core.lockCurrentSafe();
        core.settleLocks();
    });
    // The end of the session would otherwise be tried by closing windows, which only hide.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &core,
                     [&core] { core.prepareForSessionEnd(); });

    qDebug() << "main"
             << "Check first start condition...";
    if (settings.firstStart()) {
        qDebug() << "main"
                 << "Prepare first launch...";
        ui->prepareFirstLaunch();
        settings.setFirstStart(false);
        settings.storeSettings();
    }

    qDebug() << "main"
             << "Prepare fonts...";
    prepareFonts();
    ui->createMainWindow();
    qDebug() << "main"
             << "Prepare fonts...";
    PMFieldTypes::registerMetaTypes();
    PMCountryTable::instance();

    if (splash)
        splash->finish(ui->mainWindow());
    qDebug() << "main"
             << "Splash finished...";
    ui->openMainView(QString());

    qDebug() << "main"
             << "Run app...";
    const int result = Application::exec();
    // The windows go first, with what they still write.
    ui.reset();
    // Everything is stored by now. A drive that does not answer must not hold the end.
    const bool hasLooked = LooseWork::settle(longestLookMs);
    const bool hasWorked = QThreadPool::globalInstance()->waitForDone(longestWorkMs);
    if (!hasLooked || !hasWorked) {
        qWarning() << "main"
                   << "A drive does not answer.";
        std::_Exit(result);
    }
    return result;
}
