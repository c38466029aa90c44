#include "KnownSafes.h"

#include "FolderPath.h"
#include "OwnerOnlyFile.h"
#include "SafeCrypto.h"
#include "SafeDescriptionFile.h"
#include "SafeImport.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QDir>
#include <QSet>
#include <QUuid>
#include <QtConcurrent>

#include <algorithm>
#include <utility>

bool KnownSafes::Entry::operator==(const Entry &other) const
{
    return folder == other.folder && name == other.name && hint == other.hint &&
           available == other.available && looking == other.looking && onDrive == other.onDrive;
}

KnownSafes::KnownSafes(GPMAppSettings &settings, const QString &safesFolder,
                       SafeEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_environment(std::move(environment))
    , m_facts(QFileInfo(settings.filePath()).path() + QStringLiteral("/safes.json"))
    , m_looks(m_environment.files, safesFolder)
{
    m_facts.expect(safesFolder);
    m_telling.setSingleShot(true);
    m_telling.setInterval(0);
    connect(&m_telling, &QTimer::timeout, this, &KnownSafes::tellNews);
    connect(&m_looks, &SafeLooks::answered, this,
            [this](const QString &folder, const QString &canonical) {
                m_facts.learn(folder, canonical);
                m_telling.start();
                Q_EMIT answered(folder);
            });
    lookAnew();
}

void KnownSafes::lookAnew() const
{
    const QStringList places = m_settings.recentList() + QStringList{m_looks.safesFolder()};
    for (const QString &folder : places) {
        m_facts.expect(folder);
        m_looks.look(folder);
    }
}

QVector<KnownSafes::Entry> KnownSafes::entries() const
{
    QStringList unknown = m_settings.recentList() + QStringList{m_looks.safesFolder()};
    unknown.erase(std::remove_if(unknown.begin(), unknown.end(),
                                 [this](const QString &folder) { return m_looks.at(folder); }),
                  unknown.end());
    lookAnew();
    m_looks.await(unknown, m_environment.lookWaitMs);
    return knownEntries();
}

void KnownSafes::tell()
{
    m_told = knownEntries();
    Q_EMIT changed();
}

void KnownSafes::tellNews()
{
    if (knownEntries() != m_told)
        tell();
}

/// For a folder that the user has just pointed to, or that was just made.
SafeLook KnownSafes::lookNow(const QString &folder)
{
    const SafeLook look = lookAtSafe(*m_environment.files, folder);
    m_facts.learn(folder, look.canonical);
    m_looks.learn(folder, look);
    return look;
}

QVector<KnownSafes::Entry> KnownSafes::knownEntries() const
{
    QVector<Entry> list;
    const QStringList folders = listedFolders() + unlistedFolders();
    for (const QString &folder : folders) {
        if (isBeingDeleted(folder))
            continue;
        Entry entry;
        entry.folder = folder;
        entry.name = m_facts.of(folder).name;
        const SafeLook *look = m_looks.at(folder);
        entry.looking = !look;
        entry.onDrive = look && look->place == SafePlace::DriveGone;
        if (look && look->description) {
            entry.available = true;
            entry.name = look->description->name;
            entry.hint = look->description->hint;
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
        const QString key = m_facts.keys().key(folder);
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
        known.insert(m_facts.keys().key(folder));
    for (const QString &folder : m_looks.foundInPlace()) {
        if (!known.contains(m_facts.keys().key(folder)) && !m_facts.of(folder).isHidden)
            folders.append(folder);
    }
    return folders;
}

QString KnownSafes::listed(const QString &folder) const
{
    const QStringList folders = listedFolders() + unlistedFolders();
    const auto same = std::find_if(folders.begin(), folders.end(), [&](const QString &other) {
        return m_facts.isSame(folder, other);
    });
    return same == folders.end() ? QString() : *same;
}

bool KnownSafes::hasNamesake(const QString &folder) const
{
    const QStringList folders = listedFolders() + unlistedFolders();
    return std::any_of(folders.begin(), folders.end(), [&](const QString &other) {
        return QDir(other).dirName() == QDir(folder).dirName() && !m_facts.isSame(folder, other);
    });
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
            ? safesFolder() + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::WithoutBraces)
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

void KnownSafes::remove(const QString &folder)
{
    const SafeLook *look = m_looks.at(folder);
    const bool gone =
        look && (look->place == SafePlace::FolderGone || look->place == SafePlace::DriveGone);
    if (!isInPlace(folder) || gone) {
        forget(folder);
        return;
    }
    // What lies there is listed by itself.
    m_facts.change(folder, [](SafeFact &fact) { fact.isHidden = true; });
    dropFromList(folder);
    m_settings.storeSettings();
    tell();
}

bool KnownSafes::isInPlace(const QString &folder) const
{
    // By the paths alone: a drive that does not answer can be taken off the list, too.
    const QStringList places{m_facts.keys().key(safesFolder()),
                             keyOf(QDir::cleanPath(safesFolder()))};
    return places.contains(keyOf(QFileInfo(QDir::cleanPath(folder)).path())) ||
           places.contains(keyOf(QFileInfo(m_facts.keys().canonical(folder)).path()));
}

void KnownSafes::beginDeletion(const QString &folder)
{
    m_beingDeleted.append(folder);
    tell();
}

void KnownSafes::endDeletion(const QString &folder)
{
    m_beingDeleted.removeOne(folder);
    tell();
}

bool KnownSafes::isBeingDeleted(const QString &folder) const
{
    return std::any_of(m_beingDeleted.begin(), m_beingDeleted.end(),
                       [&](const QString &other) { return m_facts.isSame(folder, other); });
}

void KnownSafes::forget(const QString &folder)
{
    dropFromList(folder);
    m_settings.storeSettings();
    m_facts.forget(folder);
    m_looks.forget(folder);
    tell();
}

void KnownSafes::dropFromList(const QString &folder)
{
    QStringList folders = m_settings.recentList();
    const auto gone = std::remove_if(folders.begin(), folders.end(), [&](const QString &other) {
        return m_facts.isSame(other, folder);
    });
    folders.erase(gone, folders.end());
    m_settings.setRecentList(folders);
}

std::unique_ptr<ArchiveTask> KnownSafes::importArchive(const QString &archivePath)
{
    const SafeEnvironment environment = m_environment;
    const QString place = safesFolder();
    auto task = std::make_unique<ArchiveTask>([=](WorkControl &control) {
        return SafeImport(environment, place).run(archivePath, control);
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
    if (folder.isEmpty() || isBeingDeleted(folder))
        return nullptr;
    m_facts.expect(folder);
    return make(folder, m_looks.fresh(folder, m_environment.lookWaitMs));
}

std::shared_ptr<GPMSafe> KnownSafes::openAsFound(const QString &folder) const
{
    const SafeLook *look = m_looks.at(folder);
    return look && look->isHere() && !isBeingDeleted(folder) ? make(folder, look) : open(folder);
}

std::shared_ptr<GPMSafe> KnownSafes::make(const QString &folder, const SafeLook *look) const
{
    auto safe = std::make_shared<GPMSafe>(m_environment);
    return look && look->isHere() && safe->open(folder, *look->description) ? safe : nullptr;
}

void KnownSafes::remember(const QString &folder)
{
    // What is not known yet was just made or chosen.
    const SafeLook *known = m_looks.at(folder);
    const SafeLook look = known && known->isHere() ? *known : lookNow(folder);
    // By the name that it has in the list already, which others may have kept.
    const QString former = listed(folder);
    const QString name = former.isEmpty() ? QDir::cleanPath(folder) : former;
    dropFromList(folder);
    m_settings.setRecentList(QStringList{name} + m_settings.recentList());
    m_settings.storeSettings();
    m_facts.learn(name, look.canonical);
    m_looks.learn(name, look);
    if (look.description)
        m_facts.change(folder, [&look](SafeFact &fact) {
            fact.name = look.description->name;
            fact.created = look.description->created;
            fact.isHidden = false;
        });
    tell();
}
