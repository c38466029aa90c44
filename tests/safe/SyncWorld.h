#pragma once

#include "../Text.h"
#include "SyncPlan.h"

#include <QMap>
#include <QSet>
#include <QtTest>

#include <random>

const QString itemId = "00000000-0000-0000-0000-000000000001"_s;
const qint64 day = 86400000;

/// A safe on one computer or the mirror, with files by name. What a file holds is a number; a file
/// of another password than the safe's is not readable in it.
struct File
{
    int content = 0;
    qint64 modified = 0;
    int password = 0;
    int writing = 0; ///< a file that is encrypted anew gets other bytes
    bool whole = true;
    bool rotten = false; ///< never whole again

    QString hash() const { return "%1/%2/%3"_s.arg(content).arg(writing).arg(whole ? 1 : 0); }
};
using Files = QMap<QString, File>; // by file name

struct Computer
{
    Files files;
    QMap<QString, SyncItem::Met> met;
    SyncRecord::Deletions deletions;
    int password = 0;
    int metPassword = 0; ///< that of the mirror when both last met
    qint64 clockError = 0;
};

/// Two safes and a mirror through which they are kept alike.
class World
{
public:
    explicit World(unsigned seed)
        : m_random(seed)
    {
    }

    void step()
    {
        m_time += 1 + pick(1000);
        Computer &computer = m_computers[pick(2)];
        switch (pick(21)) {
        case 0:
        case 1:
        case 2:
            addItem(computer);
            break;
        case 3:
        case 4:
        case 5:
        case 6:
        case 7:
            editItem(computer);
            break;
        case 8:
            deleteItem(computer);
            break;
        case 9:
            if (pick(8) == 0)
                changePassword(computer, ++m_newestPassword);
            break;
        case 10:
            computer.clockError = (pick(3) - 1) * day;
            break;
        case 11:
            setBeside();
            break;
        case 12:
            cutShort();
            break;
        case 13:
            if (pick(10) == 0)
                computer.met.clear(); // an unreadable record
            break;
        case 14:
            if (pick(20) == 0) {
                settle();
                m_mirror.clear(); // an emptied folder
            }
            break;
        case 15:
            makeWhole();
            break;
        case 16:
            if (pick(10) == 0)
                rot();
            break;
        default:
            synchronise(computer, pick(3) == 0 ? pick(6) : -1);
        }
    }

    /// Everything arrives, and both look at the mirror until there is nothing more to do.
    void settle()
    {
        makeWhole();
        m_isSettling = true;
        bool busy = true;
        for (int round = 0; busy && round < 20; ++round) {
            busy = synchronise(m_computers[0], -1);
            busy = synchronise(m_computers[1], -1) || busy;
        }
        if (busy)
            qFatal("the two safes never come to rest");
        m_isSettling = false;
    }

    QString sides() const
    {
        return textOf(m_computers[0].files) + QLatin1Char('\n') + textOf(m_computers[1].files);
    }
    /// What does not open is left in the mirror and does not count.
    bool areEqual() const
    {
        Files mirror = m_mirror;
        for (auto file = m_mirror.begin(); file != m_mirror.end(); ++file) {
            if (file->password != m_mirrorPassword || file->rotten)
                mirror.remove(file.key());
        }
        return m_computers[0].files.keys() == mirror.keys() &&
               textOf(m_computers[0].files) == textOf(mirror) &&
               textOf(m_computers[1].files) == textOf(mirror);
    }

    /// Contents that nobody replaced or deleted on purpose and that are nowhere.
    QStringList lost() const
    {
        QSet<int> there;
        for (const File &file : m_computers[0].files)
            there.insert(file.content);
        QStringList missing;
        for (const int content : m_alive) {
            if (!there.contains(content))
                missing += QString::number(content);
        }
        return missing;
    }
    int itemCount() const { return m_computers[0].files.size(); }

private:
    static QString textOf(const Files &files)
    {
        QStringList lines;
        for (auto file = files.begin(); file != files.end(); ++file)
            lines += file.key() + QLatin1Char('=') + file->hash();
        return lines.join(QLatin1Char(' '));
    }

    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    qint64 now(const Computer &computer) const { return m_time + computer.clockError; }

    QString anyName(const Files &files)
    {
        return files.isEmpty() ? QString() : (files.begin() + pick(files.size())).key();
    }

    void addItem(Computer &computer)
    {
        const QString id = "00000000-0000-0000-0000-%1"_s.arg(++m_items, 12, 10, QLatin1Char('0'));
        computer.files.insert(id, {++m_contents, now(computer), computer.password, ++m_writings});
        m_alive.insert(m_contents);
    }

    void editItem(Computer &computer)
    {
        const QString name = anyName(computer.files);
        if (name.isEmpty())
            return;
        File &file = computer.files[name];
        m_alive.remove(file.content);
        // Now and then by a program that trusts its clock.
        const qint64 least = pick(20) == 0 ? 0 : file.modified + 1 + pick(1000);
        file = {++m_contents, std::max(now(computer), least), computer.password, ++m_writings};
        m_alive.insert(m_contents);
    }

    void deleteItem(Computer &computer)
    {
        const QString name = anyName(computer.files);
        if (name.isEmpty())
            return;
        const File file = computer.files.take(name);
        m_alive.remove(file.content);
        const QString id = ItemFileName::parse(name).id;
        SyncHistory seen{file.modified};
        if (computer.met.contains(id))
            seen += computer.met[id].earlier + SyncHistory{computer.met[id].modified};
        SyncRecord::Deletion &deletion = computer.deletions[id];
        const qint64 time = std::max({now(computer), file.modified, deletion.revived + 1});
        deletion = {std::max(deletion.time, time), deletion.revived, joined(deletion.seen, seen)};
    }

    void changePassword(Computer &computer, int password)
    {
        Files renewed;
        for (auto file = computer.files.begin(); file != computer.files.end(); ++file) {
            ItemFileName name = ItemFileName::parse(file.key());
            ++name.generation;
            renewed.insert(name.text(), {file->content, file->modified, password, ++m_writings});
        }
        computer.files = renewed;
        computer.password = password;
    }

    /// A provider found that the other computer wrote the same file and put that beside.
    void setBeside()
    {
        const Computer &writer = m_computers[pick(2)];
        const QString name = anyName(writer.files);
        if (!name.isEmpty() && writer.files[name].password == m_mirrorPassword)
            m_mirror.insert(name + " (conflicted copy)"_s, writer.files[name]);
    }

    void cutShort()
    {
        const QString name = anyName(m_mirror);
        if (!name.isEmpty())
            m_mirror[name].whole = false;
    }

    /// What the provider has damaged for good; the safe that it came from has the item still.
    void rot()
    {
        const QString name = anyName(m_mirror);
        if (name.isEmpty())
            return;
        File &file = m_mirror[name];
        const auto has = [&](const Computer &computer) {
            const Files &files = computer.files;
            return std::any_of(files.begin(), files.end(), [&file](const File &other) {
                return other.content == file.content;
            });
        };
        if (has(m_computers[0]) || has(m_computers[1]) || !m_alive.contains(file.content))
            file.whole = !(file.rotten = true);
    }

    void makeWhole()
    {
        for (File &file : m_mirror)
            file.whole = !file.rotten;
    }

    static void addDeletions(SyncRecord::Deletions &deletions, const SyncRecord::Deletions &more)
    {
        SyncRecord record;
        record.deletions = deletions;
        record.addDeletions(more);
        deletions = record.deletions;
    }

    static ItemFileName itemOf(const QString &fileName)
    {
        return ItemFileName::parse(fileName.section(QLatin1Char(' '), 0, 0));
    }

    static QVector<SyncVersion> versionsOf(const Files &files, const QString &id, int password,
                                           bool areOld)
    {
        QVector<SyncVersion> versions;
        for (auto file = files.lowerBound(id); file != files.end() && file.key().startsWith(id);
             ++file) {
            SyncVersion found{file.key(), itemOf(file.key()), file->hash()};
            found.readable = file->whole && file->password == password;
            found.stuck = file->rotten && areOld;
            found.conflictCopy = file.key().contains(QLatin1Char(' '));
            found.modified = file->modified;
            found.content = QByteArray::number(file->content);
            versions.append(found);
        }
        return versions;
    }

    /// @param operations how many file operations until the power fails; -1: it does not
    bool synchronise(Computer &computer, int operations)
    {
        // Changed over there since both met: the user is asked for it, and this side follows.
        if (m_mirrorPassword != computer.metPassword && m_mirrorPassword != computer.password)
            changePassword(computer, m_mirrorPassword);
        addDeletions(computer.deletions, m_deletions);

        QSet<QString> ids;
        for (const Files *files :
             {static_cast<const Files *>(&computer.files), static_cast<const Files *>(&m_mirror)}) {
            for (auto file = files->begin(); file != files->end(); ++file)
                ids.insert(file.key().left(itemId.size()));
        }
        bool busy = false;
        QStringList sorted(ids.begin(), ids.end());
        std::sort(sorted.begin(), sorted.end());
        for (const QString &id : std::as_const(sorted))
            busy = carryOut(computer, id, operations) || busy;
        if (operations != 0)
            m_mirrorPassword = computer.metPassword = computer.password;
        return busy;
    }

    bool carryOut(Computer &computer, const QString &id, int &operations)
    {
        SyncItem item{id, versionsOf(computer.files, id, computer.password, false),
                      versionsOf(m_mirror, id, computer.password, m_isSettling), std::nullopt,
                      std::nullopt};
        if (computer.met.contains(id))
            item.met = computer.met.value(id);
        const SyncRecord::Deletion deletion = computer.deletions.value(id);
        if (deletion.counts())
            item.deleted = SyncItem::Deletion{deletion.time, deletion.seen};
        const SyncActions actions = planSync(item);
        const auto may = [&operations] {
            if (operations > 0)
                --operations;
            return operations != 0;
        };
        const auto fileOf = [&](const SyncActions::Source &source) {
            return (source.side == SyncSide::Local ? computer.files : m_mirror)
                .value(source.version.fileName);
        };
        const std::optional<File> winner =
            actions.winner ? std::make_optional(fileOf(*actions.winner)) : std::nullopt;
        for (const SyncActions::Copy &copy : actions.copies) {
            if (!may())
                return true;
            File kept = fileOf(copy.source);
            kept.writing = ++m_writings;
            if (!computer.files.contains(copy.id))
                computer.files.insert(copy.id, kept);
        }
        if (actions.toLocal && may())
            computer.files.insert(actions.target.text(), *winner);
        if (actions.toMirror && may())
            m_mirror.insert(actions.target.text(), *winner);
        if (operations == 0)
            return true;
        if (item.deleted && winner)
            computer.deletions[id].revived = item.deleted->time;
        if (computer.deletions.contains(id))
            m_deletions[id] = computer.deletions.value(id);
        for (const QString &name : actions.removeLocal)
            may() ? computer.files.remove(name) : 0;
        for (const QString &name : actions.removeMirror)
            may() ? m_mirror.remove(name) : 0;
        if (operations == 0)
            return true;
        if (winner) {
            SyncHistory earlier;
            if (item.met)
                earlier = joined(item.met->earlier, {item.met->modified});
            computer.met[id] = {winner->hash(), winner->modified,
                                before(earlier, winner->modified)};
        }
        if (actions.deletionWins)
            computer.met.remove(id);
        return !actions.isEmpty();
    }

    std::mt19937 m_random;
    Computer m_computers[2];
    Files m_mirror;
    SyncRecord::Deletions m_deletions; ///< as the mirror tells of them
    int m_mirrorPassword = 0;
    int m_newestPassword = 0;
    int m_items = 0;
    int m_contents = 0;
    int m_writings = 0;
    QSet<int> m_alive;
    qint64 m_time = 100 * day;
    bool m_isSettling = false; ///< nothing in the mirror has changed for long
};
