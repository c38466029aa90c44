#pragma once

#include "style/Palette.h"

#include <QLabel>

class Theme;

/// A short word on a tinted ground with round ends.
class Badge : public QLabel
{
    Q_OBJECT

public:
    Badge(const QString &text, Palette::Role role, const Theme &theme, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Palette::Role m_role;
    const Theme &m_theme;
};
