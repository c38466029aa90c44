#pragma once

#include "ArchiveTask.h"
#include "GPMAppSettings.h"
#include "GPMSafe.h"
#include "SafeFacts.h"
#include "SafePlace.h"

#include <QFuture>
#include <QObject>
#include <QVector>

#include <memory>
#include <optional>

/// The safes that this installation knows: the folders in the settings' `recentList`, most recently
/// opened first, and behind them those in the standard place that the list has lost, as it does
/// when the settings have to start anew. However often and in whichever way a folder is named, it
/// stands in the list once.
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
    const QString &safesFolder() const { return m_safesFolder; }
    const SafeEnvironment &environment() const { return m_environment; }
    /// What is remembered of each of them, in a file beside the settings.
    SafeFacts &facts() { return m_facts; }
    const SafeFacts &facts() const { return m_facts; }

    /// A folder as the list names it; empty for one that is not in the list.
    QString listed(const QString &folder) const;

    /// A new, unlocked safe, put at the front of the list. Null, with nothing left on disk, when it
    /// cannot be made.
    /// @param folder one that isFree(); a new one in the standard place when it is empty
    std::shared_ptr<GPMSafe> create(const QString &name, const QString &password,
                                    const QString &hint, const QString &folder = {});

    /// Whether a safe can be made in a folder without mixing with anything: it is empty, or not
    /// there but could be.
    static bool isFree(const QString &folder);

    /// What became of a folder that the user pointed to.
    enum class Found {
        Taken,
        KnownAlready,
        NotThere,
        NoSafe,
        AnotherSafe, ///< not the one that was to be found again
    };

    /// Puts the safe of a folder at the front of the list.
    Found add(const QString &folder);
    /// The safe of a folder that has gone is in another one now: what the list and the facts say of
    /// it holds for that one. Another safe is refused.
    Found locate(const QString &goneFolder, const QString &folder);

    /// Gives a safe another name. False when it cannot be written, or its password is being
    /// changed: it has the old one then.
    /// @param current the object of the safe where there is one, which would write the old name
    bool rename(const QString &folder, const QString &name, GPMSafe *current = nullptr);

    /// Takes a safe off the list; its files stay. Opening its folder brings it back.
    void remove(const QString &folder);

    /// While a safe is being deleted it is not in entries() and cannot be opened.
    void beginDeletion(const QString &folder);
    void endDeletion(const QString &folder);

    /// The safe of a folder is no more.
    void forget(const QString &folder);

    /// A task, to be started, that makes a new safe in the standard place from an archive; see
    /// SafeImport. The safe is put at the front of the list when it is there.
    std::unique_ptr<ArchiveTask> importArchive(const QString &archivePath);

    /// Whether this is the master password of a safe; asked on a worker.
    QFuture<bool> checkPassword(const QString &folder, const QString &password) const;

    /// The safe of a folder with its description read; null when there is none, or when it is
    /// being deleted.
    std::shared_ptr<GPMSafe> open(const QString &folder) const;

    /// Puts a folder at the front of the list.
    void remember(const QString &folder);

Q_SIGNALS:
    void changed();

private:
    QStringList listedFolders() const;
    QStringList unlistedFolders() const;
    void dropFromList(const QString &folder);
    bool isBeingDeleted(const QString &folder) const;

    GPMAppSettings &m_settings;
    QString m_safesFolder;
    SafeEnvironment m_environment;
    SafeFacts m_facts;
    QStringList m_beingDeleted;
};
