#include "ChoiceInput.h"

#include "PMFieldTypes.h"
#include "style/Theme.h"
#include "widgets/SelectBox.h"

#include <QSignalBlocker>

ChoiceInput::ChoiceInput(const ItemField &field, const InputContext &context, QWidget *parent)
    : FieldInput(field, parent)
    , m_box(new SelectBox(context.theme.icon(QStringLiteral("chevron-down"), Palette::Muted), this))
{
    if (field.form == ItemField::Gender) {
        for (const auto gender : {PMFieldTypes::Gender::Undefined, PMFieldTypes::Gender::Female,
                                  PMFieldTypes::Gender::Male})
            m_box->addItem(genderText(static_cast<int>(gender)), static_cast<int>(gender));
        m_box->setItemText(0, tr("Not specified"));
    } else {
        using Type = PMFieldTypes::LoginFillType;
        for (const Type type : {Type::GlobalSettings, Type::FillAndSubmit, Type::OnlyFill})
            m_box->addItem(fillTypeText(static_cast<int>(type), context.settings),
                           static_cast<int>(type));
    }
    m_box->setMinimumContentsLength(1);
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    place(m_box, 1, itemFieldLabel(field), QLatin1String(field.property) + QStringLiteral("Field"));
    connect(m_box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &FieldInput::edited);
}

QVariant ChoiceInput::value() const
{
    return m_box->currentData();
}

void ChoiceInput::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(m_box);
    m_box->setCurrentIndex(m_box->findData(value.toInt()));
}

QWidget *ChoiceInput::control() const
{
    return m_box;
}
