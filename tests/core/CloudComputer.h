#pragma once

#include "CloudFolders.h"
#include "CloudSync.h"
#include "PMLogin.h"
#include "SafeTesting.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using State = CloudStatus::State;
const QString newPassword = "another password 2"_s;
const int quickly = 20000; // how long to wait for what comes at once
const GPMSafeSyncHelper::Pauses pauses{0, 3600000};

/// Writes into one folder fail while the disk is full, and reading one file waits.
class FullDisk : public FileLayer
{
public:
    QString folder;
    QString slowFile;
    QSemaphore ready;

    std::optional<QByteArray> read(const QString &path) override
    {
        if (!slowFile.isEmpty() && path == slowFile)
            ready.tryAcquire(1, quickly);
        return FileLayer::read(path);
    }

    bool write(const QString &path, const Produce &produce, QIODevice::OpenMode mode) override
    {
        return (folder.isEmpty() || !path.startsWith(folder)) &&
               FileLayer::write(path, produce, mode);
    }
    bool makeFolder(const QString &path) override
    {
        return (folder.isEmpty() || !path.startsWith(folder)) && FileLayer::makeFolder(path);
    }
};

/// What one computer has: its own settings and safes, and a cloud folder that it shares.
struct Computer
{
    QString home;
    QString cloud;
    std::shared_ptr<FullDisk> disk = std::make_shared<FullDisk>();
    SafeEnvironment world;
    GPMAppSettings settings;
    KnownSafes safes;
    CloudSync sync;
    CloudFolders folders;
    std::shared_ptr<GPMSafe> safe;

    Computer(const QString &place, const QString &cloudFolder, const QStringList &infoFiles = {})
        : home(place)
        , cloud(cloudFolder)
        , world{systemRandom, systemTime, disk, 1000, {}}
        , settings(home, home)
        , safes(settings, home + "/safes"_s, world)
        , sync(
              safes, [this] { return home + "/backup"_s; }, pauses)
        , folders(safes, infoFiles)
    {
    }

    void create()
    {
        safe = safes.create("Work"_s, samplePassword, {});
        sync.setSafe(safe);
    }
    MirrorChoice turnOn()
    {
        QSignalSpy done(&sync, &CloudSync::turnedOn);
        sync.turnOn(safe->folder(), cloud);
        return done.wait(quickly) ? done.first().at(1).value<MirrorChoice>() : MirrorChoice();
    }
    ArchiveResult import(const QString &mirror)
    {
        const std::unique_ptr<ArchiveTask> task = folders.importSafe(mirror);
        QSignalSpy done(task.get(), &ArchiveTask::finished);
        task->start();
        if (done.isEmpty())
            done.wait(quickly);
        if (task->result().good()) {
            safe = safes.open(task->result().path);
            sync.setSafe(safe);
        }
        return task->result();
    }
    QString add(const QString &title)
    {
        auto login = std::make_unique<PMLogin>();
        login->setTitle(title);
        const QString id = safe->addItem(std::move(login))->id();
        safe->saveChangesAsync();
        return id;
    }
    QString title(const QString &id) const
    {
        return safe->item(id) ? safe->item(id)->title() : QString();
    }
    State state() const { return sync.status().state; }
};
