#pragma once

#include "Clock.h"
#include "IconFetch.h"
#include "SiteIconFolder.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QSet>
#include <QVector>

/// Fetches the icons of web sites into a folder. What fails is silent, and not asked for again
/// before the program ends.
class GPMFaviconDownloader : public QObject
{
    Q_OBJECT

public:
    explicit GPMFaviconDownloader(IconNetwork network = {}, Clock clock = systemTime,
                                  QObject *parent = nullptr);
    ~GPMFaviconDownloader() override;

    /// Another folder for the icons, or none: then nothing is fetched. What is under way ends.
    void setFolder(const QString &folder);

    /// Whether icons are fetched; ends what is under way.
    void setEnabled(bool enabled);

    /// The absolute path of the icon stored for a domain, or for the one above it; empty when there
    /// is none.
    QString iconPath(const QString &domain) const { return m_icons.iconPath(domain); }

public Q_SLOTS:
    /// Starts to fetch the icon of a domain, unless there is one that is not old.
    /// @param address where the page says it is, which may be any text
    /// @param domain the host of the login that it is for
    void download(const QString &address, const QString &domain);

Q_SIGNALS:
    /// The answer to a request has come to its end.
    void dataDownloaded(QNetworkReply *reply);
    void iconChanged(const QString &domain);

private:
    bool isKnown(const QString &domain) const;
    void startNext();
    void endAll();
    void keep(IconFetch *fetch, const QByteArray &format, const QByteArray &bytes);

    IconNetwork m_network;
    Clock m_clock;
    QNetworkAccessManager m_manager;
    SiteIconFolder m_icons;
    QString m_folder;
    bool m_enabled = true;
    QVector<IconFetch *> m_waiting;
    QVector<IconFetch *> m_running;
    QSet<QUrl> m_failed;
};
