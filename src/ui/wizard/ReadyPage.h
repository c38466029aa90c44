#pragma once

#include "WizardPage.h"

/// The last words of the wizard: what to do next.
class ReadyPage : public WizardPage
{
    Q_OBJECT

public:
    explicit ReadyPage(QWidget *parent);
};
