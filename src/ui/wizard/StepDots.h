#pragma once

#include <QWidget>

class Theme;

/// Where one is in a row of steps: dots, of which that of the current step is long.
class StepDots : public QWidget
{
    Q_OBJECT

public:
    StepDots(const Theme &theme, QWidget *parent);

    /// @param step from 0
    void setStep(int step, int count);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Theme &m_theme;
    int m_step = 0;
    int m_count = 0;
};
