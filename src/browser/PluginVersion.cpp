#include "PluginVersion.h"

#include <QCoreApplication>

std::optional<QString> pluginVersionWarning(const QString &version, const QString &bundleId)
{
    const bool isChrome = bundleId.contains(QLatin1String("chrome"));
    if (!isChrome || version >= QLatin1String("1.0.1.26"))
        return std::nullopt;
    const QString text =
        QCoreApplication::translate("PluginVersion", "Invalid plugin version for %1 extension: %2");
    return text.arg(QStringLiteral("Chrome"), version);
}
