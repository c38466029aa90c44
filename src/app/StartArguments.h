#pragma once

#include <QStringList>

/// Whether the command line asks for a start hidden in the tray: an argument behind the program's
/// path that is "tray" once every "/" and "-" is taken out of it.
bool startsInTray(const QStringList &arguments);
