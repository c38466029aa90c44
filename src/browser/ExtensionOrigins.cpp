#include "ExtensionOrigins.h"

#include <QRegularExpression>

namespace {

const QLatin1String chromiumScheme("chrome-extension://");

} // namespace

const QStringList &knownExtensionIds()
{
    // One a place that the extension comes from: each store gives an id of its own.
    static const QStringList ids{
        QStringLiteral("ieciiloegilkonbpcplcagbpkoohnoib"), // by the key in the manifest
    };
    return ids;
}

OriginTrust originTrust(const QString &origin)
{
    static const QRegularExpression random(QStringLiteral(
        "\\Amoz-extension://[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}\\z"));
    if (origin.isEmpty())
        return OriginTrust::Known;
    if (origin.startsWith(chromiumScheme))
        return knownExtensionIds().contains(origin.mid(chromiumScheme.size()))
                   ? OriginTrust::Known
                   : OriginTrust::Refused;
    return random.match(origin).hasMatch() ? OriginTrust::ToBeApproved : OriginTrust::Refused;
}
