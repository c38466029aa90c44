#pragma once

#include "Setting.h"

class CaptureGuard;
class GPMAppSettings;
class PMTranslator;
class SiteIconDesk;
class Theme;
class UiSettings;

/// All that the user can set, in the order in which it is shown.
class SettingsTable
{
    Q_DECLARE_TR_FUNCTIONS(SettingsTable)

public:
    /// What is set; all of it outlives the settings.
    struct Parts
    {
        GPMAppSettings &settings;
        UiSettings &uiSettings;
        Theme &theme;
        const PMTranslator &translator;
        /// They make the windows anew; false when the user does not want that now.
        std::function<bool(const QString &)> setLanguage;
        std::function<bool(int)> setTextPercent;
        /// How backups stand, with what can be done about them.
        std::function<QWidget *(QWidget *parent)> makeBackupRow;
        /// The way to another master password.
        std::function<QWidget *(QWidget *parent)> makePasswordRow = {};
        /// The same of the cloud folder.
        std::function<QWidget *(QWidget *parent)> makeCloudPanel = {};
        /// The browsers and their extensions.
        std::function<QWidget *(QWidget *parent)> makeBrowserPanel = {};
        /// The sites of which logins are not offered to be saved.
        std::function<QWidget *(QWidget *parent)> makeExcludedSites = {};
        /// What is known of newer versions.
        std::function<QWidget *(QWidget *parent)> makeUpdatePanel = {};
        /// Whether newer versions can be looked for; the switch for it is left out otherwise.
        bool canUpdate = false;
        /// Whether the system tells when the user is away.
        bool seesInput = true;
        /// Whether icons of web sites are fetched; null leaves the setting out.
        SiteIconDesk *siteIcons = nullptr;
        /// What leaves the windows out of screenshots; null where that cannot be done.
        CaptureGuard *capture = nullptr;
    };

    explicit SettingsTable(const Parts &parts);

    QVector<Setting> settings() const;

    static QString pageName(Setting::Page page);
    static QString pageIcon(Setting::Page page);

private:
    QVector<Setting> general() const;
    QVector<Setting> security() const;
    QVector<Setting> browser() const;
    Setting siteIcons() const;
    Setting capture() const;
    QVector<Setting> backup() const;
    QVector<Setting> cloud() const;
    QVector<Setting> hotkeys() const;
    QVector<Setting> appearance() const;

    /// Lets a setting read and write a property of the application's settings.
    Setting bound(Setting setting, const char *property) const;
    QString storeSettings() const;
    QString storeUiSettings() const;

    Parts m_parts;
};
