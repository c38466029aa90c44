#pragma once

#include "OriginApprovals.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QuestionDialog;

/// Asks the user whether an extension may connect that the program cannot know. The question waits
/// in a window, while everything else goes on.
class ApprovalDesk : public QObject
{
    Q_OBJECT

public:
    /// The approvals outlive this.
    /// @param bringToFront shows the main window
    ApprovalDesk(OriginApprovals &approvals, std::function<void()> bringToFront);
    ~ApprovalDesk() override;

    /// The main window; an open question comes up above it.
    void setMain(QWidget *main);

private:
    void showQuestion();
    void answer(int button);

    OriginApprovals &m_approvals;
    std::function<void()> m_bringToFront;
    QPointer<QWidget> m_main;
    QPointer<QuestionDialog> m_dialog;
    QString m_origin; ///< that the dialog asks about
};
