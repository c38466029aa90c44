#pragma once

#include "Clock.h"
#include "KnownSafes.h"
#include "SafeUse.h"

#include <QObject>

#include <memory>

/// What an open safe leaves in the world: a mark in its folder while it is unlocked, so that
/// another program notices, and what this computer remembers of it.
class OpenSafeTrace : public QObject
{
    Q_OBJECT

public:
    explicit OpenSafeTrace(KnownSafes &safes, Clock clock = systemTime);

    /// The safe that is the current one from now on, locked or not; may be null.
    void follow(const std::shared_ptr<GPMSafe> &safe);

    /// The items of an unlocked safe without those in the trash.
    static int countItems(const GPMSafe &safe);

    /// Notes how many items there are, while the safe still has them.
    void beforeLock();

private:
    void onLockedChanged(bool locked);

    KnownSafes &m_safes;
    Clock m_clock;
    std::shared_ptr<GPMSafe> m_safe;
    std::shared_ptr<SafeUse> m_use = std::make_shared<SafeUse>();
};
