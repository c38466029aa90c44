#pragma once

#include <QHash>
#include <QString>

#include <chrono>
#include <optional>

/// How long an answer may take that goes into whatever page the user sees: later it describes one
/// that he may have left.
constexpr std::chrono::milliseconds answerPatience = std::chrono::seconds(30);

/// A fill that the extension has been asked for and that is not finished.
struct FillRequest
{
    /// What the page is wanted for, such as "login".
    QString reason;
    /// The connection that it was sent to: only its answers count.
    QString callerId;
    /// Whether the user chose the item from the extension rather than from the main window.
    bool fromExtension = false;
    /// Milliseconds since the epoch; names the request together with the item id.
    qint64 timestamp = 0;
    /// Whether the extension has been asked to find the login page.
    bool askedForLoginPage = false;
    /// Whether a page has received values.
    bool hasFilled = false;
};

/// The pending fill of each item. A newer request for an item replaces the older one, whose answer
/// then matches nothing.
class FillRequests
{
public:
    /// Enters a request made now.
    /// @param now milliseconds since the epoch
    /// @return the time stamp that names it: now, or later when an earlier request took that
    qint64 add(const QString &itemId, FillRequest request, qint64 now);

    /// The time stamp of a request made now that belongs to no item.
    qint64 nextTimestamp(qint64 now);

    /// The pending request that an answer belongs to; none when there is none such.
    std::optional<FillRequest> find(const QString &itemId, qint64 timestamp) const;

    /// Notes what has been done for the pending request of an item; nothing when there is none.
    void markAskedForLoginPage(const QString &itemId);
    void markFilled(const QString &itemId);

    void remove(const QString &itemId) { m_requests.remove(itemId); }
    void clear() { m_requests.clear(); }

private:
    QHash<QString, FillRequest> m_requests;
    qint64 m_lastTimestamp = 0;
};
