#pragma once

#include "Attachments.h"
#include "PMListItem.h"

#include <QFuture>
#include <QObject>
#include <QThreadPool>

#include <deque>
#include <functional>
#include <memory>

/// New attachments on their way into a safe: encrypted on a worker one after the other, and handed
/// on in the order in which they came.
class AttachmentIntake : public QObject
{
    Q_OBJECT

public:
    struct Arrival
    {
        std::unique_ptr<PMListItem> item;
        QString parentId; ///< of the item that it belongs to; may be empty
        QFuture<AttachmentJob::Result> result;
    };
    using TakeIn = std::function<void(Arrival)>;

    /// @param worker of one thread; outlives the object
    AttachmentIntake(QThreadPool &worker, TakeIn takeIn, QObject *parent = nullptr);

    void add(std::unique_ptr<PMListItem> item, const QString &parentId, const AttachmentJob &job);

    /// Hands on what is done; all of it once the worker has nothing left to do.
    void handOn();
    void abandon() { m_arrivals.clear(); }
    bool isIdle() const { return m_arrivals.empty(); }

private:
    QThreadPool &m_worker;
    TakeIn m_takeIn;
    std::deque<Arrival> m_arrivals;
};
