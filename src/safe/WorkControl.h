#pragma once

#include <QtGlobal>

#include <atomic>
#include <functional>

/// What ties a piece of work on a worker to the one who started it: progress one way, cancelling
/// the other. The work counts in bytes.
class WorkControl
{
public:
    /// @param done, total in bytes; done never passes total
    using Report = std::function<void(qint64 done, qint64 total)>;

    /// @param report called on the worker, at most a hundred times or so for one total; may be
    /// empty
    explicit WorkControl(Report report = {});

    /// May be called from any thread.
    void cancel() { m_cancelled = true; }
    bool isCancelled() const { return m_cancelled; }

    /// What is counted from now on is one of so many parts, reported as of the same size. Without
    /// a call there is one.
    void setPart(int part, int parts);

    /// Begins to count anew.
    void setTotal(qint64 bytes);
    void advance(qint64 bytes);

private:
    Report m_report;
    std::atomic<bool> m_cancelled{false};
    int m_part = 0;
    int m_parts = 1;
    qint64 m_total = 0;
    qint64 m_done = 0;
    qint64 m_reportedPercent = -1;
};
