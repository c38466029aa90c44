#pragma once

#include "Clock.h"
#include "SecretBytes.h"

#include <QObject>

#include <vector>

/// The passwords that were generated last while a safe is open, because people lose them. They are
/// in memory alone and wiped when the safe locks.
class RecentPasswords : public QObject
{
    Q_OBJECT

public:
    static const int most = 10;

    struct Entry
    {
        QDateTime time; ///< in UTC
        SecretBytes password;
        bool used = false; ///< copied or placed
    };

    explicit RecentPasswords(Clock clock = systemTime, QObject *parent = nullptr);

    /// While not keeping, as at the start, nothing is taken; to stop keeping wipes what there is.
    void setKeeping(bool keeping);
    bool isKeeping() const { return m_keeping; }

    /// Takes a password. Beyond the most, the oldest one goes that was never used, so that trying
    /// lengths does not push out the one that a site has by now.
    void add(const QString &password);
    void markUsed(const QString &password);

    /// The newest first.
    const std::vector<Entry> &entries() const { return m_entries; }
    QString password(int index) const;

Q_SIGNALS:
    void changed();

private:
    Clock m_clock;
    std::vector<Entry> m_entries;
    bool m_keeping = false;
};
