#include "DraftStore.h"

#include "ItemFile.h"
#include "OwnerOnlyFile.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFutureWatcher>
#include <QRegularExpression>
#include <QUuid>
#include <QtConcurrent>

#include <utility>

namespace {

// The draft's own values travel in the document under a key that no version of it uses.
const QLatin1String draftKey("draft");
const QLatin1String newKeyName("new");
const QLatin1String baseKey("base");
/// Ends the name of a copy that is encrypted under the password to come.
const QLatin1String nextEnding(".next");

bool isKey(const QString &name)
{
    return !QUuid::fromString(name).isNull();
}

} // namespace

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

void DraftStore::open(const QString &safeId, const Password &password)
{
    m_password = password;
    m_failed = false;
    if (m_environment.draftsFolder.isEmpty())
        return;
    const QByteArray hash = QCryptographicHash::hash(safeId.toUtf8(), QCryptographicHash::Sha256);
    m_folder =
        m_environment.draftsFolder + QLatin1Char('/') + QString::fromLatin1(hash.toHex().left(32));
}

void DraftStore::close()
{
    m_worker.waitForDone();
    m_password.reset();
    m_next = {};
    m_folder.clear();
    ++m_session;
}

QString DraftStore::newKey()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QString DraftStore::filePath(const QString &key) const
{
    return m_folder + QLatin1Char('/') + key;
}

bool DraftStore::write(const SafeEnvironment &environment, const QString &path,
                       const QByteArray &password, const KeptDraft &draft)
{
    PMItemDocument document = draft.document;
    document.unknown.insert(
        draftKey, QJsonObject{{newKeyName, draft.isNew},
                              {baseKey, draft.baseModified.toUTC().toString(Qt::ISODateWithMs)}});
    return makeOwnerOnlyFolder(QFileInfo(path).path()) &&
           writeItemFile(environment, path, password, document);
}

bool DraftStore::writeBoth(const SafeEnvironment &environment, const QString &path,
                           const QByteArray &password, const Next &next, const KeptDraft &draft)
{
    if (next.password) {
        if (!write(environment, path + nextEnding, next.password->view(), draft))
            return false;
        next.keys->insert(draft.key);
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
    draft.baseModified =
        QDateTime::fromString(own.value(baseKey).toString(), Qt::ISODateWithMs).toUTC();
    return draft;
}

bool DraftStore::keep(const KeptDraft &draft)
{
    if (!isOpen())
        return false;
    m_worker.waitForDone();
    const QString path = filePath(draft.key);
    if (writeBoth(m_environment, path, m_password->view(), m_next, draft))
        return true;
    qWarning() << "DraftStore::keep"
               << "Can't write draft file:" << path;
    return false;
}

void DraftStore::keepAsync(const KeptDraft &draft)
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
    watcher->setFuture(QtConcurrent::run(&m_worker, [environment = m_environment, path,
                                                     password = m_password, next = m_next, draft] {
        return writeBoth(environment, path, password->view(), next, draft);
    }));
}

void DraftStore::remove(const QString &key)
{
    if (!isOpen())
        return;
    const QString path = filePath(key);
    QtConcurrent::run(&m_worker, [files = m_environment.files, path, prepared = m_next.keys, key] {
        if (prepared)
            prepared->remove(key);
        for (const QString &file : {path, path + nextEnding}) {
            if (!files->remove(file))
                qWarning() << "DraftStore::remove"
                           << "Can't remove draft file:" << file;
        }
    });
}

QStringList DraftStore::keys(const QString &folder)
{
    QStringList list;
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const QString key = name.endsWith(nextEnding) ? name.chopped(nextEnding.size()) : name;
        if (isKey(key) && !list.contains(key))
            list.append(key);
    }
    return list;
}

void DraftStore::loadAsync()
{
    if (!isOpen())
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
    watcher->setFuture(QtConcurrent::run(&m_worker, [environment = m_environment, folder = m_folder,
                                                     password = m_password,
                                                     changing = m_next.password != nullptr] {
        return load(environment, folder, password->view(), changing);
    }));
}

DraftStore::Loaded DraftStore::load(const SafeEnvironment &environment, const QString &folder,
                                    const QByteArray &password, bool changing)
{
    FileLayer &files = *environment.files;
    Loaded result;
    const QStringList names = QDir(folder).entryList(QDir::Files);
    for (const QString &name : names) {
        if (isInterruptedWrite(name))
            files.remove(folder + QLatin1Char('/') + name);
    }
    const QStringList list = keys(folder);
    for (const QString &key : list) {
        const QString path = folder + QLatin1Char('/') + key;
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
        draft->key = key;
        result.drafts.append(*draft);
    }
    return result;
}

QFuture<bool> DraftStore::prepareChange(const Password &newPassword)
{
    if (!isOpen())
        return QtConcurrent::run(&m_worker, [] { return true; });
    m_next = {newPassword, std::make_shared<QSet<QString>>()};
    return QtConcurrent::run(&m_worker, [environment = m_environment, folder = m_folder,
                                         password = m_password, next = m_next] {
        return prepare(environment, folder, password->view(), next);
    });
}

bool DraftStore::prepare(const SafeEnvironment &environment, const QString &folder,
                         const QByteArray &password, const Next &next)
{
    const QStringList list = keys(folder);
    for (const QString &key : list) {
        const QString path = folder + QLatin1Char('/') + key;
        const std::optional<KeptDraft> draft = read(*environment.files, path, password);
        if (!draft)
            continue;
        if (!write(environment, path + nextEnding, next.password->view(), *draft)) {
            qWarning() << "DraftStore::prepareChange"
                       << "Can't write draft file:" << path + nextEnding;
            return false;
        }
        next.keys->insert(key);
    }
    return true;
}

void DraftStore::commitChange()
{
    const Next next = std::exchange(m_next, {});
    if (!isOpen() || !next.password)
        return;
    m_password = next.password;
    QtConcurrent::run(&m_worker,
                      [files = m_environment.files, folder = m_folder, prepared = next.keys] {
                          for (const QString &key : qAsConst(*prepared)) {
                              const QString path = folder + QLatin1Char('/') + key;
                              // Where this fails, reading finds the copy.
                              if (!files->replace(path + nextEnding, path))
                                  qWarning() << "DraftStore::commitChange"
                                             << "Can't replace draft file:" << path;
                          }
                      });
}

void DraftStore::rollBackChange()
{
    const Next next = std::exchange(m_next, {});
    if (!isOpen() || !next.password)
        return;
    QtConcurrent::run(&m_worker,
                      [files = m_environment.files, folder = m_folder, prepared = next.keys] {
                          for (const QString &key : qAsConst(*prepared))
                              files->remove(folder + QLatin1Char('/') + key + nextEnding);
                      });
}
