#pragma once

#include <QString>
#include <QStringList>

/// What the user decided about browsers, kept in a file that is only the user's to read. One that
/// cannot be read counts as empty and is replaced by the next change.
class LinkSettings
{
public:
    /// @param filePath a JSON object
    explicit LinkSettings(const QString &filePath);

    /// The origins of extensions that may use the link besides the known ones.
    const QStringList &approvedOrigins() const { return m_approvedOrigins; }
    bool setApprovedOrigins(const QStringList &origins);

    /// Whether the icons of web sites are fetched.
    bool siteIcons() const { return m_siteIcons; }
    bool setSiteIcons(bool on);

    QString filePath() const { return m_filePath; }

private:
    /// The setters hold even when it fails, which gives false and a line in the log.
    bool store() const;

    QString m_filePath;
    QStringList m_approvedOrigins;
    bool m_siteIcons = true;
};
