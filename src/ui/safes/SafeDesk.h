#pragma once

#include "KnownSafes.h"
#include "SafeRemoval.h"
#include "SafesDialog.h"
#include "dialogs/FileChooser.h"
#include "dialogs/Question.h"

#include <QObject>
#include <QPointer>

#include <functional>

class ArchiveDesk;
class ProgressDialog;

/// Opens the list of safes and does what is asked for in it and in the menu of the open safe.
class SafeDesk : public QObject
{
    Q_OBJECT

public:
    /// How the user is asked and shown things.
    struct Ways
    {
        Asker ask;
        FileChooser choose;
        std::function<void(const QString &path)> showFolder; ///< in the system's own window
    };

    /// What the window does for it.
    struct Window
    {
        QWidget *widget = nullptr;
        /// Locks the open safe, after questions about what is edited; false when the user does not
        /// want that.
        std::function<bool()> leaveSafe;
        std::function<void(const QString &folder)> openSafe;
        std::function<void()> createSafe;
    };

    /// Everything outlives this.
    SafeDesk(GPMAppCore &core, const Theme &theme, QObject *parent = nullptr);
    ~SafeDesk() override;

    /// The window that the others belong to; another one takes the place of the former, and its
    /// windows go.
    void setWindow(const Window &window, const Ways &ways);
    void setCloudOffers(const CloudOffers &offers) { m_offers = offers; }

    ArchiveDesk &archives() { return *m_archives; }

public Q_SLOTS:
    void openList();
    void exportCurrent();
    /// Makes a safe from an archive that the user points to.
    void importArchive();
    /// Adds a safe that lies in a folder that the user points to.
    void openFolder();

private:
    /// @param safe a copy: its row may go while the user is asked
    void run(SafeRow::Command command, SafeInfo safe);
    void open(const SafeInfo &safe);
    void onAdded(const QString &folder, KnownSafes::Found found);
    void rename(const SafeInfo &safe);
    void giveName(const QString &folder, const QString &name);
    void tellNotRenamed(const QString &folder);
    void locate(const SafeInfo &safe);
    void onLocated(const QString &name, const QString &folder, KnownSafes::Found found);
    void removeFromList(const SafeInfo &safe);
    void askToDelete(const SafeInfo &safe);
    void deleteSafe(const SafeInfo &safe);
    void removeFiles(const SafeInfo &safe, const QPointer<ProgressDialog> &progress);
    ProgressDialog *showDeleting(const SafeInfo &safe);
    void tellDeleted(const SafeInfo &safe, const SafeRemoval::Result &result,
                     ProgressDialog &progress);
    bool closeIfCurrent(const QString &folder);
    void tell(const QString &title, const QString &text);
    QWidget *main() const;
    QWidget *above() const;

    GPMAppCore &m_core;
    const Theme &m_theme;
    Window m_window;
    Ways m_ways;
    CloudOffers m_offers;
    std::unique_ptr<ArchiveDesk> m_archives;
    QPointer<SafesDialog> m_list;
};
