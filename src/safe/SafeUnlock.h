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

    /// An attempt on the safe of a folder; null, logged, when there is nothing to try.
    static std::unique_ptr<SafeUnlock> make(const SafeEnvironment &environment,
                                            const SafeFolder &folder,
                                            const SafeDescription &description,
                                            const QString &password);
    static void logFailure(Outcome outcome, const SafeFolder &folder);

    /// @param passId the safe's pass id
    SafeUnlock(const SafeEnvironment &environment, const SafeFolder &folder, const QString &passId,
               std::shared_ptr<const SecretBytes> password);
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

Q_SIGNALS:
    void progress(int done, int total);
    void finished(SafeUnlock::Outcome outcome);

private:
    static Outcome check(FileLayer &files, const SafeFolder &folder, const QString &mirrorFolder,
                         const QByteArray &password, const QString &passId);
    bool startLoading();
    void onChecked();
    void onLoaded();

    SafeEnvironment m_environment;
    SafeFolder m_folder;
    QString m_mirrorFolder;
    QString m_passId;
    std::shared_ptr<const SecretBytes> m_password;
    QFutureWatcher<Outcome> m_check;
    QFutureWatcher<LoadedFile> m_load;
    LoadedItems m_items;
    bool m_cancelled = false;
};
