#include "FormSurroundings.h"

#include <QJsonArray>

namespace {

constexpr int mostButtons = 4;
constexpr int longestCaption = 300;

} // namespace

FormSurroundings FormSurroundings::of(const QJsonObject &form, const QJsonObject &page)
{
    FormSurroundings around;
    const auto line = [](const QJsonValue &value) { return value.toString().left(longestCaption); };
    const auto text = [&](const char *key) { return line(form.value(QLatin1String(key))); };
    const QJsonArray buttons = form.value(QLatin1String("buttons")).toArray();
    for (int i = 0; i < qMin(mostButtons, buttons.size()); ++i)
        around.captions.append(line(buttons.at(i)));
    around.captions.append(text("title"));
    const QJsonArray fields = form.value(QLatin1String("fields")).toArray();
    const QString heading = fields.first().toObject().value(QLatin1String("heading")).toString();
    around.captions +=
        {line(heading), text("id"), text("name"), line(page.value(QLatin1String("title")))};
    around.language = line(page.value(QLatin1String("language"))).toLower();
    return around;
}
