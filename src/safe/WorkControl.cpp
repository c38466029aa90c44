#include "WorkControl.h"

#include <algorithm>
#include <utility>

WorkControl::WorkControl(Report report)
    : m_report(std::move(report))
{
}

void WorkControl::setPart(int part, int parts)
{
    m_part = part;
    m_parts = parts;
}

void WorkControl::setTotal(qint64 bytes)
{
    m_total = std::max<qint64>(bytes, 1);
    m_done = 0;
    m_reportedPercent = -1;
    advance(0);
}

void WorkControl::advance(qint64 bytes)
{
    m_done = std::min(m_done + bytes, m_total);
    const qint64 percent = m_done / std::max<qint64>(m_total / 100, 1);
    if (percent == m_reportedPercent)
        return;
    m_reportedPercent = percent;
    if (m_report)
        m_report(m_part * m_total + m_done, m_parts * m_total);
}
