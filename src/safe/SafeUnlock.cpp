#include "SafeUnlock.h"

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
        environment, folder.path(SafeLayout::content), QString::fromLatin1(*passId),
        std::make_shared<const SecretBytes>(SecretBytes::fromText(password)));
}

void SafeUnlock::logFailure(Outcome outcome, const SafeFolder &folder)
{
    if (outcome == Outcome::WrongPassword)
        qWarning() << operation << "Pass id doesn't match specified password";
    else if (outcome == Outcome::Unreadable)
        qWarning() << operation << "Can't read safe content directory:" << folder.root();
}

SafeUnlock::SafeUnlock(const SafeEnvironment &environment, const QString &contentFolder,
                       const QString &passId, std::shared_ptr<const SecretBytes> password)
    : m_environment(environment)
    , m_contentFolder(contentFolder)
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
    const std::optional<QStringList> names = itemFileNames(m_contentFolder);
    if (!names)
        return Outcome::Unreadable;
    const QFuture<LoadedFile> files =
        loadItemFiles(*names, m_contentFolder, m_password, m_environment.files);
    for (const LoadedFile &file : files)
        m_items.add(file);
    return Outcome::Unlocked;
}

void SafeUnlock::start()
{
    connect(&m_check, &QFutureWatcher<bool>::finished, this, &SafeUnlock::onChecked);
    const auto password = m_password;
    const QString passId = m_passId;
    m_check.setFuture(
        QtConcurrent::run([password, passId] { return checkPassId(password->view(), passId); }));
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
    else if (!m_check.result())
        Q_EMIT finished(Outcome::WrongPassword);
    else if (!startLoading())
        Q_EMIT finished(Outcome::Unreadable);
}

bool SafeUnlock::startLoading()
{
    const std::optional<QStringList> names = itemFileNames(m_contentFolder);
    if (!names)
        return false;
    connect(&m_load, &QFutureWatcher<LoadedFile>::resultReadyAt, this,
            [this](int index) { m_items.add(m_load.resultAt(index)); });
    connect(&m_load, &QFutureWatcher<LoadedFile>::progressValueChanged, this,
            [this](int done) { Q_EMIT progress(done, m_load.progressMaximum()); });
    connect(&m_load, &QFutureWatcher<LoadedFile>::finished, this, &SafeUnlock::onLoaded);
    m_load.setFuture(loadItemFiles(*names, m_contentFolder, m_password, m_environment.files));
    return true;
}

void SafeUnlock::onLoaded()
{
    Q_EMIT finished(m_cancelled ? Outcome::Cancelled : Outcome::Unlocked);
}
