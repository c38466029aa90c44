#include "ImportReader.h"

#include "SecretBytes.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

namespace {

ImportResult::Fault readBytes(const QString &path, QByteArray &bytes)
{
    const QFileInfo info(path);
    if (!info.exists())
        return ImportResult::Missing;
    if (!info.isFile())
        return ImportResult::NotAFile;
    if (info.size() > ImportReader::largestFile)
        return ImportResult::TooLarge;
    QFile file(path);
    // Unbuffered: no copy of it stays in a buffer.
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return ImportResult::Unreadable;
    bytes = file.read(info.size() + 1);
    if (bytes.size() > ImportReader::largestFile)
        return ImportResult::TooLarge;
    return file.error() == QFile::NoError ? ImportResult::Good : ImportResult::Unreadable;
}

void read(const QString &path, const std::vector<ImportTraits> &known, const ImportColumns &columns,
          ImportResult &result, const WorkControl &control)
{
    QByteArray bytes;
    result.fault = readBytes(path, bytes);
    if (result.fault == ImportResult::Good && !control.isCancelled())
        result.file = readImportFile(bytes, columns);
    wipe(bytes);
    if (result.fault != ImportResult::Good) {
        qWarning() << "ImportReader"
                   << "Can't read file:" << path;
        return;
    }
    if (result.file.format == ImportFile::Unknown)
        result.fault = ImportResult::Unknown;
    if (!control.isCancelled())
        result.matches = findMatches(result.file.entries, known);
}

} // namespace

ImportResult::~ImportResult()
{
    wipeEntries(file.entries);
}

ImportReader::ImportReader(const QString &path, const std::vector<ImportTraits> &known,
                           const ImportColumns &columns, QObject *parent)
    : ImportReader(path, known, columns, std::make_shared<ImportResult>(), parent)
{
}

ImportReader::ImportReader(const QString &path, const std::vector<ImportTraits> &known,
                           const ImportColumns &columns,
                           const std::shared_ptr<ImportResult> &result, QObject *parent)
    : WorkerTask([=](WorkControl &control) { read(path, known, columns, *result, control); },
                 parent)
    , m_result(result)
{
}
