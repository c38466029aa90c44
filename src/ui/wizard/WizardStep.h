#pragma once

#include <QString>

#include <functional>

class QWidget;
class WizardPage;

/// One step of the wizard.
struct WizardStep
{
    const char *id;
    QString title;
    QString sentence;
    /// Whether there is something to do; asked when the wizard opens.
    std::function<bool()> exists;
    std::function<WizardPage *(QWidget *parent)> make;
};
