#pragma once

#include <QLabel>

/// Says whether Caps Lock is on: "CAPS ON" with a red dot, or "CAPS OFF".
class CapsIndicator : public QLabel
{
    Q_OBJECT

public:
    explicit CapsIndicator(QWidget *parent);

    void setOn(bool on);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_on = false;
};
