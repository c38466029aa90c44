#pragma once

#include <QString>

class QWindow;

/// Puts a shown window, with the next turn of the event loop, in front of those of other programs,
/// where Qt alone may only make it ask for attention. Without a way to do that, as on Wayland, it
/// is left to the system, which is logged once.
/// @param name that of the window in the log
void putInFront(QWindow &window, const QString &name);
