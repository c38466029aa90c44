#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <ctime>

/// Watches the event loop of a thread that works: how long its longest turn took, and how long the
/// thread itself was computing in the turn in which it did so longest. A turn that is long while
/// the thread does not compute waited for the disk, for another thread, or for a processor.
class HoldWatch
{
public:
    HoldWatch()
    {
        m_ticks.callOnTimeout([this] { tick(); });
    }
    /// May be begun anew; the figures are those of all times.
    void start()
    {
        m_sinceTick.start();
        m_cpu = threadMs();
        m_ticks.start(0);
    }
    /// What the end of the work brings with it counts, too.
    void stop()
    {
        tick();
        m_ticks.stop();
    }

    double longestMs() const { return m_longest; }
    /// What the thread computed in the longest turn.
    double computingThenMs() const { return m_cpuThen; }
    double mostComputingMs() const { return m_mostCpu; }

private:
    static double threadMs()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    }
    void tick()
    {
        const double wall = double(m_sinceTick.nsecsElapsed()) / 1e6;
        const double now = threadMs();
        const double cpu = now - m_cpu;
        if (wall > m_longest) {
            m_longest = wall;
            m_cpuThen = cpu;
        }
        m_mostCpu = qMax(m_mostCpu, cpu);
        m_sinceTick.start();
        m_cpu = threadMs();
    }

    QTimer m_ticks;
    QElapsedTimer m_sinceTick;
    double m_cpu = 0;
    double m_longest = 0;
    double m_cpuThen = 0;
    double m_mostCpu = 0;
};
