#include "SafeImport.h"

#include "ArchiveReader.h"
#include "FolderLock.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QUuid>
#include <QtConcurrent>

namespace {

const char operation[] = "GPMAppCore::importSafeArchive";
const QLatin1String unfinishedPrefix(".import-");

/// The description, from its second copy where the first is gone or unreadable.
std::optional<SafeDescription> anyDescription(FileLayer &files, const SafeFolder &folder)
{
    std::optional<SafeDescription> description = readDescription(files, folder.root());
    if (description)
        return description;
    const std::optional<QByteArray> copy = files.read(folder.path(SafeLayout::restore));
    return copy ? parseDescription(*copy) : std::nullopt;
}

} // namespace

SafeImport::SafeImport(const SafeEnvironment &environment, const QString &safesFolder)
    : m_environment(environment)
    , m_safesFolder(safesFolder)
{
    m_forcing.setMaxThreadCount(4);
}

bool SafeImport::isUnfinished(const QString &folderName)
{
    return folderName.startsWith(unfinishedPrefix);
}

QString SafeImport::workFolder(const QString &safesFolder, const QString &id)
{
    return safesFolder + QLatin1Char('/') + unfinishedPrefix + id;
}

QString SafeImport::lockPath(const QString &safesFolder)
{
    return safesFolder + QStringLiteral("/.import.lock");
}

ArchiveResult SafeImport::run(const QString &archivePath, WorkControl &control)
{
    if (!QFileInfo::exists(archivePath)) {
        qWarning() << operation << "File not found:" << archivePath;
        return {Outcome::NotFound};
    }
    const QString path = QFileInfo(archivePath).canonicalFilePath();
    if (path.isEmpty()) {
        qWarning() << operation << "Can't get canonical file path:" << archivePath;
        return {Outcome::NotFound};
    }
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QString newFolder = m_safesFolder + QLatin1Char('/') + id;
    m_work = SafeFolder(workFolder(m_safesFolder, id));
    const Outcome outcome = makeSafe(path, newFolder, control);
    if (outcome == Outcome::Done)
        return {Outcome::Done, newFolder, {}, QFileInfo(path).size()};

    m_forcing.clear();
    m_forcing.waitForDone();
    if (QDir(m_work.root()).exists() && !m_environment.files->removeFolder(m_work.root()))
        qWarning() << operation << "Can't remove folder:" << m_work.root();
    if (outcome == Outcome::NoSafe)
        qWarning() << operation << "Can't open safe at" << path;
    else if (outcome != Outcome::Cancelled)
        qWarning() << operation << "Error while extracting safe archive file" << path << outcome;
    return {outcome};
}

ArchiveResult::Outcome SafeImport::makeSafe(const QString &archivePath, const QString &newFolder,
                                            WorkControl &control)
{
    FileLayer &files = *m_environment.files;
    ArchiveReader reader(files, archivePath);
    if (const Outcome opened = reader.open(); opened != Outcome::Done)
        return opened;
    if (!files.makeFolder(m_safesFolder))
        return Outcome::CannotWrite;
    // One import at a time, so that what an earlier one left is known to be of no use.
    FolderLock lock(lockPath(m_safesFolder));
    if (!lock.lock(m_environment.lockWaitMs, control))
        return lock.isHeldByAnother() ? Outcome::SafeBusy : Outcome::CannotWrite;
    clearUnfinished();

    Outcome outcome = unpack(reader, control);
    if (outcome == Outcome::Done)
        outcome = complete();
    if (outcome != Outcome::Done)
        return outcome;
    m_forcing.waitForDone();
    if (m_notForced || !files.replace(m_work.root(), newFolder))
        return Outcome::CannotWrite;
    return Outcome::Done;
}

void SafeImport::clearUnfinished() const
{
    const QStringList names =
        QDir(m_safesFolder).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        if (isUnfinished(name) &&
            !m_environment.files->removeFolder(m_safesFolder + QLatin1Char('/') + name))
            qWarning() << operation << "Can't remove folder:" << name;
    }
}

ArchiveResult::Outcome SafeImport::unpack(ArchiveReader &reader, WorkControl &control)
{
    FileLayer &files = *m_environment.files;
    for (const char *name : {SafeLayout::content, SafeLayout::attachment, SafeLayout::favicon}) {
        if (!files.makeFolder(m_work.path(name)))
            return Outcome::CannotWrite;
    }
    bool twice = false;
    const Outcome outcome =
        reader.unpack(control, [&](const QString &name, const FileLayer::Produce &content) {
            const QString path = m_work.root() + QLatin1Char('/') + name;
            // Two names that differ are the same file where case does not count.
            twice = QFile::exists(path);
            return !twice && files.writeNew(path, content) && force(path);
        });
    return twice ? Outcome::NameTwice : outcome;
}

/// Only begins it: the disk works while further files are unpacked.
bool SafeImport::force(const QString &path)
{
    QtConcurrent::run(&m_forcing, [this, path] {
        if (!m_environment.files->force(path))
            m_notForced = true;
    });
    return !m_notForced;
}

ArchiveResult::Outcome SafeImport::complete()
{
    FileLayer &files = *m_environment.files;
    std::optional<SafeDescription> description = anyDescription(files, m_work);
    if (!description)
        return Outcome::NoSafe;
    if (QFileInfo(m_work.path(SafeLayout::passId)).size() == 0) {
        if (description->passId.isEmpty())
            return Outcome::NoSafe;
        if (!writePassId(description->passId))
            return Outcome::CannotWrite;
        description->passId.clear();
    }
    const QDate today = m_environment.clock().toLocalTime().date();
    description->name +=
        QStringLiteral(" [%1]").arg(QLocale().toString(today, QLocale::ShortFormat));
    return writeDescription(files, m_work.root(), description->toJson()) ? Outcome::Done
                                                                         : Outcome::CannotWrite;
}

bool SafeImport::writePassId(const QString &fromDescription)
{
    return m_environment.files->writeBytes(m_work.path(SafeLayout::passId),
                                           fromDescription.toLatin1());
}
