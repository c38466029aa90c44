#pragma once

#include "FileLayer.h"
#include "PMItemDocument.h"
#include "WorkControl.h"

#include <QDateTime>
#include <QStringList>

#include <vector>

/// Items on their way into a file that everyone can read, as values that may cross threads.
struct ItemExport
{
    enum Format {
        Csv, ///< logins, as browsers write and read them
        Json ///< everything but the bytes of attachments
    };

    struct Item
    {
        PMItemDocument document;
        QStringList attachments; ///< their names
    };

    Format format = Csv;
    QString safeName;
    QDateTime moment; ///< when it is made
    std::vector<Item> items;

    /// Whether an item can stand in a file of the format.
    static bool canHold(Format format, PMListItem::Type type);

    /// The items that the format cannot hold are left out. Values are written as they are: one that
    /// begins with "=" too, although a spreadsheet program takes it for a formula, since a password
    /// that was changed would be lost.
    /// @returns false also when it was cancelled midway
    bool writeTo(QIODevice &device, const WorkControl &control = WorkControl()) const;

    /// Replaces the file, for its owner alone, or leaves it as it was.
    bool write(FileLayer &files, const QString &path,
               const WorkControl &control = WorkControl()) const;
};
