#include "AttachmentInput.h"

#include "FileNames.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QImage>
#include <QMimeData>
#include <QUrl>

namespace {

QStringList localFiles(const QMimeData &data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

QByteArray pngOf(const QImage &picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return picture.save(&buffer, "PNG") ? bytes : QByteArray();
}

} // namespace

AttachmentInput AttachmentInput::ofFile(const QString &path)
{
    return {cleanFileName(QFileInfo(path).fileName()), {path, {}, {}}};
}

QVector<AttachmentInput> AttachmentInput::of(const QMimeData *data, const QDateTime &now)
{
    QVector<AttachmentInput> inputs;
    if (!data)
        return inputs;
    const QStringList paths = localFiles(*data);
    for (const QString &path : paths)
        inputs.append(ofFile(path));
    // A copied file often comes with a picture of it.
    if (!inputs.isEmpty() || !data->hasImage())
        return inputs;
    const QImage picture = data->imageData().value<QImage>();
    if (picture.isNull())
        return inputs;
    const QString name =
        QCoreApplication::translate("AttachmentInput", "Picture %1.png")
            .arg(now.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss")));
    inputs.append({name, {{}, {}, [picture] { return pngOf(picture); }}});
    return inputs;
}

bool AttachmentInput::canTake(const QMimeData *data)
{
    return data && (data->hasImage() || !localFiles(*data).isEmpty());
}
