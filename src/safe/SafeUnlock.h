#pragma once

#include "ItemLoader.h"
#include "SafeDescription.h"
#include "SafeEnvironment.h"
#include "SafeFolder.h"

#include <QFutureWatcher>
#include <QObject>

#include <memory>

/// One attempt to unlock a safe: checks the password, then reads the items on the worker pool.
class SafeUnlock : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        Unlocked,
        WrongPassword,
        FormerPassword,    ///< the one of before the last change
        InterruptedChange, ///< the one of before a change that was interrupted; it opens every item
        MirrorPassword,    ///< the one that the safe was given on another computer
        Unreadable,
        Cancelled
    };
    Q_ENUM(Outcome)

    static void logFailure(Outcome outcome, const SafeFolder &folder);

    SafeUnlock(const SafeEnvironment &environment, const SafeFolder &folder,
               const SafeDescription &description, std::shared_ptr<const SecretBytes> password);
    /// Cancels a run and waits for the files that workers have in hand.
    ~SafeUnlock() override;

    /// Also tries the password on the mirror of the safe when it does not open the safe itself.
    void setMirror(const QString &mirrorFolder) { m_mirrorFolder = mirrorFolder; }

    /// Runs to the end before it returns; no signal is emitted.
    Outcome run();

    /// Runs on the workers; finished() follows, unless the object goes before.
    void start();
    void cancel();

    const std::shared_ptr<const SecretBytes> &password() const { return m_password; }
    /// What was loaded, after Outcome::Unlocked.
    LoadedItems &items() { return m_items; }
    /// Whether the pass id is another one than before the last change of the password.
    /// The folder of the safe without links.
    const QString &home() const { return m_checked.home; }
    bool hasFormerPassId() const { return m_checked.hasFormerPassId; }

Q_SIGNALS:
    void progress(int done, int total);
    void finished(SafeUnlock::Outcome outcome);

private:
    struct Checked
    {
        Outcome outcome = Outcome::Unreadable;
        QStringList fileNames; ///< of the items
        bool hasFormerPassId = false;
        QString home; ///< the canonical folder
    };

    static Checked check(FileLayer &files, const SafeFolder &folder, const QString &mirrorFolder,
                         const QByteArray &password, const QString &olderPassId);
    static Outcome whyNot(FileLayer &files, const SafeFolder &folder, const QString &mirrorFolder,
                          const QByteArray &password);
    void onChecked();
    void onLoaded();

    SafeEnvironment m_environment;
    SafeFolder m_folder;
    QString m_mirrorFolder;
    QString m_olderPassId; ///< as an older safe has it in its description
    std::shared_ptr<const SecretBytes> m_password;
    Checked m_checked;
    QFutureWatcher<Checked> m_check;
    QFutureWatcher<LoadedFile> m_load;
    LoadedItems m_items;
    bool m_cancelled = false;
};
