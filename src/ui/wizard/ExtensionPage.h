#pragma once

#include "WizardPage.h"
#include "browsers/PluginsPage.h"

/// The step of the wizard that brings the extension into the browsers.
class ExtensionPage : public WizardPage
{
    Q_OBJECT

public:
    ExtensionPage(const PluginsPage::Parts &parts, QWidget *parent);

    QString onward() const override { return tr("Done"); }
};
