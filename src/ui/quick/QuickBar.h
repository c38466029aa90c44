#pragma once

#include "QuickAccessWish.h"

#include <QWidget>

class QToolButton;
class Theme;

/// The sections of quick access, side by side.
class QuickBar : public QWidget
{
    Q_OBJECT

public:
    using Section = QuickAccessWish::Section;
    static constexpr int count = 4;

    QuickBar(const Theme &theme, QWidget *parent);

    void setSection(Section section);

Q_SIGNALS:
    void chosen(QuickAccessWish::Section section);

private:
    const Theme &m_theme;
    QVector<QToolButton *> m_buttons;
};
