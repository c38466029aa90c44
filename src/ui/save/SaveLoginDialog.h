#pragma once

#include "Clock.h"
#include "LoginSaving.h"
#include "widgets/FramedDialog.h"

#include <QTimer>

#include <memory>

class ElidedLabel;
class GPMAppCore;
class MessageLabel;
class PasswordField;
class QHBoxLayout;
class QLabel;
class QPushButton;
class SaveLoginForm;
class Tile;
class UnlockLogic;

/// Offers to save what the user typed into a page. It comes up in front without taking the
/// keyboard, as the user may be typing in the browser. On a locked safe it asks for the master
/// password and goes on.
class SaveLoginDialog : public FramedDialog
{
    Q_OBJECT

public:
    /// The core and the theme outlive this; there is an offer.
    SaveLoginDialog(GPMAppCore &core, const Theme &theme, Clock clock = systemTime);
    ~SaveLoginDialog() override;

    /// Shows the offer of now, which may be another one.
    void showOffer();

    /// Not now; while the safe is being unlocked that is stopped instead.
    void reject() override;

private:
    QWidget *makeHeader(const Theme &theme);
    void makeUnlocking(const Theme &theme);
    void layOut();
    void connectAll();
    void accept() override;
    void save();
    void exclude();
    QString textOf(const LoginOffer &offer) const;
    void showHeadline();
    void showButtons();
    void showUnlocking();
    void showTimeLeft();
    void tell(const QString &fault);
    void fit();
    LoginOffer::State state() const;

    GPMAppCore &m_core;
    LoginSaving &m_saving;
    Clock m_clock;
    Tile *m_tile;
    QLabel *m_headline;
    ElidedLabel *m_host;
    QLabel *m_text;
    SaveLoginForm *m_form;
    PasswordField *m_master;
    QLabel *m_timeLeft;
    MessageLabel *m_message;
    QPushButton *m_never;
    QPushButton *m_notNow;
    QPushButton *m_save;
    QHBoxLayout *m_buttons;
    int m_width = 0;
    QTimer m_seconds;
    std::unique_ptr<UnlockLogic> m_unlock;
};
