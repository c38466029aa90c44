#pragma once

#include "GPMSafe.h"
#include "SafeFacts.h"

#include <QObject>

#include <memory>
#include <vector>

/// Safes that are not the current one any more and still save what they were locked with.
class SettlingSafes : public QObject
{
    Q_OBJECT

public:
    /// Holds a safe until it is done; one that is so already is not held.
    void add(const std::shared_ptr<GPMSafe> &safe);
    /// Somebody else holds it now.
    void letGo(const std::shared_ptr<GPMSafe> &safe);
    /// Null when the safe of the folder is none of these.
    std::shared_ptr<GPMSafe> find(const QString &folder, const SafeFacts &facts) const;
    /// Waits for all of them; see GPMSafe::lockWithin().
    void finish(int quietMs);

Q_SIGNALS:
    void saved(bool good, const QStringList &failedPaths);

private:
    std::vector<std::shared_ptr<GPMSafe>> m_safes;
};
