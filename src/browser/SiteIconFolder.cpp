#include "SiteIconFolder.h"

#include "OwnerOnlyFile.h"
#include "PublicSuffixes.h"

#include <QDebug>
#include <QDir>
#include <QHostAddress>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace {

/// The domain as it names files, in lower case and without "www."; empty for what is no domain, as
/// a path that leads elsewhere.
QString normalised(const QString &domain)
{
    static const QRegularExpression pattern(QStringLiteral(
        "\\A[a-z0-9_]([a-z0-9_-]*[a-z0-9_])?(\\.[a-z0-9_]([a-z0-9_-]*[a-z0-9_])?)*\\z"));
    // International names in the form in which they are asked for.
    QString name = QString::fromLatin1(QUrl::toAce(domain)).toLower();
    if (name.startsWith(QLatin1String("www.")))
        name.remove(0, 4);
    return name.size() <= 253 && pattern.match(name).hasMatch() ? name : QString();
}

/// A file's name without the format.
QString stem(const QString &file)
{
    return file.left(file.lastIndexOf(QLatin1Char('.')));
}

} // namespace

SiteIconFolder::SiteIconFolder(const QString &folder)
    : m_folder(folder)
{
    refresh();
}

void SiteIconFolder::refresh()
{
    m_files.clear();
    if (!m_folder.isEmpty())
        m_files = QDir(m_folder).entryList(QDir::Files, QDir::Name);
}

QString SiteIconFolder::fileOf(const QString &domain) const
{
    const auto found = std::find_if(m_files.begin(), m_files.end(), [&domain](const QString &file) {
        return stem(file) == domain;
    });
    return found == m_files.end() ? QString() : *found;
}

QString SiteIconFolder::pathOf(const QString &file) const
{
    return file.isEmpty() ? QString() : QDir(m_folder).absoluteFilePath(file);
}

QString SiteIconFolder::ownIconPath(const QString &domain) const
{
    const QString name = normalised(domain);
    return name.isEmpty() ? QString() : pathOf(fileOf(name));
}

QString SiteIconFolder::iconPath(const QString &domain) const
{
    const QString own = ownIconPath(domain);
    const QString name = normalised(domain);
    const QString parent = name.section(QLatin1Char('.'), 1);
    // Above the name that somebody registered there are only those of others.
    if (!own.isEmpty() || !QHostAddress(name).isNull() ||
        PublicSuffixes::shipped().registrableDomain(parent).isEmpty())
        return own;
    const QString above = fileOf(parent);
    if (!above.isEmpty())
        return pathOf(above);
    const QString end = QLatin1Char('.') + parent;
    const auto sibling = std::find_if(m_files.begin(), m_files.end(), [&end](const QString &file) {
        return stem(file).endsWith(end);
    });
    return sibling == m_files.end() ? QString() : pathOf(*sibling);
}

bool SiteIconFolder::store(const QString &domain, const QByteArray &format, const QByteArray &bytes)
{
    const QString name = normalised(domain);
    if (m_folder.isEmpty() || name.isEmpty() || !QDir(m_folder).exists())
        return false;
    const QString former = fileOf(name);
    const QString file = name + QLatin1Char('.') + QString::fromLatin1(format);
    if (!writeOwnerOnlyFile(pathOf(file), bytes)) {
        qWarning() << "SiteIconFolder::store"
                   << "Can't write icon:" << pathOf(file);
        return false;
    }
    if (!former.isEmpty() && former != file)
        QFile::remove(pathOf(former));
    refresh();
    return true;
}
