#include "FormField.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace {

/// No page describes a field in so many letters; one that does shall not keep the program busy.
constexpr int longestText = 300;
constexpr int longestValue = 10000;

} // namespace

FormField::FormField(const QJsonObject &object)
    : m_object(object)
    , m_inputType(text("inputtype"))
    , m_type(text("type").toLower())
    , m_name(attribute("name", "sourceName"))
    , m_id(attribute("id", "sourceId"))
    , m_autocomplete(text("autocomplete"))
    , m_label(text("label"))
    , m_placeholder(text("placeholder"))
    , m_ariaLabel(text("ariaLabel"))
    , m_textBefore(text("textBefore"))
    , m_tableHead(text("tableHead"))
    , m_heading(text("heading"))
    , m_maxLength(qBound(0, object.value(QLatin1String("maxlength")).toInt(), longestValue))
    , m_isVisible(flag("visible"))
    , m_hasHints(object.contains(QLatin1String("autocomplete")) ||
                 object.contains(QLatin1String("label")))
{
    if (m_type.isEmpty())
        m_type = m_inputType.toLower();
    m_control = controlOf(m_type);
}

FormField::Control FormField::controlOf(const QString &type)
{
    static const QHash<QString, Control> controls = {
        {QStringLiteral("text"), Control::Line},
        {QStringLiteral("email"), Control::Line},
        {QStringLiteral("number"), Control::Line},
        {QStringLiteral("tel"), Control::Line},
        {QStringLiteral("url"), Control::Line},
        {QStringLiteral("search"), Control::Line},
        {QStringLiteral("date"), Control::Line},
        {QStringLiteral("month"), Control::Line},
        {QStringLiteral("password"), Control::Password},
        {QStringLiteral("select-one"), Control::Select},
        {QStringLiteral("radio"), Control::Radio},
        {QStringLiteral("textarea"), Control::TextArea}};
    return controls.value(type, Control::Other);
}

QString FormField::className() const
{
    return m_hasClass ? attribute("class", "sourceClass") : QString();
}

FormField FormField::withoutClass() const
{
    FormField field = *this;
    field.m_hasClass = false;
    return field;
}

bool FormField::hasType(const QStringList &types) const
{
    return types.contains(m_type);
}

QStringList FormField::attributeTexts() const
{
    return {name(), id(), className()};
}

QStringList FormField::attributeAndLabelTexts() const
{
    return attributeTexts() << text("sourceContext") << text("sourceLabelFor");
}

QStringList FormField::readTexts() const
{
    QStringList texts = {m_label, m_ariaLabel, m_placeholder, m_textBefore, m_tableHead};
    // "e.g. street name" is an example of what the text before asks for.
    static const QRegularExpression example(
        QString::fromUtf8(
            "^\\(?(e\\.?g\\b|z\\.? ?b\\.|p\\.? ?ej\\b|ej\\.|ex\\.|for example|example|"
            "beispiel|par exemple|por ejemplo|например)"),
        QRegularExpression::CaseInsensitiveOption);
    if (!m_placeholder.isEmpty() && !m_textBefore.isEmpty() &&
        example.match(m_placeholder).hasMatch())
        texts.move(2, 4);
    const bool isSilent =
        std::all_of(texts.begin(), texts.end(), [](const QString &text) { return text.isEmpty(); });
    const QString title = text("title");
    return isSilent && title != m_name && title != m_id ? QStringList{title} : texts;
}

int FormField::letters() const
{
    return m_name.size() + m_id.size() + m_label.size() + m_ariaLabel.size() +
           m_placeholder.size() + m_textBefore.size() + m_tableHead.size();
}

QVector<FormField::Option> FormField::options(int most) const
{
    const QJsonArray reported = m_object.value(QLatin1String("options")).toArray();
    QVector<Option> options;
    for (int i = 0; i < qMin(qMin(most, m_optionLimit), reported.size()); ++i) {
        const QJsonObject option = reported.at(i).toObject();
        options.append({option.value(QLatin1String("text")).toString().left(longestText),
                        option.value(QLatin1String("value")).toString().left(longestText)});
    }
    return options;
}

int FormField::limitOptions(int most)
{
    const QJsonValue reported = m_object.value(QLatin1String("options"));
    m_optionLimit =
        reported.isArray() ? qBound(0, reported.toArray().size(), qMin(most, mostOptions)) : 0;
    return m_optionLimit;
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

bool FormField::isInPlay() const
{
    const bool isPicture = isFixed() && name().isEmpty() && id().isEmpty();
    return !isLine() || (isVisible() && !isPicture);
}
