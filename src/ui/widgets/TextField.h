#pragma once

#include <QLineEdit>

/// A line edit whose placeholder is paler than its text.
class TextField : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    void changeEvent(QEvent *event) override;

private:
    void fadePlaceholder();
};
