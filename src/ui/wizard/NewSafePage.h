#pragma once

#include "WizardPage.h"

class CreateSafeForm;
class GPMAppCore;
class QLabel;
class Theme;

/// Makes the first safe, with a word on what the hint is for.
class NewSafePage : public WizardPage
{
    Q_OBJECT

public:
    NewSafePage(GPMAppCore &core, const Theme &theme, QWidget *parent);

    QString onward() const override;
    bool canSkip() const override;
    bool canGoOn() const override;
    bool goOn() override;
    void takeFocus() override;
    void clearSecrets() override;

private:
    bool isMade() const;
    void showState();

    GPMAppCore &m_core;
    CreateSafeForm *m_form;
    QLabel *m_hintAdvice;
    QLabel *m_made;
};
