#pragma once

#include "FileLayer.h"
#include "SafeDescription.h"

#include <QString>

/// The description in the content of its file; nothing when it holds none.
std::optional<SafeDescription> parseDescription(const QByteArray &json);

/// Reads the description of the safe in a folder, from the file of the older name where there is
/// one. Each file that fails is logged; nothing when none can be read.
std::optional<SafeDescription> readDescription(FileLayer &files, const QString &folder);

/// Writes the description and its second copy, each whole or not at all. The result is that of the
/// description itself.
bool writeDescription(FileLayer &files, const QString &folder, const QByteArray &json);
