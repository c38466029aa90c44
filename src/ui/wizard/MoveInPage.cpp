#include "MoveInPage.h"

#include "GPMAppCore.h"
#include "movein/MoveInDialog.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

MoveInPage::MoveInPage(GPMAppCore &core, const Theme &theme, QWidget *parent)
    : WizardPage(parent)
    , m_core(core)
    , m_state(makeLabel({}, "muted", this))
    , m_open(makeButton(tr("Bring passwords over…"), "plain", this))
{
    auto *advice = makeLabel(tr("Chrome, Edge, Firefox, Safari, Bitwarden and KeePassXC write "
                                "their passwords into a file, which this program reads. You see "
                                "everything before it comes in, and how to make the file."),
                             "text", this);
    advice->setWordWrap(true);
    m_open->setObjectName(QStringLiteral("bringOverButton"));
    m_open->setIcon(theme.icon(QStringLiteral("file-import"), Palette::Text));
    m_state->setObjectName(QStringLiteral("moveInState"));
    m_state->setAlignment(Qt::AlignHCenter);
    m_state->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(Style::margin);
    column->addWidget(advice);
    column->addWidget(m_open, 0, Qt::AlignHCenter);
    column->addWidget(m_state);
    column->addStretch();
    connect(m_open, &QPushButton::clicked, this,
            [this, &theme] { MoveInDialog::open(m_core, theme, window()); });
    connect(&core, &GPMAppCore::currentSafeChanged, this, &MoveInPage::showState);
    connect(&core, &GPMAppCore::safeLockedChanged, this, &MoveInPage::showState);
    showState();
}

bool MoveInPage::isOpen() const
{
    return m_core.currentSafe() && m_core.currentSafe()->isUnlocked();
}

void MoveInPage::showState()
{
    m_open->setEnabled(isOpen());
    m_state->setText(isOpen() ? QString() : tr("Open a safe first: the passwords are kept in it."));
    Q_EMIT changed();
}

bool MoveInPage::canSkip() const
{
    return true;
}

void MoveInPage::takeFocus()
{
    if (m_open->isEnabled())
        m_open->setFocus();
}
