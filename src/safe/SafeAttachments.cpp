#include "SafeAttachments.h"

#include "GPMSafe.h"
#include "SafeCrypto.h"

#include <QDebug>
#include <QUuid>

#include <utility>

SafeAttachments::SafeAttachments(GPMSafe &safe, SafeState &state)
    : m_safe(safe)
    , m_state(state)
    , m_intake(state.writer,
               [this](AttachmentIntake::Arrival arrival) { take(std::move(arrival)); })
{
}

bool SafeAttachments::prepare(PMListItem &item) const
{
    if (!m_state.isUnlocked() || item.type() != PMListItem::Attachment)
        return false;
    if (item.id().isEmpty())
        item.setId(QUuid::createUuid().toString(QUuid::WithoutBraces));
    return !m_state.items.item(item.id());
}

PMListItem *SafeAttachments::add(std::unique_ptr<PMListItem> item, QIODevice &bytes)
{
    if (!item || m_safe.isChangingPassword() || !prepare(*item))
        return nullptr;
    const QString target = m_state.folder.attachmentPath({item->id(), 0});
    const bool written = m_state.environment.files->write(target, [&](QIODevice &destination) {
        return cryptStream(m_state.password->view(), bytes, destination, CryptDirection::Encrypt,
                           m_state.environment.random);
    });
    if (!written) {
        qWarning() << "GPMSafe::addAttachment"
                   << "Can't save attachment to file:" << target;
        return nullptr;
    }
    item->setProperty("hash", fileHash(target));
    return m_safe.takeIn(std::move(item));
}

void SafeAttachments::addAsync(std::unique_ptr<PMListItem> item, const AttachmentSource &source,
                               const QString &parentId)
{
    if (!item || !prepare(*item))
        return;
    if (m_safe.isChangingPassword()) {
        m_waiting.push_back({std::move(item), source, parentId});
        return;
    }
    m_safe.cancelMeeting();
    const QString target = m_state.folder.attachmentPath({item->id(), 0});
    m_intake.add(std::move(item), parentId,
                 {m_state.environment, target, m_state.password, source});
}

void SafeAttachments::addWaiting()
{
    std::vector<Waiting> waiting = std::exchange(m_waiting, {});
    for (Waiting &each : waiting)
        addAsync(std::move(each.item), each.source, each.parentId);
}

void SafeAttachments::abandon()
{
    m_waiting.clear();
    m_intake.abandon();
}

void SafeAttachments::take(AttachmentIntake::Arrival arrival)
{
    const AttachmentJob::Result result = arrival.result.result();
    const QString id = arrival.item->id();
    const QString title = arrival.item->title();
    if (result.fault == AttachmentFault::None) {
        arrival.item->setProperty("hash", result.hash);
        m_safe.takeIn(std::move(arrival.item));
        if (PMListItem *parent = m_state.items.item(arrival.parentId)) {
            parent->setRefs(parent->refs() + QStringList{id});
            m_safe.touchItem(*parent);
        }
        m_safe.saveChangesAsync();
    }
    Q_EMIT m_safe.attachmentDone(id, title, result.fault);
}

std::optional<AttachmentReader> SafeAttachments::reader(const QString &id) const
{
    const std::optional<ItemFileName> name = m_state.items.fileName(id);
    if (!name)
        return std::nullopt;
    return AttachmentReader(m_state.folder.attachmentPath(*name), m_state.password);
}

qint64 SafeAttachments::size(const QString &id) const
{
    const std::optional<ItemFileName> name = m_state.items.fileName(id);
    return name ? plainSize(m_state.folder.attachmentPath(*name)) : -1;
}
