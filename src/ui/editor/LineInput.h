#pragma once

#include "FieldInput.h"

class BrandMark;
class QLineEdit;

/// Edits what stands in one line: a text, an address, a date, a number, a card number, a country.
class LineInput : public FieldInput
{
    Q_OBJECT

public:
    LineInput(const ItemField &field, const InputContext &context, QWidget *parent);

    QVariant value() const override;
    void setValue(const QVariant &value) override;
    QWidget *control() const override;

private:
    void addOpen();
    void addCalendar();
    void addBrand();
    void openCalendar();
    void groupDigits();
    void tidyDate();
    void showBrand();
    bool isDate() const;

    const Theme &m_theme;
    QLocale m_locale;
    QLineEdit *m_line;
    BrandMark *m_brand = nullptr;
    QVariant m_given; ///< and the text that was made of it
    QString m_givenText;
};
