#include "SettlingSafes.h"

#include <algorithm>

void SettlingSafes::add(const std::shared_ptr<GPMSafe> &safe)
{
    if (!safe->isSettling())
        return;
    m_safes.push_back(safe);
    connect(safe.get(), &GPMSafe::saved, this, &SettlingSafes::saved);
    // Later: its own signal leads there.
    connect(
        safe.get(), &GPMSafe::lockSettled, this,
        [this, held = std::weak_ptr<GPMSafe>(safe)] { letGo(held.lock()); }, Qt::QueuedConnection);
}

void SettlingSafes::letGo(const std::shared_ptr<GPMSafe> &safe)
{
    const auto held = std::find(m_safes.begin(), m_safes.end(), safe);
    if (!safe || held == m_safes.end())
        return;
    safe->disconnect(this);
    m_safes.erase(held);
}

std::shared_ptr<GPMSafe> SettlingSafes::find(const QString &folder, const SafeFacts &facts) const
{
    const auto held = std::find_if(m_safes.begin(), m_safes.end(), [&](const auto &safe) {
        return facts.isSame(safe->folder(), folder);
    });
    return held == m_safes.end() ? nullptr : *held;
}

void SettlingSafes::finish(int quietMs)
{
    for (const std::shared_ptr<GPMSafe> &safe : std::vector(m_safes))
        safe->lockWithin(quietMs);
}
