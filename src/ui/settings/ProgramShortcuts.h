#pragma once

#include "HotkeyRules.h"

class QWidget;

/// The key combinations that the program's windows take for themselves.
/// @param window all shortcuts in it count; null for the usual keys of texts alone
QVector<TakenKeys> programShortcuts(const QWidget *window);
