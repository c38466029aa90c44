#pragma once

#include "LockReason.h"

#include <QObject>

#include <memory>

/// Tells what happens to the user's session: it is locked, another user takes over, the computer
/// goes to sleep, and, where the system tells that of itself, the screen saver starts.
class SessionWatch : public QObject
{
    Q_OBJECT

public:
    /// The implementation for the system that this was built for.
    static std::unique_ptr<SessionWatch> create();

Q_SIGNALS:
    void happened(LockReason reason);
    /// The computer has slept.
    void awake();
};
