#include "BackupTexts.h"

#include "ArchiveMessages.h"
#include "widgets/SizeText.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace {

using State = BackupJob::State;

QStringList namesOf(const QVector<BackupJob::Result> &results, State state)
{
    QStringList names;
    for (const BackupJob::Result &result : results) {
        if (result.state == state)
            names.append(BackupTexts::tr("“%1”").arg(result.name));
    }
    return names;
}

const BackupEntry *newest(const BackupOverview &overview)
{
    const BackupEntry *found = nullptr;
    for (const BackupOverview::Safe &safe : overview.safes) {
        if (safe.last && (!found || safe.last->made > found->made))
            found = &*safe.last;
    }
    return found;
}

} // namespace

QString BackupTexts::moment(const QDateTime &moment, const QDateTime &now, bool timeKnown)
{
    const QDateTime local = moment.toLocalTime();
    const qint64 days = now.toLocalTime().date().daysTo(local.date());
    const QString day = days == 0    ? tr("today")
                        : days == -1 ? tr("yesterday")
                        : days == 1  ? tr("tomorrow")
                                     : QLocale().toString(local.date(), QLocale::ShortFormat);
    if (!timeKnown)
        return day;
    return tr("%1 at %2", "a day, a time of day")
        .arg(day, QLocale().toString(local.time(), QLocale::ShortFormat));
}

QString BackupTexts::moment(const BackupEntry &entry, const QDateTime &now)
{
    return moment(entry.made, now, entry.timeKnown);
}

QString BackupTexts::name(const BackupEntry &entry)
{
    return entry.good() ? entry.description.name : QFileInfo(entry.path).fileName();
}

QString BackupTexts::detail(const BackupEntry &entry, const QDateTime &now)
{
    const QString usual = tr("%1 · %2").arg(moment(entry, now), SizeText::of(entry.size));
    return entry.good() ? usual : tr("Damaged, can't be restored · %1").arg(usual);
}

QString BackupTexts::headline(const BackupOverview &overview, const QDateTime &now)
{
    const BackupEntry *last = newest(overview);
    return last ? tr("Last backup: %1").arg(moment(*last, now)) : tr("No backup yet");
}

QString BackupTexts::next(const QDateTime &next, const QDateTime &now)
{
    if (!next.isValid())
        return tr("Automatic backups are off.");
    if (next <= now)
        return tr("Next backup: in a moment");
    return tr("Next backup: %1").arg(moment(next, now));
}

QString BackupTexts::placeFault(const BackupOverview &overview)
{
    switch (overview.place) {
    case BackupOverview::Place::Usable:
        return {};
    case BackupOverview::Place::NotThere:
        return tr("The folder for backups is not there. Connect its drive, or choose another "
                  "folder.");
    case BackupOverview::Place::NotWritable:
        return tr("The folder for backups can't be written to. Choose another folder.");
    }
    return {};
}

QString BackupTexts::ofSafe(const QString &name, const BackupOverview::Safe &safe,
                            const QDateTime &now)
{
    if (!safe.available)
        return tr("%1: not there, or it can't be read").arg(name);
    if (!safe.last)
        return tr("%1: not backed up yet").arg(name);
    const QString when = moment(*safe.last, now);
    return safe.unchanged ? tr("%1: %2, unchanged since").arg(name, when)
                          : tr("%1: %2, changed since").arg(name, when);
}

BackupTexts::Report BackupTexts::report(const QVector<BackupJob::Result> &results)
{
    QStringList lines;
    const auto add = [&](State state, const QString &line) {
        const QStringList names = namesOf(results, state);
        if (!names.isEmpty())
            lines.append(line.arg(names.join(QStringLiteral(", "))));
    };
    add(State::Written, tr("Backed up and checked: %1."));
    add(State::Unchanged, tr("Unchanged since the last backup: %1."));
    add(State::Missing, tr("Not backed up, as the folder is not there: %1. If it is on a drive "
                           "that can be taken out, connect it and try again."));
    add(State::Postponed, tr("Not yet backed up, as the password is being changed or it is being "
                             "archived: %1. This is tried again in a minute."));
    add(State::Cancelled, tr("Cancelled: %1. Earlier backups are left as they are."));
    for (const BackupJob::Result &result : results) {
        if (result.state == State::Failed)
            lines.append(
                tr("Not backed up: “%1”. %2").arg(result.name, exportMessage(result.outcome)));
    }
    const bool good =
        std::all_of(results.begin(), results.end(), [](const BackupJob::Result &result) {
            return result.state == State::Written || result.state == State::Unchanged;
        });
    return {good, lines.join(QLatin1Char('\n'))};
}
