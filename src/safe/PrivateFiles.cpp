#include "PrivateFiles.h"

#include "OwnerOnlyFile.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QMutexLocker>

#include <array>
#include <utility>

namespace {

const QFile::Permissions ownerOnlyFolder = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

/// Writes over the bytes before they are given back, as well as the file system lets us.
void overwrite(const QString &path)
{
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return;
    const QByteArray zeros(64 * 1024, '\0');
    for (qint64 left = file.size(); left > 0;) {
        const qint64 written = file.write(zeros.constData(), qMin<qint64>(left, zeros.size()));
        if (written <= 0)
            return;
        left -= written;
    }
}

} // namespace

QStringList PrivateFiles::places(const QString &runtimeFolder, const QString &dataFolder)
{
    QStringList list;
    if (!runtimeFolder.isEmpty() && QDir(runtimeFolder).exists()) {
        // Programs with other data share that folder: each wipes its own files.
        const QByteArray hash =
            QCryptographicHash::hash(dataFolder.toUtf8(), QCryptographicHash::Sha256);
        list.append(runtimeFolder + QStringLiteral("/glaceron-") +
                    QString::fromLatin1(hash.toHex().left(16)));
    }
    list.append(dataFolder + QStringLiteral("/private"));
    return list;
}

PrivateFiles::PrivateFiles(QStringList places, RandomSource random)
    : m_places(std::move(places))
    , m_random(std::move(random))
{
}

PrivateFiles::~PrivateFiles()
{
    wipe();
}

int PrivateFiles::wipes() const
{
    const QMutexLocker locker(&m_mutex);
    return m_wipes;
}

std::optional<QString> PrivateFiles::create(const QString &fileName, const Produce &produce,
                                            int wipes)
{
    if (wipes != this->wipes())
        return std::nullopt;
    std::array<unsigned char, 16> name = {};
    if (!m_random(name.data(), static_cast<int>(name.size())))
        return std::nullopt;
    const QByteArray bytes(reinterpret_cast<const char *>(name.data()),
                           static_cast<int>(name.size()));
    const QString folder = m_places.first() + QLatin1Char('/') + QString::fromLatin1(bytes.toHex());
    const QString path = folder + QLatin1Char('/') + fileName;
    const bool written =
        makeOwnerOnlyFolder(folder) && QFile::setPermissions(m_places.first(), ownerOnlyFolder) &&
        writeOwnerOnlyFile(path, produce) && QFile::setPermissions(path, QFile::ReadOwner);
    const QMutexLocker locker(&m_mutex);
    if (written && wipes == m_wipes)
        return path;
    wipeFolder(folder);
    if (!written)
        qWarning() << "PrivateFiles::create"
                   << "Can't write private file:" << path;
    return std::nullopt;
}

bool PrivateFiles::wipe()
{
    const QMutexLocker locker(&m_mutex);
    ++m_wipes;
    bool good = true;
    for (const QString &place : std::as_const(m_places))
        good = wipeFolder(place) && good;
    return good;
}

bool PrivateFiles::wipeFolder(const QString &folder) const
{
    const QFileInfo self(folder);
    // A link that somebody put there is not followed.
    if (self.isSymLink())
        return QFile::remove(folder);
    if (!self.exists())
        return true;
    bool good = true;
    const QFileInfoList entries = QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden |
                                                             QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        if (entry.isDir() && !entry.isSymLink()) {
            good = wipeFolder(entry.filePath()) && good;
            continue;
        }
        if (entry.isFile() && !entry.isSymLink())
            overwrite(entry.filePath());
        if (QFile::remove(entry.filePath()))
            continue;
        qWarning() << "PrivateFiles::wipe"
                   << "Can't remove private file:" << entry.filePath();
        good = false;
    }
    return QDir().rmdir(folder) && good;
}
