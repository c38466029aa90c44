#pragma once

#include <QStackedWidget>

#include <functional>

class CreateSafePage;
class GPMAppCore;
class MasterPasswordPage;
class Theme;
class UnlockLogic;

/// The pages in front of a locked safe.
class PagesStack : public QStackedWidget
{
    Q_OBJECT

public:
    PagesStack(GPMAppCore &core, const Theme &theme, QWidget *parent);

    UnlockLogic &unlockLogic() { return *m_unlockLogic; }

    /// Shows the page that comes first: to make a safe while there is none, else to unlock one.
    void showFirstPage();
    void showUnlockPage();
    void showCreatePage();
    void takeFocus();
    void clearSecrets();

    /// How the folder of a new safe is chosen; without this every one goes to the standard place.
    void setFolderChoice(const std::function<QString()> &choose);

    /// Turns the key-hole of the page that has unlocked a safe; keyTurned tells when that is done,
    /// which is at once on another page and without motion.
    void turnKey();

Q_SIGNALS:
    void keyTurned();
    void dismissed();
    void importRequested();
    void safesRequested();
    void restoreRequested();
    void cloudImportRequested();

private:
    const Theme &m_theme;
    UnlockLogic *m_unlockLogic;
    MasterPasswordPage *m_unlockPage;
    CreateSafePage *m_createPage;
};
