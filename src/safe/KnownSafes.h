#pragma once

#include "ArchiveTask.h"
#include "GPMAppSettings.h"
#include "GPMSafe.h"
#include "SafeFacts.h"
#include "SafeLooks.h"

#include <QFuture>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <functional>
#include <memory>
#include <optional>

/// The safes that this installation knows: the folders in the settings' `recentList`, most recently
/// opened first, and behind them those in the standard place that the list has lost, as it does
/// when the settings have to start anew. However often and in whichever way a folder is named, it
/// stands in the list once. The folders are looked at by SafeLooks: what is told of them is what
/// was found last.
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
        bool looking = false;   ///< its folder has not answered yet; the rest is remembered
        bool onDrive = false;   ///< not available, as its drive is not connected

        bool operator==(const Entry &other) const;
    };

    /// @param safesFolder where new safes are made, each in a folder of its own
    KnownSafes(GPMAppSettings &settings, const QString &safesFolder,
               SafeEnvironment environment = {}, QObject *parent = nullptr);

    /// The list as far as it is known. The folders are looked at anew behind that; changed() tells
    /// of what is different. Folders that were never looked at get a moment to answer.
    QVector<Entry> entries() const;
    bool isLooking() const { return m_looks.isLooking(); }
    const QString &safesFolder() const { return m_looks.safesFolder(); }
    const SafeEnvironment &environment() const { return m_environment; }
    /// What is remembered of each of them, in a file beside the settings.
    SafeFacts &facts() { return m_facts; }
    const SafeFacts &facts() const { return m_facts; }

    /// Whether another safe of the list lies in a folder of the same name.
    bool hasNamesake(const QString &folder) const;
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

    /// Told on the thread of this object as soon as the folder's drive has answered, unless this
    /// object is gone by then.
    using TellFound = std::function<void(Found found)>;
    using TellDone = std::function<void(bool done)>;

    /// Puts the safe of a folder at the front of the list.
    void add(const QString &folder, const TellFound &tell);
    /// The safe of a folder that has gone is in another one now: what the list and the facts say of
    /// it holds for that one. Another safe is refused.
    void locate(const QString &goneFolder, const QString &folder, const TellFound &tell);

    /// Gives a safe another name. Not done when it cannot be written, or its password is being
    /// changed: it has the old one then.
    /// @param current the object of the safe where there is one, which would write the old name
    void rename(const QString &folder, const QString &name, const std::shared_ptr<GPMSafe> &current,
                const TellDone &tell);

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

    /// The safe of a folder with its description read; null when there is none, when it is being
    /// deleted, or when the folder does not answer in a moment: answered() tells when it does.
    std::shared_ptr<GPMSafe> open(const QString &folder) const;
    /// The same as it was found last, so that a slow folder serves, too: for what finds out by
    /// itself that the folder has gone.
    std::shared_ptr<GPMSafe> openAsFound(const QString &folder) const;

    /// Its folder was asked, and is not known to be there or not yet; answered() tells.
    bool isLate(const QString &folder) const { return m_looks.isLate({folder}); }
    /// What was found in a folder last; null before the first answer.
    const SafeLook *lookAt(const QString &folder) const { return m_looks.at(folder); }

    /// Puts a folder at the front of the list.
    void remember(const QString &folder);

Q_SIGNALS:
    void changed();
    void answered(const QString &folder);

private:
    std::shared_ptr<GPMSafe> make(const QString &folder, const SafeLook *look) const;
    QVector<Entry> knownEntries() const;
    QStringList listedFolders() const;
    QStringList unlistedFolders() const;
    void lookAnew() const;
    SafeLook lookNow(const QString &folder);
    void lookLater(const QString &folder, const std::function<void(const SafeLook &)> &take);
    Found takeAdded(const QString &folder, const SafeLook &look);
    Found takeLocated(const QString &goneFolder, const QString &folder, const SafeLook &look);
    void noteName(const QString &folder, const QString &name);
    void tell();
    void tellNews();
    void dropFromList(const QString &folder);
    bool isInPlace(const QString &folder) const;
    bool isBeingDeleted(const QString &folder) const;

    GPMAppSettings &m_settings;
    SafeEnvironment m_environment;
    SafeFacts m_facts;
    mutable SafeLooks m_looks; ///< a memory: looking changes nothing
    QVector<Entry> m_told;
    QTimer m_telling;
    QStringList m_beingDeleted;
    LooseWork m_work;
};
