#pragma once

#include "FieldInput.h"
#include "PMFieldTypes.h"

class CountryField;
class TextField;

/// Edits a telephone number: the country's code, which can be found by the country's name, and the
/// number. The suggested code stays out of the value until there is a number.
class PhoneInput : public FieldInput
{
    Q_OBJECT

public:
    PhoneInput(const ItemField &field, const InputContext &context, QWidget *parent);

    QVariant value() const override;
    void setValue(const QVariant &value) override;
    QWidget *control() const override;

protected:
    void showFault(bool wrong) override;

private:
    QString m_defaultCode;
    CountryField *m_code;
    TextField *m_number;
};
