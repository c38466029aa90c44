#pragma once

#include "LoginSaving.h"

#include <QFrame>

class Badge;
class ElidedLabel;
class PasswordField;
class QLineEdit;
class QVBoxLayout;
class SelectBox;
class Theme;

/// What is saved of a login: which login is updated, or the title of a new one, its user name and
/// its password, all of it to be changed before.
class SaveLoginForm : public QFrame
{
    Q_OBJECT

public:
    SaveLoginForm(const Theme &theme, QWidget *parent);

    void setOffer(const LoginOffer &offer);
    LoginChoice choice() const;
    bool isUpdate() const;
    void clearSecret();

Q_SIGNALS:
    /// Another login is to be updated, or a new one made.
    void chosen();

private:
    QVBoxLayout *makeRow(const QString &caption, QWidget *field, const char *name);
    QLineEdit *makeLine(const char *name);
    void makeChooser(const Theme &theme);
    void makePassword(const Theme &theme);
    void fillChooser(const LoginOffer &offer);
    const LoginOffer::Candidate *candidate() const;
    void showChoice();
    void showUserName();
    void showStrength();

    const Theme &m_theme;
    LoginOffer m_offer;
    QVBoxLayout *m_column;
    QWidget *m_last = nullptr; ///< of the rows
    SelectBox *m_login = nullptr;
    QLineEdit *m_title = nullptr;
    QLineEdit *m_userName = nullptr;
    ElidedLabel *m_former = nullptr;
    PasswordField *m_password = nullptr;
    QVBoxLayout *m_badgePlace = nullptr;
    Badge *m_badge = nullptr;
};
