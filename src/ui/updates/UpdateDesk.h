#pragma once

#include "GPMUpdateChecker.h"
#include "NewVersionDialog.h"

#include <QPointer>
#include <QTimer>

class GPMAppSettings;
class Platform;
class Theme;
class UiSettings;

/// Lets the user know of a newer version: by itself once a version, while the main window is seen;
/// and whenever the user asks.
class UpdateDesk : public QObject
{
    Q_OBJECT

public:
    /// Everything outlives this.
    UpdateDesk(const GPMAppSettings &settings, UiSettings &uiSettings, Platform &platform,
               const Theme &theme);
    ~UpdateDesk() override;

    /// The window above which is told; another one takes the place of the former.
    void setMain(QWidget *main);

    GPMUpdateChecker &checker() { return *m_checker; }

    /// Begins to ask, soon after the start and then when a day has passed.
    void start();

    /// What the settings show.
    QWidget *makePanel(QWidget *parent);

    /// Notes that the user has come to the main window.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void pageRequested(const QUrl &page);

private:
    /// Tells what came while nobody was there, when the main window is seen now.
    void tellWaiting();
    void onNews(const UpdateNews &news, bool byUser);
    void show(const UpdateNews &news);

    const GPMAppSettings &m_settings;
    UiSettings &m_uiSettings;
    const Theme &m_theme;
    GPMUpdateChecker *m_checker;
    QTimer m_timer;
    QPointer<QWidget> m_main;
    QPointer<NewVersionDialog> m_dialog;
    UpdateNews m_shown;
    UpdateNews m_waiting; ///< to be shown when the user is there
};
