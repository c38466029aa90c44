#pragma once

#include "ImportAdder.h"
#include "ImportReader.h"

/// What came of an import: how many came in, and what did not and why. Holds no secrets.
struct MoveInReport
{
    /// @param chosen the places of the entries that were to come in, in order
    /// @param added how many of these did, from the first
    static MoveInReport of(const ImportResult &result, const QVector<int> &chosen, int added,
                           ImportAdder::Outcome outcome);

    struct Group
    {
        QString reason;
        QStringList rows;
        bool isLoss = true; ///< not what is there anyway
    };

    int added = 0;
    bool onlyLogins = true; ///< among those that were added
    ImportAdder::Outcome outcome = ImportAdder::Done;
    QVector<Group> groups; ///< those that did not come in

    /// "198 logins came in."
    QString title() const;
    /// How it ended, where that was not as it should; empty otherwise.
    QString trouble() const;
    /// Everything, a line for each row that did not come in.
    QString text(const QString &fileName) const;
    /// Whether something is in the file that the safe has not.
    bool hasLosses() const;
};
