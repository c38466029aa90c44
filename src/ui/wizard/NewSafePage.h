#pragma once

#include "WizardPage.h"

#include <functional>

class CloudOffer;
class CreateSafeForm;
class GPMAppCore;
class QLabel;
class Theme;

/// Makes the first safe, with a word on what the hint is for.
class NewSafePage : public WizardPage
{
    Q_OBJECT

public:
    /// What leads to a safe that is there already.
    struct Ways
    {
        std::function<void()> openFolder;
        std::function<void()> importArchive;
    };

    /// @param ways not offered when they are left out
    NewSafePage(GPMAppCore &core, const Theme &theme, QWidget *parent, const Ways &ways = {});

    QString onward() const override;
    bool canSkip() const override;
    bool canGoOn() const override;
    bool goOn() override;
    void takeFocus() override;
    void clearSecrets() override;

Q_SIGNALS:
    /// A safe of the cloud folder is to come to this computer.
    void cloudImportRequested();

private:
    QWidget *makeWays(const Ways &ways);
    bool isMade() const;
    /// The user has led to a safe, which is still locked.
    bool isFound() const;
    void showState();

    GPMAppCore &m_core;
    CloudOffer *m_cloudOffer;
    CreateSafeForm *m_form;
    QLabel *m_hintAdvice;
    QLabel *m_made;
    QWidget *m_ways;
    int m_knownBefore;
};
