#include "ItemExportTask.h"

#include "GPMSafe.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace {

/// How long the event loop is held at a time, in milliseconds.
const qint64 longestTurn = 15;

QStringList attachmentNames(const GPMSafe &safe, const PMListItem &item)
{
    QStringList names;
    const QStringList refs = item.refs();
    for (const QString &id : refs) {
        const PMListItem *other = safe.item(id);
        if (other && other->type() == PMListItem::Attachment)
            names.append(other->title());
    }
    return names;
}

QString titleOf(const ItemExport::Item &item)
{
    return item.document.publicFields.value(QLatin1String("title")).toString();
}

} // namespace

ItemExportTask::Counts ItemExportTask::count(const GPMSafe &safe, const QStringList &ids,
                                             ItemExport::Format format)
{
    Counts counts;
    for (const QString &id : ids) {
        const PMListItem *item = safe.item(id);
        if (!item)
            continue;
        counts.attachments += attachmentNames(safe, *item).size();
        if (ItemExport::canHold(format, item->type()))
            ++counts.items;
        else
            ++counts.otherKinds;
    }
    return counts;
}

QStringList ItemExportTask::idsOf(const GPMSafe &safe)
{
    QStringList ids;
    for (const PMListItem *item : safe.items()) {
        if (!item->deleted() && item->type() != PMListItem::Attachment)
            ids.append(item->id());
    }
    return ids;
}

ItemExportTask::ItemExportTask(std::shared_ptr<GPMSafe> safe, const QStringList &ids,
                               ItemExport::Format format, const QString &path,
                               std::shared_ptr<FileLayer> files, QObject *parent)
    : QObject(parent)
    , m_safe(std::move(safe))
    , m_ids(ids)
    , m_path(path)
    , m_files(std::move(files))
{
    m_export->format = format;
    m_export->safeName = m_safe->name();
    m_export->moment = QDateTime::currentDateTimeUtc();
}

void ItemExportTask::start()
{
    QMetaObject::invokeMethod(this, &ItemExportTask::takeSome, Qt::QueuedConnection);
}

void ItemExportTask::cancel()
{
    m_cancelled = true;
    if (m_writing)
        m_writing->cancel();
}

void ItemExportTask::takeSome()
{
    if (m_cancelled || !m_safe->isUnlocked()) {
        finish(m_cancelled ? Cancelled : Locked);
        return;
    }
    QElapsedTimer turn;
    turn.start();
    while (m_taken < m_ids.size() && turn.elapsed() < longestTurn) {
        const PMListItem *item = m_safe->item(m_ids.at(m_taken++));
        // It may have gone since it was asked for.
        if (item && ItemExport::canHold(m_export->format, item->type()))
            take(*item);
    }
    Q_EMIT progress(m_taken, m_ids.size());
    if (m_taken < m_ids.size())
        QMetaObject::invokeMethod(this, &ItemExportTask::takeSome, Qt::QueuedConnection);
    else
        write();
}

void ItemExportTask::take(const PMListItem &item)
{
    m_export->items.push_back({PMItemDocument::fromItem(item), attachmentNames(*m_safe, item)});
}

void ItemExportTask::write()
{
    const auto written = std::make_shared<bool>(false);
    const auto work = [out = m_export, files = m_files, path = m_path,
                       written](WorkControl &control) {
        // The order of the ids means nothing to a reader.
        std::stable_sort(out->items.begin(), out->items.end(),
                         [](const ItemExport::Item &left, const ItemExport::Item &right) {
                             return titleOf(left).compare(titleOf(right), Qt::CaseInsensitive) < 0;
                         });
        *written = out->write(*files, path, control);
        out->items.clear();
    };
    m_writing = std::make_unique<WorkerTask>(work);
    connect(m_writing.get(), &WorkerTask::finished, this, [this, written] {
        finish(*written ? Written : m_cancelled ? Cancelled : NotWritten);
    });
    m_writing->start();
}

void ItemExportTask::finish(Outcome outcome)
{
    m_export->items.clear();
    m_outcome = outcome;
    Q_EMIT finished();
}
