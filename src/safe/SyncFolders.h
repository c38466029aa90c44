#pragma once

#include "FileLayer.h"

#include <QStringList>
#include <QVector>

/// The folders in which safes are mirrored.

/// The folder of one account at the cloud provider.
struct SyncFolder
{
    enum class Account { Personal, Business };

    Account account = Account::Personal;
    QString path;
};

/// A safe in such a folder.
struct MirroredSafe
{
    QString path;
    QString name;
    qint64 created = 0; ///< in ms since the epoch; the same for every copy of one safe
};

/// Where the provider's "info.json" may lie, the place to look at first in front. Variables of the
/// environment that are empty give no place.
/// @param roaming, local the user's two folders for program data on Windows; empty elsewhere
/// @param home the user's own folder, for the other systems
QStringList providerInfoFiles(const QString &roaming, const QString &local, const QString &home);

/// The same for this user on this computer.
QStringList providerInfoFiles();

/// The account folders that an "info.json" names; empty for one that is damaged or names none.
QVector<SyncFolder> parseProviderInfo(const QByteArray &json);

/// The account folders of the first info file that names some which are there.
QVector<SyncFolder> providerFolders(FileLayer &files, const QStringList &infoFiles);

/// The safes in a folder: itself where it is one, and the folders directly in it, in order of their
/// paths. A link leads to what lies elsewhere, and is left out. What has a description but no pass
/// id has not arrived whole and is left out.
QVector<MirroredSafe> mirroredSafes(FileLayer &files, const QString &folder);
