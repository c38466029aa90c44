#pragma once

#include "widgets/FramedDialog.h"

class QLineEdit;

/// Asks for the new name of a file.
class RenameDialog : public FramedDialog
{
    Q_OBJECT

public:
    RenameDialog(const QString &name, const Theme &theme, QWidget *parent);

    QString name() const;

private:
    QLineEdit *m_field;
};
