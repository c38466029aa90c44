#pragma once

#include "ItemExport.h"
#include "WorkerTask.h"

#include <QObject>

#include <memory>

class GPMSafe;
class PMListItem;

/// Writes items of the open safe into a file that everyone can read: takes their values a few at a
/// time, so that nothing waits for it, and writes them on a thread of its own.
class ItemExportTask : public QObject
{
    Q_OBJECT

public:
    enum Outcome { Written, NotWritten, Cancelled, Locked };

    /// What would be in a file, and what would not.
    struct Counts
    {
        int items = 0;
        int otherKinds = 0;  ///< that the format cannot hold
        int attachments = 0; ///< whose bytes stay behind
    };
    static Counts count(const GPMSafe &safe, const QStringList &ids, ItemExport::Format format);

    /// The items of a safe that can be exported: what is in the trash stays there.
    static QStringList idsOf(const GPMSafe &safe);

    ItemExportTask(std::shared_ptr<GPMSafe> safe, const QStringList &ids, ItemExport::Format format,
                   const QString &path, std::shared_ptr<FileLayer> files,
                   QObject *parent = nullptr);

    /// finished() follows.
    void start();
    void cancel();

    Outcome outcome() const { return m_outcome; }

Q_SIGNALS:
    void progress(int done, int total);
    void finished();

private:
    void takeSome();
    void take(const PMListItem &item);
    void write();
    void finish(Outcome outcome);

    std::shared_ptr<GPMSafe> m_safe;
    QStringList m_ids;
    QString m_path;
    std::shared_ptr<FileLayer> m_files;
    std::shared_ptr<ItemExport> m_export = std::make_shared<ItemExport>();
    std::unique_ptr<WorkerTask> m_writing;
    int m_taken = 0;
    bool m_cancelled = false;
    Outcome m_outcome = Written;
};
