#include "PasswordChange.h"

#include "SafeCrypto.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QFile>
#include <QtConcurrent>

#include <algorithm>
#include <utility>

static const char operation[] = "GPMSafe::changePassword";

PasswordChange::Item PasswordChange::plan(const PMListItem &item, const ItemFileName &name,
                                          const SafeFolder &folder)
{
    ItemFileName next = name;
    do
        ++next.generation;
    while (QFile::exists(folder.contentPath(next)) || QFile::exists(folder.attachmentPath(next)));
    return {name, next, PMItemDocument::fromItem(item), item.type() == PMListItem::Attachment};
}

bool PasswordChange::isComplete(const QVector<Item> &items, const SafeFolder &folder)
{
    return std::all_of(items.begin(), items.end(), [&folder](const Item &item) {
        return !item.attachment || QFile::exists(folder.attachmentPath(item.oldName));
    });
}

PasswordChange::PasswordChange(const SafeEnvironment &environment, const SafeFolder &folder,
                               const QByteArray &oldPassword, const QByteArray &newPassword,
                               QVector<Item> items)
    : m_environment(environment)
    , m_folder(folder)
    , m_oldPassword(oldPassword)
    , m_newPassword(newPassword)
    , m_items(std::move(items))
{
}

bool PasswordChange::run(const std::function<void(int)> &progress,
                         const std::atomic<bool> *cancelled)
{
    if (!backUpPassId())
        return false;
    if (writePassId() && writeItems(progress, cancelled)) {
        qDebug() << operation << "New items saved:" << m_items.size();
        qDebug() << operation << "New pass id written";
        return true;
    }
    cleanUp();
    return false;
}

void PasswordChange::removeOldFiles()
{
    qDebug() << operation << "Remove old items from the safe";
    for (const Item &item : std::as_const(m_items)) {
        QStringList paths{m_folder.contentPath(item.oldName)};
        if (item.attachment)
            paths.append(m_folder.attachmentPath(item.oldName));
        for (const QString &old : std::as_const(paths)) {
            if (!m_environment.files->remove(old))
                qWarning() << operation << "Can't remove old file:" << old;
        }
    }
}

bool PasswordChange::backUpPassId()
{
    // Replaced in one step, so that there is no moment with neither an old nor a new copy.
    const std::optional<QByteArray> passId =
        m_environment.files->read(m_folder.path(SafeLayout::passId));
    if (passId &&
        m_environment.files->writeBytes(m_folder.path(SafeLayout::passIdBackup), *passId)) {
        m_oldPassId = *passId;
        return true;
    }
    qWarning() << operation << "Can't back up pass id file at:" << m_folder.root();
    return false;
}

bool PasswordChange::writePassId()
{
    const QString passId = makePassId(m_newPassword, m_environment.random);
    if (!passId.isEmpty() &&
        m_environment.files->writeBytes(m_folder.path(SafeLayout::passId), passId.toLatin1()))
        return true;
    qWarning() << operation << "Can't save pass id file at:" << m_folder.root();
    return false;
}

bool PasswordChange::writeItems(const std::function<void(int)> &progress,
                                const std::atomic<bool> *cancelled)
{
    std::atomic<bool> failed{false};
    std::atomic<int> done{0};
    QtConcurrent::blockingMap(m_items, [&](Item &item) {
        if (failed || (cancelled && *cancelled))
            return;
        if (!writeItem(item))
            failed = true;
        else if (const int count = ++done; progress)
            progress(count);
    });
    qDebug() << operation << "Items processed:" << done.load();
    return done == m_items.size();
}

bool PasswordChange::writeItem(Item &item)
{
    if (item.attachment && !reencryptAttachment(item)) {
        qWarning() << operation
                   << "Can't re-encrypt attachment file:" << m_folder.attachmentPath(item.oldName);
        return false;
    }
    if (writeItemFile(m_environment, m_folder.contentPath(item.newName), m_newPassword,
                      item.document))
        return true;
    qWarning() << operation << "Can't save item to file:" << m_folder.contentPath(item.newName);
    return false;
}

bool PasswordChange::reencryptAttachment(Item &item)
{
    QFile source(m_folder.attachmentPath(item.oldName));
    if (!source.open(QIODevice::ReadOnly))
        return false;
    const QString newPath = m_folder.attachmentPath(item.newName);
    const bool written = m_environment.files->write(newPath, [&](QIODevice &destination) {
        return reencryptStream(m_oldPassword, m_newPassword, source, destination,
                               m_environment.random);
    });
    const QString hash = written ? fileHash(newPath) : QString();
    item.document.publicFields.insert(QStringLiteral("hash"), hash);
    return !hash.isEmpty();
}

void PasswordChange::cleanUp()
{
    qWarning() << operation << "Cleanup on error";
    FileLayer &files = *m_environment.files;
    // A full disk may refuse even the copy; moving the backup back needs no room.
    const QString backup = m_folder.path(SafeLayout::passIdBackup);
    const bool copied = files.writeBytes(m_folder.path(SafeLayout::passId), m_oldPassId);
    if (!copied && !files.replace(backup, m_folder.path(SafeLayout::passId)))
        qCritical() << operation << "Can't put pass id back, its copy is at:" << backup;
    else if (copied)
        files.remove(backup);

    for (const Item &item : std::as_const(m_items)) {
        files.remove(m_folder.contentPath(item.newName));
        if (item.attachment)
            files.remove(m_folder.attachmentPath(item.newName));
    }
}
