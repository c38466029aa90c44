#include "FormField.h"

bool FormField::hasType(const QStringList &types) const
{
    const QString type = text("type");
    return types.contains(type.isEmpty() ? text("inputtype") : type, Qt::CaseInsensitive);
}

QStringList FormField::attributeTexts() const
{
    return {attribute("name", "sourceName"), attribute("id", "sourceId"),
            attribute("class", "sourceClass")};
}

QStringList FormField::attributeAndLabelTexts() const
{
    return attributeTexts() << text("sourceContext") << text("sourceLabelFor");
}

QString FormField::text(const char *key) const
{
    return m_object.value(QLatin1String(key)).toString();
}

QString FormField::attribute(const char *key, const char *sourceKey) const
{
    return m_object.value(QLatin1String(key)).isString() ? text(key) : text(sourceKey);
}
