#pragma once

#include <QWidget>

/// What a step of the wizard shows below its title.
class WizardPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// The words on the button that goes on; empty for the usual ones.
    virtual QString onward() const { return {}; }
    /// Whether there is something left to do on the page, which can also be skipped.
    virtual bool canSkip() const { return false; }
    virtual bool canGoOn() const { return true; }
    /// Does what the page is about; false when it failed, and then the page says so.
    virtual bool goOn() { return true; }
    virtual void takeFocus() {}
    virtual void clearSecrets() {}

Q_SIGNALS:
    /// What the functions above answer has changed.
    void changed();
};
