#include "SettingsTable.h"

#include "CaptureGuard.h"
#include "GPMAppSettings.h"
#include "PMTranslator.h"
#include "UiSettings.h"

#include <QDir>
#include <QFileInfo>

namespace {

const int longestInactivity = 240;
const int mostBackups = 100;
const int textSizes[] = {90, 100, 115, 130, 150};

struct PageLook
{
    const char *name;
    const char *icon;
};

const PageLook pages[Setting::PageCount] = {
    {QT_TRANSLATE_NOOP("SettingsTable", "General"), "adjustments"},
    {QT_TRANSLATE_NOOP("SettingsTable", "Security"), "shield-lock"},
    {QT_TRANSLATE_NOOP("SettingsTable", "Browser"), "world"},
    {QT_TRANSLATE_NOOP("SettingsTable", "Backup"), "archive"},
    {QT_TRANSLATE_NOOP("SettingsTable", "Cloud folder"), "cloud"},
    {QT_TRANSLATE_NOOP("SettingsTable", "Hotkeys"), "keyboard"},
    {QT_TRANSLATE_NOOP("SettingsTable", "Appearance"), "palette"},
};

} // namespace

SettingsTable::SettingsTable(const Parts &parts)
    : m_parts(parts)
{
}

QString SettingsTable::pageName(Setting::Page page)
{
    return tr(pages[page].name);
}

QString SettingsTable::pageIcon(Setting::Page page)
{
    return QLatin1String(pages[page].icon);
}

QVector<Setting> SettingsTable::settings() const
{
    return general() + security() + browser() + backup() + cloud() + hotkeys() + appearance();
}

QVector<Setting> SettingsTable::general() const
{
    QVector<Setting::Option> languages;
    QString names;
    for (const QString &language : m_parts.translator.availableLanguages()) {
        const QString name = m_parts.translator.displayName(language);
        languages.append({language, name});
        names += name + QLatin1Char(' ');
    }
    Setting language = {"language_file",
                        Setting::General,
                        tr("Language"),
                        tr("Everything in the program is shown in it, at once."),
                        // Found by those who cannot read the language that is shown.
                        names + QStringLiteral("language sprache idioma langue язык"),
                        Setting::Choice,
                        {},
                        {},
                        languages};
    const Parts parts = m_parts;
    language.value = [parts] {
        const QString stored = parts.settings.languageFile();
        return stored.isEmpty() ? parts.translator.availableLanguages().first() : stored;
    };
    language.apply = [*this](const QVariant &value) {
        if (!m_parts.setLanguage(value.toString()))
            return tr("The language was not changed.");
        m_parts.settings.setLanguageFile(value.toString());
        return storeSettings();
    };
    QVector<Setting> rows{language};
    if (m_parts.canUpdate)
        rows.append(bound({"check_updates",
                           Setting::General,
                           tr("Check for updates"),
                           tr("Asks once a day whether there is a newer version. Sent are your "
                              "version and a number made for this computer, nothing else."),
                           tr("new version download"),
                           Setting::Switch,
                           {},
                           {}},
                          "checkUpdates"));
    Setting updates = {"updates",
                       Setting::General,
                       tr("Newest version"),
                       tr("Which version there is, and when was last looked for it."),
                       tr("update check download"),
                       Setting::Panel,
                       {},
                       {}};
    updates.makePanel = m_parts.makeUpdatePanel;
    if (updates.makePanel)
        rows.append(updates);
    return rows;
}

QVector<Setting> SettingsTable::security() const
{
    Setting interval = {"inactivity_interval",
                        Setting::Security,
                        tr("Time until it locks"),
                        tr("How long neither keyboard nor mouse are used, in any program."),
                        tr("auto-lock idle minutes away"),
                        Setting::Number,
                        {},
                        {}};
    interval.least = 1;
    interval.most = longestInactivity;
    interval.unit = tr(" min", "minutes");
    interval.neededSwitch = "autolock_inactive";
    Setting password = {"master_password",
                        Setting::Security,
                        tr("Master password"),
                        tr("The one that opens this safe."),
                        tr("change hint"),
                        Setting::Panel,
                        {},
                        {}};
    password.makePanel = m_parts.makePasswordRow;
    QVector<Setting> rows = {
        bound({"autolock_inactive",
               Setting::Security,
               tr("Lock after inactivity"),
               m_parts.seesInput ? tr("The safe locks when you leave the computer alone.")
                                 : tr("Your desktop does not tell when you are away. The safe "
                                      "locks with the screen and when the computer sleeps."),
               tr("auto-lock idle away"),
               Setting::Switch,
               {},
               {}},
              "autolockInactive"),
        bound(interval, "inactivityInterval"),
        bound({"autolock_screensaver",
               Setting::Security,
               tr("Lock when the screen saver starts"),
               tr("The safe locks together with the screen."),
               tr("auto-lock"),
               Setting::Switch,
               {},
               {}},
              "autolockScreensaver"),
        bound({"clear_clipboard",
               Setting::Security,
               tr("Clear copied values after 60 seconds"),
               tr("What you copied from the safe does not stay on the clipboard, where other "
                  "programs can read it."),
               tr("clipboard copy password wipe"),
               Setting::Switch,
               {},
               {}},
              "clearClipboard")};
    if (m_parts.capture)
        rows.append(capture());
    if (m_parts.makePasswordRow)
        rows.prepend(password);
    return rows;
}

Setting SettingsTable::capture() const
{
    const Parts parts = m_parts;
    Setting setting = {"hidden_from_capture",
                       Setting::Security,
                       tr("Hide the windows from screenshots"),
                       tr("What is in the safe appears in no recording and on no shared screen."),
                       tr("screen capture sharing meeting"),
                       Setting::Switch,
                       {},
                       {}};
    setting.value = [parts] { return parts.uiSettings.hiddenFromCapture(); };
    setting.apply = [*this](const QVariant &value) {
        m_parts.capture->setHides(value.toBool());
        m_parts.uiSettings.setHiddenFromCapture(value.toBool());
        return storeUiSettings();
    };
    return setting;
}

QVector<Setting> SettingsTable::backup() const
{
    const char *needed = "enable_backup";
    Setting interval = {"backup_interval",
                        Setting::Backup,
                        tr("Back up"),
                        tr("A safe that has not changed since is not copied again."),
                        tr("interval how often"),
                        Setting::Choice,
                        {},
                        {},
                        {{GPMAppSettings::Daily, tr("Every day")},
                         {GPMAppSettings::Week, tr("Every week")},
                         {GPMAppSettings::Month, tr("Every month")}}};
    Setting folder = bound({"backup_path",
                            Setting::Backup,
                            tr("Folder for backups"),
                            tr("Best on another disk. The copies are encrypted like the safe."),
                            tr("path directory archive"),
                            Setting::Folder,
                            {},
                            {}},
                           "backupPath");
    Setting count = {"backup_count",
                     Setting::Backup,
                     tr("Copies to keep"),
                     tr("Of each safe; when there are more, the oldest are deleted."),
                     tr("number archives"),
                     Setting::Number,
                     {},
                     {}};
    count.least = 1;
    count.most = mostBackups;
    interval.neededSwitch = folder.neededSwitch = count.neededSwitch = needed;
    const auto store = folder.apply;
    folder.apply = [store](const QVariant &value) {
        const QString path = value.toString();
        if (!QDir().mkpath(path) || !QFileInfo(path).isWritable())
            return tr("This folder cannot be written to: %1").arg(QDir::toNativeSeparators(path));
        return store(value);
    };
    QVector<Setting> rows = {bound({"enable_backup",
                                    Setting::Backup,
                                    tr("Back up automatically"),
                                    tr("Copies of all safes that open with their master password."),
                                    tr("archive copy"),
                                    Setting::Switch,
                                    {},
                                    {}},
                                   "enableBackup"),
                             bound(interval, "backupInterval"), folder,
                             bound(count, "backupCount")};
    if (!m_parts.makeBackupRow)
        return rows;
    Setting state = {"backup_state",
                     Setting::Backup,
                     tr("Last backup"),
                     tr("When each safe was backed up, and when that is done next."),
                     tr("back up now restore archive"),
                     Setting::Panel,
                     {},
                     {}};
    state.makePanel = m_parts.makeBackupRow;
    // What one comes to see.
    rows.prepend(state);
    return rows;
}

QVector<Setting> SettingsTable::cloud() const
{
    if (!m_parts.makeCloudPanel)
        return {};
    Setting state = {"cloud_state",
                     Setting::Cloud,
                     tr("Cloud folder"),
                     tr("Keeps safes the same on several computers."),
                     tr("synchronise sync mirror share provider account computers"),
                     Setting::Panel,
                     {},
                     {}};
    state.makePanel = m_parts.makeCloudPanel;
    return {state};
}

QVector<Setting> SettingsTable::hotkeys() const
{
    return {bound({"lock_hotkey",
                   Setting::Hotkeys,
                   tr("Lock Safe hotkey:"),
                   tr("Locks the safe from any program; on Wayland, from this program's windows."),
                   tr("shortcut key combination"),
                   Setting::Hotkey,
                   {},
                   {}},
                  "lockHotkey"),
            bound({"plugin_hotkey",
                   Setting::Hotkeys,
                   tr("Browser plugin hotkey:"),
                   tr("Opens the quick-access window for the page in your browser."),
                   tr("shortcut key combination"),
                   Setting::Hotkey,
                   {},
                   {}},
                  "pluginHotkey")};
}

QVector<Setting> SettingsTable::appearance() const
{
    const Parts parts = m_parts;
    Setting theme = {"theme",
                     Setting::Appearance,
                     tr("Colours"),
                     tr("Light or dark, always or as the system has it."),
                     tr("theme mode night appearance"),
                     Setting::Choice,
                     {},
                     {},
                     {{int(Theme::Mode::System), tr("Like the system")},
                      {int(Theme::Mode::Light), tr("Light")},
                      {int(Theme::Mode::Dark), tr("Dark")}}};
    theme.value = [parts] { return int(parts.theme.mode()); };
    theme.apply = [*this](const QVariant &value) {
        const auto mode = static_cast<Theme::Mode>(value.toInt());
        m_parts.theme.setMode(mode);
        m_parts.uiSettings.setThemeMode(mode);
        return storeUiSettings();
    };
    Setting size = {"text_size",
                    Setting::Appearance,
                    tr("Text size"),
                    tr("Of all texts, with the controls around them."),
                    tr("font large small zoom scale"),
                    Setting::Choice,
                    {},
                    {}};
    for (const int percent : textSizes)
        size.options.append({percent, tr("%1 %").arg(percent)});
    size.value = [parts] { return parts.uiSettings.textPercent(); };
    size.apply = [*this](const QVariant &value) {
        if (!m_parts.setTextPercent(value.toInt()))
            return tr("The text size was not changed.");
        m_parts.uiSettings.setTextPercent(value.toInt());
        return storeUiSettings();
    };
    Setting motion = {"motion_off",
                      Setting::Appearance,
                      tr("No animations"),
                      tr("When it is off, the system's setting for animations holds."),
                      tr("reduced motion effects"),
                      Setting::Switch,
                      {},
                      {}};
    motion.value = [parts] { return parts.uiSettings.motionOff(); };
    motion.apply = [*this](const QVariant &value) {
        m_parts.theme.setMotionOff(value.toBool());
        m_parts.uiSettings.setMotionOff(value.toBool());
        return storeUiSettings();
    };
    return {theme, size, motion};
}

Setting SettingsTable::bound(Setting setting, const char *property) const
{
    GPMAppSettings &settings = m_parts.settings;
    // Enumerations come out as numbers, as the options have them.
    const bool isEnum = settings.metaObject()
                            ->property(settings.metaObject()->indexOfProperty(property))
                            .isEnumType();
    setting.value = [&settings, property, isEnum]() -> QVariant {
        const QVariant value = settings.property(property);
        return isEnum ? QVariant(value.toInt()) : value;
    };
    setting.apply = [*this, property](const QVariant &value) {
        m_parts.settings.setProperty(property, value);
        return storeSettings();
    };
    return setting;
}

QString SettingsTable::storeSettings() const
{
    if (m_parts.settings.storeSettings())
        return {};
    return tr("The settings hold until the program ends, but they could not be written to %1")
        .arg(QDir::toNativeSeparators(m_parts.settings.filePath()));
}

QString SettingsTable::storeUiSettings() const
{
    if (m_parts.uiSettings.store())
        return {};
    return tr("The settings hold until the program ends, but they could not be written to %1")
        .arg(QDir::toNativeSeparators(m_parts.uiSettings.filePath()));
}
