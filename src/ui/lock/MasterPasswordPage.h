#pragma once

#include <QWidget>

class CapsIndicator;
class Crystal;
class MessageLabel;
class PasswordField;
class Platform;
class QLabel;
class QProgressBar;
class QPushButton;
class SelectBox;
class Theme;
class UnlockLogic;

/// Chooses a safe and unlocks it with its master password.
class MasterPasswordPage : public QWidget
{
    Q_OBJECT

public:
    /// Whether it also leads to other safes, or does no more than unlock, in a small window.
    enum Extent { Whole, Small };

    MasterPasswordPage(UnlockLogic &logic, Platform &platform, const Theme &theme, QWidget *parent,
                       Extent extent = Whole);

    /// Puts the keyboard where one goes on: into the password, or on the way to a new safe.
    void takeFocus();
    void clearSecrets();
    Crystal &crystal() { return *m_crystal; }

Q_SIGNALS:
    void createRequested();
    /// A safe is to be made from an archive; the list of safes is wanted.
    void importRequested();
    void safesRequested();
    void restoreRequested();
    /// The user does not want to unlock now.
    void dismissed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeFields(const Theme &theme);
    void layOut(Extent extent);
    void connectFields();
    void fillSelector();
    void hideWays();
    void onSelected(int index);
    void unlock();
    void showState();
    void showProgress(bool unlocking);

    UnlockLogic &m_logic;
    Platform &m_platform;
    Crystal *m_crystal;
    QLabel *m_title;
    QLabel *m_subtitle;
    SelectBox *m_selector;
    PasswordField *m_password;
    QLabel *m_hint;
    CapsIndicator *m_caps;
    MessageLabel *m_message;
    QProgressBar *m_progress;
    QPushButton *m_unlock;
    QPushButton *m_notNow;
    QPushButton *m_create;
    QPushButton *m_safes;
    QPushButton *m_import;
    QPushButton *m_restore;
};
