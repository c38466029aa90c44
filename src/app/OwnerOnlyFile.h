#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <functional>

/// Writes a file so that a crash or a full disk leaves either the old content or the new one: the
/// bytes go to a temporary file beside it, which takes its place at the end. Only the owner may
/// read it. False, with the old content in place, when anything fails.
/// @param produce writes the content to the device; false cancels
/// @param mode may add QIODevice::Text, for the line ends of the platform
bool writeOwnerOnlyFile(const QString &path, const std::function<bool(QIODevice &)> &produce,
                        QIODevice::OpenMode mode = QIODevice::WriteOnly);
bool writeOwnerOnlyFile(const QString &path, const QByteArray &content);

/// Makes a folder with its missing parents; those it makes are open to the owner alone.
bool makeOwnerOnlyFolder(const QString &path);

/// Writes a file that is not there yet, for the owner alone, in place and without waiting for the
/// disk: for files that nothing refers to before forceToDisk(). False when it is there or when
/// anything fails; what was written is then left for the caller to remove.
bool writeNewOwnerOnlyFile(const QString &path, const std::function<bool(QIODevice &)> &produce);

/// Waits until a file's content is on the disk itself. False when the disk reports an error.
bool forceToDisk(const QString &path);
