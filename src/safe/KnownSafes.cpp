#include "KnownSafes.h"

#include "OwnerOnlyFile.h"
#include "SafeDescriptionFile.h"
#include "SafeImport.h"

#include <QDebug>
#include <QDir>
#include <QUuid>

#include <utility>

KnownSafes::KnownSafes(GPMAppSettings &settings, const QString &safesFolder,
                       SafeEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_safesFolder(safesFolder)
    , m_environment(std::move(environment))
{
}

QVector<KnownSafes::Entry> KnownSafes::entries() const
{
    QVector<Entry> list;
    const QStringList folders = m_settings.recentList() + unlistedFolders();
    for (const QString &folder : folders) {
        const auto description = readDescription(*m_environment.files, folder);
        Entry entry{folder, QDir(folder).dirName(), {}, description.has_value()};
        if (description) {
            entry.name = description->name;
            entry.hint = description->hint;
        }
        list.append(entry);
    }
    return list;
}

QStringList KnownSafes::unlistedFolders() const
{
    QStringList folders;
    const QStringList known = m_settings.recentList();
    const QDir standardPlace(m_safesFolder);
    const QStringList names = standardPlace.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        const QString folder = m_safesFolder + QLatin1Char('/') + name;
        if (!SafeImport::isUnfinished(name) && !known.contains(folder) &&
            SafeFolder(folder).holdsSafe())
            folders.append(folder);
    }
    return folders;
}

std::shared_ptr<GPMSafe> KnownSafes::create(const QString &name, const QString &password,
                                            const QString &hint)
{
    const QString folder =
        m_safesFolder + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::WithoutBraces);
    if (!makeOwnerOnlyFolder(folder)) {
        qWarning() << "KnownSafes::create"
                   << "Can't create safe directory:" << folder;
        return nullptr;
    }
    auto safe = std::make_shared<GPMSafe>(m_environment);
    if (!safe->init(folder, password, name, hint)) {
        QDir().rmdir(folder);
        return nullptr;
    }
    remember(folder);
    return safe;
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

std::shared_ptr<GPMSafe> KnownSafes::open(const QString &folder) const
{
    auto safe = std::make_shared<GPMSafe>(m_environment);
    return safe->open(folder) ? safe : nullptr;
}

void KnownSafes::remember(const QString &folder)
{
    QStringList folders = m_settings.recentList();
    folders.removeAll(folder);
    folders.prepend(folder);
    m_settings.setRecentList(folders);
    m_settings.storeSettings();
    Q_EMIT changed();
}
