#pragma once

class GPMAppSettings;
class QShortcut;
class QWidget;

/// The hotkey that locks, as the settings have it, for when it is pressed in one of the program's
/// own windows. The window owns it.
QShortcut *makeLockShortcut(GPMAppSettings &settings, QWidget &window);
