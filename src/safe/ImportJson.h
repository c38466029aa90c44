#pragma once

#include "ImportFile.h"

/// Completes an entry whose fields are read: checks its address, gives it a title, and puts what
/// the item has no field for into its note, a line each.
void finishEntry(ImportEntry &entry, const QStringList &further);

/// Takes the first address of a web page as that of the entry; the others go to the note.
void setAddresses(ImportEntry &entry, const QStringList &list, QStringList &further);

/// The host of an address, with its port where it has one, to be compared.
QString importHost(const QString &address);

/// What an export of this program calls itself under "format".
constexpr char ownJsonFormat[] = "glaceron-items";

/// Reads the unencrypted JSON export of Bitwarden, or that of this program.
ImportFile readImportJson(const QByteArray &bytes);
