#pragma once

#include "RandomSource.h"

#include <QtGlobal>

/// The time of change of an item that is changed now, in ms since the epoch: always later than that
/// of the version it is made on, so that versions are in order whatever the clock says. Where the
/// clock is behind, by some random ms, as another computer may do the same.
/// @param before the time of change that it had
qint64 nextModified(qint64 now, qint64 before, const RandomSource &random);
