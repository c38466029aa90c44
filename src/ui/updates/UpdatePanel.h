#pragma once

#include "Clock.h"

#include <QWidget>

class GPMUpdateChecker;
class QLabel;
class QPushButton;

/// What is known of newer versions, on the page of the settings, and a way to ask now.
class UpdatePanel : public QWidget
{
    Q_OBJECT

public:
    /// @param checker outlives the panel
    UpdatePanel(GPMUpdateChecker &checker, QWidget *parent, Clock clock = systemTime);

Q_SIGNALS:
    /// The newer version that is known is to be shown.
    void newsRequested();

private:
    void showState();
    QString headline() const;
    QString detail() const;

    GPMUpdateChecker &m_checker;
    Clock m_clock;
    QLabel *m_headline;
    QLabel *m_detail;
    QPushButton *m_show;
    QPushButton *m_check;
};
