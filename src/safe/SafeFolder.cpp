#include "SafeFolder.h"

#include "SafeLayout.h"

#include <QFile>

#include <algorithm>

QString SafeFolder::contentPath(const ItemFileName &name) const
{
    return path(SafeLayout::content) + QLatin1Char('/') + name.text();
}

QString SafeFolder::attachmentPath(const ItemFileName &name) const
{
    return path(SafeLayout::attachment) + QLatin1Char('/') + name.text();
}

bool SafeFolder::holdsSafe() const
{
    const auto names = {SafeLayout::meta, SafeLayout::oldMeta, SafeLayout::passId};
    return std::any_of(names.begin(), names.end(),
                       [this](const char *name) { return QFile::exists(path(name)); });
}
