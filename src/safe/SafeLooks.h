#pragma once

#include "FileLayer.h"
#include "LooseWork.h"
#include "SafeDescription.h"
#include "SafePlace.h"

#include <QHash>
#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

/// What was found in a folder of which somebody says that a safe is there.
struct SafeLook
{
    QString canonical; ///< the folder's path without links
    SafePlace place = SafePlace::FolderGone;
    std::optional<SafeDescription> description; ///< while it is Here

    bool isHere() const { return place == SafePlace::Here; }
};

/// Looks at the folder of a safe; takes as long as its drive does.
SafeLook lookAtSafe(FileLayer &files, const QString &folder);

/// What is found in the folders of safes, and which of them lie in the standard place. Each folder
/// is looked at on a thread of its own, so that a drive that does not answer keeps the answer about
/// its own safe alone.
class SafeLooks : public QObject
{
    Q_OBJECT

public:
    /// @param safesFolder the standard place
    SafeLooks(std::shared_ptr<FileLayer> files, const QString &safesFolder);
    /// Gives looks that are under way a moment; does not wait for a drive that does not answer.
    ~SafeLooks() override;

    /// What was found last; null before the first answer.
    const SafeLook *at(const QString &folder) const;
    bool isLooking(const QString &folder) const { return m_open.contains(folder); }
    bool isLooking() const { return !m_open.isEmpty(); }
    /// One of the folders was given its moment and has not answered.
    bool isLate(const QStringList &folders) const;
    /// The folders of the standard place in which there is a safe.
    const QStringList &foundInPlace() const { return m_found; }
    const QString &safesFolder() const { return m_safesFolder; }

    /// Looks at a folder anew, or through the standard place. While that is under way, once more
    /// behind it.
    void look(const QString &folder);
    /// What a look anew finds, without regard to an answer that is under way, unless that is late.
    /// The answer that is just being told of is fresh: one that always comes late would never do.
    /// Null when none comes in a moment.
    const SafeLook *fresh(const QString &folder, int ms);
    /// Gives looks that are under way a moment, each once: who did not answer is not waited for
    /// again. False when one has not answered.
    bool await(const QStringList &folders, int ms);

    /// What the program itself has just found or done: an answer that is under way is older.
    void learn(const QString &folder, const SafeLook &look);
    void forget(const QString &folder);

Q_SIGNALS:
    /// at() has another answer; the folder's canonical path may be news, too.
    void answered(const QString &folder, const QString &canonical);

private:
    struct Open
    {
        int number = 0;
        bool again = false;
        bool wasAwaited = false;
    };
    struct Found;
    struct Known
    {
        SafeLook look;
        int newest = 0; ///< the look that had begun last when this was known
    };

    void take(const Found &found);

    std::shared_ptr<FileLayer> m_files;
    QString m_safesFolder;
    QStringList m_found;
    QHash<QString, Known> m_looks;
    QHash<QString, Open> m_open;
    int m_lastNumber = 0;
    QString m_answering; ///< the folder that answered() tells of
    LooseWork m_work;
};
