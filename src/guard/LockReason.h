#pragma once

#include <QString>

/// Why the safe is locked.
enum class LockReason { User, Inactivity, ScreenSaver, SessionLocked, UserSwitched, Sleep };

/// The reason in words for the lock page; empty when the user locked it.
/// @param idleMinutes the limit that inactivity went over
QString lockReasonText(LockReason reason, int idleMinutes);
