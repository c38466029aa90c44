#include "FolderWatch.h"

#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QThread>

namespace {

const int longestWaitMs = 500;

void look(QFileSystemWatcher &watcher, const QStringList &folders)
{
    const QStringList watched = watcher.directories();
    for (const QString &folder : folders) {
        if (!watched.contains(folder) && QFileInfo(folder).isDir())
            watcher.addPath(folder);
    }
}

void lookAway(QFileSystemWatcher &watcher)
{
    if (!watcher.directories().isEmpty())
        watcher.removePaths(watcher.directories());
}

} // namespace

FolderWatch::FolderWatch(QObject *parent)
    : QObject(parent)
    , m_thread(new QThread)
    , m_watcher(new QFileSystemWatcher)
{
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &FolderWatch::changed);
    connect(m_watcher, &QFileSystemWatcher::fileChanged, this, &FolderWatch::changed);
    m_watcher->moveToThread(m_thread);
    connect(m_thread, &QThread::finished, m_watcher, &QObject::deleteLater);
    m_thread->start();
}

FolderWatch::~FolderWatch()
{
    m_watcher->disconnect(this);
    m_thread->quit();
    if (m_thread->wait(longestWaitMs))
        delete m_thread;
    else
        connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
}

void FolderWatch::watch(const QStringList &folders)
{
    QMetaObject::invokeMethod(
        m_watcher, [watcher = m_watcher, folders] { look(*watcher, folders); },
        Qt::QueuedConnection);
}

void FolderWatch::stop()
{
    QMetaObject::invokeMethod(
        m_watcher, [watcher = m_watcher] { lookAway(*watcher); }, Qt::QueuedConnection);
}
