#pragma once

#include "SyncRound.h"

#include <QFutureWatcher>
#include <QObject>
#include <QThreadPool>

#include <functional>
#include <memory>

/// A meeting with the mirror under way on the writer of a safe. What it brought is taken once:
/// when it ends, or before by one who cannot wait for that.
class SyncMeeting : public QObject
{
    Q_OBJECT

public:
    /// @param taken gets what it brought, on the thread of the caller
    SyncMeeting(QThreadPool &writer, SyncRound round, std::function<void(SyncResult)> taken);
    /// Stops it without a word, and waits until the item under way is done.
    ~SyncMeeting() override;

    void cancel() { m_control->cancel(); }
    /// Takes what it brought where it has ended and that was not taken yet.
    void take();
    bool isTaken() const { return m_isTaken; }

Q_SIGNALS:
    /// Counted in items that may differ.
    void progress(int done, int total);

private:
    std::shared_ptr<WorkControl> m_control;
    std::function<void(SyncResult)> m_taken;
    QFutureWatcher<SyncResult> m_watcher;
    bool m_isTaken = false;
};
