#pragma once

#include "ArchiveResult.h"
#include "CloudStatus.h"
#include "CloudSync.h"
#include "MirrorChoice.h"

#include <QCoreApplication>

/// What synchronising with the cloud folder is said to be, without a window.
class CloudTexts
{
    Q_DECLARE_TR_FUNCTIONS(CloudTexts)

public:
    /// One or two words for a narrow place; empty while there is nothing to say.
    static QString word(const CloudStatus &status);
    /// The icon that goes with it.
    static QString icon(const CloudStatus &status);
    /// A line; empty for a safe that is not synchronised.
    static QString line(const CloudStatus &status, const QDateTime &now);
    /// What is wrong and what to do about it, or what waits; empty when all is well.
    static QString advice(const CloudStatus &status);

    /// Why synchronising could not be turned on, and what to do; empty when it was.
    static QString fault(const MirrorChoice &choice, const QString &sharedFolder);
    /// Why a password was not taken over; empty when it was.
    static QString fault(CloudSync::Taking result);
    /// Why a safe could not be brought over; empty when it was, and for a cancel.
    static QString importFault(ArchiveResult::Outcome outcome);

    /// What has come from the cloud folder, or gone with it.
    static QString news(int received, int removed);
};
