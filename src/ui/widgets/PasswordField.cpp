#include "PasswordField.h"

#include <QAction>

PasswordField::PasswordField(const QIcon &show, const QIcon &hide, QWidget *parent)
    : TextField(parent)
    , m_show(show)
    , m_hide(hide)
    , m_reveal(addAction(show, TrailingPosition))
{
    setEchoMode(Password);
    setInputMethodHints(Qt::ImhSensitiveData | Qt::ImhHiddenText | Qt::ImhNoPredictiveText);
    m_reveal->setText(tr("View text under dots"));
    m_reveal->setToolTip(tr("View text under dots (Ctrl+R)"));
    m_reveal->setCheckable(true);
    m_reveal->setShortcut(QKeySequence(QStringLiteral("Ctrl+R")));
    m_reveal->setShortcutContext(Qt::WidgetShortcut);
    connect(m_reveal, &QAction::toggled, this, &PasswordField::setRevealed);
}

void PasswordField::clearSecret()
{
    // Setting a text drops the undo history, which clear() would keep.
    setText(QString());
    m_reveal->setChecked(false);
}

void PasswordField::setRevealed(bool revealed)
{
    setEchoMode(revealed ? Normal : Password);
    m_reveal->setIcon(revealed ? m_hide : m_show);
}
