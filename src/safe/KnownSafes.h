#pragma once

#include "ArchiveTask.h"
#include "GPMAppSettings.h"
#include "GPMSafe.h"

#include <QObject>
#include <QVector>

#include <memory>
#include <optional>

/// The safes that this installation knows: the folders in the settings' `recentList`, most recently
/// opened first, and behind them those in the standard place that the list has lost, as it does
/// when the settings have to start anew.
class KnownSafes : public QObject
{
    Q_OBJECT

public:
    struct Entry
    {
        QString folder;
        QString name;
        QString hint;
        bool available = false; ///< its description could be read
    };

    /// @param safesFolder where new safes are made, each in a folder of its own
    KnownSafes(GPMAppSettings &settings, const QString &safesFolder,
               SafeEnvironment environment = {}, QObject *parent = nullptr);

    QVector<Entry> entries() const;

    /// A new, unlocked safe in the standard place, put at the front of the list. Null, with nothing
    /// left on disk, when it cannot be made.
    std::shared_ptr<GPMSafe> create(const QString &name, const QString &password,
                                    const QString &hint);

    /// A task, to be started, that makes a new safe in the standard place from an archive; see
    /// SafeImport. The safe is put at the front of the list when it is there.
    std::unique_ptr<ArchiveTask> importArchive(const QString &archivePath);

    /// The safe of a folder with its description read; null when there is none.
    std::shared_ptr<GPMSafe> open(const QString &folder) const;

    /// Puts a folder at the front of the list.
    void remember(const QString &folder);

Q_SIGNALS:
    void changed();

private:
    QStringList unlistedFolders() const;

    GPMAppSettings &m_settings;
    QString m_safesFolder;
    SafeEnvironment m_environment;
};
