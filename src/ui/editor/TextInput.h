#pragma once

#include "FieldInput.h"

class QPlainTextEdit;

/// Edits a text of several lines.
class TextInput : public FieldInput
{
    Q_OBJECT

public:
    TextInput(const ItemField &field, QWidget *parent);

    QVariant value() const override;
    void setValue(const QVariant &value) override;
    QWidget *control() const override;

private:
    QPlainTextEdit *m_text;
};
