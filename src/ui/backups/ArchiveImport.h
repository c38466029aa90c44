#pragma once

#include "ArchiveTask.h"

#include <QPointer>

class KnownSafes;
class ProgressDialog;
class QWidget;
class Theme;

/// Makes a safe from an archive while a window shows how far it is, and says there how it ended.
/// Goes with the window that it is shown above.
class ArchiveImport : public QObject
{
    Q_OBJECT

public:
    /// @param window what it is shown above, and its owner
    /// @param name of the safe in the archive
    ArchiveImport(KnownSafes &safes, const QString &archive, const QString &name,
                  const Theme &theme, QWidget *window);

    /// Once.
    void start();

Q_SIGNALS:
    /// The user wants to go to the new safe.
    void safeChosen(const QString &folder);

private:
    void tellEnd();

    KnownSafes &m_safes;
    std::unique_ptr<ArchiveTask> m_task;
    QPointer<ProgressDialog> m_window;
};
