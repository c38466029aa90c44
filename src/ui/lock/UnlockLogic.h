#pragma once

#include "KnownSafes.h"
#include "LooseWork.h"
#include "SafeUnlock.h"
#include "SafeUse.h"

#include <QObject>

class GPMAppCore;

/// What the master password page is about: which safes there are, which one is chosen, how the
/// attempt to unlock it goes and what there is to say.
class UnlockLogic : public QObject
{
    Q_OBJECT

public:
    enum class State { NoSafes, NoneChosen, Looking, Unavailable, Ready, Unlocking };
    Q_ENUM(State)

    explicit UnlockLogic(GPMAppCore &core, QObject *parent = nullptr);

    const QVector<KnownSafes::Entry> &safes() const { return m_safes; }
    State state() const;
    /// The chosen safe's folder; empty when none is.
    QString chosenFolder() const { return m_folder; }
    QString hint() const;
    /// Why the safe is locked, or what to do about it.
    QString invitation() const;
    /// The chosen safe is locked and still saves what was changed; unlocking waits for that.
    bool isSaving() const;
    /// What went wrong last; empty when nothing did.
    QString message() const { return m_message; }
    /// Another program has the chosen safe open; the user was told, and unlocks it anyway or not.
    bool isOpenElsewhere() const { return m_openElsewhere; }
    /// The password is on its way, and need not be kept where it was typed.
    bool hasPassword() const { return m_unlocking && !m_pending; }
    int itemsDone() const { return m_done; }
    int itemsTotal() const { return m_total; }

    /// Chooses the safe of a folder if it is one of those that can be opened, else another one.
    void chooseFirst(const QString &preferredFolder);
    void choose(const QString &folder);
    void unlock(const QString &password);
    void cancel();

Q_SIGNALS:
    void safesChanged();
    void changed();
    /// The password did not unlock the safe: it has to be typed again.
    void refused();

private:
    const KnownSafes::Entry *chosen() const;
    QString firstOf(const QString &preferredFolder) const;
    void reload();
    void takeCurrentSafe();
    void lookForOther();
    void onLookedForOther(const std::optional<SafeUse::Other> &other);
    void passOn();
    void dropPending();
    void onAnswered(const QString &folder);
    QString whyNot(const QString &folder) const;
    void onFinished(SafeUnlock::Outcome outcome);
    void setMessage(const QString &message);

    GPMAppCore &m_core;
    QVector<KnownSafes::Entry> m_safes;
    QString m_folder;
    QString m_message;
    QString m_awaited;                      ///< the chosen folder while it does not answer
    std::unique_ptr<SecretBytes> m_pending; ///< the password while the folder is asked
    int m_attempt = 0;
    bool m_unlocking = false;
    bool m_openElsewhere = false;
    int m_done = 0;
    int m_total = 0;
    LooseWork m_look;
};
