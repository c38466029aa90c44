#include "SafeUnlock.h"

#include "FormerPassword.h"
#include "SafeCrypto.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QtConcurrent>

#include <utility>

static const char operation[] = "GPMSafe::unlock";

std::unique_ptr<SafeUnlock> SafeUnlock::make(const SafeEnvironment &environment,
                                             const SafeFolder &folder,
                                             const SafeDescription &description,
                                             const QString &password)
{
    if (password.isEmpty()) {
        qWarning() << operation << "Empty password are not allowed";
        return nullptr;
    }
    std::optional<QByteArray> passId = environment.files->read(folder.path(SafeLayout::passId));
    if (!passId && !description.passId.isEmpty())
        passId = description.passId.toLatin1();
    if (!passId) {
        qWarning() << operation << "Can't read pass id file:" << folder.path(SafeLayout::passId);
        return nullptr;
    }
    return std::make_unique<SafeUnlock>(
        environment, folder, QString::fromLatin1(*passId),
        std::make_shared<const SecretBytes>(SecretBytes::fromText(password)));
}

void SafeUnlock::logFailure(Outcome outcome, const SafeFolder &folder)
{
    if (outcome == Outcome::WrongPassword || outcome == Outcome::FormerPassword ||
        outcome == Outcome::InterruptedChange || outcome == Outcome::MirrorPassword)
        qWarning() << operation << "Pass id doesn't match specified password";
    else if (outcome == Outcome::Unreadable)
        qWarning() << operation << "Can't read safe content directory:" << folder.root();
}

SafeUnlock::SafeUnlock(const SafeEnvironment &environment, const SafeFolder &folder,
                       const QString &passId, std::shared_ptr<const SecretBytes> password)
    : m_environment(environment)
    , m_folder(folder)
    , m_passId(passId)
    , m_password(std::move(password))
{
}

SafeUnlock::~SafeUnlock()
{
    m_check.disconnect(this);
    m_load.disconnect(this);
    m_load.cancel();
    m_load.waitForFinished();
}

SafeUnlock::Outcome SafeUnlock::run()
{
    if (!checkPassId(m_password->view(), m_passId))
        return Outcome::WrongPassword;
    const std::optional<QStringList> names = itemFileNames(m_folder.path(SafeLayout::content));
    if (!names)
        return Outcome::Unreadable;
    const QFuture<LoadedFile> files =
        loadItemFiles(*names, m_folder.path(SafeLayout::content), m_password, m_environment.files);
    for (const LoadedFile &file : files)
        m_items.add(file);
    return Outcome::Unlocked;
}

void SafeUnlock::start()
{
    connect(&m_check, &QFutureWatcher<bool>::finished, this, &SafeUnlock::onChecked);
    // Nobody waits for it, as it may take long: it works on copies.
    m_check.setFuture(
        QtConcurrent::run([files = m_environment.files, folder = m_folder, mirror = m_mirrorFolder,
                           password = m_password, passId = m_passId] {
            return check(*files, folder, mirror, password->view(), passId);
        }));
}

SafeUnlock::Outcome SafeUnlock::check(FileLayer &files, const SafeFolder &folder,
                                      const QString &mirrorFolder, const QByteArray &password,
                                      const QString &passId)
{
    if (checkPassId(password, passId))
        return Outcome::Unlocked;
    switch (formerPassword(files, folder, password)) {
    case FormerPassword::No:
        break;
    case FormerPassword::Former:
        return Outcome::FormerPassword;
    case FormerPassword::Interrupted:
        return Outcome::InterruptedChange;
    }
    if (mirrorFolder.isEmpty())
        return Outcome::WrongPassword;
    const auto mirrored = files.read(SafeFolder(mirrorFolder).path(SafeLayout::passId));
    return mirrored && checkPassId(password, QString::fromLatin1(*mirrored))
               ? Outcome::MirrorPassword
               : Outcome::WrongPassword;
}

void SafeUnlock::cancel()
{
    m_cancelled = true;
    m_load.cancel();
}

void SafeUnlock::onChecked()
{
    if (m_cancelled)
        Q_EMIT finished(Outcome::Cancelled);
    else if (m_check.result() != Outcome::Unlocked)
        Q_EMIT finished(m_check.result());
    else if (!startLoading())
        Q_EMIT finished(Outcome::Unreadable);
}

bool SafeUnlock::startLoading()
{
    const std::optional<QStringList> names = itemFileNames(m_folder.path(SafeLayout::content));
    if (!names)
        return false;
    connect(&m_load, &QFutureWatcher<LoadedFile>::resultReadyAt, this,
            [this](int index) { m_items.add(m_load.resultAt(index)); });
    connect(&m_load, &QFutureWatcher<LoadedFile>::progressValueChanged, this,
            [this](int done) { Q_EMIT progress(done, m_load.progressMaximum()); });
    connect(&m_load, &QFutureWatcher<LoadedFile>::finished, this, &SafeUnlock::onLoaded);
    m_load.setFuture(
        loadItemFiles(*names, m_folder.path(SafeLayout::content), m_password, m_environment.files));
    return true;
}

void SafeUnlock::onLoaded()
{
    Q_EMIT finished(m_cancelled ? Outcome::Cancelled : Outcome::Unlocked);
}
