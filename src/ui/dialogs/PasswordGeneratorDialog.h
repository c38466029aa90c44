#pragma once

#include "GeneratorPanel.h"
#include "widgets/FramedDialog.h"

/// The window in which passwords are made.
class PasswordGeneratorDialog : public FramedDialog
{
    Q_OBJECT

public:
    using Parts = GeneratorPanel::Parts;

    PasswordGeneratorDialog(const Parts &parts, const Theme &theme, QWidget *parent);
    ~PasswordGeneratorDialog() override;

    /// Says where "Place" puts the password.
    void setTarget(const PasswordTarget &target) { m_panel->setTarget(target); }

public Q_SLOTS:
    /// Looks again whether the password can be placed.
    void updatePlace() { m_panel->updatePlace(); }

protected:
    bool event(QEvent *event) override;

private:
    GeneratorPanel *m_panel;
};
