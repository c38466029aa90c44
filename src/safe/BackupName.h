#pragma once

#include <QDate>
#include <QString>

#include <optional>

/// The name of a periodic backup: the safe's folder, the day, and the safe's time of change in
/// hexadecimal, as "safe_20261121_19b0a.gpm". Where safes lie in several folders of one name, a
/// sign of the folder's place follows: "safe_20261121_19b0a-5f0c2a91.gpm".
struct BackupName
{
    QString safeFolder; ///< name of the folder
    QDate day;
    qint64 modified = 0; ///< milliseconds since the Unix epoch
    QString place{};     ///< see placeOf(); empty where the name of the folder says enough

    static QString placeOf(const QString &folder);

    QString text() const;
    /// Nothing for a file that is called otherwise.
    static std::optional<BackupName> parse(const QString &fileName);

    /// Whether a file is what an interrupted backup of the safe left.
    static bool isUnfinished(const QString &fileName, const QString &safeFolder);
    static QString unfinishedText(const QString &fileName);
};
