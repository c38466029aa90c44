#pragma once

#include "CloudStatus.h"

#include <QWidget>

class MessageLabel;
class QLabel;
class QPushButton;
class Theme;
class Toggle;

/// One safe in the settings: whether it is synchronised, how that stands, and what can be done.
class CloudSafeRow : public QWidget
{
    Q_OBJECT

public:
    CloudSafeRow(const QString &name, const Theme &theme, QWidget *parent);

    /// @param isOpen whether the safe is unlocked, and can be synchronised now
    void setStatus(const CloudStatus &status, bool isOpen, const QDateTime &now);

Q_SIGNALS:
    /// The user wants it to be on or off; the row shows what holds.
    void switched(bool on);
    void synchronizeRequested();
    void passwordRequested();

private:
    void layOut();

    const Theme &m_theme;
    QLabel *m_icon;
    QLabel *m_name;
    MessageLabel *m_line;
    QLabel *m_advice;
    QPushButton *m_now;
    QPushButton *m_password;
    Toggle *m_toggle;
};
