#include "QuickAccessWish.h"

#include <QHash>

#include <cmath>

namespace {

const int longestUrl = 8192;
const double farthest = 100000; ///< no desktop reaches so far

/// Whole pixels; none for what is not a number or lies off every desktop.
std::optional<int> pixels(const QJsonObject &rect, const char *key)
{
    const QJsonValue value = rect.value(QLatin1String(key));
    const double number = value.toDouble(farthest + 1);
    if (!value.isDouble() || !(std::abs(number) <= farthest))
        return std::nullopt;
    return static_cast<int>(std::lround(number));
}

std::optional<QRect> rectOf(const QJsonValue &value)
{
    const QJsonObject rect = value.toObject();
    const auto left = pixels(rect, "left");
    const auto top = pixels(rect, "top");
    const auto width = pixels(rect, "width");
    const auto height = pixels(rect, "height");
    if (!left || !top || !width || !height || *width <= 0 || *height <= 0)
        return std::nullopt;
    return QRect(*left, *top, *width, *height);
}

QuickAccessWish::Section sectionOf(const QString &kind)
{
    using Section = QuickAccessWish::Section;
    static const QHash<QString, Section> sections = {
        {QStringLiteral("creditcard"), Section::Cards},
        {QStringLiteral("identity"), Section::Identities},
        {QStringLiteral("generate"), Section::Generator}};
    return sections.value(kind, Section::Logins);
}

} // namespace

QuickAccessWish QuickAccessWish::fromExtension(const QString &callerId, const QJsonObject &payload)
{
    QuickAccessWish wish;
    wish.callerId = callerId;
    const QString url = payload.value(QLatin1String("url")).toString();
    if (url.size() <= longestUrl)
        wish.url = url;
    wish.section = sectionOf(payload.value(QLatin1String("kind")).toString());
    wish.fill = payload.value(QLatin1String("fill")).toBool();
    wish.browser = rectOf(payload.value(QLatin1String("window")));
    wish.field = rectOf(payload.value(QLatin1String("field")));
    return wish;
}
