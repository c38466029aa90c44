#pragma once

#include "WizardStep.h"
#include "widgets/FramedDialog.h"

#include <QVector>

class QLabel;
class QPushButton;
class QStackedWidget;
class StepDots;

/// Leads through the first steps with the program. Each can be skipped.
class SetupWizard : public FramedDialog
{
    Q_OBJECT

public:
    /// @param steps those that exist are shown; there must be one
    SetupWizard(const QVector<WizardStep> &steps, const Theme &theme, QWidget *parent);

    QString step() const;
    /// Goes to a step if it is shown.
    void goTo(const QString &id);

Q_SIGNALS:
    /// The last step was left by the way on.
    void completed();

protected:
    void showEvent(QShowEvent *event) override;
    void done(int result) override;

private:
    void layOut();
    WizardPage &page() const;
    void showStep(int index);
    void showButtons();
    void goOn();

    QVector<WizardStep> m_steps;
    StepDots *m_dots;
    QLabel *m_title;
    QLabel *m_sentence;
    QStackedWidget *m_pages;
    QPushButton *m_back;
    QPushButton *m_skip;
    QPushButton *m_onward;
};
