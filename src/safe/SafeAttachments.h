#pragma once

#include "AttachmentIntake.h"
#include "SafeState.h"

#include <vector>

class GPMSafe;

/// The attachments of a safe: takes new ones in and gives the bytes of those that are there.
class SafeAttachments
{
public:
    /// Both outlive the object.
    SafeAttachments(GPMSafe &safe, SafeState &state);

    PMListItem *add(std::unique_ptr<PMListItem> item, QIODevice &bytes);
    void addAsync(std::unique_ptr<PMListItem> item, const AttachmentSource &source,
                  const QString &parentId);
    /// Goes on with those that came during a change of password.
    void addWaiting();
    /// Takes in what is encrypted by now; everything once the writer has nothing left to do.
    void handOn() { m_intake.handOn(); }
    /// Forgets those that are on their way.
    void abandon();
    /// Nothing is on its way, apart from what waits for a change of password.
    bool isIdle() const { return m_intake.isIdle(); }

    std::optional<AttachmentReader> reader(const QString &id) const;
    qint64 size(const QString &id) const;

private:
    struct Waiting
    {
        std::unique_ptr<PMListItem> item;
        AttachmentSource source;
        QString parentId;
    };

    bool prepare(PMListItem &item) const;
    void take(AttachmentIntake::Arrival arrival);

    GPMSafe &m_safe;
    SafeState &m_state;
    AttachmentIntake m_intake;
    std::vector<Waiting> m_waiting;
};
