#pragma once

#include "FileLayer.h"

#include <QStringList>

/// Removes the mirror of a safe, once nobody wants it any more: the files that are its own and the
/// folders that are empty then. What others put there stays. On any thread.
/// @param safeFolders of safes in use, which are no mirrors whatever they are taken for
/// @param created when the safe was created, ms since the epoch; another safe's mirror is left
/// @return whether nothing of the mirror is left; what could not be removed is logged
bool removeMirror(FileLayer &files, const QString &mirrorFolder, qint64 created,
                  const QStringList &safeFolders);
