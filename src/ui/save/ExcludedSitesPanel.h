#pragma once

#include <QWidget>

class LoginSaving;
class MessageLabel;
class QLabel;
class QListWidget;
class QPushButton;

/// The sites that the user never wants to be asked about, with the way to be asked again.
class ExcludedSitesPanel : public QWidget
{
    Q_OBJECT

public:
    /// What it tells of outlives this.
    ExcludedSitesPanel(LoginSaving &saving, QWidget *parent);

private:
    void showSites();
    void remove();

    LoginSaving &m_saving;
    QLabel *m_none;
    QListWidget *m_list;
    QPushButton *m_remove;
    MessageLabel *m_message;
};
