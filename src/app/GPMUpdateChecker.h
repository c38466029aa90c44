#pragma once

#include "Clock.h"
#include "UpdateNews.h"

#include <QNetworkAccessManager>
#include <QTimer>

#include <chrono>
#include <functional>

class QNetworkReply;

/// Asks once a day whether there is a newer version of the program. Tells of nothing but the
/// version, the product and a hash of the computer, and takes no answer at its word.
class GPMUpdateChecker : public QObject
{
    Q_OBJECT

public:
    struct Parts
    {
        QString version;
        QString productId;
        std::function<QString()> machineHash;
        std::function<bool()> isWanted;       ///< whether it may ask by itself
        std::function<QDateTime()> lastCheck; ///< the last one that was answered; kept for long
        std::function<void(const QDateTime &)> setLastCheck;
        std::function<void(const QString &)> log;
        /// What the installer says is there, which may wait for a restart; empty when it is silent.
        std::function<QString()> installedVersion;
        Clock clock = systemTime;
        std::chrono::milliseconds limit = std::chrono::seconds(20); ///< with all redirects
    };
    enum State { NotAsked, Asking, UpToDate, NewVersion, Failed };

    explicit GPMUpdateChecker(const Parts &parts, QObject *parent = nullptr);
    ~GPMUpdateChecker() override;

    /// Where is asked. Nothing is asked without an address, or at one that is not encrypted.
    void setEndpoint(const QUrl &endpoint);
    bool hasEndpoint() const { return !m_endpoint.isEmpty(); }

    State state() const { return m_state; }
    /// What was told last; empty until a newer version is known.
    const UpdateNews &news() const { return m_news; }
    QString version() const { return m_parts.version; }
    QDateTime lastCheck() const { return m_parts.lastCheck(); }

    /// Asks when it is wanted and the last answer is a day old; an hour after one that failed.
    void checkIfDue();
    /// Asks because the user wants to know, whatever the settings say.
    void checkNow();

Q_SIGNALS:
    void stateChanged();
    /// The newest version comes after this one.
    /// @param byUser the user waits for the answer
    void newVersionFound(const UpdateNews &news, bool byUser);

private:
    void ask(bool byUser);
    void request(const QUrl &url);
    void onReply();
    void judge(const QByteArray &answer);
    void fail(const QString &why);
    void finish(State state);
    void dropReply();

    Parts m_parts;
    QUrl m_endpoint;
    QNetworkAccessManager m_network;
    QNetworkReply *m_reply = nullptr;
    QUrl m_url; ///< where redirects have led
    int m_redirects = 0;
    QTimer m_limit;
    QDateTime m_lastTry;
    bool m_byUser = false;
    State m_state = NotAsked;
    UpdateNews m_news;
};
