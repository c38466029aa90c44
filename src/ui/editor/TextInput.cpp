#include "TextInput.h"

#include "style/Style.h"

#include <QPlainTextEdit>
#include <QSignalBlocker>

namespace {

const int shortHeight = 96;
const int longHeight = 240;

} // namespace

TextInput::TextInput(const ItemField &field, QWidget *parent)
    : FieldInput(field, parent)
    , m_text(new QPlainTextEdit(this))
{
    m_text->setTabChangesFocus(true);
    if (field.form == ItemField::LongText)
        m_text->setMinimumHeight(Style::scaled(longHeight));
    else
        m_text->setFixedHeight(Style::scaled(shortHeight));
    place(m_text, 1, itemFieldLabel(field),
          QLatin1String(field.property) + QStringLiteral("Field"));
    connect(m_text, &QPlainTextEdit::textChanged, this, &FieldInput::edited);
}

QVariant TextInput::value() const
{
    return m_text->toPlainText();
}

void TextInput::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(m_text);
    m_text->setPlainText(value.toString());
}

QWidget *TextInput::control() const
{
    return m_text;
}
