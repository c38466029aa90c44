#pragma once

#include "PMItemDocument.h"
#include "SafeEnvironment.h"
#include "SecretBytes.h"

#include <QDateTime>
#include <QFuture>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QThreadPool>
#include <QVector>

#include <memory>
#include <optional>

/// An item as it would be had its edit been saved.
struct KeptDraft
{
    QString key;             ///< names the draft's file; see DraftStore::newKey()
    PMItemDocument document; ///< carries the id of the edited item
    bool isNew = false;      ///< the item never was in the safe
    QDateTime baseModified;  ///< when the edited item had last changed as editing began
    QString home{};          ///< the folder of the safe; that of the store when it is kept
};

/// The edits of a safe that were not saved, one encrypted file each under the safe's password, in a
/// folder of its own outside the safe. Works while the safe is unlocked. A safe that was moved
/// keeps its drafts; copies of a safe have each their own.
///
/// Files are read and written on a worker, one after the other.
class DraftStore : public QObject
{
    Q_OBJECT

public:
    using Password = std::shared_ptr<const SecretBytes>;

    /// The folder comes from the environment; without one nothing is kept.
    explicit DraftStore(SafeEnvironment environment, QObject *parent = nullptr);
    ~DraftStore() override;

    /// @param home the canonical folder of the safe
    void open(const QString &home, const Password &password);
    /// Waits for what is being written, then forgets the password.
    void close();
    /// From now on only the safe itself keeps and removes drafts: it locks, and those who let go of
    /// what they show must not change what is kept of it. Or no longer so.
    void seal(bool sealed);

    /// Removes the drafts of a safe that is no more.
    /// @param hasNamesake another safe lies in a folder of the same name; drafts of former times
    /// may be its own
    static void removeAll(const SafeEnvironment &environment, const QString &home,
                          bool hasNamesake);

    static QString newKey();
    QString filePath(const QString &key) const;

    /// Writes a draft over its former state; that one stays when it fails, which is logged.
    bool keep(const KeptDraft &draft);
    /// The same on the worker. A failure is logged once until a write succeeds again.
    void keepAsync(const KeptDraft &draft);
    /// Removes a draft, behind the writes that are under way.
    void remove(const QString &key);
    /// Removes drafts of what was saved, once the safe is locked and has written it.
    void removeOnceSaved(const QStringList &keys) { m_onceSaved += keys; }

    /// For the safe, while it locks: keeps an item that could not be written, on the worker.
    void keepUnsaved(const KeptDraft &draft);
    /// For the safe: everything is written, so removeOnceSaved() holds.
    void removeSaved();
    /// What ends behind everything that is under way now.
    QFuture<void> idle();
    bool waitForIdle(int ms) { return m_worker.waitForDone(ms); }

    /// Reads the drafts on the worker; loaded() follows.
    void loadAsync();

    /// Writes every draft beside itself under another password, on the worker, and from now on
    /// each that is kept. The result is false when one cannot be written; one that does not open
    /// now is passed over. commitChange() or rollBackChange() has to follow.
    QFuture<bool> prepareChange(const Password &newPassword);
    /// Lets what was written under the new password take the place of the drafts, on the worker.
    void commitChange();
    void rollBackChange();
    /// Waits for the worker.
    void wait() { m_worker.waitForDone(); }

Q_SIGNALS:
    /// @param unreadable files that are no drafts of this safe; they are left as they are
    void loaded(const QVector<KeptDraft> &drafts, const QStringList &unreadable);

private:
    struct Loaded
    {
        QVector<KeptDraft> drafts;
        QStringList unreadable;
    };

    /// Ends the name of a copy that is encrypted under the password to come.
    static const QLatin1String nextEnding;

    /// Names of the drafts that have a copy under the next password; for the worker alone.
    using Prepared = std::shared_ptr<QSet<QString>>;

    /// A change of password that is under way, if any.
    struct Next
    {
        Password password;
        Prepared names;
    };

    bool isOpen() const { return m_password != nullptr && !m_folder.isEmpty(); }
    bool isForAll() const { return isOpen() && !m_isSealed; }
    void removeFiles(const QString &key);
    static bool write(const SafeEnvironment &environment, const QString &path,
                      const QByteArray &password, const KeptDraft &draft);
    static bool writeBoth(const SafeEnvironment &environment, const QString &path,
                          const QByteArray &password, const Next &next, const KeptDraft &draft);
    static std::optional<KeptDraft> read(FileLayer &files, const QString &path,
                                         const QByteArray &password);
    static Loaded load(const SafeEnvironment &environment, const QString &home,
                       const QByteArray &password, bool changing);
    static void adoptMoved(const SafeEnvironment &environment, const QString &home,
                           const QByteArray &password);
    static bool prepare(const SafeEnvironment &environment, const QString &home,
                        const QByteArray &password, const Next &next);
    static QString folderOf(const SafeEnvironment &environment, const QString &home);
    /// Those of a safe, without the endings of copies.
    static QStringList names(const QString &folder, const QString &home);
    KeptDraft ofHere(const KeptDraft &draft) const;

    SafeEnvironment m_environment;
    QString m_home;
    QString m_folder;
    Password m_password;
    int m_session = 0; ///< counts the locks
    bool m_failed = false;
    bool m_isSealed = false;
    QStringList m_onceSaved;
    Next m_next;
    QThreadPool m_worker; ///< one thread, so that files keep their order
};
