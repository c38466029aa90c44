#pragma once

#include <QRect>
#include <QVector>

/// Where a small window goes that speaks of a page: at the top right of the browser's window, below
/// its bars. Whatever is said of that window, all of it is on one of the screens, or as much as
/// fits there.
/// @param browser may be empty or off the screens: the top right of the first screen then
/// @param screens what windows may use of each, the first one preferred; not empty
QPoint placeBesidePage(const QRect &browser, const QSize &size, const QVector<QRect> &screens);
