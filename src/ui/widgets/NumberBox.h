#pragma once

#include <QIcon>
#include <QSpinBox>

/// A spin box whose arrows are icons.
class NumberBox : public QSpinBox
{
    Q_OBJECT

public:
    NumberBox(const QIcon &up, const QIcon &down, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QIcon m_up;
    QIcon m_down;
};
