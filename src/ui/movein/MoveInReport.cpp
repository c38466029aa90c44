#include "MoveInReport.h"

#include "MoveInTexts.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MoveInReport)
};

QString describe(const ImportFile &file, const ImportEntry &entry)
{
    QStringList parts;
    const QStringList values{entry.text("title"), MoveInTexts::shownAddress(entry.text("url")),
                             entry.text("login")};
    for (const QString &value : values) {
        if (!value.trimmed().isEmpty())
            parts.append(value.simplified());
    }
    const QString place = MoveInTexts::place(file, entry);
    return parts.isEmpty() ? place
                           : Texts::tr("%1: %2").arg(place, parts.join(QStringLiteral(" · ")));
}

QString notAddedReason(ImportAdder::Outcome outcome)
{
    switch (outcome) {
    case ImportAdder::NotSaved:
        return Texts::tr("Not written to the disk");
    case ImportAdder::Locked:
        return Texts::tr("Not added before the safe was locked");
    case ImportAdder::Cancelled:
    case ImportAdder::Done:
        break;
    }
    return Texts::tr("Not added before you cancelled");
}

} // namespace

MoveInReport MoveInReport::of(const ImportResult &result, const QVector<int> &chosen, int added,
                              ImportAdder::Outcome outcome)
{
    MoveInReport report;
    report.added = added;
    report.outcome = outcome;
    const auto add = [&](const QString &reason, const ImportEntry &entry, bool isLoss) {
        auto group = std::find_if(report.groups.begin(), report.groups.end(),
                                  [&reason](const Group &known) { return known.reason == reason; });
        if (group == report.groups.end())
            group = report.groups.insert(report.groups.end(), {reason, {}, isLoss});
        group->rows.append(describe(result.file, entry));
    };
    int next = 0; // of the chosen ones
    for (int i = 0; i < int(result.file.entries.size()); ++i) {
        const ImportEntry &entry = result.file.entries[std::size_t(i)];
        if (next < chosen.size() && chosen.at(next) == i) {
            if (next++ >= added)
                add(notAddedReason(outcome), entry, true);
            else
                report.onlyLogins = report.onlyLogins && entry.type == PMListItem::Login;
            continue;
        }
        const ImportMatch match = result.matches[std::size_t(i)];
        const bool isThere = match == ImportMatch::AlreadyThere;
        if (entry.fault != ImportEntry::None)
            add(MoveInTexts::fault(entry.fault), entry, true);
        else
            add(isThere ? MoveInTexts::remark(entry, match) : Texts::tr("Not chosen"), entry,
                !isThere);
    }
    return report;
}

QString MoveInReport::title() const
{
    if (added == 0)
        return Texts::tr("Nothing came in");
    return onlyLogins ? Texts::tr("%n logins came in", nullptr, added)
                      : Texts::tr("%n items came in", nullptr, added);
}

QString MoveInReport::trouble() const
{
    switch (outcome) {
    case ImportAdder::Cancelled:
        return Texts::tr("You cancelled. What came in before is saved. Choose the file again for "
                         "the others: what is there is recognised.");
    case ImportAdder::NotSaved:
        return Texts::tr("The safe could not be written to. Check the free space and the "
                         "permissions, then choose the file again: what is there is recognised.");
    case ImportAdder::Locked:
        return Texts::tr("The safe was locked meanwhile. What came in before is saved. Choose the "
                         "file again for the others: what is there is recognised.");
    case ImportAdder::Done:
        break;
    }
    return {};
}

QString MoveInReport::text(const QString &fileName) const
{
    QStringList lines{fileName, title()};
    if (!trouble().isEmpty())
        lines.append(trouble());
    for (const Group &group : groups) {
        lines << QString() << Texts::tr("%1 (%2)").arg(group.reason).arg(group.rows.size());
        lines << group.rows;
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

bool MoveInReport::hasLosses() const
{
    return std::any_of(groups.begin(), groups.end(),
                       [](const Group &group) { return group.isLoss; });
}
