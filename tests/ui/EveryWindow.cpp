#include "EveryWindow.h"

const QVector<WindowCase> &everyWindow()
{
    static const QVector<WindowCase> cases = itemWindows() + settingsWindows() + safeWindows();
    return cases;
}
