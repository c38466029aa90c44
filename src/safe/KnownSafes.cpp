#include "KnownSafes.h"

#include "FolderPath.h"
#include "OwnerOnlyFile.h"
#include "SafeCrypto.h"
#include "SafeDescriptionFile.h"
#include "SafeImport.h"
#include "SafeLayout.h"
#include "SafeRemoval.h"

#include <QDebug>
#include <QDir>
#include <QSet>
#include <QUuid>
#include <QtConcurrent>

#include <algorithm>
#include <utility>

KnownSafes::KnownSafes(GPMAppSettings &settings, const QString &safesFolder,
                       SafeEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_safesFolder(safesFolder)
    , m_environment(std::move(environment))
    , m_facts(QFileInfo(settings.filePath()).path() + QStringLiteral("/safes.json"))
{
}

QVector<KnownSafes::Entry> KnownSafes::entries() const
{
    QVector<Entry> list;
    const QStringList folders = listedFolders() + unlistedFolders();
    for (const QString &folder : folders) {
        if (isBeingDeleted(folder))
            continue;
        const auto description = readDescription(*m_environment.files, folder);
        Entry entry{folder, m_facts.of(folder).name, {}, description.has_value()};
        if (description) {
            entry.name = description->name;
            entry.hint = description->hint;
        }
        if (entry.name.isEmpty())
            entry.name = QDir(folder).dirName();
        list.append(entry);
    }
    return list;
}

QStringList KnownSafes::listedFolders() const
{
    QStringList folders;
    QSet<QString> seen;
    const QStringList recent = m_settings.recentList();
    for (const QString &folder : recent) {
        const QString key = folderKey(folder);
        if (!seen.contains(key))
            folders.append(folder);
        seen.insert(key);
    }
    return folders;
}

QStringList KnownSafes::unlistedFolders() const
{
    QStringList folders;
    QSet<QString> known;
    const QStringList recent = m_settings.recentList();
    for (const QString &folder : recent)
        known.insert(folderKey(folder));
    const QDir standardPlace(m_safesFolder);
    const QStringList names = standardPlace.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        const QString folder = m_safesFolder + QLatin1Char('/') + name;
        if (!SafeImport::isUnfinished(name) && !SafeRemoval::isUnfinished(name) &&
            !known.contains(folderKey(folder)) && !m_facts.of(folder).isHidden &&
            SafeFolder(folder).holdsSafe())
            folders.append(folder);
    }
    return folders;
}

QString KnownSafes::listed(const QString &folder) const
{
    const QStringList folders = listedFolders() + unlistedFolders();
    const auto same = std::find_if(folders.begin(), folders.end(), [&](const QString &other) {
        return isSameFolder(folder, other);
    });
    return same == folders.end() ? QString() : *same;
}

bool KnownSafes::isFree(const QString &folder)
{
    const QFileInfo place(folder);
    if (folder.isEmpty() || !place.isAbsolute())
        return false;
    if (place.exists() || place.isSymLink())
        return place.isDir() && place.isWritable() &&
               QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System |
                                    QDir::NoDotAndDotDot);
    const QFileInfo parent(place.path());
    return parent.isDir() && parent.isWritable();
}

std::shared_ptr<GPMSafe> KnownSafes::create(const QString &name, const QString &password,
                                            const QString &hint, const QString &ownFolder)
{
    if (!ownFolder.isEmpty() && !isFree(ownFolder)) {
        qWarning() << "KnownSafes::create"
                   << "The folder of a new safe is not empty:" << ownFolder;
        return nullptr;
    }
    const QString folder =
        ownFolder.isEmpty()
            ? m_safesFolder + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::WithoutBraces)
            : QDir::cleanPath(ownFolder);
    const bool isNew = !QDir(folder).exists();
    if (!makeOwnerOnlyFolder(folder)) {
        qWarning() << "KnownSafes::create"
                   << "Can't create safe directory:" << folder;
        return nullptr;
    }
    auto safe = std::make_shared<GPMSafe>(m_environment);
    if (!safe->init(folder, password, name, hint)) {
        if (isNew)
            QDir().rmdir(folder);
        return nullptr;
    }
    remember(folder);
    return safe;
}

KnownSafes::Found KnownSafes::add(const QString &folder)
{
    if (!QDir(folder).exists())
        return Found::NotThere;
    if (!readDescription(*m_environment.files, folder))
        return Found::NoSafe;
    const bool known = !listed(folder).isEmpty();
    remember(folder);
    return known ? Found::KnownAlready : Found::Taken;
}

KnownSafes::Found KnownSafes::locate(const QString &goneFolder, const QString &folder)
{
    if (!QDir(folder).exists())
        return Found::NotThere;
    const auto description = readDescription(*m_environment.files, folder);
    if (!description)
        return Found::NoSafe;
    const qint64 created = m_facts.of(goneFolder).created;
    // Of a safe that was not opened since times were noted nothing is known that could be compared.
    if (created != 0 && created != description->created)
        return Found::AnotherSafe;
    m_facts.move(goneFolder, folder);
    dropFromList(goneFolder);
    remember(folder);
    return Found::Taken;
}

bool KnownSafes::rename(const QString &folder, const QString &name, GPMSafe *current)
{
    const std::shared_ptr<GPMSafe> closed = current ? nullptr : open(folder);
    GPMSafe *safe = current ? current : closed.get();
    // Saving would stop a change of the password, which writes the description, too.
    if (!safe || safe->isChangingPassword())
        return false;
    // A save that is under way would write the old name behind this.
    if (safe->isUnlocked())
        safe->saveChanges();
    const QString former = safe->name();
    safe->setName(name);
    if (!safe->writeMetaFile()) {
        safe->setName(former);
        return false;
    }
    m_facts.change(folder, [&name](SafeFact &fact) { fact.name = name; });
    Q_EMIT changed();
    return true;
}

void KnownSafes::remove(const QString &folder)
{
    const bool standard = isSameFolder(QFileInfo(folder).path(), m_safesFolder);
    if (!standard || !QDir(folder).exists()) {
        forget(folder);
        return;
    }
    // What lies there is listed by itself.
    m_facts.change(folder, [](SafeFact &fact) { fact.isHidden = true; });
    dropFromList(folder);
    m_settings.storeSettings();
    Q_EMIT changed();
}

void KnownSafes::beginDeletion(const QString &folder)
{
    m_beingDeleted.append(folder);
    Q_EMIT changed();
}

void KnownSafes::endDeletion(const QString &folder)
{
    m_beingDeleted.removeOne(folder);
    Q_EMIT changed();
}

bool KnownSafes::isBeingDeleted(const QString &folder) const
{
    return std::any_of(m_beingDeleted.begin(), m_beingDeleted.end(),
                       [&](const QString &other) { return isSameFolder(folder, other); });
}

void KnownSafes::forget(const QString &folder)
{
    dropFromList(folder);
    m_settings.storeSettings();
    m_facts.forget(folder);
    Q_EMIT changed();
}

void KnownSafes::dropFromList(const QString &folder)
{
    QStringList folders = m_settings.recentList();
    const auto gone = std::remove_if(folders.begin(), folders.end(), [&](const QString &other) {
        return isSameFolder(other, folder);
    });
    folders.erase(gone, folders.end());
    m_settings.setRecentList(folders);
}

std::unique_ptr<ArchiveTask> KnownSafes::importArchive(const QString &archivePath)
{
    const SafeEnvironment environment = m_environment;
    const QString safesFolder = m_safesFolder;
    auto task = std::make_unique<ArchiveTask>([=](WorkControl &control) {
        return SafeImport(environment, safesFolder).run(archivePath, control);
    });
    connect(task.get(), &ArchiveTask::finished, this, [this, started = task.get()] {
        if (started->result().good())
            remember(started->result().path);
    });
    return task;
}

QFuture<bool> KnownSafes::checkPassword(const QString &folder, const QString &password) const
{
    const auto secret = std::make_shared<const SecretBytes>(SecretBytes::fromText(password));
    return QtConcurrent::run([environment = m_environment, folder, secret] {
        FileLayer &files = *environment.files;
        std::optional<QByteArray> passId = files.read(SafeFolder(folder).path(SafeLayout::passId));
        if (!passId) {
            // An older safe has it in its description.
            const auto description = readDescription(files, folder);
            passId = description ? description->passId.toLatin1() : QByteArray();
        }
        return !passId->isEmpty() && checkPassId(secret->view(), QString::fromLatin1(*passId));
    });
}

std::shared_ptr<GPMSafe> KnownSafes::open(const QString &folder) const
{
    if (isBeingDeleted(folder))
        return nullptr;
    auto safe = std::make_shared<GPMSafe>(m_environment);
    return safe->open(folder) ? safe : nullptr;
}

void KnownSafes::remember(const QString &folder)
{
    // By the name that it has in the list already, which others may have kept.
    const QString known = listed(folder);
    dropFromList(folder);
    m_settings.setRecentList(QStringList{known.isEmpty() ? QDir::cleanPath(folder) : known} +
                             m_settings.recentList());
    m_settings.storeSettings();
    if (const auto description = readDescription(*m_environment.files, folder))
        m_facts.change(folder, [&description](SafeFact &fact) {
            fact.name = description->name;
            fact.created = description->created;
            fact.isHidden = false;
        });
    Q_EMIT changed();
}
