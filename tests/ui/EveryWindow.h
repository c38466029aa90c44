#pragma once

#include "UiTesting.h"
#include "style/Theme.h"

#include <QSet>
#include <QVector>

#include <functional>
#include <memory>

class PMUiProvider;

/// The program with the safe of one person, and its windows.
class Stage
{
public:
    enum Safe {
        Filled,
        Empty,
        Locked,
        Interrupted, ///< filled, to be locked while something is edited
        Shared       ///< in the cloud folder, beside the safe of somebody else
    };

    /// How everything is shown.
    struct Look
    {
        bool dark = false;
        int textPercent = 100;
        QString language; ///< "de" and the like; English when empty

        bool operator==(const Look &other) const
        {
            return dark == other.dark && textPercent == other.textPercent &&
                   language == other.language;
        }
    };

    explicit Stage(Safe safe);
    ~Stage();

    /// Shows the main window alone, as it is after unlocking.
    void open(const Look &look);

    /// Shows another item of the main window.
    void choose(const QString &title);
    void chooseCategory(int row);
    /// Presses a button of the main window.
    void press(const char *button);
    /// The window beside the main one that is shown; null when there is none.
    QWidget *window(const char *name) const;
    /// Lets the computer have browsers, of which one has the extension.
    void findBrowsers();

    /// The words of everything that the user, not the program, has written.
    QSet<QString> ownWords() const;

    TestCore test;
    Theme theme; ///< for windows that are made here
    QWidget *main = nullptr;

private:
    void fillSafe();
    void attachRecoveryCodes();
    void shareSafe();
    QString id(const QString &title) const;
    void start(const Look &look);
    void startAgain();

    Look m_look;

    std::unique_ptr<PMUiProvider> m_ui;
};

/// A window, or a state of one, that a user can meet.
struct WindowCase
{
    const char *name;
    /// Brings the window up, starting from the main one.
    std::function<QWidget *(Stage &)> show;
    Stage::Safe safe = Stage::Filled;
};

/// Every window of the program in the states that look different.
const QVector<WindowCase> &everyWindow();
