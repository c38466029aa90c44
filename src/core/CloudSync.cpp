#include "CloudSync.h"

#include "SafeCrypto.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QFutureWatcher>
#include <QtConcurrent>

#include <utility>

namespace {

const int secondsBetweenNotes = 3600;
const int longestFinishMs = 10000;

CloudStatus::State stateOf(SyncState state)
{
    using State = CloudStatus::State;
    switch (state) {
    case SyncState::Done:
        return State::Synchronised;
    case SyncState::Waiting:
        return State::Waiting;
    case SyncState::Busy:
        return State::Busy;
    case SyncState::NewPasswordNeeded:
        return State::NewPasswordNeeded;
    case SyncState::MirrorMissing:
        return State::FolderMissing;
    case SyncState::OtherSafe:
        return State::OtherSafe;
    case SyncState::MirrorNotWritten:
        return State::FolderNotWritten;
    case SyncState::SafeNotWritten:
        return State::SafeNotWritten;
    case SyncState::Cancelled:
        break;
    }
    return State::On;
}

bool opensPassId(FileLayer &files, const QString &folder, const SecretBytes &password)
{
    const auto passId = files.read(SafeFolder(folder).path(SafeLayout::passId));
    return passId && checkPassId(password.view(), QString::fromLatin1(*passId));
}

} // namespace

CloudSync::CloudSync(KnownSafes &safes, std::function<QString()> backupFolder,
                     GPMSafeSyncHelper::Pauses pauses, QObject *parent)
    : QObject(parent)
    , m_safes(safes)
    , m_facts(safes.facts())
    , m_environment(safes.environment())
    , m_backupFolder(std::move(backupFolder))
    , m_pauses(pauses)
    , m_removal(safes, m_worker)
    , m_news(2 * pauses.burstMs)
{
    m_worker.setMaxThreadCount(1);
    connect(&m_removal, &CloudRemoval::ended, this, &CloudSync::copyRemoved);
    connect(&m_news, &CloudNews::came, this, &CloudSync::itemsCame);
    connect(&m_facts, &SafeFacts::changed, this, &CloudSync::onFactsChanged);
    m_removal.resume();
}

CloudSync::~CloudSync()
{
    setSafe(nullptr);
}

template <typename Result>
void CloudSync::work(const std::function<Result()> &job,
                     const std::function<void(const Result &)> &then)
{
    auto *watcher = new QFutureWatcher<Result>(this);
    connect(watcher, &QFutureWatcher<Result>::finished, this, [watcher, then] {
        watcher->deleteLater();
        then(watcher->result());
    });
    watcher->setFuture(QtConcurrent::run(&m_worker, job));
}

void CloudSync::setSafe(const std::shared_ptr<GPMSafe> &safe)
{
    if (m_safe == safe)
        return;
    stopHelper();
    if (m_safe)
        m_safe->disconnect(this);
    m_safe = safe;
    if (!m_safe)
        return;
    connect(m_safe.get(), &GPMSafe::lockedChanged, this, &CloudSync::onLockedChanged);
    connect(m_safe.get(), &GPMSafe::passwordChangeProgress, this, &CloudSync::passwordProgress);
    connect(m_safe.get(), &GPMSafe::passwordChangeFinished, this, &CloudSync::onPasswordChanged);
    startHelper();
}

void CloudSync::startHelper()
{
    m_mirrorFolder = m_facts.of(m_safe->folder()).mirrorFolder;
    if (m_mirrorFolder.isEmpty())
        return;
    m_helper = std::make_unique<GPMSafeSyncHelper>(m_safe, m_mirrorFolder, m_environment, m_pauses);
    connect(m_helper.get(), &GPMSafeSyncHelper::started, this, &CloudSync::onStarted);
    connect(m_helper.get(), &GPMSafeSyncHelper::progress, this, &CloudSync::onProgress);
    connect(m_helper.get(), &GPMSafeSyncHelper::synchronized, this, &CloudSync::onMet);
    connect(m_helper.get(), &GPMSafeSyncHelper::newPasswordNeeded, this,
            &CloudSync::passwordNeeded);
}

void CloudSync::stopHelper()
{
    if (m_helper)
        noteMeeting(0);
    m_helper.reset();
    m_news.drop();
    m_mirrorFolder.clear();
    m_told = CloudStatus::State::Synchronised;
}

bool CloudSync::isCurrent(const QString &safeFolder) const
{
    return m_safe && m_facts.isSame(m_safe->folder(), safeFolder);
}

void CloudSync::onFactsChanged(const QString &safeFolder)
{
    if (isCurrent(safeFolder) && m_facts.of(safeFolder).mirrorFolder != m_mirrorFolder) {
        stopHelper();
        startHelper();
    }
    Q_EMIT statusChanged(safeFolder);
}

void CloudSync::onLockedChanged(bool locked)
{
    if (locked)
        m_news.drop();
    if (locked && m_helper)
        noteMeeting(0);
    tellChange();
}

void CloudSync::onStarted()
{
    m_done = 0;
    m_total = 0;
    tellChange();
}

void CloudSync::onProgress(int done, int total)
{
    m_done = done;
    m_total = total;
    tellChange();
}

void CloudSync::onMet(SyncState state)
{
    const SyncSummary met = m_helper->last();
    if (state == SyncState::Done || state == SyncState::Waiting)
        noteMeeting(met.received + met.removed + met.sent > 0 ? 0 : secondsBetweenNotes);
    m_news.add(met.received, met.removed);
    tellTrouble();
    tellChange();
}

void CloudSync::noteMeeting(int afterSeconds)
{
    const QDateTime met = m_helper->lastMet();
    const QDateTime noted = m_facts.of(m_safe->folder()).lastSynchronised;
    // A clock that was set back must not stop it.
    if (!met.isValid() || (noted.isValid() && qAbs(noted.secsTo(met)) < afterSeconds))
        return;
    m_facts.change(m_safe->folder(), [&met](SafeFact &fact) { fact.lastSynchronised = met; });
}

void CloudSync::tellTrouble()
{
    const CloudStatus now = status();
    if (now.state == CloudStatus::State::Synchronised || now.state == CloudStatus::State::Waiting)
        m_told = CloudStatus::State::Synchronised;
    // That a password is needed is asked, not told.
    if (!now.needsAttention() || now.state == CloudStatus::State::NewPasswordNeeded ||
        now.state == m_told)
        return;
    m_told = now.state;
    Q_EMIT troubled(now);
}

void CloudSync::tellChange()
{
    if (m_safe)
        Q_EMIT statusChanged(m_safe->folder());
}

CloudStatus CloudSync::status() const
{
    return m_safe ? status(m_safe->folder()) : CloudStatus();
}

CloudStatus CloudSync::status(const QString &safeFolder) const
{
    using State = CloudStatus::State;
    const SafeFact fact = m_facts.of(safeFolder);
    CloudStatus status;
    status.mirrorFolder = fact.mirrorFolder;
    status.last = fact.lastSynchronised;
    if (fact.mirrorFolder.isEmpty())
        return status;
    status.state = State::On;
    if (!m_helper || !isCurrent(safeFolder))
        return status;
    const SyncSummary &met = m_helper->last();
    if (m_helper->lastMet().isValid())
        status.last = m_helper->lastMet();
    if (met.time.isValid()) {
        status.state = stateOf(met.state);
        status.waiting = met.waiting;
    }
    if (m_helper->isRunning()) {
        // A trouble is not over because somebody looks again.
        if (!status.needsAttention())
            status.state = State::Running;
        status.done = m_done;
        status.total = m_total;
    }
    return status;
}

QVector<CloudSync::Mirrored> CloudSync::mirrorsOfOthers(const QString &safeFolder) const
{
    QVector<Mirrored> mirrors;
    const QStringList folders = m_facts.folders();
    for (const QString &folder : folders) {
        const QString mirror = m_facts.of(folder).mirrorFolder;
        if (!mirror.isEmpty() && !m_facts.isSame(folder, safeFolder))
            mirrors.append({folder, mirror});
    }
    return mirrors;
}

void CloudSync::turnOn(const QString &safeFolder, const QString &sharedFolder)
{
    const MirrorChoice::Wish wish{safeFolder,       0,  sharedFolder,
                                  m_backupFolder(), {}, m_removal.safeFolders()};
    const SafeEnvironment environment = m_environment;
    const QVector<Mirrored> others = mirrorsOfOthers(safeFolder);
    const auto prepare = [wish, environment, others] {
        MirrorChoice::Wish known = wish;
        for (const Mirrored &other : others) {
            if (QFileInfo(other.safe).isDir())
                known.taken.append(other.mirror);
        }
        const auto description = readDescription(*environment.files, wish.safeFolder);
        known.created = description ? description->created : 0;
        MirrorChoice choice = MirrorChoice::make(*environment.files, known);
        if (choice.good() &&
            !GPMSafeSyncHelper::enableSynchronization(*environment.files, choice.folder))
            choice.fault = MirrorChoice::Fault::NotWritable;
        // What it met in another mirror says nothing about this one.
        if (choice.good())
            environment.files->remove(SafeFolder(wish.safeFolder).path(SafeLayout::syncRecord));
        return choice;
    };
    work<MirrorChoice>(prepare, [this, safeFolder](const MirrorChoice &choice) {
        if (choice.good())
            join(safeFolder, choice.folder);
        Q_EMIT turnedOn(safeFolder, choice);
    });
}

void CloudSync::join(const QString &safeFolder, const QString &mirrorFolder)
{
    m_facts.change(safeFolder, [&mirrorFolder](SafeFact &fact) {
        fact.mirrorFolder = mirrorFolder;
        fact.leavingFolder.clear();
        fact.lastSynchronised = {};
    });
}

void CloudSync::turnOff(const QString &safeFolder, bool removeCopy)
{
    const QString mirror = m_facts.of(safeFolder).mirrorFolder;
    if (mirror.isEmpty())
        return;
    const bool isMeeting = isCurrent(safeFolder) && m_helper && m_helper->isRunning();
    const bool removes = removeCopy && m_removal.note(safeFolder, mirror);
    m_facts.change(safeFolder, [](SafeFact &fact) {
        fact.mirrorFolder.clear();
        fact.lastSynchronised = {};
    });
    if (removes && isMeeting)
        removeWhenMet(safeFolder);
    else if (removes)
        m_removal.begin(safeFolder);
    Q_EMIT turnedOff(safeFolder);
}

void CloudSync::removeWhenMet(const QString &safeFolder)
{
    // The meeting under way would put back what was removed.
    auto *waiting = new QObject(this);
    const auto remove = [this, waiting, safeFolder, safe = m_safe] {
        safe->disconnect(waiting);
        waiting->deleteLater();
        m_removal.begin(safeFolder);
    };
    connect(m_safe.get(), &GPMSafe::mirrorMet, waiting, remove);
    connect(m_safe.get(), &GPMSafe::lockSettled, waiting, remove);
}

void CloudSync::finish()
{
    if (!m_worker.waitForDone(longestFinishMs))
        qWarning() << "CloudSync::finish"
                   << "The cloud folder is not done yet.";
}

void CloudSync::synchronize()
{
    if (m_helper)
        m_helper->synchronize();
}

bool CloudSync::needsPassword() const
{
    return m_helper && m_safe->isUnlocked() && m_helper->state() == SyncState::NewPasswordNeeded;
}

void CloudSync::takePassword(const QString &password)
{
    if (!needsPassword()) {
        Q_EMIT passwordTaken(Taking::NotNeeded);
        return;
    }
    const auto secret = std::make_shared<const SecretBytes>(SecretBytes::fromText(password));
    const auto files = m_environment.files;
    work<bool>(
        [files, secret, mirror = m_mirrorFolder] { return opensPassId(*files, mirror, *secret); },
        [this, secret, safe = std::weak_ptr(m_safe), mirror = m_mirrorFolder](bool opens) {
            // Another safe may be the current one by now, which has another password.
            const bool isSame = m_safe && m_safe == safe.lock() && m_mirrorFolder == mirror;
            if (!isSame || !needsPassword())
                Q_EMIT passwordTaken(Taking::NotNeeded);
            else if (!opens)
                Q_EMIT passwordTaken(Taking::Wrong);
            else
                changePassword(*secret);
        });
}

void CloudSync::changePassword(const SecretBytes &password)
{
    QString text = QString::fromUtf8(password.data(), static_cast<int>(password.size()));
    m_isTaking = m_safe->changePasswordAsync(text, m_safe->hint());
    wipe(text);
    if (!m_isTaking)
        Q_EMIT passwordTaken(Taking::NotChanged);
}

void CloudSync::onPasswordChanged(PasswordChangeOutcome outcome)
{
    // The user may as well change it here.
    if (!std::exchange(m_isTaking, false))
        return;
    switch (outcome) {
    case PasswordChangeOutcome::Changed:
        Q_EMIT passwordTaken(Taking::Taken);
        break;
    case PasswordChangeOutcome::Busy:
        Q_EMIT passwordTaken(Taking::Busy);
        break;
    case PasswordChangeOutcome::Cancelled:
        Q_EMIT passwordTaken(Taking::NotNeeded);
        break;
    case PasswordChangeOutcome::Damaged:
    case PasswordChangeOutcome::NotWritten:
        Q_EMIT passwordTaken(Taking::NotChanged);
        break;
    }
}
