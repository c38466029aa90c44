#include "LooseWork.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QThreadPool>
#include <QVector>
#include <QWaitCondition>
#include <QtConcurrent>

#include <algorithm>

namespace {

const int mostThreads = 512;

/// Never taken down: whoever does that waits for what runs in it.
QThreadPool &threads()
{
    static QThreadPool *pool = [] {
        auto *made = new QThreadPool;
        made->setMaxThreadCount(mostThreads);
        return made;
    }();
    return *pool;
}

} // namespace

struct LooseWork::Box
{
    QMutex mutex;
    QWaitCondition filled;
    LooseWork *owner = nullptr; ///< null when it has gone
    QVector<Step> ended;
};

LooseWork::LooseWork(QObject *parent)
    : QObject(parent)
    , m_box(std::make_shared<Box>())
{
    m_box->owner = this;
}

LooseWork::~LooseWork()
{
    const QMutexLocker locker(&m_box->mutex);
    m_box->owner = nullptr;
}

void LooseWork::run(const Step &job, const Step &then)
{
    QtConcurrent::run(&threads(), [box = m_box, job, then] {
        job();
        const QMutexLocker locker(&box->mutex);
        if (!box->owner)
            return;
        box->ended.append(then);
        QMetaObject::invokeMethod(box->owner, &LooseWork::takeEnded, Qt::QueuedConnection);
        box->filled.wakeAll();
    });
}

void LooseWork::takeEnded()
{
    QVector<Step> ended;
    {
        const QMutexLocker locker(&m_box->mutex);
        ended.swap(m_box->ended);
    }
    for (const Step &then : qAsConst(ended))
        then();
}

bool LooseWork::waitForOne(int ms)
{
    const QDeadlineTimer deadline(std::max(0, ms));
    const QMutexLocker locker(&m_box->mutex);
    while (m_box->ended.isEmpty()) {
        if (!m_box->filled.wait(&m_box->mutex, deadline))
            return !m_box->ended.isEmpty();
    }
    return true;
}

bool LooseWork::settle(int ms)
{
    return threads().waitForDone(ms);
}
