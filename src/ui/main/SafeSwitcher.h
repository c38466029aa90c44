#pragma once

#include "CloudStatus.h"

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
    /// What there is to say of the safe's copy in the cloud folder, in place of the state; empty
    /// while there is nothing.
    void setCloud(const CloudStatus &status, const QDateTime &now);

    /// Shows the crystal alone.
    void setFolded(bool folded);

private:
    void describe();
    void showCloud();

    const Theme &m_theme;
    ElidedLabel *m_name;
    QLabel *m_cloudIcon;
    ElidedLabel *m_state;
    QLabel *m_arrow;
    QHBoxLayout *m_row;
    bool m_folded = false;
    QString m_plainState;
    CloudStatus m_cloud;
    QString m_cloudLine;
};
