#include "DayWatch.h"

#include <utility>

namespace {

const int checkMs = 60 * 1000;

} // namespace

DayWatch::DayWatch(Clock clock, QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
    , m_day(today())
    , m_timer(new QTimer(this))
{
    m_timer->setObjectName(QStringLiteral("dayTimer"));
    m_timer->setTimerType(Qt::VeryCoarseTimer);
    connect(m_timer, &QTimer::timeout, this, &DayWatch::check);
    m_timer->start(checkMs);
}

void DayWatch::check()
{
    const QDate now = today();
    if (std::exchange(m_day, now) != now)
        Q_EMIT dayChanged();
}
