#include "PhoneInput.h"

#include "CountryField.h"
#include "widgets/Controls.h"
#include "widgets/TextField.h"

#include <QSignalBlocker>

namespace {

const int codeWidth = 150;

} // namespace

PhoneInput::PhoneInput(const ItemField &field, const InputContext &context, QWidget *parent)
    : FieldInput(field, parent)
    , m_defaultCode(context.defaults.code)
    , m_code(new CountryField(CountryField::Codes, context.theme, this))
    , m_number(new TextField(this))
{
    const QString name = QLatin1String(field.property);
    place(m_code, 0, tr("Country code"), name + QStringLiteral("Code"), codeWidth);
    m_code->setAccessibleName(tr("%1: country code").arg(itemFieldLabel(field)));
    place(m_number, 1, itemFieldLabel(field), name + QStringLiteral("Field"));
    m_number->setInputMethodHints(Qt::ImhDialableCharactersOnly);
    for (QLineEdit *line : {static_cast<QLineEdit *>(m_code), static_cast<QLineEdit *>(m_number)})
        connect(line, &QLineEdit::textChanged, this, &FieldInput::edited);
}

QVariant PhoneInput::value() const
{
    PMFieldTypes::Phone phone{m_code->code(), m_number->text()};
    if (phone.number.isEmpty() && phone.code == m_defaultCode)
        phone.code.clear();
    return QVariant::fromValue(phone);
}

void PhoneInput::setValue(const QVariant &value)
{
    const auto phone = value.value<PMFieldTypes::Phone>();
    const QSignalBlocker codeBlocker(m_code);
    const QSignalBlocker numberBlocker(m_number);
    m_code->setCode(phone.isEmpty() ? m_defaultCode : phone.code);
    m_number->setText(phone.number);
}

QWidget *PhoneInput::control() const
{
    return m_number;
}

void PhoneInput::showFault(bool wrong)
{
    setStyleProperty(*m_code, "wrong", wrong);
}
