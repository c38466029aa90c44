#pragma once

#include <QObject>
#include <QStringList>

class QFileSystemWatcher;
class QThread;

/// Tells when files in some folders change. It looks at them on a thread of its own, as those on a
/// network drive that has gone may hold who asks for minutes.
class FolderWatch : public QObject
{
    Q_OBJECT

public:
    explicit FolderWatch(QObject *parent = nullptr);
    /// Does not wait for a drive that does not answer.
    ~FolderWatch() override;

    /// Watches these folders. One that is not there is left out until the next call.
    void watch(const QStringList &folders);
    void stop();

Q_SIGNALS:
    void changed();

private:
    QThread *m_thread;
    QFileSystemWatcher *m_watcher; ///< lives on the thread
};
