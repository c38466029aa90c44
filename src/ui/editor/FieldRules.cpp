#include "FieldRules.h"

#include <QCoreApplication>
#include <QUrl>
#include <QVariant>

namespace {

bool isCompleteUrl(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && !url.scheme().isEmpty() && !url.host().isEmpty();
}

QString withScheme(const QString &text)
{
    return text.contains(QLatin1String("://")) ? text : QStringLiteral("https://") + text;
}

} // namespace

QString FieldRules::message(const ItemField &field, const QVariant &value)
{
    const QString text = value.toString();
    if (field.required && text.isEmpty())
        return QCoreApplication::translate("FieldRules", "Required field is empty");
    if (field.form == ItemField::Link && !isUrl(text))
        return QCoreApplication::translate("FieldRules", "Url is invalid");
    return {};
}

bool FieldRules::isUrl(const QString &text)
{
    return text.isEmpty() || isCompleteUrl(withScheme(text));
}

QString FieldRules::completeUrl(const QString &text)
{
    return !text.isEmpty() && isUrl(text) ? withScheme(text) : text;
}
