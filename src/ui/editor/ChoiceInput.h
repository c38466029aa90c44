#pragma once

#include "FieldInput.h"

class SelectBox;

/// Chooses one value of a few.
class ChoiceInput : public FieldInput
{
    Q_OBJECT

public:
    ChoiceInput(const ItemField &field, const InputContext &context, QWidget *parent);

    QVariant value() const override;
    void setValue(const QVariant &value) override;
    QWidget *control() const override;

private:
    SelectBox *m_box;
};
