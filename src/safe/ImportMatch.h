#pragma once

#include "ImportFile.h"

/// What of an entry is there already.
enum class ImportMatch {
    New,
    AlreadyThere,
    OtherPassword, ///< a login of the same place and user name, with another password
    OtherNote      ///< all the same but the note, which would be lost
};

/// What tells items apart, in plain values that may cross threads.
struct ImportTraits
{
    static ImportTraits of(const PMListItem &item);
    static ImportTraits of(const ImportEntry &entry);

    PMListItem::Type type = PMListItem::Login;
    QString title;
    QString url;
    QString login;
    QString password;
    QString note;
    QStringList others; ///< of kinds that are no logins: what names them
};

/// For each entry whether the items, or an entry before it, already have it: logins by user name
/// and password on the same host, other kinds by title and what names them.
std::vector<ImportMatch> findMatches(const std::vector<ImportEntry> &entries,
                                     const std::vector<ImportTraits> &items);
