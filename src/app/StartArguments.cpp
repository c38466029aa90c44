#include "StartArguments.h"

#include <algorithm>

bool startsInTray(const QStringList &arguments)
{
    return std::any_of(arguments.begin() + std::min(1, arguments.size()), arguments.end(),
                       [](QString argument) {
                           argument.remove(QLatin1Char('/')).remove(QLatin1Char('-'));
                           return argument == QLatin1String("tray");
                       });
}
