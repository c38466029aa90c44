#include "UpdateQuery.h"

#include <QCryptographicHash>
#include <QHostAddress>
#include <QMessageAuthenticationCode>

namespace {

bool isHere(const QUrl &url)
{
    return QHostAddress(url.host()).isLoopback();
}

bool isAllowed(const QUrl &url)
{
    const bool safe = url.scheme() == QLatin1String("https") ||
                      (url.scheme() == QLatin1String("http") && isHere(url));
    return safe && url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty();
}

} // namespace

bool UpdateQuery::isEndpoint(const QUrl &endpoint)
{
    return isAllowed(endpoint) && !endpoint.hasQuery() && !endpoint.hasFragment();
}

bool UpdateQuery::mayFollow(const QUrl &from, const QUrl &to)
{
    return isAllowed(to) && (to.scheme() == QLatin1String("https") || isHere(from));
}

QString UpdateQuery::machineHash(const std::string &identity, const QString &productId)
{
    if (identity.empty())
        return {};
    const QByteArray hash = QMessageAuthenticationCode::hash(
        productId.toUtf8(), QByteArray::fromStdString(identity), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex());
}

QUrl UpdateQuery::address(const QUrl &endpoint, const QString &version, const QString &productId,
                          const QString &machineHash)
{
    const auto encoded = [](const QString &text) {
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    const QString asked = QStringLiteral("ver=%1&pid=%2&mh=%3")
                              .arg(encoded(version), encoded(productId), encoded(machineHash));
    const QByteArray check = QCryptographicHash::hash(asked.toLatin1(), QCryptographicHash::Sha256);
    return QUrl(
        QStringLiteral("%1?%2&h=%3")
            .arg(endpoint.toString(QUrl::FullyEncoded), asked, QString::fromLatin1(check.toHex())));
}
