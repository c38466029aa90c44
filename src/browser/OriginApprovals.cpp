#include "OriginApprovals.h"

namespace {

/// Nobody has more profiles; a program that makes up origins shall not ask for ever.
const int mostAsked = 8;

} // namespace

OriginApprovals::OriginApprovals(LinkSettings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
}

bool OriginApprovals::isApproved(const QString &origin) const
{
    return m_settings.approvedOrigins().contains(origin);
}

void OriginApprovals::ask(const QString &origin)
{
    if (isApproved(origin) || m_waiting.contains(origin) || m_refused.contains(origin) ||
        m_waiting.size() + m_refused.size() >= mostAsked)
        return;
    m_waiting.append(origin);
    if (m_waiting.size() == 1)
        Q_EMIT questionChanged();
}

void OriginApprovals::approve(const QString &origin)
{
    m_refused.removeAll(origin);
    if (!isApproved(origin))
        m_settings.setApprovedOrigins(m_settings.approvedOrigins() + QStringList(origin));
    Q_EMIT approvedOne(origin);
    forgetQuestion(origin);
}

void OriginApprovals::refuse(const QString &origin)
{
    QStringList origins = m_settings.approvedOrigins();
    if (origins.removeAll(origin) > 0)
        m_settings.setApprovedOrigins(origins);
    if (!m_refused.contains(origin))
        m_refused.append(origin);
    Q_EMIT refusedOne(origin);
    forgetQuestion(origin);
}

void OriginApprovals::forgetQuestion(const QString &origin)
{
    const bool wasCurrent = question() == origin;
    m_waiting.removeAll(origin);
    if (wasCurrent)
        Q_EMIT questionChanged();
}
