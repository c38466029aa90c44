#pragma once

#include "BrowserDiscovery.h"
#include "widgets/FramedDialog.h"

#include <QUrl>

#include <functional>

/// What the ways to an extension do outside of the windows.
struct InstallWays
{
    /// Starts a program with its arguments; false when that fails.
    std::function<bool(const QStringList &command)> start;
    std::function<void(const QUrl &url)> open;
    std::function<void(const QString &text)> copy;
    std::function<QString(bool forFirefox)> folder; ///< of the extension, empty without one

    /// Those of the system.
    static InstallWays system(std::function<void(const QString &text)> copy);
};

/// How to add the extension to a browser by hand.
class InstallSteps : public FramedDialog
{
    Q_OBJECT

public:
    InstallSteps(const BrowserInfo &browser, const InstallWays &ways, const Theme &theme,
                 QWidget *parent);

private:
    QWidget *makeStep(int number, const QString &text, QWidget *button);
    void addSteps(const QString &folder);

    BrowserInfo m_browser;
    InstallWays m_ways;
};

/// Opens the page that installs the extension in the browser; where there is none, the steps.
void installExtension(const BrowserInfo &browser, const InstallWays &ways, const Theme &theme,
                      QWidget *owner);
