#pragma once

#include "GPMFaviconDownloader.h"
#include "LinkSettings.h"

#include <QObject>

#include <memory>

class GPMSafe;

/// Keeps the icons of web sites in the open safe: none are fetched while it is locked or the user
/// does not want them.
class SiteIconDesk : public QObject
{
    Q_OBJECT

public:
    /// The settings outlive this.
    SiteIconDesk(LinkSettings &settings, IconNetwork network = {}, QObject *parent = nullptr);

    /// Follows another safe, or none.
    void setSafe(const std::shared_ptr<GPMSafe> &safe);

    bool isEnabled() const { return m_settings.siteIcons(); }
    /// False when it holds but could not be stored.
    bool setEnabled(bool enabled);

public Q_SLOTS:
    /// Starts to fetch the icon of a login's host; the address is the page's word.
    void download(const QString &domain, const QString &address);
    /// The safe was locked or unlocked.
    void follow();

Q_SIGNALS:
    void iconChanged(const QString &domain);

private:
    LinkSettings &m_settings;
    GPMFaviconDownloader m_downloader;
    std::shared_ptr<GPMSafe> m_safe;
};
