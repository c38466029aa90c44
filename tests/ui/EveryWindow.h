#pragma once

#include "PMTranslator.h"
#include "UiSettings.h"
#include "UiTesting.h"
#include "dialogs/RecentPasswords.h"
#include "lock/SecureWindow.h"
#include "main/MainView.h"
#include "style/Theme.h"

#include <QVector>

#include <functional>
#include <memory>

/// A program with a safe of one person, and the windows that are shown over it.
class Stage
{
public:
    enum Safe { Filled, Empty, Locked };

    explicit Stage(Safe safe);

    TestCore test;
    Theme theme;
    UiSettings uiSettings;
    PMTranslator translator;
    RecentPasswords recent;

    /// The main window with the safe open, or with the page that comes before.
    std::unique_ptr<SecureWindow> mainWindow();

    /// The id of the item with the title.
    QString id(const QString &title) const;
    /// Chooses an item of the main window's list.
    void choose(QWidget &window, const QString &title) const;

private:
    void fillSafe();
    void attachRecoveryCodes();
};

/// A window, or a state of one, that a user can meet.
struct WindowCase
{
    const char *name;
    std::function<std::unique_ptr<QWidget>(Stage &)> make;
    Stage::Safe safe = Stage::Filled;
};

/// Every window of the program in the states that look different.
const QVector<WindowCase> &everyWindow();
