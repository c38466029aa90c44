// Drafts while the password of their safe is changed.

#include "DraftStore.h"

#include <QDebug>
#include <QtConcurrent>

#include <utility>

QFuture<bool> DraftStore::prepareChange(const Password &newPassword)
{
    if (!isOpen())
        return QtConcurrent::run(&m_worker, [] { return true; });
    m_next = {newPassword, std::make_shared<QSet<QString>>()};
    return QtConcurrent::run(
        &m_worker, [environment = m_environment, home = m_home, password = m_password,
                    next = m_next] { return prepare(environment, home, password->view(), next); });
}

bool DraftStore::prepare(const SafeEnvironment &environment, const QString &home,
                         const QByteArray &password, const Next &next)
{
    const QString folder = folderOf(environment, home);
    const QStringList list = names(folder, home);
    for (const QString &name : list) {
        const QString path = folder + QLatin1Char('/') + name;
        const std::optional<KeptDraft> draft = read(*environment.files, path, password);
        if (!draft)
            continue;
        if (!write(environment, path + nextEnding, next.password->view(), *draft)) {
            qWarning() << "DraftStore::prepareChange"
                       << "Can't write draft file:" << path + nextEnding;
            return false;
        }
        next.names->insert(name);
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
                      [files = m_environment.files, folder = m_folder, prepared = next.names] {
                          for (const QString &name : qAsConst(*prepared)) {
                              const QString path = folder + QLatin1Char('/') + name;
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
                      [files = m_environment.files, folder = m_folder, prepared = next.names] {
                          for (const QString &name : qAsConst(*prepared))
                              files->remove(folder + QLatin1Char('/') + name + nextEnding);
                      });
}
