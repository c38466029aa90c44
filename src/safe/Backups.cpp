#include "Backups.h"

#include "BackupSchedule.h"

#include <QtConcurrent>

#include <algorithm>
#include <utility>

namespace {

const int secondsAfterFailure = 60 * 60;
const int secondsAfterPostponing = 60;

bool hasState(const QVector<BackupJob::Result> &results, BackupJob::State state)
{
    return std::any_of(results.begin(), results.end(),
                       [state](const BackupJob::Result &result) { return result.state == state; });
}

} // namespace

Backups::Backups(GPMAppSettings &settings, const KnownSafes &safes, const QString &standardFolder,
                 SafeEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_safes(safes)
    , m_standardFolder(standardFolder)
    , m_environment(std::move(environment))
{
}

Backups::~Backups() = default;

void Backups::check()
{
    if (isRunning() || !m_settings.enableBackup() || isWaiting())
        return;
    if (isBackupDue(m_settings, m_environment.clock()))
        start(safeFolders());
    else if (!m_again.isEmpty())
        start(std::exchange(m_again, {}));
}

bool Backups::backUpNow()
{
    if (isRunning())
        return false;
    m_told.clear();
    start(safeFolders());
    return isRunning();
}

void Backups::cancel()
{
    if (m_task)
        m_task->cancel();
}

void Backups::stop()
{
    m_task.reset();
    waitBeforeNext(secondsAfterPostponing);
}

QString Backups::folder() const
{
    return m_settings.backupPath().isEmpty() ? m_standardFolder : m_settings.backupPath();
}

QDateTime Backups::next() const
{
    const QDateTime now = m_environment.clock();
    QDateTime next = nextBackup(m_settings, now);
    if (next.isValid() && !m_again.isEmpty())
        next = now;
    if (next.isValid() && isWaiting())
        next = std::max(next, m_waitUntil);
    return next.isValid() ? std::max(next, now) : next;
}

QFuture<BackupOverview> Backups::overview() const
{
    const std::shared_ptr<FileLayer> files = m_environment.files;
    const QString place = folder();
    const QStringList safes = safeFolders();
    return QtConcurrent::run([=] { return BackupOverview::read(*files, place, safes); });
}

QFuture<BackupOverview> Backups::archivesIn(const QString &folder) const
{
    const std::shared_ptr<FileLayer> files = m_environment.files;
    return QtConcurrent::run([=] { return BackupOverview::read(*files, folder, {}); });
}

QStringList Backups::safeFolders() const
{
    QStringList folders;
    const QVector<KnownSafes::Entry> entries = m_safes.entries();
    for (const KnownSafes::Entry &entry : entries)
        folders.append(entry.folder);
    return folders;
}

void Backups::start(const QStringList &safeFolders)
{
    if (safeFolders.isEmpty()) {
        waitBeforeNext(secondsAfterPostponing);
        return;
    }
    const BackupJob job{m_environment, folder(), m_settings.backupCount(), safeFolders,
                        this->safeFolders()};
    const auto results = std::make_shared<QVector<BackupJob::Result>>();
    m_task = std::make_unique<WorkerTask>(
        [job, results](WorkControl &control) { *results = job.run(control); });
    connect(m_task.get(), &WorkerTask::progress, this, &Backups::progress);
    connect(m_task.get(), &WorkerTask::finished, this, [this, results] { onFinished(*results); });
    Q_EMIT started();
    m_task->start();
}

void Backups::onFinished(const QVector<BackupJob::Result> &results)
{
    m_task.release()->deleteLater(); // its own signal led here
    using State = BackupJob::State;
    m_again.clear();
    for (const BackupJob::Result &result : results) {
        if (result.state == State::Failed || result.state == State::Postponed)
            m_again.append(result.folder);
    }
    // A run that brought nothing at all is due again, at the next start of the program too. The
    // safes that were left out of another are tried again alone: more runs for the rest would push
    // out the backups of earlier days.
    const bool reached = hasState(results, State::Written) || hasState(results, State::Unchanged);
    if (reached && !hasState(results, State::Cancelled)) {
        m_settings.setBackupCheck(m_environment.clock());
        m_settings.storeSettings();
    }
    if (hasState(results, State::Failed))
        waitBeforeNext(secondsAfterFailure);
    else if (!m_again.isEmpty() || !reached)
        waitBeforeNext(secondsAfterPostponing);
    m_lastResults = results;
    Q_EMIT finished(results);
    tellFailures(results);
}

void Backups::tellFailures(const QVector<BackupJob::Result> &results)
{
    QVector<BackupJob::Result> news;
    for (const BackupJob::Result &result : results) {
        using State = BackupJob::State;
        if (result.state == State::Written || result.state == State::Unchanged)
            m_told.remove(result.folder);
        if (result.state != State::Failed ||
            m_told.value(result.folder, ArchiveResult::Outcome::Done) == result.outcome)
            continue;
        m_told.insert(result.folder, result.outcome);
        news.append(result);
    }
    if (!news.isEmpty() && !m_shown)
        Q_EMIT failed(news);
}

void Backups::waitBeforeNext(int seconds)
{
    m_waitUntil = m_environment.clock().addSecs(seconds);
}

bool Backups::isWaiting() const
{
    const QDateTime now = m_environment.clock();
    // Longer than ever set: the clock was set back meanwhile.
    return m_waitUntil.isValid() && now < m_waitUntil &&
           now.secsTo(m_waitUntil) <= secondsAfterFailure;
}
