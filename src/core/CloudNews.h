#pragma once

#include <QObject>
#include <QTimer>

/// Tells of what came from the mirror once, when no more has come for a while: the files of a large
/// safe arrive in many portions.
class CloudNews : public QObject
{
    Q_OBJECT

public:
    explicit CloudNews(int quietMs, QObject *parent = nullptr);

    /// Something came, or has gone as it was deleted elsewhere.
    void add(int received, int removed);
    /// Nobody is there to be told any more.
    void drop();

Q_SIGNALS:
    void came(int received, int removed);

private:
    QTimer m_quiet;
    int m_received = 0;
    int m_removed = 0;
};
