#pragma once

#include "TextField.h"

#include <QIcon>

/// A field for a secret: dots that an eye, or Ctrl+R, turns into text. Keeps no history of what was
/// typed.
class PasswordField : public TextField
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
