#include "DeletedList.h"

#include <QFile>

bool recordDeletedIds(FileLayer &files, const QString &path, const QStringList &ids)
{
    const std::optional<QByteArray> before = files.read(path);
    if (!before && QFile::exists(path))
        return false;
    QStringList lines = QString::fromUtf8(before.value_or(QByteArray()))
                            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lines += ids;
    lines.removeDuplicates();
    return files.writeBytes(path, (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8());
}
