#pragma once

#include "FieldInput.h"

class PasswordField;
class StrengthMeter;

/// Edits a secret: dots, buttons to see and to copy it; a password has its strength and a button
/// that asks for a made one as well.
class SecretInput : public FieldInput
{
    Q_OBJECT

public:
    SecretInput(const ItemField &field, const InputContext &context, QWidget *parent);

    QVariant value() const override;
    void setValue(const QVariant &value) override;
    QWidget *control() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addCopy(const Theme &theme);
    void addGenerator(const Theme &theme);
    void copy();
    void showStrength();

    PasswordField *m_line;
    StrengthMeter *m_meter = nullptr;
};
