#pragma once

#include <QJsonObject>
#include <QStringList>

/// One input field of a page as the extension reports it. Whatever is missing or of the wrong JSON
/// type reads as empty, and as not visible.
class FormField
{
public:
    explicit FormField(const QJsonObject &object)
        : m_object(object)
    {
    }

    QString opid() const { return text("opid"); }
    QString gpmid() const { return text("gpmid"); }
    bool isVisible() const { return m_object.value(QLatin1String("visible")).toBool(); }

    /// Whether the field's type is one of these, ignoring case. The type is "type", and "inputtype"
    /// where "type" is empty.
    bool hasType(const QStringList &types) const;

    /// Name, id and class.
    QStringList attributeTexts() const;

    /// Name, id and class, the text near the field and the text of its label.
    QStringList attributeAndLabelTexts() const;

private:
    QString text(const char *key) const;
    QString attribute(const char *key, const char *sourceKey) const;

    QJsonObject m_object;
};
