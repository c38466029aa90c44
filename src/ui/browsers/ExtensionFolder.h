#pragma once

#include <QString>

/// The folder of the extension that came with the program; empty when it lacks one.
/// @param programFolder where the program's file lies
/// @param forFirefox the extension differs a little from that of the other browsers
QString extensionFolder(const QString &programFolder, bool forFirefox);
