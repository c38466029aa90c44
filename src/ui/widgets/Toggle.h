#pragma once

#include <QCheckBox>

class Theme;

/// A check box that looks like a switch.
class Toggle : public QCheckBox
{
    Q_OBJECT

public:
    Toggle(const Theme &theme, QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint &position) const override;
    void paintEvent(QPaintEvent *event) override;

private:
    const Theme &m_theme;
};
