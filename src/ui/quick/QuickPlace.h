#pragma once

#include "QuickAccessWish.h"

#include <QRect>
#include <QSize>
#include <QVector>

/// Where quick access opens: near the field that it is wanted for, else at the top right of the
/// browser's window, else of the screen with the pointer; whole on one screen, however small.
/// @param size of what is seen of the window
/// @param screens what windows may take of each
/// @param pointer the number of the screen with the pointer
QRect quickAccessPlace(const QSize &size, const QuickAccessWish &wish,
                       const QVector<QRect> &screens, int pointer);
