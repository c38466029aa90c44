#pragma once

#include <QObject>

#include <functional>
#include <memory>

/// Work that may never end, as looking at a network drive that has gone: each piece on a thread of
/// its own, for which nobody waits. Lives on the thread that made it; what comes too late for it is
/// dropped.
class LooseWork : public QObject
{
    Q_OBJECT

public:
    using Step = std::function<void()>;

    explicit LooseWork(QObject *parent = nullptr);
    ~LooseWork() override;

    /// @param job done on a thread, with copies alone
    /// @param then called on the thread of this object, if that is still there
    void run(const Step &job, const Step &then);
    /// Calls for what has ended by now, rather than at the next turn of the event loop.
    void takeEnded();
    /// Waits until a job has ended. False when none did in time.
    bool waitForOne(int ms);

    /// Waits for all jobs of the program. False when some of them go on: what they use must not be
    /// taken down then.
    static bool settle(int ms);

private:
    struct Box;

    std::shared_ptr<Box> m_box;
};
