#pragma once

#include "KnownSafes.h"

#include <QObject>
#include <QThreadPool>

/// Removes the copies of safes from the cloud folder that nobody wants any more. What the end of
/// the program cuts off is taken up again at the next start.
class CloudRemoval : public QObject
{
    Q_OBJECT

public:
    /// @param worker one thread; both outlive the object
    CloudRemoval(KnownSafes &safes, QThreadPool &worker, QObject *parent = nullptr);

    /// Notes that a safe's copy is to go, which it does with begin() or resume(). False when the
    /// safe cannot be read: then nobody could tell its copy from another's.
    bool note(const QString &safeFolder, const QString &mirrorFolder);
    /// Removes the copy that was noted for a safe; ended() follows.
    void begin(const QString &safeFolder);
    /// Removes all that were noted and not removed; ended() follows for what cannot be.
    void resume();

    /// The folders of all safes, none of which is a copy.
    QStringList safeFolders() const;

Q_SIGNALS:
    void ended(const QString &mirrorFolder, bool good);

private:
    bool isUsed(const QString &mirrorFolder) const;
    void strike(const QString &safeFolder, const QString &mirrorFolder);
    void remove(const QString &safeFolder, bool tellsSuccess);

    KnownSafes &m_safes;
    SafeFacts &m_facts;
    QThreadPool &m_worker;
};
