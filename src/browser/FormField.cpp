#include "FormField.h"

namespace {

/// No page describes a field in so many letters; one that does shall not keep the program busy.
constexpr int longestText = 1000;
constexpr int longestValue = 10000;

} // namespace

FormField::FormField(const QJsonObject &object)
    : m_object(object)
    , m_type(text("type").toLower())
    , m_maxLength(qBound(0, object.value(QLatin1String("maxlength")).toInt(), longestValue))
{
    if (m_type.isEmpty())
        m_type = text("inputtype").toLower();
}

FormField FormField::withoutClass() const
{
    QJsonObject object = m_object;
    object.remove(QStringLiteral("class"));
    object.remove(QStringLiteral("sourceClass"));
    return FormField(object);
}

bool FormField::hasType(const QStringList &types) const
{
    return types.contains(m_type);
}

bool FormField::isLine() const
{
    static const QStringList types = {QStringLiteral("text"),   QStringLiteral("email"),
                                      QStringLiteral("number"), QStringLiteral("tel"),
                                      QStringLiteral("url"),    QStringLiteral("search"),
                                      QStringLiteral("date"),   QStringLiteral("month")};
    return hasType(types);
}

QStringList FormField::attributeTexts() const
{
    return {name(), id(), className()};
}

QStringList FormField::attributeAndLabelTexts() const
{
    return attributeTexts() << text("sourceContext") << text("sourceLabelFor");
}

bool FormField::hasHints() const
{
    return m_object.contains(QLatin1String("autocomplete")) ||
           m_object.contains(QLatin1String("label"));
}

QStringList FormField::readTexts() const
{
    return {label(), text("ariaLabel"), placeholder(), text("textBefore"), text("tableHead")};
}

QVector<FormField::Option> FormField::options() const
{
    constexpr int most = 300;
    const QJsonArray reported = m_object.value(QLatin1String("options")).toArray();
    QVector<Option> options;
    for (int i = 0; i < qMin(most, reported.size()); ++i) {
        const QJsonObject option = reported.at(i).toObject();
        options.append({option.value(QLatin1String("text")).toString(),
                        option.value(QLatin1String("value")).toString()});
    }
    return options;
}

QString FormField::text(const char *key) const
{
    return m_object.value(QLatin1String(key)).toString().left(longestText);
}

QString FormField::attribute(const char *key, const char *sourceKey) const
{
    const QJsonValue value = m_object.value(QLatin1String(key));
    return value.isString() ? value.toString().left(longestText) : text(sourceKey);
}
