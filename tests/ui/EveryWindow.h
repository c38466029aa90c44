#pragma once

#include "Stage.h"

#include <QVector>

/// A window, or a state of one, that a user can meet.
struct WindowCase
{
    const char *name;
    /// Brings the window up, starting from the main one.
    std::function<QWidget *(Stage &)> show;
    Stage::Safe safe = Stage::Filled;
    /// As small as it goes; else the main window is as small as two columns go.
    bool narrow = false;
};

using Show = std::function<QWidget *(Stage &)>;

/// A page of the settings.
Show settingsPage(int page);
QWidget *mainWindow(Stage &stage);

QVector<WindowCase> itemWindows();
QVector<WindowCase> settingsWindows();
QVector<WindowCase> safeWindows();

/// Every window of the program in the states that look different.
const QVector<WindowCase> &everyWindow();
