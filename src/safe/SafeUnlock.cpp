#include "SafeUnlock.h"

#include "FolderPath.h"
#include "FormerPassword.h"
#include "SafeCrypto.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QtConcurrent>

#include <utility>

static const char operation[] = "GPMSafe::unlock";

void SafeUnlock::logFailure(Outcome outcome, const SafeFolder &folder)
{
    if (outcome == Outcome::WrongPassword || outcome == Outcome::FormerPassword ||
        outcome == Outcome::InterruptedChange || outcome == Outcome::MirrorPassword)
        qWarning() << operation << "Pass id doesn't match specified password";
    else if (outcome == Outcome::Unreadable)
        qWarning() << operation << "Can't read safe content directory:" << folder.root();
}

SafeUnlock::SafeUnlock(const SafeEnvironment &environment, const SafeFolder &folder,
                       const SafeDescription &description,
                       std::shared_ptr<const SecretBytes> password)
    : m_environment(environment)
    , m_folder(folder)
    , m_olderPassId(description.passId)
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
    m_checked = check(*m_environment.files, m_folder, {}, m_password->view(), m_olderPassId);
    if (m_checked.outcome != Outcome::Unlocked)
        return m_checked.outcome;
    const QFuture<LoadedFile> files = loadItemFiles(
        m_checked.fileNames, m_folder.path(SafeLayout::content), m_password, m_environment.files);
    for (const LoadedFile &file : files)
        m_items.add(file);
    return Outcome::Unlocked;
}

void SafeUnlock::start()
{
    connect(&m_check, &QFutureWatcher<Checked>::finished, this, &SafeUnlock::onChecked);
    // Nobody waits for it, as it may take long: it works on copies.
    m_check.setFuture(
        QtConcurrent::run([files = m_environment.files, folder = m_folder, mirror = m_mirrorFolder,
                           password = m_password, olderPassId = m_olderPassId] {
            return check(*files, folder, mirror, password->view(), olderPassId);
        }));
}

SafeUnlock::Checked SafeUnlock::check(FileLayer &files, const SafeFolder &folder,
                                      const QString &mirrorFolder, const QByteArray &password,
                                      const QString &olderPassId)
{
    if (password.isEmpty()) {
        qWarning() << operation << "Empty password are not allowed";
        return {};
    }
    std::optional<QByteArray> passId = files.read(folder.path(SafeLayout::passId));
    if (!passId && !olderPassId.isEmpty())
        passId = olderPassId.toLatin1();
    if (!passId) {
        qWarning() << operation << "Can't read pass id file:" << folder.path(SafeLayout::passId);
        return {};
    }
    if (!checkPassId(password, QString::fromLatin1(*passId)))
        return {whyNot(files, folder, mirrorFolder, password), {}, false, {}};
    const std::optional<QStringList> names = itemFileNames(folder.path(SafeLayout::content));
    if (!names)
        return {};
    const auto former = files.read(folder.path(SafeLayout::passIdBackup));
    return {Outcome::Unlocked, *names, former && former != passId, canonicalFolder(folder.root())};
}

SafeUnlock::Outcome SafeUnlock::whyNot(FileLayer &files, const SafeFolder &folder,
                                       const QString &mirrorFolder, const QByteArray &password)
{
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
    if (m_cancelled) {
        Q_EMIT finished(Outcome::Cancelled);
        return;
    }
    m_checked = m_check.result();
    if (m_checked.outcome != Outcome::Unlocked) {
        Q_EMIT finished(m_checked.outcome);
        return;
    }
    connect(&m_load, &QFutureWatcher<LoadedFile>::resultReadyAt, this,
            [this](int index) { m_items.add(m_load.resultAt(index)); });
    connect(&m_load, &QFutureWatcher<LoadedFile>::progressValueChanged, this,
            [this](int done) { Q_EMIT progress(done, m_load.progressMaximum()); });
    connect(&m_load, &QFutureWatcher<LoadedFile>::finished, this, &SafeUnlock::onLoaded);
    m_load.setFuture(loadItemFiles(m_checked.fileNames, m_folder.path(SafeLayout::content),
                                   m_password, m_environment.files));
}

void SafeUnlock::onLoaded()
{
    Q_EMIT finished(m_cancelled ? Outcome::Cancelled : Outcome::Unlocked);
}
