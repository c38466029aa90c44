#include "CloudFolders.h"

#include "FolderPath.h"
#include "MirrorImport.h"
#include "SafeDescriptionFile.h"

#include <QFileInfo>
#include <QSet>
#include <QtConcurrent>

#include <algorithm>

namespace {

struct Question
{
    QStringList infoFiles;
    QStringList shared;    ///< besides the provider's folders
    QStringList safes;     ///< folders of the known safes
    QSet<qint64> known;    ///< when those were created that have not answered yet
    bool isUnsure = false; ///< of one of these that is not noted
};

bool isThere(const QString &folder, const QStringList &folders)
{
    return std::any_of(folders.begin(), folders.end(),
                       [&folder](const QString &other) { return isSameFolder(folder, other); });
}

CloudFolders::Found search(FileLayer &files, const Question &question)
{
    CloudFolders::Found found;
    found.accounts = providerFolders(files, question.infoFiles);
    QStringList places;
    for (const SyncFolder &account : std::as_const(found.accounts))
        places.append(account.path);
    for (const QString &folder : question.shared) {
        if (QFileInfo(folder).isDir() && !isThere(folder, places)) {
            places.append(folder);
            found.others.append(folder);
        }
    }
    // Any of them might be the one that has not answered.
    if (question.isUnsure)
        return found;
    QSet<qint64> known = question.known;
    for (const QString &safe : question.safes) {
        if (const auto description = readDescription(files, safe))
            known.insert(description->created);
    }
    for (const QString &place : std::as_const(places)) {
        const QVector<MirroredSafe> safes = mirroredSafes(files, place);
        for (const MirroredSafe &safe : safes) {
            // One that is mirrored at two places is offered once.
            if (known.contains(safe.created) || isThere(safe.path, question.safes))
                continue;
            known.insert(safe.created);
            found.offers.append(safe);
        }
    }
    return found;
}

} // namespace

CloudFolders::CloudFolders(KnownSafes &safes, const QStringList &infoFiles, QObject *parent)
    : QObject(parent)
    , m_safes(safes)
    , m_infoFiles(infoFiles)
{
    connect(&m_watcher, &QFutureWatcher<Found>::finished, this, [this] {
        m_found = m_watcher.result();
        Q_EMIT changed();
        if (std::exchange(m_onceMore, false))
            look();
    });
    connect(&m_safes, &KnownSafes::changed, this, &CloudFolders::look);
}

CloudFolders::~CloudFolders()
{
    m_watcher.disconnect(this);
    m_watcher.waitForFinished();
}

QStringList CloudFolders::sharedFolders() const
{
    QStringList folders = m_named;
    const QStringList safes = m_safes.facts().folders();
    for (const QString &safe : safes) {
        const QString mirror = m_safes.facts().of(safe).mirrorFolder;
        if (!mirror.isEmpty())
            folders.append(QFileInfo(mirror).path());
    }
    folders.removeDuplicates();
    return folders;
}

void CloudFolders::look()
{
    if (isLooking()) {
        m_onceMore = true;
        return;
    }
    Question question{m_infoFiles, sharedFolders(), {}, {}, false};
    const QVector<KnownSafes::Entry> entries = m_safes.entries();
    for (const KnownSafes::Entry &entry : entries) {
        if (entry.available)
            question.safes.append(entry.folder);
        // The search would wait for its drive.
        else if (entry.looking)
            question.known.insert(m_safes.facts().of(entry.folder).created);
    }
    question.isUnsure = question.known.remove(0);
    const QStringList folders = m_safes.facts().folders();
    for (const QString &folder : folders) {
        // One that was taken off the list is still there.
        if (m_safes.facts().of(folder).isHidden)
            question.safes.append(folder);
    }
    m_watcher.setFuture(QtConcurrent::run(
        [question, files = m_safes.environment().files] { return search(*files, question); }));
}

void CloudFolders::add(const QString &folder)
{
    if (!m_named.contains(folder))
        m_named.append(folder);
    look();
}

std::unique_ptr<ArchiveTask> CloudFolders::importSafe(const QString &mirrorFolder)
{
    const SafeEnvironment environment = m_safes.environment();
    const QString safesFolder = m_safes.safesFolder();
    auto task = std::make_unique<ArchiveTask>([=](WorkControl &control) {
        return MirrorImport(environment, safesFolder).run(mirrorFolder, control);
    });
    connect(task.get(), &ArchiveTask::finished, this, [this, mirrorFolder, started = task.get()] {
        const ArchiveResult &result = started->result();
        if (!result.good())
            return;
        m_safes.facts().change(
            result.path, [&mirrorFolder](SafeFact &fact) { fact.mirrorFolder = mirrorFolder; });
        m_safes.remember(result.path);
    });
    return task;
}
