#include "NewSafePage.h"

#include "GPMAppCore.h"
#include "lock/CreateSafeForm.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

NewSafePage::NewSafePage(GPMAppCore &core, const Theme &theme, QWidget *parent)
    : WizardPage(parent)
    , m_core(core)
    , m_form(new CreateSafeForm(core, theme, CreateSafeForm::Plain, this))
    , m_hintAdvice(makeLabel(tr("The hint is shown to everyone who opens this window. Let it "
                                "remind you of the password, and nobody else."),
                             "muted", this))
    , m_made(makeLabel({}, "heading", this))
{
    m_hintAdvice->setWordWrap(true);
    m_made->setObjectName(QStringLiteral("safeMade"));
    m_made->setAlignment(Qt::AlignHCenter);
    m_made->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_form);
    column->addWidget(m_hintAdvice);
    column->addWidget(m_made);
    column->addStretch();
    connect(m_form, &CreateSafeForm::changed, this, &WizardPage::changed);
    connect(&core, &GPMAppCore::currentSafeChanged, this, &NewSafePage::showState);
    connect(&core, &GPMAppCore::safeLockedChanged, this, &NewSafePage::showState);
    showState();
}

bool NewSafePage::isMade() const
{
    return m_core.currentSafe() && m_core.currentSafe()->isUnlocked();
}

void NewSafePage::showState()
{
    const bool made = isMade();
    m_form->setVisible(!made);
    m_hintAdvice->setVisible(!made);
    m_made->setVisible(made);
    if (made)
        m_made->setText(tr("Your safe “%1” is open.").arg(m_core.currentSafe()->name()));
    Q_EMIT changed();
}

QString NewSafePage::onward() const
{
    return isMade() ? QString() : tr("Create");
}

bool NewSafePage::canSkip() const
{
    return !isMade();
}

bool NewSafePage::canGoOn() const
{
    return isMade() || m_form->canCreate();
}

bool NewSafePage::goOn()
{
    return isMade() || m_form->create();
}

void NewSafePage::takeFocus()
{
    if (!isMade())
        m_form->takeFocus();
}

void NewSafePage::clearSecrets()
{
    m_form->clearSecrets();
}
