#pragma once

#include "ImportFile.h"

/// Reads a CSV export, whose format shows in its first row.
/// @param columns taken where it does not
ImportFile readImportCsv(const QByteArray &bytes, const ImportColumns &columns);
