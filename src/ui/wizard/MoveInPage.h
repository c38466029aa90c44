#pragma once

#include "WizardPage.h"

class GPMAppCore;
class QLabel;
class QPushButton;
class Theme;

/// Leads to the window that brings the passwords of other programs over.
class MoveInPage : public WizardPage
{
    Q_OBJECT

public:
    MoveInPage(GPMAppCore &core, const Theme &theme, QWidget *parent);

    bool canSkip() const override;
    void takeFocus() override;

private:
    bool isOpen() const;
    void showState();

    GPMAppCore &m_core;
    QLabel *m_state;
    QPushButton *m_open;
};
