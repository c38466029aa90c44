#pragma once

#include "BackupOverview.h"
#include "LooseWork.h"
#include "SafeDescription.h"
#include "SafeEnvironment.h"
#include "SafePlace.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QVector>

#include <memory>
#include <optional>

/// What lies on the disk of one safe, for a list of them.
struct SafeDetails
{
    SafePlace place = SafePlace::Here;
    SafeDescription description; ///< while it is Here
    QByteArray passId;           ///< the same for copies of one safe
    qint64 size = 0;             ///< in bytes
    bool backupsKnown = false;
    std::optional<BackupEntry> lastBackup; ///< nothing: none in the folder of the backups
    QString copyOf; ///< folder of another one in the list that it is a copy of
};

/// Reads the details of some safes. Each folder, and that of the backups, on a thread of its own:
/// what one of them does not tell, as its drive does not answer, the others do not wait for.
class SafeDetailsReader : public QObject
{
    Q_OBJECT

public:
    explicit SafeDetailsReader(std::shared_ptr<FileLayer> files);

    /// Reads anew; what is known stays until it is known better.
    void start(const QStringList &folders, const QString &backupFolder);
    bool isReading() const { return m_open > 0; }
    /// Nothing before its folder has answered.
    std::optional<SafeDetails> of(const QString &folder) const;

Q_SIGNALS:
    /// Some more is known; after the last piece isReading() is false.
    void changed();

private:
    void takeOne();

    std::shared_ptr<FileLayer> m_files;
    std::unique_ptr<LooseWork> m_work;
    QStringList m_folders;
    QMap<QString, SafeDetails> m_details;
    std::optional<QVector<BackupEntry>> m_backups;
    int m_open = 0;
};
