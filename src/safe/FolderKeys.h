#pragma once

#include <QHash>
#include <QString>

/// The canonical paths of folders as far as they are known, so that nobody has to ask a drive that
/// may not answer. Of one that is remembered nothing is asked; see FolderPath for all others.
class FolderKeys
{
public:
    /// Takes the path as it is written until its canonical one is learned.
    void remember(const QString &path);
    void learn(const QString &path, const QString &canonical);

    QString canonical(const QString &path) const;
    /// What to compare and to find folders by.
    QString key(const QString &path) const;
    bool isSame(const QString &one, const QString &other) const;

private:
    QHash<QString, QString> m_canonical;
};
