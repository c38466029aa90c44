#pragma once

#include <QIcon>
#include <QLineEdit>

/// A field for a secret: dots that an eye, or Ctrl+R, turns into text. Keeps no history of what was
/// typed.
class PasswordField : public QLineEdit
{
    Q_OBJECT

public:
    PasswordField(const QIcon &show, const QIcon &hide, QWidget *parent);

    /// Forgets the text and shows dots again.
    void clearSecret();

private:
    void setRevealed(bool revealed);

    QIcon m_show;
    QIcon m_hide;
    QAction *m_reveal;
};
