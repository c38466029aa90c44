#pragma once

class QWindow;

/// Puts a shown window in front of those of other programs, where Qt alone may only make it ask for
/// attention. Without a way to do that it is left to Qt.
void putInFront(QWindow &window);
