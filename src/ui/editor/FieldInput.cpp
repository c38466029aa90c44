#include "FieldInput.h"

#include "ChoiceInput.h"
#include "LineInput.h"
#include "PhoneInput.h"
#include "SecretInput.h"
#include "TextInput.h"
#include "style/Style.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"

#include <QGridLayout>

namespace {

const int labelSpace = 4;
const int columnGap = 14;
const int messageHeight = 18;

} // namespace

FieldInput::FieldInput(const ItemField &field, QWidget *parent)
    : QWidget(parent)
    , m_field(field)
    , m_grid(new QGridLayout(this))
    , m_message(new MessageLabel(this))
{
    m_grid->setContentsMargins({});
    m_grid->setHorizontalSpacing(0);
    m_grid->setVerticalSpacing(labelSpace);
    m_grid->setColumnStretch(1, 1);
    // A long text takes the height that there is; the other inputs stay at the top of theirs.
    m_grid->setRowStretch(field.form == ItemField::LongText ? 1 : 3, 1);
    m_message->setObjectName(QLatin1String(field.property) + QStringLiteral("Message"));
    m_message->setMinimumHeight(Style::scaled(messageHeight));
    m_message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_grid->addWidget(m_message, 2, 0, 1, 2);
}

void FieldInput::place(QWidget *control, int column, const QString &label, const QString &name,
                       int width)
{
    auto *caption = makeLabel(label, "muted", this);
    caption->setBuddy(control);
    control->setAccessibleName(label);
    control->setObjectName(name);
    if (width > 0) {
        control->setFixedWidth(Style::scaled(width));
        m_grid->setColumnMinimumWidth(column, Style::scaled(width) + columnGap);
    }
    m_grid->addWidget(caption, 0, column);
    m_grid->addWidget(control, 1, column);
}

void FieldInput::placeBelow(QWidget *widget)
{
    m_message->hide();
    m_grid->addWidget(widget, 2, 0, 1, 2, Qt::AlignLeft);
}

void FieldInput::setFault(const QString &message)
{
    m_message->setMessage(message);
    // For those who cannot see the line below.
    control()->setAccessibleDescription(message);
    showFault(!message.isEmpty());
}

bool FieldInput::hasFault() const
{
    return !m_message->text().isEmpty();
}

void FieldInput::showFault(bool wrong)
{
    setStyleProperty(*control(), "wrong", wrong);
}

FieldInput *makeFieldInput(const ItemField &field, const InputContext &context, QWidget *parent)
{
    switch (field.form) {
    case ItemField::Multiline:
    case ItemField::LongText:
        return new TextInput(field, parent);
    case ItemField::Password:
    case ItemField::Secret:
    case ItemField::SecurityCode:
        return new SecretInput(field, context, parent);
    case ItemField::FillType:
    case ItemField::Gender:
        return new ChoiceInput(field, context, parent);
    case ItemField::Phone:
        return new PhoneInput(field, context, parent);
    default:
        return new LineInput(field, context, parent);
    }
}
