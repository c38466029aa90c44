#include "CloudRemoval.h"

#include "MirrorRemoval.h"

#include <QFutureWatcher>
#include <QtConcurrent>

#include <algorithm>

CloudRemoval::CloudRemoval(KnownSafes &safes, QThreadPool &worker, QObject *parent)
    : QObject(parent)
    , m_safes(safes)
    , m_facts(safes.facts())
    , m_worker(worker)
{
}

QStringList CloudRemoval::safeFolders() const
{
    QStringList folders;
    const QVector<KnownSafes::Entry> entries = m_safes.entries();
    for (const KnownSafes::Entry &entry : entries)
        folders.append(entry.folder);
    return folders + m_facts.folders();
}

bool CloudRemoval::note(const QString &safeFolder, const QString &mirrorFolder)
{
    const SafeLook *look = m_safes.lookAt(safeFolder);
    if (!look || !look->isHere())
        return false;
    m_facts.change(safeFolder, [&](SafeFact &fact) {
        fact.created = look->description->created;
        fact.leavingFolder = mirrorFolder;
    });
    return true;
}

void CloudRemoval::begin(const QString &safeFolder)
{
    remove(safeFolder, true);
}

void CloudRemoval::resume()
{
    const QStringList folders = m_facts.folders();
    for (const QString &folder : folders)
        remove(folder, false);
}

/// A safe may be mirrored there again by now.
bool CloudRemoval::isUsed(const QString &mirrorFolder) const
{
    const QStringList folders = m_facts.folders();
    return std::any_of(folders.begin(), folders.end(), [&](const QString &folder) {
        return m_facts.of(folder).mirrorFolder == mirrorFolder;
    });
}

void CloudRemoval::strike(const QString &safeFolder, const QString &mirrorFolder)
{
    m_facts.change(safeFolder, [&mirrorFolder](SafeFact &fact) {
        if (fact.leavingFolder == mirrorFolder)
            fact.leavingFolder.clear();
    });
}

void CloudRemoval::remove(const QString &safeFolder, bool tellsSuccess)
{
    const SafeFact fact = m_facts.of(safeFolder);
    const QString mirror = fact.leavingFolder;
    if (mirror.isEmpty() || isUsed(mirror))
        return;
    auto *watcher = new QFutureWatcher<bool>(this);
    connect(watcher, &QFutureWatcher<bool>::finished, this, [=] {
        watcher->deleteLater();
        strike(safeFolder, mirror);
        if (tellsSuccess || !watcher->result())
            Q_EMIT ended(mirror, watcher->result());
    });
    const std::shared_ptr<FileLayer> files = m_safes.environment().files;
    const QStringList safes = safeFolders();
    watcher->setFuture(QtConcurrent::run(
        &m_worker, [=] { return removeMirror(*files, mirror, fact.created, safes); }));
}
