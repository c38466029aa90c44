#pragma once

#include "ImportReader.h"

#include <QFutureWatcher>
#include <QObject>
#include <QVector>

#include <memory>
#include <vector>

class GPMSafe;

/// Brings entries into a safe as items, some at a time: each lot is on the disk before the next one
/// begins, so that what has come in is known whenever it is stopped.
class ImportAdder : public QObject
{
    Q_OBJECT

public:
    enum Outcome {
        Done,
        Cancelled,
        NotSaved, ///< the safe could not be written to
        Locked
    };

    /// @param chosen which of the entries, by their places
    ImportAdder(std::shared_ptr<GPMSafe> safe, std::shared_ptr<const ImportResult> result,
                QVector<int> chosen, QObject *parent = nullptr);

    /// finished() follows.
    void start();
    void cancel() { m_cancelled = true; }

    /// Ends it when the safe is locked; nobody has to wait for the safe's own signal.
    void onLocked();

    int total() const { return m_chosen.size(); }
    /// How many of the chosen ones, from the first, are in the safe and on the disk.
    int added() const { return m_added; }
    Outcome outcome() const { return m_outcome; }

Q_SIGNALS:
    void progress(int done, int total);
    void finished();

private:
    void rateNext();
    void addRated();
    void onSaved(bool good);
    void finish(Outcome outcome);
    int lotSize() const;

    std::shared_ptr<GPMSafe> m_safe;
    std::shared_ptr<const ImportResult> m_result;
    QVector<int> m_chosen;
    QFutureWatcher<QVector<int>> m_ratings; ///< strengths of the passwords of a lot
    QStringList m_written;                  ///< ids of the lot that is being saved
    int m_added = 0;
    bool m_cancelled = false;
    bool m_ended = false;
    Outcome m_outcome = Done;
};
