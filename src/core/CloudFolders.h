#pragma once

#include "ArchiveTask.h"
#include "KnownSafes.h"
#include "SafeFacts.h"
#include "SyncFolders.h"

#include <QFutureWatcher>
#include <QObject>

#include <memory>

/// The folders that other computers share with this one, and the safes in them that this computer
/// does not know yet.
class CloudFolders : public QObject
{
    Q_OBJECT

public:
    /// What was found.
    struct Found
    {
        QVector<SyncFolder> accounts; ///< folders of the provider
        QStringList others;           ///< folders in which safes are mirrored, or that were named
        QVector<MirroredSafe> offers; ///< safes that this computer does not know
    };

    /// @param infoFiles of the provider; see providerInfoFiles()
    CloudFolders(KnownSafes &safes, const QStringList &infoFiles, QObject *parent = nullptr);
    /// Waits until a search under way has ended.
    ~CloudFolders() override;

    /// Looks for folders and safes on a worker; changed() follows.
    void look();
    bool isLooking() const { return m_watcher.isRunning(); }
    /// What the last search has found.
    const Found &found() const { return m_found; }

    /// Looks into one more folder from now on, which the user has named.
    void add(const QString &folder);

    /// A task, to be started, that makes a safe of this computer out of a mirror, which it is
    /// synchronised with from then on.
    std::unique_ptr<ArchiveTask> importSafe(const QString &mirrorFolder);

Q_SIGNALS:
    /// A search has ended.
    void changed();

private:
    QStringList sharedFolders() const;

    KnownSafes &m_safes;
    QStringList m_infoFiles;
    QStringList m_named;
    Found m_found;
    bool m_onceMore = false;
    QFutureWatcher<Found> m_watcher;
};
