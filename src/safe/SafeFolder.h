#pragma once

#include "ItemFile.h"

#include <QString>

/// Where the files of a safe lie.
class SafeFolder
{
public:
    SafeFolder() = default;
    explicit SafeFolder(const QString &root)
        : m_root(root)
    {
    }

    const QString &root() const { return m_root; }

    /// The path of a file or folder named in SafeLayout.
    QString path(const char *name) const { return m_root + QLatin1Char('/') + QLatin1String(name); }

    /// The file of an item, and that of an attachment's bytes.
    QString contentPath(const ItemFileName &name) const;
    QString attachmentPath(const ItemFileName &name) const;

    /// Whether files of a safe are there.
    bool holdsSafe() const;

private:
    QString m_root;
};
