#include "HealthRules.h"

#include "ItemExpiry.h"
#include "PMFtpAccount.h"
#include "PMLogin.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QHostAddress>
#include <QUrl>

namespace {

const int oldYears = 2;
const int saltBytes = 16;
const QString ignoredKey = QStringLiteral("healthIgnored");

QString problemKey(HealthProblem problem)
{
    static const char *const keys[] = {"weak", "reused", "old", "insecure", "expiring"};
    return QLatin1String(keys[static_cast<int>(problem)]);
}

bool isLocalHost(const QString &host)
{
    const QHostAddress address(host);
    if (!address.isNull())
        return address.isLoopback() || address.isLinkLocal() || address.isUniqueLocalUnicast() ||
               address.isInSubnet(QHostAddress::parseSubnet(QStringLiteral("10.0.0.0/8"))) ||
               address.isInSubnet(QHostAddress::parseSubnet(QStringLiteral("172.16.0.0/12"))) ||
               address.isInSubnet(QHostAddress::parseSubnet(QStringLiteral("192.168.0.0/16")));
    const QStringList labels = host.split(QLatin1Char('.'), Qt::SkipEmptyParts);
    const QStringList local{QStringLiteral("localhost"), QStringLiteral("local"),
                            QStringLiteral("lan"), QStringLiteral("internal")};
    return labels.size() < 2 || local.contains(labels.last()) ||
           host.endsWith(QStringLiteral(".home.arpa"));
}

/// What a problem is about; a change of it ends that it is ignored.
QByteArray subject(const PMListItem &item, HealthProblem problem)
{
    if (problem == HealthProblem::Expiring)
        return itemExpiry(item).value_or(QDate()).toString(Qt::ISODate).toLatin1();
    QByteArray text = itemPassword(item).toUtf8();
    if (problem == HealthProblem::Insecure)
        text += '\n' + item.url().toUtf8();
    return text;
}

/// It lies beside the password itself and is no weaker point than that.
QString fingerprint(const PMListItem &item, HealthProblem problem, const QByteArray &salt)
{
    QByteArray text = salt + subject(item, problem);
    const QByteArray hash = QCryptographicHash::hash(text, QCryptographicHash::Sha256);
    text.fill('\0');
    return QString::fromLatin1(salt.toHex() + ':' + hash.toHex());
}

} // namespace

QString itemPassword(const PMListItem &item)
{
    if (item.type() == PMListItem::Login)
        return static_cast<const PMLogin &>(item).password();
    if (item.type() == PMListItem::FtpAccount)
        return static_cast<const PMFtpAccount &>(item).password();
    return {};
}

bool isInsecureAddress(const QString &address)
{
    const QUrl url(address.trimmed());
    return url.scheme() == QStringLiteral("http") && !url.host().isEmpty() &&
           !isLocalHost(url.host());
}

bool isOldPassword(const QDateTime &modified, const QDate &today)
{
    // Local time is slow to tell; what is clearly newer in any zone needs none.
    const QDateTime newer(today.addYears(-oldYears).addDays(2), QTime(0, 0), Qt::UTC);
    if (!modified.isValid() || modified.toMSecsSinceEpoch() > newer.toMSecsSinceEpoch())
        return false;
    return modified.toLocalTime().date().addYears(oldYears) < today;
}

bool isHealthIgnored(const PMListItem &item, HealthProblem problem)
{
    // Nearly all items have nothing of the kind.
    const QJsonObject &unknown = item.unknownKeys().privateFields;
    if (unknown.isEmpty())
        return false;
    const QJsonObject ignored = unknown.value(ignoredKey).toObject();
    const QString kept = ignored.value(problemKey(problem)).toString();
    if (kept.isEmpty())
        return false;
    const QByteArray salt = QByteArray::fromHex(kept.section(QLatin1Char(':'), 0, 0).toLatin1());
    return kept == fingerprint(item, problem, salt);
}

void setHealthIgnored(PMListItem &item, HealthProblem problem, bool ignored,
                      const RandomSource &random)
{
    QByteArray salt(saltBytes, '\0');
    if (ignored && !random(reinterpret_cast<unsigned char *>(salt.data()), saltBytes))
        return;
    PMListItem::UnknownKeys keys = item.unknownKeys();
    QJsonObject kept = keys.privateFields.value(ignoredKey).toObject();
    if (ignored)
        kept.insert(problemKey(problem), fingerprint(item, problem, salt));
    else
        kept.remove(problemKey(problem));
    if (kept.isEmpty())
        keys.privateFields.remove(ignoredKey);
    else
        keys.privateFields.insert(ignoredKey, kept);
    item.setUnknownKeys(keys);
    item.markChanged();
}
