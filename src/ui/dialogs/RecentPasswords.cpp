#include "RecentPasswords.h"

#include <algorithm>
#include <utility>

RecentPasswords::RecentPasswords(Clock clock, QObject *parent)
    : QObject(parent)
    , m_clock(std::move(clock))
{
}

void RecentPasswords::setKeeping(bool keeping)
{
    m_keeping = keeping;
    if (!keeping)
        m_entries.clear();
    Q_EMIT changed();
}

void RecentPasswords::add(const QString &password)
{
    if (!m_keeping || password.isEmpty())
        return;
    m_entries.insert(m_entries.begin(), {m_clock(), SecretBytes::fromText(password), false});
    if (m_entries.size() > most) {
        const auto unused = std::find_if(m_entries.rbegin(), m_entries.rend() - 1,
                                         [](const Entry &entry) { return !entry.used; });
        const bool allUsed = unused == m_entries.rend() - 1;
        m_entries.erase(allUsed ? m_entries.end() - 1 : unused.base() - 1);
    }
    Q_EMIT changed();
}

void RecentPasswords::markUsed(const QString &password)
{
    const SecretBytes wanted = SecretBytes::fromText(password);
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(),
                     [&wanted](const Entry &entry) { return entry.password == wanted; });
    if (found == m_entries.end())
        return;
    found->used = true;
    Q_EMIT changed();
}

QString RecentPasswords::password(int index) const
{
    return QString::fromUtf8(m_entries.at(static_cast<std::size_t>(index)).password.view());
}
