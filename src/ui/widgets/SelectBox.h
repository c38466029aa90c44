#pragma once

#include <QComboBox>
#include <QIcon>

/// A combo box with an icon of its own at its end and, if wanted, one at its front.
class SelectBox : public QComboBox
{
    Q_OBJECT

public:
    SelectBox(const QIcon &chevron, QWidget *parent);

    void setFrontIcon(const QIcon &icon);

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QIcon m_chevron;
    QIcon m_front;
};
