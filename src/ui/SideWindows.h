#pragma once

#include "dialogs/PasswordGeneratorDialog.h"
#include "dialogs/RecentPasswords.h"

#include <QPointer>

class GPMAppCore;
class SecureWindow;

/// The windows beside the main one: at most one of each, above it while it is shown.
class SideWindows : public QObject
{
    Q_OBJECT

public:
    /// Everything outlives this; the windows belong to the main one.
    SideWindows(GPMAppCore &core, UiSettings &uiSettings, const Theme &theme, SecureWindow &main);
    ~SideWindows() override;

public Q_SLOTS:
    /// Opens the generator for the page in the user's browser.
    void openGenerator();

public:
    /// Opens the generator for someone who takes the password as long as the owner lives.
    void openGeneratorFor(QObject *owner, const std::function<void(const QString &)> &place);

private:
    void showGenerator(const PasswordTarget &target);
    void closeForLock();

    GPMAppCore &m_core;
    UiSettings &m_uiSettings;
    const Theme &m_theme;
    SecureWindow &m_main;
    RecentPasswords m_recent;
    QPointer<PasswordGeneratorDialog> m_generator;
};
