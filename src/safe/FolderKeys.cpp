#include "FolderKeys.h"

#include "FolderPath.h"

#include <QDir>

namespace {

QString written(const QString &path)
{
    return QDir::cleanPath(path);
}

} // namespace

void FolderKeys::remember(const QString &path)
{
    const QString clean = written(path);
    if (!m_canonical.contains(clean))
        m_canonical.insert(clean, clean);
}

void FolderKeys::learn(const QString &path, const QString &canonical)
{
    m_canonical.insert(written(path), canonical);
    remember(canonical);
}

QString FolderKeys::canonical(const QString &path) const
{
    const auto known = m_canonical.find(written(path));
    return known == m_canonical.end() ? canonicalFolder(path) : *known;
}

QString FolderKeys::key(const QString &path) const
{
    return keyOf(canonical(path));
}

bool FolderKeys::isSame(const QString &one, const QString &other) const
{
    return one == other || key(one) == key(other);
}
