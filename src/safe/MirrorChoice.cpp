#include "MirrorChoice.h"

#include "SafeDescriptionFile.h"
#include "SafeFolder.h"
#include "SyncFolders.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

#ifdef Q_OS_WIN
const Qt::CaseSensitivity pathCase = Qt::CaseInsensitive;
#else
const Qt::CaseSensitivity pathCase = Qt::CaseSensitive;
#endif

/// The same for every way that leads to a folder. What is not there yet is told by its name.
QString plainPath(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(QDir::fromNativeSeparators(path)) : canonical;
}

bool isSame(const QString &one, const QString &other)
{
    return plainPath(one).compare(plainPath(other), pathCase) == 0;
}

bool isInOrSame(const QString &path, const QString &folder)
{
    const QString inner = plainPath(path) + QLatin1Char('/');
    return !folder.isEmpty() && inner.startsWith(plainPath(folder) + QLatin1Char('/'), pathCase);
}

QString mirrorName(const MirrorChoice::Wish &wish)
{
    const QString own =
        wish.created != 0 ? QString::number(wish.created, 16) : QDir(wish.safeFolder).dirName();
    return QStringLiteral("safe-") + own;
}

/// The description of the safe whose folder this is or lies in.
std::optional<SafeDescription> safeAround(FileLayer &files, const QString &folder)
{
    QDir place(plainPath(folder));
    do {
        if (SafeFolder(place.path()).holdsSafe())
            return readDescription(files, place.path()).value_or(SafeDescription());
    } while (place.cdUp());
    return std::nullopt;
}

} // namespace

MirrorChoice MirrorChoice::make(FileLayer &files, const Wish &wish)
{
    const QString shared = plainPath(wish.sharedFolder);
    if (!QFileInfo(shared).isDir())
        return {Fault::NotThere};
    if (isInOrSame(shared, wish.safeFolder))
        return {Fault::InsideSafe};
    if (isInOrSame(wish.safeFolder, shared))
        return {Fault::AroundSafe};
    if (isInOrSame(shared, wish.backupFolder))
        return {Fault::InBackups};

    MirrorChoice choice{Fault::None, shared + QLatin1Char('/') + mirrorName(wish)};
    choice.joins = QFileInfo(choice.folder).isDir();
    const QVector<MirroredSafe> there = mirroredSafes(files, shared);
    for (const MirroredSafe &safe : there) {
        const bool isOwn = wish.created != 0 && safe.created == wish.created;
        if (isSame(safe.path, shared) && !isOwn)
            return {Fault::OtherSafe, {}, false, safe.name};
        if (isSame(safe.path, choice.folder) && safe.created != wish.created)
            return {Fault::OtherSafe, {}, false, safe.name};
        if (!isOwn)
            continue;
        choice.folder = safe.path;
        choice.joins = true;
        break;
    }
    // A safe's folder holds nothing of others, unless it is this very mirror.
    const auto around = safeAround(files, shared);
    if (around && !isSame(choice.folder, shared))
        return {Fault::OtherSafe, {}, false, around->name};
    const bool isTaken =
        std::any_of(wish.taken.begin(), wish.taken.end(),
                    [&choice](const QString &mirror) { return isSame(mirror, choice.folder); });
    if (isTaken)
        return {Fault::Taken};
    return choice;
}
