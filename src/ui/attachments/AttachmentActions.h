#pragma once

#include "AttachmentInput.h"
#include "Clock.h"
#include "PreviewContent.h"
#include "dialogs/Question.h"

#include <QObject>
#include <QStringList>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>

class GPMAppCore;
class NoticeBanner;
class PMListItem;
class Theme;

/// How the user chooses files and names, and what opens a file.
struct AttachmentChoosers
{
    std::function<QStringList()> filesToAttach;
    std::function<QString(const QString &fileName)> placeToSave; ///< empty: none
    std::function<QString(const QString &fileName)> newName;     ///< empty: none
    std::function<bool(const QString &path)> openFile;

    /// The dialogs of the system above a widget's window.
    static AttachmentChoosers dialogs(const Theme &theme, QWidget *widget);
};

/// What a user can do with attachments of the open safe, by their ids. Bytes are read, written,
/// encrypted and decrypted on workers. An id of no item does nothing.
class AttachmentActions : public QObject
{
    Q_OBJECT

public:
    AttachmentActions(GPMAppCore &core, const Theme &theme, Asker asker, QWidget *window,
                      Clock clock = systemTime);
    ~AttachmentActions() override;

    void setChoosers(AttachmentChoosers choosers) { m_choosers = std::move(choosers); }

    /// Tells that copies of attachments lie outside the safe; to be placed where the user sees it.
    NoticeBanner *banner() const { return m_banner; }

    /// Attaches to an item; an empty id makes items of their own.
    void attach(const QVector<AttachmentInput> &inputs, const QString &parentId);
    /// Lets the user choose the files. False when none was chosen.
    bool chooseAndAttach(const QString &parentId);
    /// Names of those of an item that are being encrypted.
    QStringList pending(const QString &parentId) const;

    void preview(const QString &id);
    void saveAs(const QString &id);
    void rename(const QString &id);
    void openElsewhere(const QString &id);

    /// The attachment's name as it may be shown and used for a file.
    QString name(const QString &id) const;
    /// "4 KB", or that the bytes are missing.
    QString sizeText(const QString &id) const;

Q_SIGNALS:
    /// Attachments of an item came, or are on their way.
    void pendingChanged();
    /// An attachment that belongs to no other item is in the safe.
    void added(const QString &id);
    /// Something went well that nothing else shows.
    void told(const QString &text);

private:
    struct Pending
    {
        QString id;
        QString parentId;
        QString name;
    };

    PMListItem *item(const QString &id) const;
    void followSafe();
    void onDone(const QString &id, const QString &title, AttachmentFault fault);
    void addFault(const QString &name, AttachmentFault fault);
    void tellFaultsLater();
    void tellFaults();
    void onRequestLock();
    void showPreview(const QString &id, const std::optional<PreviewContent> &content);
    void onOpened(const QString &fileName, const std::optional<QString> &path);
    void tellUnreadable(const QString &name) const;
    void removeCopies();

    /// Runs work on a worker and hands on its result, unless the safe was locked meanwhile.
    template <typename Result>
    void run(std::function<Result()> work, std::function<void(const Result &)> done);

    GPMAppCore &m_core;
    const Theme &m_theme;
    Asker m_asker;
    QWidget *m_window;
    Clock m_clock;
    AttachmentChoosers m_choosers;
    NoticeBanner *m_banner;
    QVector<Pending> m_pending;
    QStringList m_faults;
    QStringList m_copies; ///< names of the attachments that lie outside the safe
    int m_session = 0;    ///< counts the locks
    QMetaObject::Connection m_doneConnection;
    QThreadPool m_workers;
};
