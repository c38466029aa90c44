#pragma once

#include "widgets/FramedDialog.h"

class QLineEdit;

/// Asks for the new name of a file.
class RenameDialog : public FramedDialog
{
    Q_OBJECT

public:
    /// @param caption what is renamed; a file when it is left out
    RenameDialog(const QString &name, const Theme &theme, QWidget *parent,
                 const QString &caption = {});

    QString name() const;

private:
    QLineEdit *m_field;
};
