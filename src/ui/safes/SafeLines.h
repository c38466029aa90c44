#pragma once

#include "SafeDetails.h"
#include "SafeFacts.h"
#include "style/Palette.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

/// What a row of the list of safes is about.
struct SafeInfo
{
    QString folder;
    QString name;
    bool isOpen = false; ///< the current safe, unlocked
    SafeFact fact;
    bool isRead = false; ///< the details are known
    SafeDetails details;
    QString copyOf; ///< name of the safe that it is a copy of

    /// Whether it can be opened, as far as that is known.
    bool isThere() const { return !isRead || details.place == SafePlace::Here; }
};

/// The lines below the name of a safe: how much it holds, and when what happened to it.
QStringList safeLines(const SafeInfo &safe, const QDateTime &now);

/// Picture and colour of the state that a safe is in; the lines say the same.
struct SafeSign
{
    const char *icon;
    Palette::Role color;
};
SafeSign safeSign(const SafeInfo &safe);
