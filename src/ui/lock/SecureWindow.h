#pragma once

#include "dialogs/Question.h"

#include <QStateMachine>
#include <QSystemTrayIcon>
#include <QWidget>

#include <functional>

class GPMAppCore;
class PagesStack;
class QGraphicsOpacityEffect;
class QPropertyAnimation;
class SecureContent;
class Shutters;
class Theme;
class TitleBar;
class WindowFrame;

/// The main window: the lock pages behind closed shutters while the safe is locked, its content
/// while it is open. Closing it hides it, the program lives on in the tray; where there is none it
/// is minimised.
class SecureWindow : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(qreal openProgress READ openProgress WRITE setOpenProgress)

public:
    /// @param content what an open safe is shown with; the window becomes its owner
    /// @param asker puts questions to the user; the default one shows dialogs
    SecureWindow(GPMAppCore &core, const Theme &theme, SecureContent *content, Asker asker = {});

    /// Whether there is a tray to bring the window back from. It may come and go.
    using TrayCheck = std::function<bool()>;
    void setTrayCheck(const TrayCheck &hasTray) { m_hasTray = hasTray; }

    /// What becomes of the window when it is closed.
    enum class CloseWay { Close, Hide, Minimise };
    static CloseWay closeWay(bool sessionEnds, bool hasTray);

    /// 0 when the shutters are closed, 1 when they are open.
    qreal openProgress() const { return m_openProgress; }
    void setOpenProgress(qreal progress);

    PagesStack &pages() { return *m_pages; }
    SecureContent &content() { return *m_content; }

    /// Locks the safe, or ends the program, for the user, who first decides about what is edited
    /// and about what cannot be written.
    void lockByUser();
    /// The same; false when the user stays in the safe.
    bool leaveByUser();
    void exitByUser();

    /// Locks the safe in the same way and goes on to the page that unlocks another one, or that
    /// makes a new one.
    void switchSafe(const QString &folder);
    void createSafe();

Q_SIGNALS:
    /// The window was put away.
    void hidden();
    void exitRequested();
    /// The settings are wanted from a lock page.
    void settingsRequested();
    /// A safe is to be made from an archive; the list of safes is wanted.
    void importRequested();
    void safesRequested();
    /// A backup is to become a safe again.
    void restoreRequested();
    /// A safe of the cloud folder is to come to this computer.
    void cloudImportRequested();
    void _requestOpenShuttersPrivate(QPrivateSignal);
    void _requestCloseShuttersPrivate(QPrivateSignal);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void fitScreen();
    void configureStateMachine();
    /// Locks, and goes on when everything is saved or the user has decided about it.
    void leaveSafe(const std::function<void()> &then);
    void onLockSettled();
    void onLockFailed();
    bool safeIsOpen() const;
    void followSafe();
    void moveShutters();
    void showLayers();
    void layOut();
    void showTitle();

    GPMAppCore &m_core;
    const Theme &m_theme;
    Asker m_asker;
    TrayCheck m_hasTray = &QSystemTrayIcon::isSystemTrayAvailable;
    SecureContent *m_content;
    Shutters *m_shutters;
    PagesStack *m_pages;
    QGraphicsOpacityEffect *m_fade;
    WindowFrame *m_frame;
    TitleBar *m_titleBar;
    QPropertyAnimation *m_slide = nullptr;
    QStateMachine m_machine;
    qreal m_openProgress = 0;
    bool m_open = false;
    bool m_leaving = false;
    bool m_asking = false;
    std::function<void()> m_then; ///< what the user wants to do once the safe is locked
};
