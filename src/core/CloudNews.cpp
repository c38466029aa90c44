#include "CloudNews.h"

#include <utility>

CloudNews::CloudNews(int quietMs, QObject *parent)
    : QObject(parent)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quietMs);
    connect(&m_quiet, &QTimer::timeout, this, [this] {
        const int received = std::exchange(m_received, 0);
        const int removed = std::exchange(m_removed, 0);
        Q_EMIT came(received, removed);
    });
}

void CloudNews::add(int received, int removed)
{
    m_received += received;
    m_removed += removed;
    if (received + removed > 0 || m_quiet.isActive())
        m_quiet.start();
}

void CloudNews::drop()
{
    m_quiet.stop();
    m_received = 0;
    m_removed = 0;
}
