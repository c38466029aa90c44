#pragma once

#include <QPushButton>

class ElidedLabel;
class QHBoxLayout;
class QLabel;
class Theme;

/// Shows which safe is open; what can be done with it is in the menu that it gets.
class SafeSwitcher : public QPushButton
{
    Q_OBJECT

public:
    SafeSwitcher(const Theme &theme, QWidget *parent);

    void setSafe(const QString &name);
    void setState(const QString &state);

    /// Shows the crystal alone.
    void setFolded(bool folded);

private:
    void describe();

    const Theme &m_theme;
    ElidedLabel *m_name;
    ElidedLabel *m_state;
    QLabel *m_arrow;
    QHBoxLayout *m_row;
    bool m_folded = false;
};
