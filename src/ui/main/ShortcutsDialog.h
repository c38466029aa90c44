#pragma once

#include "widgets/FramedDialog.h"

/// Lists what can be done with the keyboard.
class ShortcutsDialog : public FramedDialog
{
    Q_OBJECT

public:
    ShortcutsDialog(const Theme &theme, QWidget *parent);
};
