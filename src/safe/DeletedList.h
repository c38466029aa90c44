#pragma once

#include "FileLayer.h"

#include <QStringList>

/// Adds ids to the list of deleted items, a UTF-8 text file with one id a line; ids already there
/// are not repeated. False, with the file as it was, when it cannot be read or written.
bool recordDeletedIds(FileLayer &files, const QString &path, const QStringList &ids);
