#include "ExtensionOrigins.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

/// One a place that the extension comes from: the store of each kind of browser gives its own id.
const QLatin1String knownOrigins[] = {
    QLatin1String("chrome-extension://ieciiloegilkonbpcplcagbpkoohnoib"), // the key in the manifest
};

} // namespace

OriginTrust originTrust(const QString &origin)
{
    static const QRegularExpression random(QStringLiteral(
        "\\Amoz-extension://[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}\\z"));
    if (origin.isEmpty())
        return OriginTrust::Known;
    if (std::find(std::begin(knownOrigins), std::end(knownOrigins), origin) !=
        std::end(knownOrigins))
        return OriginTrust::Known;
    return random.match(origin).hasMatch() ? OriginTrust::ToBeApproved : OriginTrust::Refused;
}
