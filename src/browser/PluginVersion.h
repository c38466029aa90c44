#pragma once

#include <QString>

#include <optional>

/// What to tell the user of an extension that is too old to work with; none for one that is not.
/// Versions are compared as texts, not as numbers.
std::optional<QString> pluginVersionWarning(const QString &version, const QString &bundleId);
