#pragma once

#include "style/Theme.h"

#include <QDateTime>
#include <QSettings>

class QWidget;

/// The state of the user interface that is kept between runs, in "uisettings.ini".
class UiSettings
{
public:
    /// @param folder that of the application's settings
    explicit UiSettings(const QString &folder);

    QString lastUsedSafe() const;
    void setLastUsedSafe(const QString &folder);

    /// The folder last used in a dialog that opens or saves a file.
    QString lastFolder() const;
    void setLastFolder(const QString &folder);

    /// The number of the screen that the main window was on; the first when it is not known.
    int mainWindowScreenNumber() const;
    void setMainWindowScreenNumber(int number);

    /// Windows keep their state below their object name.
    void saveGeometry(const QWidget &window);
    void restoreGeometry(QWidget &window) const;
    void saveSplitter(const QString &windowName, const QByteArray &state);
    QByteArray splitter(const QString &windowName) const;

    /// The page that was open in the settings' window.
    int tabIndex(const QString &windowName) const;
    void setTabIndex(const QString &windowName, int index);

    /// How the windows look.
    Theme::Mode themeMode() const;
    void setThemeMode(Theme::Mode mode);
    int textPercent() const;
    void setTextPercent(int percent);
    bool motionOff() const;
    void setMotionOff(bool off);

    /// Whether the windows are left out of screenshots and shared screens, where that can be done.
    bool hiddenFromCapture() const;
    void setHiddenFromCapture(bool hidden);

    /// Writes what was set now. False when that fails.
    bool store();
    QString filePath() const { return m_store.fileName(); }

    /// What the generator's window was set to.
    struct PasswordShape
    {
        int length = 8;
        int specialCount = 4;
    };
    PasswordShape passwordShape(const QString &windowName) const;
    void setPasswordShape(const QString &windowName, const PasswordShape &shape);

    /// The name of the order of the items; empty while none was chosen.
    QString itemOrder() const;
    void setItemOrder(const QString &name);

    /// Whether the user went through the first steps to their end.
    bool setUpDone() const;
    void setSetUpDone(bool done);

    /// The newest version of the program that the user was told of; empty before the first.
    QString lastUpdateVersionShow() const;
    void setLastUpdateVersionShow(const QString &version);

    /// When was last told which version is the newest.
    QDateTime lastUpdateCheck() const;
    void setLastUpdateCheck(const QDateTime &moment);

    /// Forgets where all windows were and how they were divided.
    void forgetWindows();

private:
    QSettings m_store;
};
