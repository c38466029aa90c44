#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

/// One input field of a page as the extension reports it. Whatever is missing or of the wrong JSON
/// type reads as empty, and as not visible. Texts are read up to 1000 letters, values whole.
class FormField
{
public:
    explicit FormField(const QJsonObject &object);

    QString opid() const { return m_object.value(QLatin1String("opid")).toString(); }
    QString gpmid() const { return m_object.value(QLatin1String("gpmid")).toString(); }
    QString value() const { return m_object.value(QLatin1String("value")).toString(); }
    bool hasValue() const { return m_object.value(QLatin1String("value")).isString(); }
    QString name() const { return attribute("name", "sourceName"); }
    QString id() const { return attribute("id", "sourceId"); }
    QString className() const { return attribute("class", "sourceClass"); }
    FormField withoutClass() const;
    QString inputType() const { return text("inputtype"); }
    bool isVisible() const { return flag("visible"); }

    /// Whether the field's type, in lower case, is one of these. The type is "type", and
    /// "inputtype" where "type" is empty.
    bool hasType(const QStringList &types) const;
    /// Whether it is a line of text of any kind, a password excepted.
    bool isLine() const;
    bool isPassword() const { return m_type == QLatin1String("password"); }
    bool isSelect() const { return m_type == QLatin1String("select-one"); }
    bool isRadio() const { return m_type == QLatin1String("radio"); }
    bool isTextArea() const { return m_type == QLatin1String("textarea"); }

    /// Name, id and class.
    QStringList attributeTexts() const;

    /// Name, id and class, the text near the field and the text of its label.
    QStringList attributeAndLabelTexts() const;

    /// Whether the extension reported more of the field than name, id, class and the text near it.
    /// What follows is empty where it did not.
    bool hasHints() const;
    QString autocomplete() const { return text("autocomplete"); }
    QString label() const { return text("label"); }
    QString placeholder() const { return text("placeholder"); }
    QString heading() const { return text("heading"); }
    QString pattern() const { return text("pattern"); }
    /// The texts that a person reads at the field, the most telling first.
    QStringList readTexts() const;
    QString textAfter() const { return text("textAfter"); }
    bool isInSearch() const { return flag("isSearch"); }
    /// Whether the page lets nobody type there.
    bool isFixed() const { return flag("isFixed"); }
    bool isFilled() const { return flag("isFilled"); }
    /// The most letters that it takes, 0 for no limit.
    int maxLength() const { return m_maxLength; }

    struct Option
    {
        QString text;
        QString value;
    };
    QVector<Option> options() const;

private:
    QString text(const char *key) const;
    bool flag(const char *key) const { return m_object.value(QLatin1String(key)).toBool(); }
    QString attribute(const char *key, const char *sourceKey) const;

    QJsonObject m_object;
    QString m_type; ///< in lower case
    int m_maxLength;
};
