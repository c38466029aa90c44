#pragma once

#include "PMListItem.h"

#include <QByteArray>
#include <QVariant>
#include <QVector>

#include <memory>
#include <vector>

/// One item of another program's export, in plain values that may cross threads.
struct ImportEntry
{
    enum Fault {
        None,
        NotAWebAddress, ///< its address belongs to an app or a file
        Empty,          ///< nothing that could be kept
        UnknownKind,
        WrongColumns ///< the row has more or fewer cells than the first one
    };

    int number = 0; ///< the line of the file, or the number of the entry, from 1
    PMListItem::Type type = PMListItem::Login;
    QVector<QPair<QByteArray, QVariant>> fields; ///< by the names of the item's properties
    Fault fault = None;

    QString text(const char *property) const;
    /// A new item with the fields.
    std::unique_ptr<PMListItem> toItem() const;
};

/// An export of another program.
struct ImportFile
{
    enum Format { Unknown, Chromium, Firefox, Safari, Bitwarden, KeePassXC, BitwardenJson };

    Format format = Unknown; ///< Unknown: nothing was read
    std::vector<ImportEntry> entries;
};

/// Reads an export, whose format shows in its first row or its keys. What a program keeps in fields
/// that an item does not have goes to the note, so that nothing is lost.
ImportFile readImportFile(const QByteArray &bytes);

/// For each entry whether the items, or an entry before it, already have it: the same kind with the
/// same title for other kinds; for logins the same user name and password on the same host. Items
/// in the trash do not count.
std::vector<bool> findDuplicates(const std::vector<ImportEntry> &entries,
                                 const std::vector<PMListItem *> &items);
