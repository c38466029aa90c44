#include "../Text.h"
#include "SyncWorld.h"

#include <QtTest>

Q_DECLARE_METATYPE(SyncVersion)

namespace {

// The sanitizers make a step much slower.
#ifdef __SANITIZE_ADDRESS__
constexpr unsigned seeds = 6;
#else
constexpr unsigned seeds = 60;
#endif

SyncVersion version(const QString &hash, qint64 modified, int generation = 0)
{
    const ItemFileName name{itemId, generation};
    SyncVersion made{name.text(), name, hash, true, false, false, modified};
    made.content = hash.toLatin1();
    return made;
}

SyncVersion unreadable(const QString &hash, int generation = 0)
{
    SyncVersion made = version(hash, 0, generation);
    made.readable = false;
    return made;
}

SyncVersion stuck(const QString &hash)
{
    SyncVersion made = unreadable(hash);
    made.stuck = true;
    return made;
}

SyncVersion beside(const QString &hash, qint64 modified)
{
    SyncVersion made = version(hash, modified);
    made.fileName += " (conflicted copy)"_s;
    made.conflictCopy = true;
    return made;
}

/// The plan in a line: the winner, what is written, the copies, what is removed.
QString textOf(const SyncActions &actions)
{
    QStringList words;
    if (actions.winner)
        words += actions.winner->version.hash + "->"_s + QString::number(actions.target.generation);
    if (actions.toLocal)
        words += "local"_s;
    if (actions.toMirror)
        words += "mirror"_s;
    for (const SyncActions::Copy &copy : actions.copies)
        words += "keep:"_s + copy.source.version.hash;
    for (const QString &name : actions.removeLocal)
        words += "rm-local:"_s + name.mid(itemId.size());
    for (const QString &name : actions.removeMirror)
        words += "rm-mirror:"_s + name.mid(itemId.size());
    if (actions.deletionWins)
        words += "deleted"_s;
    if (actions.waiting)
        words += "waits"_s;
    return words.join(QLatin1Char(' '));
}

} // namespace

class TestSyncPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decides_data()
    {
        using Versions = QVector<SyncVersion>;
        QTest::addColumn<Versions>("local");
        QTest::addColumn<Versions>("mirror");
        QTest::addColumn<QString>("met"); // bytes that both had, of time 100; empty: none known
        QTest::addColumn<qint64>("deleted");
        QTest::addColumn<QString>("plan");

        const QString a = "a"_s;
        const QString b = "b"_s;
        const QString c = "c"_s;
        const auto row = [](const char *name, const Versions &local, const Versions &mirror,
                            const QString &met, qint64 deleted, const char *plan) {
            QTest::newRow(name) << local << mirror << met << deleted << QString::fromLatin1(plan);
        };
        row("nothing new", {version(a, 100)}, {version(a, 100)}, a, 0, "a->0");
        row("changed here", {version(b, 200)}, {version(a, 100)}, a, 0, "b->0 mirror");
        row("changed here, clock set back", {version(b, 50)}, {version(a, 100)}, a, 0,
            "b->0 mirror");
        row("changed there", {version(a, 100)}, {version(b, 200)}, a, 0, "b->0 local");
        row("an earlier one there, of a computer that had not seen ours", {version(a, 100)},
            {version(b, 50)}, a, 0, "a->0 mirror keep:b");
        row("one there that both had left behind", {version(a, 100)}, {version(b, 70)}, a, 0,
            "a->0 mirror");
        row("damaged here", {unreadable(b)}, {version(a, 100)}, a, 0,
            "a->1 local mirror rm-mirror:");
        row("damaged there for good", {version(a, 100)}, {stuck(b)}, a, 0,
            "a->1 local mirror rm-local:");
        row("damaged there, and only there", {}, {stuck(b)}, a, 0, "waits");
        row("damaged there, and nothing of it needed", {version(a, 100, 1)},
            {version(a, 100, 1), stuck(b)}, a, 0, "a->1");
        row("both changed", {version(b, 200)}, {version(c, 300)}, a, 0, "c->0 local keep:b");
        row("both changed, later here", {version(b, 400)}, {version(c, 300)}, a, 0,
            "b->0 mirror keep:c");
        row("first meeting", {version(b, 200)}, {version(c, 300)}, {}, 0, "c->0 local keep:b");
        row("new here", {version(a, 100)}, {}, {}, 0, "a->0 mirror");
        row("gone there without a word", {version(a, 100)}, {}, a, 0, "a->0 mirror");
        row("gone here without a word", {}, {version(a, 100)}, a, 0, "a->0 local");
        row("deleted here", {}, {version(a, 100)}, a, 150, "rm-mirror: deleted");
        row("deleted there", {version(a, 100)}, {}, a, 150, "rm-local: deleted");
        row("deleted, changed before", {version(b, 120)}, {}, a, 150, "keep:b rm-local: deleted");
        row("deleted while ours was on its way", {version(b, 100)}, {version(b, 100)}, b, 150,
            "keep:b rm-local: rm-mirror: deleted");
        row("deleted while it was half there", {}, {unreadable(b)}, a, 150, "deleted waits");
        row("deleted, changed after", {version(b, 200)}, {}, a, 150, "b->0 mirror");
        row("half arrived", {version(a, 100)}, {unreadable(b)}, a, 0, "waits");
        row("new and half arrived", {}, {unreadable(b)}, {}, 0, "waits");
        row("half arrived beside", {version(b, 200)}, {version(a, 100), unreadable(c, 1)}, a, 0,
            "b->0 mirror waits");
        row("another password here", {version(b, 100, 1)}, {unreadable(a)}, a, 0,
            "b->1 mirror rm-mirror:");
        row("both under it", {version(b, 100, 1)}, {unreadable(a), version(c, 100, 1)}, a, 0,
            "c->1 local rm-mirror:");
        row("under it twice", {version(b, 100, 1)}, {version(c, 100, 2)}, a, 0,
            "c->2 local rm-local:.1");
        row("under it, changed there", {version(b, 100, 1)}, {version(c, 300, 1)}, a, 0,
            "c->1 local");
        row("another password there, written without having seen what was met",
            {version(b, 100, 1)}, {unreadable(a), version(c, 300, 1)}, a, 0,
            "c->1 local keep:b rm-mirror:");
        row("left of the password before", {version(b, 100, 2)},
            {unreadable(a), unreadable("former"_s, 1)}, a, 0,
            "b->2 mirror rm-mirror: rm-mirror:.1");
        row("deleted there, under another password here", {version(b, 100, 1)}, {unreadable(a)}, a,
            150, "rm-local:.1 rm-mirror: deleted");
        row("conflict copy, later", {version(a, 100)}, {version(a, 100), beside(b, 200)}, a, 0,
            "b->0 local mirror keep:a rm-mirror: (conflicted copy)");
        row("conflict copy, earlier", {version(a, 100)}, {version(a, 100), beside(b, 50)}, a, 0,
            "a->0 keep:b rm-mirror: (conflicted copy)");
        row("conflict copy of the same", {version(a, 100)}, {version(a, 100), beside(a, 100)}, a, 0,
            "a->0 rm-mirror: (conflicted copy)");
    }
    void decides()
    {
        QFETCH(const QVector<SyncVersion>, local);
        QFETCH(const QVector<SyncVersion>, mirror);
        QFETCH(const QString, met);
        QFETCH(const qint64, deleted);
        QFETCH(const QString, plan);
        SyncItem item{itemId, local, mirror, std::nullopt, std::nullopt};
        if (!met.isEmpty())
            item.met = SyncItem::Met{met, 100, {60, 70}};
        item.former = QStringList{"former"_s};
        if (deleted > 0)
            item.deleted = SyncItem::Deletion{deleted, {met == QLatin1String("a") ? 100 : 90}};
        QCOMPARE(textOf(planSync(item)), plan);
    }

    void losesNothing_data()
    {
        QTest::addColumn<unsigned>("seed");
        // More of them on demand.
        const unsigned first = qEnvironmentVariable("SYNC_FIRST_SEED", "1"_s).toUInt();
        const unsigned count = qEnvironmentVariable("SYNC_SEEDS", QString::number(seeds)).toUInt();
        for (unsigned seed = first; seed < first + count; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    /// Any order of edits, deletions, passwords, interruptions, wrong clocks and half files ends
    /// with both sides alike and everything there that nobody replaced or deleted on purpose.
    void losesNothing()
    {
        QFETCH(const unsigned, seed);
        World world(seed);
        for (int round = 0; round < 10; ++round) {
            for (int i = 0; i < 100; ++i)
                world.step();
            world.settle();
            QVERIFY2(world.areEqual(), qPrintable(world.sides()));
            QVERIFY2(world.lost().isEmpty(), qPrintable(world.lost().join(QLatin1Char(44))));
        }
        QVERIFY(world.itemCount() > 10);
    }
};

QTEST_GUILESS_MAIN(TestSyncPlan)
#include "tst_syncplan.moc"
