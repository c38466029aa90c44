#pragma once

#include "ImportFile.h"

/// Completes an entry whose fields are read: checks its address, gives it a title, and puts what
/// the item has no field for into its note, a line each.
void finishEntry(ImportEntry &entry, const QStringList &further);

/// Reads the unencrypted JSON export of Bitwarden.
ImportFile readBitwardenJson(const QByteArray &bytes);
