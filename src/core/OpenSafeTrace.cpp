#include "OpenSafeTrace.h"

#include <algorithm>
#include <utility>

OpenSafeTrace::OpenSafeTrace(KnownSafes &safes, Clock clock)
    : m_safes(safes)
    , m_clock(std::move(clock))
{
}

int OpenSafeTrace::countItems(const GPMSafe &safe)
{
    const std::vector<PMListItem *> items = safe.items();
    return static_cast<int>(std::count_if(items.begin(), items.end(),
                                          [](const PMListItem *item) { return !item->deleted(); }));
}

void OpenSafeTrace::follow(const std::shared_ptr<GPMSafe> &safe)
{
    if (m_safe)
        m_safe->disconnect(this);
    // The mark stays as long as the lock of the former one still saves.
    if (m_safe && m_safe->isSettling())
        connect(m_safe.get(), &GPMSafe::lockSettled, m_safe.get(),
                [use = m_use] { use->release(); });
    else
        m_use->release();
    m_use = std::make_shared<SafeUse>();
    m_safe = safe;
    if (!m_safe)
        return;
    connect(m_safe.get(), &GPMSafe::lockedChanged, this, &OpenSafeTrace::onLockedChanged);
    connect(m_safe.get(), &GPMSafe::lockSettled, this, [this] { m_use->release(); });
    if (m_safe->isUnlocked())
        onLockedChanged(false);
}

void OpenSafeTrace::onLockedChanged(bool locked)
{
    if (locked)
        return;
    // Whoever unlocks it although another computer's mark is there has been asked.
    m_use->take(m_safe->folder(), true);
    m_safes.facts().change(m_safe->folder(), [this](SafeFact &fact) {
        fact.name = m_safe->name();
        fact.created = m_safe->created().toMSecsSinceEpoch();
        fact.lastOpened = m_clock();
        fact.itemCount = countItems(*m_safe);
    });
}

void OpenSafeTrace::beforeLock()
{
    if (m_safe && m_safe->isUnlocked())
        m_safes.facts().change(m_safe->folder(),
                               [this](SafeFact &fact) { fact.itemCount = countItems(*m_safe); });
}
