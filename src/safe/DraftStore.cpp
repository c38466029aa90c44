#include "DraftStore.h"

#include "FolderPath.h"
#include "ItemFile.h"
#include "LooseWork.h"
#include "OwnerOnlyFile.h"
#include "SafeFolder.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFutureWatcher>
#include <QHash>
#include <QUuid>
#include <QtConcurrent>

#include <atomic>
#include <utility>

namespace {

// The draft's own values travel in the document under a key that no version of it uses.
const QLatin1String draftKey("draft");
const QLatin1String newKeyName("new");
const QLatin1String baseKey("base");
const QLatin1String homeKey("home");

const int longestLookMs = 500;

/// Whether the name is that of a draft: its key, and by a number the folder of its safe.
bool isDraftName(const QString &name)
{
    const ItemFileName parts = ItemFileName::parse(name);
    return !QUuid::fromString(parts.id).isNull();
}

QString hashOf(const QString &text, int bytes)
{
    const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.left(bytes).toHex());
}

/// Copies of a safe in folders of one name share the folder of their drafts. A number, since what
/// an interrupted write leaves is known by its name.
QString suffixOf(const QString &home)
{
    return QLatin1Char('.') + QString::number(hashOf(keyOf(home), 3).toInt(nullptr, 16) + 1);
}

/// Whether a safe lies there, or a drive does not say so in a moment.
bool mayHoldSafe(const QString &home)
{
    const auto holds = std::make_shared<std::atomic<bool>>(true);
    LooseWork look;
    look.run([home, holds] { *holds = SafeFolder(home).holdsSafe(); }, [] {});
    look.waitForOne(longestLookMs);
    return *holds;
}

} // namespace

const QLatin1String DraftStore::nextEnding(".next");

DraftStore::DraftStore(SafeEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_environment(std::move(environment))
{
    m_worker.setMaxThreadCount(1);
}

DraftStore::~DraftStore()
{
    close();
}

QString DraftStore::folderOf(const SafeEnvironment &environment, const QString &home)
{
    return environment.draftsFolder + QLatin1Char('/') + hashOf(QDir(home).dirName(), 16);
}

void DraftStore::open(const QString &home, const Password &password)
{
    m_password = password;
    m_failed = false;
    if (m_environment.draftsFolder.isEmpty())
        return;
    m_home = home;
    m_folder = folderOf(m_environment, home);
}

void DraftStore::close()
{
    m_worker.waitForDone();
    m_password.reset();
    m_next = {};
    m_folder.clear();
    m_onceSaved.clear();
    m_isSealed = false;
    ++m_session;
}

void DraftStore::seal(bool sealed)
{
    m_isSealed = sealed;
    ++m_session;
}

QFuture<void> DraftStore::idle()
{
    return QtConcurrent::run(&m_worker, [] {});
}

QString DraftStore::newKey()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QString DraftStore::filePath(const QString &key) const
{
    return m_folder + QLatin1Char('/') + key + suffixOf(m_home);
}

bool DraftStore::write(const SafeEnvironment &environment, const QString &path,
                       const QByteArray &password, const KeptDraft &draft)
{
    PMItemDocument document = draft.document;
    document.unknown.insert(
        draftKey, QJsonObject{{newKeyName, draft.isNew},
                              {baseKey, draft.baseModified.toUTC().toString(Qt::ISODateWithMs)},
                              {homeKey, draft.home}});
    return makeOwnerOnlyFolder(QFileInfo(path).path()) &&
           writeItemFile(environment, path, password, document);
}

bool DraftStore::writeBoth(const SafeEnvironment &environment, const QString &path,
                           const QByteArray &password, const Next &next, const KeptDraft &draft)
{
    if (next.password) {
        if (!write(environment, path + nextEnding, next.password->view(), draft))
            return false;
        next.names->insert(QFileInfo(path).fileName());
    }
    return write(environment, path, password, draft);
}

std::optional<KeptDraft> DraftStore::read(FileLayer &files, const QString &path,
                                          const QByteArray &password)
{
    std::optional<PMItemDocument> document = readItemFile(files, path, password);
    if (!document || !document->unknown.value(draftKey).isObject())
        return std::nullopt;
    const QJsonObject own = document->unknown.take(draftKey).toObject();
    KeptDraft draft;
    draft.document = *document;
    draft.isNew = own.value(newKeyName).toBool();
    draft.home = own.value(homeKey).toString();
    draft.baseModified =
        QDateTime::fromString(own.value(baseKey).toString(), Qt::ISODateWithMs).toUTC();
    return draft;
}

bool DraftStore::keep(const KeptDraft &draft)
{
    if (!isForAll())
        return false;
    m_worker.waitForDone();
    // What is written on after a lock that did not come is not saved by the next one.
    m_onceSaved.removeAll(draft.key);
    const QString path = filePath(draft.key);
    if (writeBoth(m_environment, path, m_password->view(), m_next, ofHere(draft)))
        return true;
    qWarning() << "DraftStore::keep"
               << "Can't write draft file:" << path;
    return false;
}

void DraftStore::keepAsync(const KeptDraft &draft)
{
    if (!isForAll())
        return;
    m_onceSaved.removeAll(draft.key);
    keepUnsaved(draft);
}

void DraftStore::keepUnsaved(const KeptDraft &draft)
{
    if (!isOpen())
        return;
    const QString path = filePath(draft.key);
    auto *watcher = new QFutureWatcher<bool>(this);
    connect(watcher, &QFutureWatcher<bool>::finished, this, [this, watcher, path] {
        watcher->deleteLater();
        const bool failed = !watcher->result();
        if (std::exchange(m_failed, failed) || !failed)
            return;
        qWarning() << "DraftStore::keep"
                   << "Can't write draft file:" << path;
    });
    watcher->setFuture(
        QtConcurrent::run(&m_worker, [environment = m_environment, path, password = m_password,
                                      next = m_next, here = ofHere(draft)] {
            return writeBoth(environment, path, password->view(), next, here);
        }));
}

void DraftStore::remove(const QString &key)
{
    if (isForAll())
        removeFiles(key);
}

void DraftStore::removeSaved()
{
    const QStringList keys = std::exchange(m_onceSaved, {});
    for (const QString &key : keys)
        removeFiles(key);
}

void DraftStore::removeFiles(const QString &key)
{
    if (!isOpen())
        return;
    const QString path = filePath(key);
    QtConcurrent::run(&m_worker, [files = m_environment.files, path, prepared = m_next.names] {
        if (prepared)
            prepared->remove(QFileInfo(path).fileName());
        for (const QString &file : {path, path + nextEnding}) {
            if (!files->remove(file))
                qWarning() << "DraftStore::remove"
                           << "Can't remove draft file:" << file;
        }
    });
}

KeptDraft DraftStore::ofHere(const KeptDraft &draft) const
{
    KeptDraft here = draft;
    here.home = m_home;
    return here;
}

QStringList DraftStore::names(const QString &folder, const QString &home)
{
    QStringList list;
    const QString own = suffixOf(home);
    const QStringList files = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const QString name = file.endsWith(nextEnding) ? file.chopped(nextEnding.size()) : file;
        // Older ones do not name their safe.
        const bool isOwn = name.endsWith(own) || !name.contains(QLatin1Char('.'));
        if (isOwn && isDraftName(name) && !list.contains(name))
            list.append(name);
    }
    return list;
}

void DraftStore::removeAll(const SafeEnvironment &environment, const QString &home,
                           bool hasNamesake)
{
    if (environment.draftsFolder.isEmpty())
        return;
    const QString folder = folderOf(environment, home);
    const QString own = suffixOf(home);
    const QStringList list = names(folder, home);
    for (const QString &name : list) {
        if (hasNamesake && !name.endsWith(own))
            continue;
        for (const QString &file : {name, name + nextEnding}) {
            if (!environment.files->remove(folder + QLatin1Char('/') + file))
                qWarning() << "DraftStore::removeAll"
                           << "Can't remove draft file:" << folder + QLatin1Char('/') + file;
        }
    }
    QDir().rmdir(folder);
}

void DraftStore::loadAsync()
{
    if (!isForAll())
        return;
    auto *watcher = new QFutureWatcher<Loaded>(this);
    connect(watcher, &QFutureWatcher<Loaded>::finished, this, [this, watcher, session = m_session] {
        watcher->deleteLater();
        if (session != m_session)
            return;
        const Loaded result = watcher->result();
        for (const QString &path : result.unreadable)
            qWarning() << "DraftStore::load"
                       << "Can't read draft file:" << path;
        Q_EMIT loaded(result.drafts, result.unreadable);
    });
    watcher->setFuture(QtConcurrent::run(&m_worker, [environment = m_environment, home = m_home,
                                                     password = m_password,
                                                     changing = m_next.password != nullptr] {
        return load(environment, home, password->view(), changing);
    }));
}

DraftStore::Loaded DraftStore::load(const SafeEnvironment &environment, const QString &home,
                                    const QByteArray &password, bool changing)
{
    FileLayer &files = *environment.files;
    const QString folder = folderOf(environment, home);
    const QStringList all = QDir(folder).entryList(QDir::Files);
    for (const QString &name : all) {
        if (isInterruptedWrite(name))
            files.remove(folder + QLatin1Char('/') + name);
    }
    adoptMoved(environment, home, password);
    Loaded result;
    const QStringList list = names(folder, home);
    for (const QString &name : list) {
        const QString path = folder + QLatin1Char('/') + name;
        // A change of password that was interrupted leaves two: one of them opens.
        std::optional<KeptDraft> draft = read(files, path + nextEnding, password);
        if (draft) {
            files.replace(path + nextEnding, path);
        } else {
            draft = read(files, path, password);
            if (draft && !changing)
                files.remove(path + nextEnding);
        }
        if (!draft) {
            result.unreadable.append(path);
            continue;
        }
        draft->key = ItemFileName::parse(name).id;
        if (!name.endsWith(suffixOf(home)))
            files.replace(path, path + suffixOf(home));
        result.drafts.append(*draft);
    }
    return result;
}

/// Drafts of a safe that lay in another folder and is not there any more: it is this one.
void DraftStore::adoptMoved(const SafeEnvironment &environment, const QString &home,
                            const QByteArray &password)
{
    FileLayer &files = *environment.files;
    const QString folder = folderOf(environment, home);
    const QStringList own = names(folder, home);
    QHash<QString, bool> isTaken;
    const QStringList all = QDir(folder).entryList(QDir::Files);
    for (const QString &name : all) {
        if (own.contains(name) || !isDraftName(name))
            continue;
        const QString path = folder + QLatin1Char('/') + name;
        const std::optional<KeptDraft> draft = read(files, path, password);
        if (!draft)
            continue;
        if (!isTaken.contains(draft->home))
            isTaken.insert(draft->home, mayHoldSafe(draft->home));
        if (!isTaken.value(draft->home))
            files.replace(path, folder + QLatin1Char('/') + ItemFileName::parse(name).id +
                                    suffixOf(home));
    }
}
