#pragma once

#include <QWidget>

class CreateSafeForm;
class GPMAppCore;
class QLabel;
class QPushButton;
class Theme;

/// Makes a new safe.
class CreateSafePage : public QWidget
{
    Q_OBJECT

public:
    CreateSafePage(GPMAppCore &core, const Theme &theme, QWidget *parent);

    /// Starts anew with empty fields.
    void start();
    /// Puts the keyboard into the first field.
    void takeFocus();
    void clearSecrets();

Q_SIGNALS:
    void backRequested();
    void restoreRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void layOut(const Theme &theme);

    GPMAppCore &m_core;
    QLabel *m_offer;
    CreateSafeForm *m_form;
    QPushButton *m_back;
    QPushButton *m_create;
};
