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
    const QString &name() const { return m_name; }
    const QString &id() const { return m_id; }
    QString className() const;
    FormField withoutClass() const;
    const QString &inputType() const { return m_inputType; }
    bool isVisible() const { return m_isVisible; }

    /// Whether the field's type, in lower case, is one of these. The type is "type", and
    /// "inputtype" where "type" is empty.
    bool hasType(const QStringList &types) const;
    /// Whether it is a line of text of any kind, a password excepted.
    bool isLine() const { return m_control == Control::Line; }
    bool isPassword() const { return m_control == Control::Password; }
    bool isSelect() const { return m_control == Control::Select; }
    bool isRadio() const { return m_control == Control::Radio; }
    bool isTextArea() const { return m_control == Control::TextArea; }

    /// Name, id and class.
    QStringList attributeTexts() const;

    /// Name, id and class, the text near the field and the text of its label.
    QStringList attributeAndLabelTexts() const;

    /// Whether the extension reported more of the field than name, id, class and the text near it.
    /// What follows is empty where it did not.
    bool hasHints() const { return m_hasHints; }
    const QString &autocomplete() const { return m_autocomplete; }
    const QString &label() const { return m_label; }
    const QString &placeholder() const { return m_placeholder; }
    const QString &heading() const { return m_heading; }
    const QString &textBefore() const { return m_textBefore; }
    QString pattern() const { return text("pattern"); }
    /// The texts that a person reads at the field, the most telling first.
    QStringList readTexts() const;
    /// How many letters the texts have that it is read by.
    int letters() const;
    QString textAfter() const { return text("textAfter"); }
    bool isInSearch() const { return flag("isSearch"); }
    /// Whether the page lets nobody type there.
    bool isFixed() const { return flag("isFixed"); }
    /// Whether a person meets it: lines that nobody sees, and the pictures of fields that some
    /// pages lay over theirs, tell nothing of those around them.
    bool isInPlay() const;
    bool isFilled() const { return flag("isFilled"); }
    /// The most letters that it takes, 0 for no limit.
    int maxLength() const { return m_maxLength; }

    struct Option
    {
        QString text;
        QString value;
    };
    /// At most 300, and no more than it was limited to.
    QVector<Option> options(int most = mostOptions) const;
    /// Hides what goes beyond a number of options; returns how many are left.
    int limitOptions(int most);

private:
    static constexpr int mostOptions = 300;
    enum class Control { Other, Line, Password, Select, Radio, TextArea };

    static Control controlOf(const QString &type);
    QString text(const char *key) const;
    bool flag(const char *key) const { return m_object.value(QLatin1String(key)).toBool(); }
    QString attribute(const char *key, const char *sourceKey) const;

    // What is asked for more than once is looked up only once: that is what reading costs most.
    QJsonObject m_object;
    QString m_inputType;
    QString m_type; ///< in lower case
    Control m_control;
    QString m_name;
    QString m_id;
    QString m_autocomplete;
    QString m_label;
    QString m_placeholder;
    QString m_ariaLabel;
    QString m_textBefore;
    QString m_tableHead;
    QString m_heading;
    int m_maxLength;
    int m_optionLimit = mostOptions;
    bool m_isVisible;
    bool m_hasHints;
    bool m_hasClass = true;
};
