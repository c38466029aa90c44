#include "PagesStack.h"

#include "CreateSafePage.h"
#include "Crystal.h"
#include "GPMAppCore.h"
#include "MasterPasswordPage.h"
#include "UnlockLogic.h"
#include "style/Style.h"
#include "style/Theme.h"

PagesStack::PagesStack(GPMAppCore &core, const Theme &theme, QWidget *parent)
    : QStackedWidget(parent)
    , m_theme(theme)
    , m_unlockLogic(new UnlockLogic(core, this))
{
    // Named before the pages are made: some of their parts look up their style at once.
    setObjectName(QStringLiteral("lockPages"));
    m_unlockPage = new MasterPasswordPage(*m_unlockLogic, core.platform(), theme, this);
    m_createPage = new CreateSafePage(core, theme, this);
    addWidget(m_unlockPage);
    addWidget(m_createPage);
    connect(m_unlockPage, &MasterPasswordPage::createRequested, this, &PagesStack::showCreatePage);
    connect(m_unlockPage, &MasterPasswordPage::dismissed, this, &PagesStack::dismissed);
    connect(m_unlockPage, &MasterPasswordPage::importRequested, this, &PagesStack::importRequested);
    connect(m_unlockPage, &MasterPasswordPage::safesRequested, this, &PagesStack::safesRequested);
    connect(m_createPage, &CreateSafePage::importRequested, this, &PagesStack::importRequested);
    connect(&m_unlockPage->crystal(), &Crystal::unlocked, this, &PagesStack::keyTurned);
    connect(m_unlockPage, &MasterPasswordPage::restoreRequested, this,
            &PagesStack::restoreRequested);
    connect(m_createPage, &CreateSafePage::restoreRequested, this, &PagesStack::restoreRequested);
    connect(m_createPage, &CreateSafePage::cloudImportRequested, this,
            &PagesStack::cloudImportRequested);
    connect(m_createPage, &CreateSafePage::backRequested, this, &PagesStack::showUnlockPage);
}

void PagesStack::setFolderChoice(const std::function<QString()> &choose)
{
    m_createPage->setFolderChoice(choose);
}

void PagesStack::showFirstPage()
{
    if (m_unlockLogic->safes().isEmpty())
        showCreatePage();
    else
        showUnlockPage();
}

void PagesStack::showUnlockPage()
{
    m_createPage->clearSecrets();
    m_unlockPage->crystal().lock();
    setCurrentWidget(m_unlockPage);
    takeFocus();
}

void PagesStack::showCreatePage()
{
    m_unlockPage->clearSecrets();
    setCurrentWidget(m_createPage);
    m_createPage->start();
    takeFocus();
}

void PagesStack::takeFocus()
{
    // Hidden, they would take the keyboard away from what is shown.
    if (!isVisibleTo(window()))
        return;
    if (currentWidget() == m_unlockPage)
        m_unlockPage->takeFocus();
    else
        m_createPage->takeFocus();
}

void PagesStack::clearSecrets()
{
    m_unlockPage->clearSecrets();
    m_createPage->clearSecrets();
}

void PagesStack::turnKey()
{
    const bool seen = currentWidget() == m_unlockPage && isVisible();
    m_unlockPage->crystal().unlock(seen ? m_theme.motion(Style::keyTurnMs) : 0);
}
