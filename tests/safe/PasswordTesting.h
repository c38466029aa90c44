#pragma once

#include "SafeTesting.h"

#include <QBuffer>
#include <QEventLoop>
#include <QLockFile>

#include <unistd.h>

const int itemCount = 6; // of the sample's 22, two of them attachments
const QString newPassword = "another password 2"_s;
const QString attachmentId = "00000000-0000-000b-0000-000000001234"_s;

struct Changed
{
    bool good = false;
    int operations = 0;
};

/// A change is cancelled as the first attachment begins to be written.
class CancellingFiles : public FileLayer
{
public:
    WorkControl control;
    qint64 written = -1; ///< bytes of that attachment

    bool write(const QString &path, const Produce &produce, QIODevice::OpenMode mode) override
    {
        if (!path.contains(QLatin1String("/attachment/")))
            return FileLayer::write(path, produce, mode);
        const auto cancelAndProduce = [&](QIODevice &device) {
            control.cancel();
            const bool good = produce(device);
            written = device.pos();
            return good;
        };
        return FileLayer::write(path, cancelAndProduce, mode);
    }
};

enum Way { AtOnce, OnTheWriter };

/// Starts a change and lets the event loop run until it has ended.
inline PasswordChangeOutcome changeOnWriter(GPMSafe &safe, const QString &password,
                                            const QString &hint)
{
    PasswordChangeOutcome outcome = PasswordChangeOutcome::Busy;
    QEventLoop loop;
    const auto connection = QObject::connect(&safe, &GPMSafe::passwordChangeFinished, &loop,
                                             [&](PasswordChangeOutcome result) {
                                                 outcome = result;
                                                 loop.quit();
                                             });
    if (!safe.changePasswordAsync(password, hint))
        qFatal("the change does not begin");
    loop.exec();
    QObject::disconnect(connection);
    return outcome;
}

/// Changes the password of the sample safe in a folder over files that fail.
inline Changed change(const QString &folder, const std::shared_ptr<FaultyFiles> &files,
                      Way way = AtOnce, RandomSource random = systemRandom, int lockWaitMs = 0)
{
    SafeEnvironment environment;
    environment.files = files;
    environment.random = std::move(random);
    environment.lockWaitMs = lockWaitMs;
    GPMSafe safe(environment);
    if (!safe.open(folder) || !safe.unlock(samplePassword))
        qFatal("the sample safe does not open");
    const bool good = way == AtOnce ? safe.changePassword(newPassword)
                                    : changeOnWriter(safe, newPassword, safe.hint()) ==
                                          PasswordChangeOutcome::Changed;
    // Whatever happened, the object in memory goes on under the password that is in force.
    if (!safe.isPassword(good ? newPassword : samplePassword) || safe.itemCount() != itemCount)
        qFatal("the open safe is not as the change left it");
    safe.lock();
    return {good, files->operations};
}

inline bool opensWhole(const QString &folder, const QString &password)
{
    GPMSafe safe;
    if (!safe.open(folder) || !safe.unlock(password) || safe.itemCount() != itemCount ||
        !safe.unreadableFiles().isEmpty())
        return false;
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    return safe.readAttachment(attachmentId, bytes) && bytes.size() > 12000 &&
           safe.item(attachmentId)->property("hash").toString().size() == 44;
}

inline bool tellsOfInterruption(const QString &folder, const QString &password)
{
    GPMSafe safe;
    return safe.open(folder) && safe.unlock(password) && safe.isChangeInterrupted();
}

inline int holdLock(const QString &folder)
{
    QLockFile lock(folder + "/.sourcelock"_s);
    if (!lock.lock())
        return 1;
    puts("held");
    fflush(stdout);
    for (;;)
        pause();
}

inline int changeAndDie(const QString &folder, int dieAt)
{
    auto files = std::make_shared<FaultyFiles>();
    files->failAt = dieAt;
    files->fault = [] { _exit(9); };
    change(folder, files, OnTheWriter);
    return 0;
}
