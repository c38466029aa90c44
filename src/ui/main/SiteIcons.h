#pragma once

#include "SiteIconFolder.h"

#include <QCache>
#include <QObject>
#include <QPixmap>

/// The icons of web sites, from the folder of a safe that keeps them. They come from the sites, so
/// nothing about them is trusted: names that lead out of the folder, large files, large pictures
/// and formats that can refer to other files are passed over.
class SiteIcons : public QObject
{
    Q_OBJECT

public:
    explicit SiteIcons(QObject *parent = nullptr);

    /// @param folder the folder with the icons; empty for none
    void setFolder(const QString &folder);

    /// The icon as a square of so many device pixels; null when there is none that can be shown.
    /// @param fileName in the folder, as the item names it; empty when it names none
    /// @param domain of the item, which finds the icon then
    QPixmap icon(const QString &fileName, int side, const QString &domain = {});

    /// Looks anew for what was not there.
    void retryMissing();

public Q_SLOTS:
    /// There is another icon for the domain, and so for those below it.
    void onUpdateFavicons(const QString &domain);

Q_SIGNALS:
    /// Icons are to be asked for anew.
    void changed();

private:
    QString pathOf(const QString &fileName, const QString &domain) const;

    QString m_folder;
    SiteIconFolder m_icons;
    QCache<QString, QPixmap> m_cache; ///< a null pixmap for what cannot be shown
};

/// Decodes an icon, scaled to fit a square of so many pixels; null when it is to be passed over.
QImage readSiteIcon(const QString &path, int side);
