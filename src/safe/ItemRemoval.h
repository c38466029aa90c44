#pragma once

#include "FileLayer.h"
#include "SafeFolder.h"

#include <QSet>
#include <QStringList>

/// Removes every file of these items, of all generations. The ids of those of which a file is still
/// there are returned and their files logged.
QSet<QString> removeItemFiles(FileLayer &files, const SafeFolder &folder, const QStringList &ids);
