// The settings of the page "Browser".

#include "GPMAppSettings.h"
#include "SettingsTable.h"
#include "SiteIconDesk.h"

QVector<Setting> SettingsTable::browser() const
{
    const QString fill = tr("Fill");
    const QString submit = tr("Fill and submit");
    using Settings = GPMAppSettings;
    Setting browsers = {"browsers",
                        Setting::Browser,
                        tr("Browsers and extensions"),
                        tr("In which browsers the extension is, and which may connect."),
                        tr("plugin install approve connect chrome chromium firefox"),
                        Setting::Panel,
                        {},
                        {}};
    browsers.makePanel = m_parts.makeBrowserPanel;
    QVector<Setting> rows = {
        bound({"login_mode",
               Setting::Browser,
               tr("Log in from the main window"),
               tr("Whether the page's form is only filled or also sent. A login can have its "
                  "own way."),
               tr("automatic form enter"),
               Setting::Choice,
               {},
               {},
               {{Settings::Fill, fill}, {Settings::FillAndSubmit, submit}}},
              "loginMode"),
        bound({"plugin_login_mode",
               Setting::Browser,
               tr("Log in from the quick-access window"),
               tr("The same for logins that you choose while you are in the browser."),
               tr("automatic form enter extension plugin"),
               Setting::Choice,
               {},
               {},
               {{Settings::PluginFill, fill}, {Settings::PluginFillAndSubmit, submit}}},
              "pluginLoginMode"),
        bound({"plugin_open_mode",
               Setting::Browser,
               tr("Open addresses in"),
               tr("Where the browser shows the page of a login that is not open yet."),
               tr("tab window extension plugin"),
               Setting::Choice,
               {},
               {},
               {{Settings::Current, tr("The current tab")},
                {Settings::NewTab, tr("A new tab")},
                {Settings::NewWindow, tr("A new window")}}},
              "pluginOpenMode")};
    if (m_parts.siteIcons)
        rows.append(siteIcons());
    if (m_parts.makeBrowserPanel)
        rows.append(browsers);
    if (!m_parts.makeExcludedSites)
        return rows;
    Setting excluded = {"excluded_sites",
                        Setting::Browser,
                        tr("Sites without an offer"),
                        tr("Logins that you type in there are not offered to be saved."),
                        tr("never save login ask again"),
                        Setting::Panel,
                        {},
                        {}};
    excluded.makePanel = m_parts.makeExcludedSites;
    rows.append(excluded);
    return rows;
}

Setting SettingsTable::siteIcons() const
{
    Setting setting = {"site_icons",
                       Setting::Browser,
                       tr("Show the icons of web sites"),
                       tr("They are fetched from the sites of your logins and kept in the safe."),
                       tr("favicon logo picture download"),
                       Setting::Switch,
                       {},
                       {}};
    SiteIconDesk *icons = m_parts.siteIcons;
    setting.value = [icons] { return icons->isEnabled(); };
    setting.apply = [icons](const QVariant &value) {
        return icons->setEnabled(value.toBool())
                   ? QString()
                   : tr("The setting holds until the program ends, but it could not be stored.");
    };
    return setting;
}
