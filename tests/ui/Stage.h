#pragma once

#include "UiTesting.h"
#include "style/Theme.h"

#include <QSet>
#include <QVector>

#include <functional>
#include <memory>

// What windows are shown with.
inline const QString safeFolder = "/home/ana/safes/personal"_s;
inline const QString newVersionText = "Opening a large safe takes half the time.\n"
                                      "Cards are filled into forms in parts."_s;
inline const QString extensionFolder = "/opt/glaceron/extension"_s;
inline const QByteArray unknownExport = "Konto;Website;Login;Password\nx;y;z;1\n";
inline const QByteArray browserExport =
    "name,url,username,password,note\r\n"
    "Alpine Shop,https://alpine.example,ana.martin,q7V2X8RzKd,\r\n"
    "Letters,https://mail.letters.example,ana.martin,tW4nB9pQz7,\r\n"
    "Cloudmail,https://www.cloudmail.example/login,ana.martin,"
    "tW4:nB9pQz;r7X,\r\n"
    "Git Forge,https://gitforge.example,anam,Lr5kQ2wHn8,\r\n"
    "Bank of the South,https://south.example,ana-m-4471,vY8dM3s,\r\n"
    ",android://key@com.shop/,,Zc9bT4fGx2,\r\n";

class PMUiProvider;
class QDialog;

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
    /// Makes a window as small as it goes; the main one only so far that two columns go in.
    void shrink(QWidget &window, bool narrow) const;

    void choose(const QString &title);
    void chooseCategory(int row);
    /// Presses a button of the main window.
    void press(const char *button);
    /// The window beside the main one that is shown; null when there is none.
    QWidget *window(const char *name) const;
    /// Shows a window that is made here, which goes when it is closed.
    QWidget *shownBeside(QDialog *window) const;
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
