#include "PMListItem.h"

PMListItem::PMListItem(Type type, QObject *parent)
    : QObject(parent)
    , m_type(type)
{
}

void PMListItem::markSaved(quint64 revision)
{
    // Reports of writes may arrive late; an older one never hides a newer change.
    m_savedRevision = qMax(m_savedRevision, revision);
}

void PMListItem::countChange()
{
    ++m_revision;
    Q_EMIT timestampChanged();
}
