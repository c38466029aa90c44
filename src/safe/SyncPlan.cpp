#include "SyncPlan.h"

#include <QUuid>

#include <algorithm>
#include <tuple>

namespace {

using Source = SyncActions::Source;

enum class State {
    Same,      ///< the file that both sides had
    Rewritten, ///< the same item under other bytes, as under another password
    Outdated,  ///< what both had before that
    Changed,
};

State stateOf(const SyncVersion &version, const std::optional<SyncItem::Met> &met)
{
    if (!met)
        return State::Changed;
    if (version.hash == met->hash)
        return State::Same;
    if (version.modified == met->modified)
        return State::Rewritten;
    return met->earlier.contains(version.modified) ? State::Outdated : State::Changed;
}

/// Whether a version lies under bytes that both sides had, or this safe before it took another
/// password: it has been read then, even if it does not open any more.
bool isKnown(const SyncVersion &version, const SyncItem &item)
{
    return (item.met && version.hash == item.met->hash) || item.former.contains(version.hash);
}

bool isUnread(const SyncVersion &version, const SyncItem &item)
{
    return !version.readable && !isKnown(version, item);
}

/// The versions of both sides that can be read.
QVector<Source> readableOf(const SyncItem &item)
{
    QVector<Source> list;
    const auto add = [&list](SyncSide side, const QVector<SyncVersion> &versions) {
        for (const SyncVersion &version : versions) {
            if (version.readable)
                list.append({side, version});
        }
    };
    add(SyncSide::Local, item.local);
    add(SyncSide::Mirror, item.mirror);
    return list;
}

QVector<Source> inState(State state, const QVector<Source> &sources, const SyncItem &item)
{
    QVector<Source> list;
    for (const Source &source : sources) {
        if (stateOf(source.version, item.met) == state)
            list.append(source);
    }
    return list;
}

/// Every computer that sees the same versions chooses the same one.
Source latest(const QVector<Source> &sources)
{
    const auto order = [](const Source &a, const Source &b) {
        return std::tie(a.version.modified, a.version.hash) <
               std::tie(b.version.modified, b.version.hash);
    };
    return *std::max_element(sources.begin(), sources.end(), order);
}

/// Of files that hold the same item, the mirror's: the other computers have it already.
Source latestRewritten(const QVector<Source> &sources)
{
    const auto rank = [](const Source &source) {
        return std::make_tuple(source.side == SyncSide::Mirror, source.version.item.generation,
                               source.version.hash);
    };
    return *std::max_element(
        sources.begin(), sources.end(),
        [&rank](const Source &a, const Source &b) { return rank(a) < rank(b); });
}

/// The versions that came about independently of each other, so that all but one of them lose.
QVector<Source> competing(const QVector<Source> &readable, const SyncItem &item)
{
    const QVector<Source> changed = inState(State::Changed, readable, item);
    const auto isOn = [&changed](SyncSide side) {
        return std::any_of(changed.begin(), changed.end(),
                           [side](const Source &source) { return source.side == side; });
    };
    if (!isOn(SyncSide::Mirror) || isOn(SyncSide::Local))
        return changed;
    // Beside the file that both had, not in its place: who wrote it had not seen that file. A
    // provider's conflict copy is such a one, and what another computer wrote under a new password.
    const bool beside =
        std::any_of(item.mirror.begin(), item.mirror.end(), [&item](const SyncVersion &file) {
            return !file.readable || isKnown(file, item);
        });
    // Nor has who made an earlier one: that would have become the later.
    const bool earlier = std::any_of(changed.begin(), changed.end(), [&item](const Source &source) {
        return item.met && source.version.modified < item.met->modified;
    });
    if (!beside && !earlier)
        return changed;
    return changed + inState(State::Same, readable, item) +
           inState(State::Rewritten, readable, item);
}

Source chooseWinner(const QVector<Source> &readable, const QVector<Source> &competitors,
                    const SyncItem &item)
{
    if (!competitors.isEmpty())
        return latest(competitors);
    const QVector<Source> rewritten = inState(State::Rewritten, readable, item);
    if (!rewritten.isEmpty())
        return latestRewritten(rewritten);
    const QVector<Source> same = inState(State::Same, readable, item);
    return same.isEmpty() ? latest(readable) : same.first();
}

/// The name that both sides are to have: that of the latest password, and none that a file has
/// which will not be written over.
ItemFileName chooseTarget(const QVector<Source> &readable, const SyncItem &item)
{
    ItemFileName target{item.id, 0};
    for (const Source &source : readable)
        target.generation = std::max(target.generation, source.version.item.generation);
    const auto isTaken = [&target, &item](const SyncVersion &file) {
        return file.fileName == target.text() && isUnread(file, item);
    };
    const auto isLost = [&isTaken](const SyncVersion &file) { return file.stuck && isTaken(file); };
    // In the safe, files are whole at once: one that does not open is damaged.
    while (std::any_of(item.local.begin(), item.local.end(), isTaken) ||
           std::any_of(item.mirror.begin(), item.mirror.end(), isLost))
        ++target.generation;
    return target;
}

/// Copies of those versions whose content neither the winner nor an earlier copy has.
QVector<SyncActions::Copy> keepAll(const QString &id, const QVector<Source> &losers,
                                   const QByteArray &winnerContent, qint64 winnerModified)
{
    QVector<SyncActions::Copy> copies;
    for (const Source &loser : losers) {
        const bool kept = loser.version.content == winnerContent ||
                          std::any_of(copies.begin(), copies.end(), [&loser](const auto &copy) {
                              return copy.source.version.content == loser.version.content;
                          });
        if (!kept)
            copies.append({syncCopyId(id, loser.version.hash), loser, winnerModified});
    }
    return copies;
}

bool holds(const QVector<SyncVersion> &versions, const QString &fileName, const QString &hash)
{
    return std::any_of(versions.begin(), versions.end(), [&](const SyncVersion &version) {
        return version.fileName == fileName && version.hash == hash;
    });
}

/// The files of a side that the target stands for. One that does not open goes only when it is
/// what both sides had: then it is of an earlier password.
QStringList supersededFiles(const QVector<SyncVersion> &versions, const SyncItem &item,
                            const QString &target)
{
    QStringList names;
    for (const SyncVersion &version : versions) {
        if (version.fileName != target && !isUnread(version, item))
            names.append(version.fileName);
    }
    return names;
}

/// What a deletion does, when it wins: the versions that it was not made on are kept as copies.
/// Nothing when one of them is later.
std::optional<SyncActions> planDeletion(const SyncItem &item, const QVector<Source> &readable)
{
    QVector<Source> unseen;
    for (const Source &source : readable) {
        if (!item.deleted->seen.contains(source.version.modified))
            unseen.append(source);
    }
    const bool loses = std::any_of(unseen.begin(), unseen.end(), [&item](const Source &source) {
        return source.version.modified > item.deleted->time;
    });
    if (loses)
        return std::nullopt;
    SyncActions actions;
    actions.deletionWins = true;
    actions.copies = keepAll(item.id, unseen, {}, item.deleted->time);
    actions.removeLocal = supersededFiles(item.local, item, {});
    actions.removeMirror = supersededFiles(item.mirror, item, {});
    return actions;
}

} // namespace

QString syncCopyId(const QString &id, const QString &hash)
{
    static const QUuid space(QStringLiteral("{8d1f5a0e-6a0b-4c57-9a43-51c6f0e1d2b7}"));
    return QUuid::createUuidV5(space, id + QLatin1Char(' ') + hash).toString(QUuid::WithoutBraces);
}

QString syncCopyTitle(const QString &title, const QDateTime &loser, const QDateTime &winner)
{
    const QString form = QStringLiteral("yyyy-MM-dd HH:mm");
    return QStringLiteral("%1 (%2 / %3)")
        .arg(title, loser.toUTC().toString(form), winner.toUTC().toString(form));
}

SyncActions planSync(const SyncItem &item)
{
    const QVector<Source> readable = readableOf(item);
    SyncActions actions;
    const auto isWaiting = [&](const SyncVersion &file) {
        return isUnread(file, item) && (!file.stuck || readable.isEmpty());
    };
    const bool waiting = std::any_of(item.mirror.begin(), item.mirror.end(), isWaiting);
    if (item.deleted) {
        if (auto deletion = planDeletion(item, readable)) {
            deletion->waiting = waiting;
            return *deletion;
        }
    }
    actions.waiting = waiting;
    if (readable.isEmpty())
        return actions;

    const ItemFileName target = chooseTarget(readable, item);
    const bool isBlocked =
        std::any_of(item.mirror.begin(), item.mirror.end(), [&](const SyncVersion &file) {
            return file.fileName == target.text() && isUnread(file, item);
        });
    if (isBlocked)
        return actions;
    const QVector<Source> competitors = competing(readable, item);
    const Source winner = chooseWinner(readable, competitors, item);
    actions.winner = winner;
    actions.target = target;
    actions.copies = keepAll(item.id, competitors, winner.version.content, winner.version.modified);
    actions.toLocal = !holds(item.local, target.text(), winner.version.hash);
    actions.toMirror = !holds(item.mirror, target.text(), winner.version.hash);
    actions.removeLocal = supersededFiles(item.local, item, target.text());
    actions.removeMirror = supersededFiles(item.mirror, item, target.text());
    return actions;
}
