#include "SafeLooks.h"

#include "FolderPath.h"
#include "SafeDescriptionFile.h"
#include "SafeFolder.h"
#include "SafeImport.h"
#include "SafeRemoval.h"

#include <QDir>
#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace {

const int longestEndMs = 500;

using Looks = QVector<std::pair<QString, SafeLook>>;

Looks lookThrough(FileLayer &files, const QString &safesFolder)
{
    Looks looks;
    const QStringList names =
        QDir(safesFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : names) {
        const QString folder = safesFolder + QLatin1Char('/') + name;
        if (!SafeImport::isUnfinished(name) && !SafeRemoval::isUnfinished(name) &&
            SafeFolder(folder).holdsSafe())
            looks.append({folder, lookAtSafe(files, folder)});
    }
    return looks;
}

} // namespace

/// The answer of one look.
struct SafeLooks::Found
{
    QString folder;
    int number = 0;
    QString canonical; ///< of the folder
    Looks looks;       ///< at the folder alone, or at all that lie in the standard place
};

SafeLook lookAtSafe(FileLayer &files, const QString &folder)
{
    SafeLook look;
    look.canonical = canonicalFolder(folder);
    if (!QDir(folder).exists()) {
        look.place = whyGone(folder);
        return look;
    }
    look.description = readDescription(files, folder);
    look.place = look.description ? SafePlace::Here : SafePlace::NoSafe;
    return look;
}

SafeLooks::SafeLooks(std::shared_ptr<FileLayer> files, const QString &safesFolder)
    : m_files(std::move(files))
    , m_safesFolder(safesFolder)
{
}

SafeLooks::~SafeLooks()
{
    disconnect(); // whoever listens is being taken down, too
    QElapsedTimer spent;
    spent.start();
    for (Open &open : m_open)
        open.again = false;
    while (isLooking() && m_work.waitForOne(longestEndMs - int(spent.elapsed())))
        m_work.takeEnded();
}

const SafeLook *SafeLooks::at(const QString &folder) const
{
    const auto look = m_looks.find(folder);
    return look == m_looks.end() ? nullptr : &look->look;
}

void SafeLooks::look(const QString &folder)
{
    const auto open = m_open.find(folder);
    if (open != m_open.end()) {
        open->again = true;
        return;
    }
    const auto found = std::make_shared<Found>();
    found->folder = folder;
    found->number = ++m_lastNumber;
    m_open.insert(folder, {found->number, false, false});
    const bool isPlace = folder == m_safesFolder;
    m_work.run(
        [files = m_files, found, isPlace] {
            found->canonical = canonicalFolder(found->folder);
            if (isPlace)
                found->looks = lookThrough(*files, found->folder);
            else
                found->looks = {{found->folder, lookAtSafe(*files, found->folder)}};
        },
        [this, found] { take(*found); });
}

const SafeLook *SafeLooks::fresh(const QString &folder, int ms)
{
    if (folder == m_answering)
        return at(folder);
    if (!isLate({folder}))
        m_open.remove(folder);
    look(folder);
    return await({folder}, ms) ? at(folder) : nullptr;
}

bool SafeLooks::await(const QStringList &folders, int ms)
{
    QStringList awaited;
    for (const QString &folder : folders) {
        const auto open = m_open.find(folder);
        if (open != m_open.end() && !std::exchange(open->wasAwaited, true))
            awaited.append(folder);
    }
    QElapsedTimer spent;
    spent.start();
    while (isLate(awaited) && m_work.waitForOne(ms - int(spent.elapsed())))
        m_work.takeEnded();
    return !isLate(folders);
}

bool SafeLooks::isLate(const QStringList &folders) const
{
    // One that is looked at once more has answered.
    return std::any_of(folders.begin(), folders.end(),
                       [this](const QString &folder) { return m_open.value(folder).wasAwaited; });
}

void SafeLooks::learn(const QString &folder, const SafeLook &look)
{
    m_open.remove(folder);
    m_looks.insert(folder, {look, m_lastNumber});
}

void SafeLooks::forget(const QString &folder)
{
    m_open.remove(folder);
    m_looks.remove(folder);
    // A look through the standard place that is under way may have found it.
    const bool wasFound = m_found.removeOne(folder);
    const bool mayBeFound = m_open.remove(m_safesFolder) > 0;
    if (wasFound || mayBeFound)
        look(m_safesFolder);
}

void SafeLooks::take(const Found &found)
{
    if (m_open.value(found.folder).number != found.number)
        return;
    const bool again = m_open.take(found.folder).again;
    const bool isPlace = found.folder == m_safesFolder;
    if (isPlace)
        m_found.clear();
    for (const auto &[folder, looked] : found.looks) {
        // What became known of a folder by itself is newer than a look through the place that had
        // begun before.
        const bool isKnown = isPlace && found.number <= m_looks.value(folder).newest;
        if (!isKnown)
            m_looks.insert(folder, {looked, isPlace ? found.number : m_lastNumber});
        if (isPlace)
            m_found.append(folder);
        const QString outer = std::exchange(m_answering, isKnown ? QString() : folder);
        Q_EMIT answered(folder, looked.canonical);
        m_answering = outer;
    }
    if (isPlace) {
        m_looks.insert(m_safesFolder, {});
        Q_EMIT answered(m_safesFolder, found.canonical);
    }
    if (again)
        look(found.folder);
}
