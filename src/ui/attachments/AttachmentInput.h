#pragma once

#include "Attachments.h"

#include <QString>
#include <QVector>

class QDateTime;
class QMimeData;

/// Something that the user wants to attach, and the name it gets.
struct AttachmentInput
{
    QString name; ///< a clean file name
    AttachmentSource source;

    static AttachmentInput ofFile(const QString &path);

    /// The files, or else the picture, of a drop or of the clipboard; none for anything else.
    static QVector<AttachmentInput> of(const QMimeData *data, const QDateTime &now);
    /// Whether of() would find any, without taking the picture out.
    static bool canTake(const QMimeData *data);
};
