#pragma once

#include "Clock.h"
#include "FileLayer.h"
#include "FolderKeys.h"

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QThreadPool>
#include <QTimer>

#include <functional>
#include <memory>

/// What this computer remembers of one safe. Nothing of it is secret, and none of it is missed when
/// it is lost, but for the folder of the mirror.
struct SafeFact
{
    QString name;       ///< when it was last seen, for a safe whose folder has gone
    qint64 created = 0; ///< in ms since the epoch, to know it again; 0: not known
    QDateTime lastOpened;
    int itemCount = -1;    ///< without the trash, when the safe was last open; -1: not known
    QString mirrorFolder;  ///< empty: not synchronised
    QString leavingFolder; ///< a former mirror that is being removed
    QDateTime lastSynchronised;
    bool isHidden = false; ///< taken off the list although it lies in the standard place

    bool operator==(const SafeFact &other) const;
};

/// The facts about all safes by their folder, in "safes.json" beside the settings. A file that
/// cannot be read starts anew. Lives on the GUI thread; written behind it.
class SafeFacts : public QObject
{
    Q_OBJECT

public:
    using Change = std::function<void(SafeFact &)>;

    explicit SafeFacts(const QString &filePath,
                       std::shared_ptr<FileLayer> files = std::make_shared<FileLayer>(),
                       QObject *parent = nullptr);
    /// Writes what is not written yet.
    ~SafeFacts() override;

    /// What is known of the safe of a folder; however its path is written.
    SafeFact of(const QString &folder) const;
    /// Whether both paths lead to the same folder, as far as that is known.
    bool isSame(const QString &one, const QString &other) const
    {
        return m_keys.isSame(one, other);
    }
    const FolderKeys &keys() const { return m_keys; }
    /// A folder that may lie on a drive that does not answer: its canonical path is told by
    /// learn().
    void expect(const QString &folder) const { m_keys.remember(folder); }
    /// What is known of the folder by the path that was taken so far holds for the canonical one.
    void learn(const QString &folder, const QString &canonical);
    /// The folders of which something is known.
    QStringList folders() const;

    /// Changes what is known; the file follows soon.
    void change(const QString &folder, const Change &change);
    void forget(const QString &folder);
    /// The safe has moved: what was known of one folder holds for the other.
    void move(const QString &from, const QString &to);

    /// Writes now what is not written yet. False when that fails; logged.
    bool store();

Q_SIGNALS:
    /// @param folder canonical
    void changed(const QString &folder);

private:
    struct Row
    {
        QString folder;
        SafeFact fact;
    };

    void load();
    QByteArray toJson() const;
    void storeSoon();

    QString m_filePath;
    std::shared_ptr<FileLayer> m_files;
    mutable FolderKeys m_keys;  ///< a memory
    QHash<QString, Row> m_rows; ///< by their keys
    QTimer m_storing;
    QThreadPool m_writer; ///< one thread, so that writes keep their order
};
