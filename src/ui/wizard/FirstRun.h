#pragma once

#include "NewSafePage.h"
#include "WizardStep.h"
#include "browsers/PluginsPage.h"

#include <QObject>
#include <QPointer>
#include <QVector>

class GPMAppCore;
class PMTranslator;
class SetupWizard;
class Theme;
class UiSettings;

/// Opens the wizard in front of the main window and knows whether there is something left to do in
/// it.
class FirstRun : public QObject
{
    Q_OBJECT

public:
    using ChooseLanguage = std::function<bool(const QString &language)>;

    /// Everything outlives this.
    FirstRun(GPMAppCore &core, UiSettings &uiSettings, const Theme &theme,
             const PMTranslator &translator, ChooseLanguage chooseLanguage);

    /// What leads to a safe that is there already.
    void setSafeWays(const NewSafePage::Ways &ways) { m_safeWays = ways; }

    /// What the step about browsers needs; without it there is no such step.
    void setPluginParts(const std::function<PluginsPage::Parts()> &parts) { m_pluginParts = parts; }

    /// The window in front of which the wizard opens. One that is open moves over to it.
    void setMain(QWidget *main);

    /// Opens the wizard when the main window comes up next.
    void expect() { m_expected = true; }
    /// Opens the expected wizard if the main window can be seen.
    void showExpected();
    void open();

    bool isDone() const;

Q_SIGNALS:
    void doneChanged();
    /// A safe of the cloud folder is to come to this computer.
    void cloudImportRequested();

private:
    QVector<WizardStep> steps() const;
    QVector<WizardStep> stepsOfUse() const;

    GPMAppCore &m_core;
    UiSettings &m_uiSettings;
    const Theme &m_theme;
    const PMTranslator &m_translator;
    ChooseLanguage m_chooseLanguage;
    NewSafePage::Ways m_safeWays;
    std::function<PluginsPage::Parts()> m_pluginParts;
    QPointer<QWidget> m_main;
    QPointer<SetupWizard> m_wizard;
    QString m_resumeAt; ///< a step of the wizard that was open on a window that is gone
    bool m_expected = false;
};
