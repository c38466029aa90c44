#include "FirstRun.h"

#include "ExtensionPage.h"
#include "GPMAppCore.h"
#include "LanguagePage.h"
#include "MoveInPage.h"
#include "PMTranslator.h"
#include "ReadyPage.h"
#include "SetupWizard.h"
#include "UiSettings.h"

#include <utility>

FirstRun::FirstRun(GPMAppCore &core, UiSettings &uiSettings, const Theme &theme,
                   const PMTranslator &translator, ChooseLanguage chooseLanguage)
    : m_core(core)
    , m_uiSettings(uiSettings)
    , m_theme(theme)
    , m_translator(translator)
    , m_chooseLanguage(std::move(chooseLanguage))
{
}

QVector<WizardStep> FirstRun::steps() const
{
    const auto language = [this](QWidget *parent) {
        return new LanguagePage(m_translator, m_core.settings().languageFile(), m_chooseLanguage,
                                parent);
    };
    const auto safe = [this](QWidget *parent) {
        auto *page = new NewSafePage(m_core, m_theme, parent, m_safeWays);
        connect(page, &NewSafePage::cloudImportRequested, this, &FirstRun::cloudImportRequested);
        return page;
    };
    QVector<WizardStep> all = {
        {"language", tr("Welcome"), tr("Which language do you want to use?"),
         [this] { return m_translator.availableLanguages().size() > 1; }, language},
        {"safe", tr("Create a safe"),
         tr("It keeps your passwords. Only you know its password, and it cannot be recovered."),
         [this] { return m_core.knownSafes().entries().isEmpty(); }, safe},
    };
    return all + stepsOfUse();
}

QVector<WizardStep> FirstRun::stepsOfUse() const
{
    const auto extension = [this](QWidget *parent) {
        return new ExtensionPage(m_pluginParts(), parent);
    };
    const auto moveIn = [this](QWidget *parent) { return new MoveInPage(m_core, m_theme, parent); };
    return {
        {"move-in", tr("Bring your passwords over"),
         tr("From a browser or another program. You can also do it later, in the menu of the "
            "safe."),
         [] { return true; }, moveIn},
        {"extension", tr("Fill forms in your browser"), tr("Install plugin very fast and simple"),
         [this] { return bool(m_pluginParts); }, extension},
        {"ready", tr("You are ready"),
         tr("The program waits in the tray when you close its window."), [] { return true; },
         [](QWidget *parent) { return new ReadyPage(parent); }},
    };
}

void FirstRun::setMain(QWidget *main)
{
    if (m_wizard) {
        m_resumeAt = m_wizard->step();
        m_expected = true;
    }
    m_main = main;
}

void FirstRun::showExpected()
{
    if (m_main && m_main->isVisible() && !m_main->isMinimized() && std::exchange(m_expected, false))
        open();
}

void FirstRun::open()
{
    if (m_wizard && m_wizard->parentWidget() == m_main) {
        m_wizard->raise();
        m_wizard->activateWindow();
        return;
    }
    m_wizard = new SetupWizard(steps(), m_theme, m_main);
    m_wizard->setAttribute(Qt::WA_DeleteOnClose);
    m_wizard->setWindowModality(Qt::WindowModal);
    m_wizard->goTo(std::exchange(m_resumeAt, {}));
    connect(m_wizard, &SetupWizard::completed, this, [this] {
        m_uiSettings.setSetUpDone(true);
        Q_EMIT doneChanged();
    });
    m_wizard->show();
}

bool FirstRun::isDone() const
{
    return m_uiSettings.setUpDone();
}
