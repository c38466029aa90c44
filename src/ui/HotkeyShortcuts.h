#pragma once

class GPMAppSettings;
class QShortcut;
class QWidget;

/// The hotkeys of the settings for when they are pressed in one of the program's own windows, as
/// not every system has hotkeys of its own. The window owns them.
QShortcut *makeLockShortcut(GPMAppSettings &settings, QWidget &window);
QShortcut *makeQuickAccessShortcut(GPMAppSettings &settings, QWidget &window);
