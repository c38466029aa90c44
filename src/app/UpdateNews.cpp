#include "UpdateNews.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QVersionNumber>

#include <algorithm>

namespace {

const int longestText = 1000;
const int longestAddress = 2000;

bool isVersion(const QString &text)
{
    static const QRegularExpression shape(QStringLiteral("\\A[0-9]{1,5}(\\.[0-9]{1,5}){1,3}\\z"));
    return shape.match(text).hasMatch();
}

/// Nobody is led to anything but an encrypted page.
QUrl pageAt(const QString &address)
{
    if (address.size() > longestAddress)
        return {};
    const QUrl url(address, QUrl::StrictMode);
    const bool good = url.isValid() && url.scheme() == QLatin1String("https") &&
                      !url.host().isEmpty() && url.userInfo().isEmpty();
    return good ? url : QUrl();
}

/// Without signs that nobody sees, among them those that turn the direction of a text.
QString plainText(QString text)
{
    const auto unseen = [](QChar sign) {
        return sign != QLatin1Char('\n') && !sign.isPrint() && !sign.isSurrogate();
    };
    text.truncate(int(std::remove_if(text.begin(), text.end(), unseen) - text.begin()));
    if (text.size() > longestText)
        text = text.left(longestText) + QChar(0x2026);
    return text.trimmed();
}

} // namespace

std::optional<UpdateNews> UpdateNews::read(const QByteArray &answer)
{
    if (answer.size() > largest)
        return {};
    const QJsonObject object = QJsonDocument::fromJson(answer).object();
    UpdateNews news;
    news.version = object.value(QLatin1String("version")).toString();
    news.page = pageAt(object.value(QLatin1String("page")).toString());
    news.text = plainText(object.value(QLatin1String("text")).toString());
    if (!isVersion(news.version) || news.page.isEmpty())
        return {};
    return news;
}

bool isNewerVersion(const QString &version, const QString &than)
{
    if (!isVersion(version) || !isVersion(than))
        return false;
    // "1.2.0" is no newer than "1.2".
    return QVersionNumber::fromString(version).normalized() >
           QVersionNumber::fromString(than).normalized();
}
