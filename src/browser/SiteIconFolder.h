#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The icons of web sites in a safe: one file a domain, named after it.
class SiteIconFolder
{
public:
    /// @param folder may be empty or missing: then there are no icons
    explicit SiteIconFolder(const QString &folder = {});

    /// The absolute path of the icon for a domain, or of the one for the domain above it when it
    /// has none; empty when there is none. Any text may be asked for.
    QString iconPath(const QString &domain) const;

    /// The file of the very domain; empty when there is none.
    QString ownIconPath(const QString &domain) const;

    /// Stores an icon in the place of the former one. False when the folder is missing, the domain
    /// cannot name a file, or it cannot be written.
    bool store(const QString &domain, const QByteArray &format, const QByteArray &bytes);

    /// Reads anew which icons there are.
    void refresh();

private:
    QString fileOf(const QString &domain) const;
    QString pathOf(const QString &file) const;

    QString m_folder;
    QStringList m_files;
};
