#include "NewSafePage.h"

#include "GPMAppCore.h"
#include "cloud/CloudOffer.h"
#include "lock/CreateSafeForm.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

NewSafePage::NewSafePage(GPMAppCore &core, const Theme &theme, QWidget *parent, const Ways &ways)
    : WizardPage(parent)
    , m_core(core)
    , m_cloudOffer(new CloudOffer(core.cloudFolders(), theme, CloudOffer::Plain, this))
    , m_form(new CreateSafeForm(core, theme, CreateSafeForm::Plain, this))
    , m_hintAdvice(makeLabel(tr("The hint is shown to everyone who opens this window. Let it "
                                "remind you of the password, and nobody else."),
                             "muted", this))
    , m_made(makeLabel({}, "heading", this))
    , m_ways(makeWays(ways))
    , m_knownBefore(core.knownSafes().entries().size())
{
    m_hintAdvice->setWordWrap(true);
    m_made->setObjectName(QStringLiteral("safeMade"));
    m_made->setAlignment(Qt::AlignHCenter);
    m_made->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_cloudOffer);
    column->addWidget(m_form);
    column->addWidget(m_hintAdvice);
    column->addWidget(m_made);
    column->addSpacing(Style::spacing);
    column->addWidget(m_ways);
    column->addStretch();
    connect(m_cloudOffer, &CloudOffer::importRequested, this, &NewSafePage::cloudImportRequested);
    connect(m_form, &CreateSafeForm::changed, this, &WizardPage::changed);
    connect(&core.knownSafes(), &KnownSafes::changed, this, &NewSafePage::showState);
    connect(&core, &GPMAppCore::currentSafeChanged, this, &NewSafePage::showState);
    connect(&core, &GPMAppCore::safeLockedChanged, this, &NewSafePage::showState);
    showState();
    m_cloudOffer->look();
}

QWidget *NewSafePage::makeWays(const Ways &ways)
{
    auto *row = new QWidget(this);
    auto *column = new QVBoxLayout(row);
    column->setContentsMargins({});
    column->setSpacing(0);
    if (!ways.openFolder)
        return row;
    column->addWidget(makeLabel(tr("Do you have a safe already?"), "muted", row));
    auto *open = makeButton(tr("Open its folder…"), "link", row);
    open->setObjectName(QStringLiteral("openFolderLink"));
    connect(open, &QPushButton::clicked, this, ways.openFolder);
    auto *import = makeButton(tr("Import an archive…"), "link", row);
    import->setObjectName(QStringLiteral("importArchiveLink"));
    connect(import, &QPushButton::clicked, this, ways.importArchive);
    auto *links = new QHBoxLayout;
    links->setSpacing(Style::spacing);
    links->addWidget(open);
    links->addWidget(import);
    links->addStretch();
    column->addLayout(links);
    return row;
}

bool NewSafePage::isFound() const
{
    return !isMade() && m_core.knownSafes().entries().size() > m_knownBefore;
}

bool NewSafePage::isMade() const
{
    return m_core.currentSafe() && m_core.currentSafe()->isUnlocked();
}

void NewSafePage::showState()
{
    const bool made = isMade();
    const bool found = isFound();
    m_form->setVisible(!made && !found);
    m_hintAdvice->setVisible(!made && !found);
    m_ways->setVisible(!made && !found);
    m_made->setVisible(made || found);
    if (found)
        m_made->setText(tr("“%1” is there. Unlock it with its master password after these steps.")
                            .arg(m_core.knownSafes().entries().first().name));
    if (made)
        m_made->setText(tr("Your safe “%1” is open.").arg(m_core.currentSafe()->name()));
    Q_EMIT changed();
}

QString NewSafePage::onward() const
{
    return isMade() || isFound() ? QString() : tr("Create");
}

bool NewSafePage::canSkip() const
{
    return !isMade() && !isFound();
}

bool NewSafePage::canGoOn() const
{
    return isMade() || isFound() || m_form->canCreate();
}

bool NewSafePage::goOn()
{
    return isMade() || isFound() || m_form->create();
}

void NewSafePage::takeFocus()
{
    if (!isMade() && !isFound())
        m_form->takeFocus();
}

void NewSafePage::clearSecrets()
{
    m_form->clearSecrets();
}
