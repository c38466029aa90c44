#pragma once

#include "PMItemDocument.h"

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
        NotAWebAddress, ///< all that names it is the address of an app or a file
        Empty,          ///< nothing that could be kept
        UnknownKind,
        WrongColumns ///< the row has more or fewer cells than the first one
    };

    int number = 0; ///< the row of the file, or the number of the entry, from 1
    PMListItem::Type type = PMListItem::Login;
    QVector<QPair<QByteArray, QVariant>> fields; ///< by the names of the item's properties
    /// In an export of this program, all that the item was; `fields` hold what differs.
    std::shared_ptr<const PMItemDocument> document = {};
    Fault fault = None;
    bool addressInNote = false; ///< as it is none of a web page

    QString text(const char *property) const;
    void set(const char *property, const QVariant &value);
    /// A new item with the fields.
    std::unique_ptr<PMListItem> toItem() const;
};

/// An export of another program, or of this one.
struct ImportFile
{
    enum Format {
        Unknown,
        Chromium,
        Firefox,
        Safari,
        Bitwarden,
        KeePassXC,
        BitwardenJson,
        OwnJson,
        ChosenColumns ///< the user said which column holds what
    };

    /// Why nothing was read.
    enum Problem {
        None,
        Empty,
        NotText,
        CutShort, ///< a text in quotes does not end
        Encrypted,
        UnknownColumns, ///< see `header`
        UnknownJson
    };

    Format format = Unknown; ///< Unknown: nothing was read
    std::vector<ImportEntry> entries;
    Problem problem = None;
    QStringList header; ///< of a CSV file whose format is not known

    bool isJson() const { return format == BitwardenJson || format == OwnJson; }
};

/// Where the columns of a CSV file go whose format is not known: a property for each one, from the
/// first; an empty one goes to the note.
using ImportColumns = QVector<QByteArray>;

/// What columns with such names probably hold.
ImportColumns guessColumns(const QStringList &header);

/// Reads an export, whose format shows in its first row or its keys. What a program keeps in fields
/// that an item does not have goes to the note, so that nothing is lost.
/// @param columns taken where the format does not show; without them such a file is not read
ImportFile readImportFile(const QByteArray &bytes, const ImportColumns &columns = {});

/// Overwrites what the entries hold, as far as nobody else uses it, and drops them.
void wipeEntries(std::vector<ImportEntry> &entries);
