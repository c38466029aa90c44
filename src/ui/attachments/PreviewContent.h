#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

/// What the bytes of a file look like. Made on any thread, within bounds of time and memory
/// whatever the bytes are.
struct PreviewContent
{
    enum Kind { None, Text, Picture };

    Kind kind = None;
    QString text;
    bool cut = false;  ///< the text goes on
    QImage picture;    ///< no larger than a screen needs
    QSize pictureSize; ///< in the file

    static PreviewContent of(const QByteArray &bytes);
};
