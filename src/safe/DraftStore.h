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
};

/// The edits of a safe that were not saved, one encrypted file each under the safe's password, in a
/// folder of its own outside the safe. Works while the safe is unlocked.
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

    void open(const QString &safeId, const Password &password);
    /// Waits for what is being written, then forgets the password.
    void close();

    static QString newKey();
    QString filePath(const QString &key) const;

    /// Writes a draft over its former state; that one stays when it fails, which is logged.
    bool keep(const KeptDraft &draft);
    /// The same on the worker. A failure is logged once until a write succeeds again.
    void keepAsync(const KeptDraft &draft);
    /// Removes a draft, behind the writes that are under way.
    void remove(const QString &key);

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

    /// The drafts that have a copy under the next password; for the worker alone.
    using Prepared = std::shared_ptr<QSet<QString>>;

    /// A change of password that is under way, if any.
    struct Next
    {
        Password password;
        Prepared keys;
    };

    bool isOpen() const { return m_password != nullptr && !m_folder.isEmpty(); }
    static bool write(const SafeEnvironment &environment, const QString &path,
                      const QByteArray &password, const KeptDraft &draft);
    static bool writeBoth(const SafeEnvironment &environment, const QString &path,
                          const QByteArray &password, const Next &next, const KeptDraft &draft);
    static std::optional<KeptDraft> read(FileLayer &files, const QString &path,
                                         const QByteArray &password);
    static Loaded load(const SafeEnvironment &environment, const QString &folder,
                       const QByteArray &password, bool changing);
    static bool prepare(const SafeEnvironment &environment, const QString &folder,
                        const QByteArray &password, const Next &next);
    static QStringList keys(const QString &folder);

    SafeEnvironment m_environment;
    QString m_folder;
    Password m_password;
    int m_session = 0; ///< counts the locks
    bool m_failed = false;
    Next m_next;
    QThreadPool m_worker; ///< one thread, so that files keep their order
};
