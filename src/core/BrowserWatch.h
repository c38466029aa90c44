#pragma once

#include "BrowserDiscovery.h"

#include <QFutureWatcher>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <chrono>
#include <functional>
#include <memory>

class QProcess;

/// Looks for the browsers of this computer and the extension in them, without holding up the
/// windows.
class BrowserWatch : public QObject
{
    Q_OBJECT

public:
    /// @param defaultBrowserCommand prints the desktop file of the browser that opens web links
    explicit BrowserWatch(
        BrowserPlaces places,
        QStringList defaultBrowserCommand = {QStringLiteral("xdg-settings"), QStringLiteral("get"),
                                             QStringLiteral("default-web-browser")},
        std::chrono::milliseconds limit = std::chrono::seconds(3), QObject *parent = nullptr);
    ~BrowserWatch() override;

    /// Starts to look anew; changed() follows when something is other than before. A call while
    /// one runs is ignored.
    void look();

    /// What was found last.
    const QVector<BrowserInfo> &browsers() const { return m_browsers; }
    /// Whether it was looked to the end at least once.
    bool hasLooked() const { return m_hasLooked; }

Q_SIGNALS:
    void changed();

private:
    void askForDefault();
    void end();

    BrowserPlaces m_places;
    QStringList m_command;
    QTimer m_limit;
    QFutureWatcher<QVector<BrowserInfo>> m_search;
    std::unique_ptr<QProcess> m_process;
    QString m_defaultKind;
    bool m_isLooking = false;
    bool m_hasLooked = false;
    QVector<BrowserInfo> m_browsers;
};
