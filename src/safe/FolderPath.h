#pragma once

#include <QString>

/// One way to write the path of a folder, so that a link, a slash at the end or ".." does not make
/// two folders of one.

/// The path without links. Of a folder that is not there, of as much of the path as is.
QString canonicalFolder(const QString &path);

/// What to compare a canonical path by.
QString keyOf(const QString &canonical);

/// What to compare and to find folders by; the same where the system takes no notice of case.
QString folderKey(const QString &path);

/// Whether both paths lead to the same folder.
bool isSameFolder(const QString &one, const QString &other);
