#pragma once

#include "ArchiveResult.h"
#include "dialogs/FileChooser.h"

#include <QObject>
#include <QPointer>

#include <functional>

class GPMAppCore;
class ProgressDialog;
class Theme;

/// Writes safes into archives and makes safes from them, each with a window that shows how far it
/// is, can stop it and says how it ended.
class ArchiveDesk : public QObject
{
    Q_OBJECT

public:
    struct Ways
    {
        FileChooser choose;
        std::function<void(const QString &path)> showFolder;
        std::function<void(const QString &folder)> openSafe;
    };

    /// Everything outlives this.
    ArchiveDesk(GPMAppCore &core, const Theme &theme, QObject *parent = nullptr);

    void setWays(const Ways &ways) { m_ways = ways; }

    /// Asks for a place and writes the archive of a safe, open or not, there.
    void exportSafe(const QString &folder, const QString &name, QWidget *above);
    /// Asks for an archive and makes a safe from it. When none is open, the new one is chosen.
    void importArchive(QWidget *above);
    /// Makes a safe from a backup in the same way.
    void restore(const QString &archivePath, QWidget *above);

    /// The name proposed for the archive of a safe.
    static QString archiveName(const QString &safeName, const QDateTime &now);

Q_SIGNALS:
    /// @param folder that of the new safe
    void imported(const QString &folder);

private:
    ProgressDialog *showProgress(const QString &title, const QString &text, QWidget *above);
    void takeIn(const QString &archivePath, const QString &title, const QString &doing,
                QWidget *above);
    void tellExported(const ArchiveResult &result, const QString &name, ProgressDialog &progress);
    void tellImported(const ArchiveResult &result, const QString &fileName,
                      ProgressDialog &progress);

    GPMAppCore &m_core;
    const Theme &m_theme;
    Ways m_ways;
    QPointer<ProgressDialog> m_importing;
};
