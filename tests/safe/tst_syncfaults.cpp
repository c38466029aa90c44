#include "../Text.h"
#include "SafeCrypto.h"
#include "SyncSides.h"

#include <QProcess>

#include <random>
#include <sys/stat.h>
#include <unistd.h>

/// Rounds that are cut short, and folders that are damaged.
class TestSyncFaults : public SyncSides
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }

    void waitsForWholeFiles()
    {
        const QString item = "content/"_s + add(m_one, "first"_s);
        const QString bytes = "attachment/"_s + attach(m_one, "some bytes");
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
        for (const QString &name : {bytes, item}) {
            const QByteArray whole = contentOf(inMirror(name));
            writeFile(inMirror(name), whole.left(whole.size() / 2));
            const SyncResult result = m_two.synchronise(m_mirror);
            QCOMPARE(result.state, SyncState::Waiting);
            QCOMPARE(result.waiting.size(), 1);
            QCOMPARE(contentOf(inMirror(name)), whole.left(whole.size() / 2));
            writeFile(inMirror(name), whole);
        }
        meet();
        QCOMPARE(m_two.items(), m_one.items());
    }

    /// Until a day has passed it may still arrive; then the item goes on beside it.
    void goesOnWithoutWhatStaysBroken()
    {
        const QString id = add(m_one, "first"_s);
        const QString file = inMirror("content/"_s + id);
        meet();
        const QByteArray broken = contentOf(file).left(400);
        writeFile(file, broken);
        rename(m_one, id, "second"_s);
        for (const qint64 later : {qint64(0), day / 2}) {
            m_one.time += later;
            const SyncResult result = m_one.synchronise(m_mirror);
            QCOMPARE(result.state, SyncState::Waiting);
            QCOMPARE(result.waiting, QStringList{id});
        }
        m_one.time += day;
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
        QCOMPARE(m_one.items(), QStringList{id + " second"_s});
        QCOMPARE(contentOf(file), broken);
        m_two.synchronise(m_mirror);
        QVERIFY(m_two.items().contains(id + " second"_s));

        // What is only there is waited for, and nothing is written over it.
        const QString lost = "00000000-0000-0000-0000-00000000000a"_s;
        writeFile(inMirror("content/"_s + lost), broken);
        for (int i = 0; i < 3; ++i) {
            m_one.time += day;
            const SyncResult result = m_one.synchronise(m_mirror);
            QCOMPARE(result.state, SyncState::Waiting);
            QCOMPARE(result.waiting, QStringList{lost});
        }
        QCOMPARE(contentOf(inMirror("content/"_s + lost)), broken);
    }

    /// The safe is in the middle of a change of password that a crash has cut short.
    void sendsNoHalfChangeOfPassword()
    {
        add(m_one, "first"_s);
        add(m_one, "second"_s);
        meet();
        const QString passId = m_one.folder + "/safe.passid"_s;
        writeFile(passId + ".bak"_s, contentOf(passId));
        writeFile(passId, makePassId(newPassword.toUtf8()).toLatin1());
        const QMap<QString, QByteArray> safe = snapshot(m_one.folder);
        const QMap<QString, QByteArray> mirror = snapshot(m_mirror);
        m_one.password = newPassword;
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Busy);
        QCOMPARE(snapshot(m_mirror), mirror);
        QCOMPARE(snapshot(m_one.folder), safe);
    }

    void makesADamagedRecordAnew()
    {
        const QString id = add(m_one, "first"_s);
        meet();
        rename(m_two, id, "second"_s);
        writeFile(m_two.folder + "/safe.sync"_s, "{\"vers");
        meet();
        QVERIFY(m_one.items().contains(id + " second"_s));
        QCOMPARE(m_one.items(), m_two.items());
        QVERIFY(SyncRecord::fromJson(contentOf(m_two.folder + "/safe.sync"_s)));
    }

    void losesNothingOverTime_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 4; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    /// Edits, deletions, failing writes, half files and clocks a day apart, in any order.
    void losesNothingOverTime()
    {
        QFETCH(const unsigned, seed);
        std::mt19937 random(seed);
        const auto pick = [&random](int count) {
            return static_cast<int>(random() % static_cast<unsigned>(count));
        };
        QStringList ids{add(m_one, "0"_s)};
        QHash<QString, QString> alive{{"0"_s, ids.first()}}; // by title
        int titles = 0;
        for (int step = 0; step < 60; ++step) {
            Computer &computer = pick(2) == 0 ? m_one : m_two;
            const QString id = ids.at(pick(ids.size()));
            QString title;
            computer.work([&](GPMSafe &safe) {
                if (const PMListItem *item = safe.item(id))
                    title = item->title();
            });
            switch (pick(8)) {
            case 0:
                ids += add(computer, QString::number(++titles));
                alive.insert(QString::number(titles), ids.last());
                break;
            case 1:
            case 2:
                if (title.isEmpty())
                    break;
                alive.remove(title);
                rename(computer, id, QString::number(++titles));
                alive.insert(QString::number(titles), id);
                break;
            case 3:
                if (title.isEmpty())
                    break;
                alive.remove(title);
                remove(computer, id);
                break;
            case 4:
                computer.time += (pick(3) - 1) * day;
                break;
            default:
                computer.files->operations = 0;
                computer.files->failAt = pick(2) == 0 ? 1 + pick(5) : 0;
                computer.files->andAllBehind = true;
                computer.synchronise(m_mirror);
                computer.files->failAt = 0;
            }
        }
        meet();
        const QStringList items = m_one.items();
        QCOMPARE(m_two.items(), items);
        for (auto each = alive.begin(); each != alive.end(); ++each) {
            const QRegularExpression there("^\\S+ %1( \\(.*\\(trash\\))?$"_s.arg(each.key()));
            QVERIFY2(!items.filter(there).isEmpty(),
                     qPrintable(each.key() + QLatin1Char('\n') + items.join(QLatin1Char('\n'))));
        }
    }

    /// A damaged item, as a failing disk leaves it, does not keep the others from their mirror.
    void meetsWithADamagedItem()
    {
        const QString whole = add(m_one, "whole"_s);
        const QString file = m_one.folder + "/content/"_s + add(m_one, "damaged"_s);
        const QByteArray half = contentOf(file).left(300);
        writeFile(file, half);
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
        QCOMPARE(m_two.synchronise(m_mirror).state, SyncState::Done);
        QCOMPARE(m_two.items(), QStringList{whole + " whole"_s});
        QCOMPARE(contentOf(file), half);
    }

    /// It died before it had written into the lock file who it is.
    void takesTheLockOfADeadProcess()
    {
        const QString lock = m_one.folder + "/.sourcelock"_s;
        writeFile(lock, {});
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Busy);
        makeOld(lock);
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
    }

    void isInterrupted_data()
    {
        QTest::addColumn<QString>("how");
        for (const char *how : {"one write fails", "all behind fail", "killed inside", "killed"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }
    /// The disk is full, or the process dies, at every write and removal of a round with everything
    /// in it, on either side, or at any moment; the next rounds make both sides equal.
    void isInterrupted()
    {
        QFETCH(const QString, how);
        makeWork();
        QVERIFY(m_one.synchronise(m_mirror).state == SyncState::Done);
        const int operations = m_one.files->operations;
        const QStringList expected = m_one.items();
        QCOMPARE(expected.filter("theirs ("_s).size(), 1);
        QCOMPARE(expected.size(), 5);
        std::mt19937 random(1);
        for (int at = 1; at <= operations; ++at) {
            putWorkBack();
            if (how.startsWith(QLatin1String("killed"))) {
                QProcess child;
                const bool inside = how == QLatin1String("killed inside");
                child.start(QCoreApplication::applicationFilePath(),
                            {"--round"_s, m_one.folder, m_mirror, QString::number(m_one.time),
                             QString::number(inside ? at : 0)});
                QVERIFY(child.waitForStarted());
                if (!inside && !child.waitForFinished(static_cast<int>(random() % 150)))
                    child.kill();
                QVERIFY(child.state() == QProcess::NotRunning || child.waitForFinished());
                QVERIFY(!inside || child.exitCode() == 9);
                // The computer is started again some time later.
                makeOld(m_one.folder + "/.sourcelock"_s);
            } else {
                m_one.files->failAt = at;
                m_one.files->andAllBehind = how.startsWith(QLatin1String("all"));
                QVERIFY(m_one.synchronise(m_mirror).state != SyncState::Done ||
                        !m_one.files->andAllBehind);
                QVERIFY(m_one.files->operations >= at);
                m_one.files->failAt = 0;
            }
            const SyncState next = m_one.synchronise(m_mirror).state;
            QVERIFY2(next == SyncState::Done, QByteArray::number(static_cast<int>(next)));
            QCOMPARE(m_one.items(), expected);
            QCOMPARE(m_two.synchronise(m_mirror).state, SyncState::Done);
            QCOMPARE(m_two.items(), expected);
            QVERIFY(!snapshot(m_mirror).keys().join(QLatin1Char('|')).contains(m_gone));
        }
    }
};

/// A process that makes one round and dies inside the given operation, or does not.
static int makeRound(const QStringList &arguments)
{
    Computer computer{arguments.value(2)};
    computer.time = arguments.value(4).toLongLong();
    computer.files->failAt = arguments.value(5).toInt();
    computer.files->fault = [] { _exit(9); };
    computer.synchronise(arguments.value(3));
    return 0;
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--round"))
        return makeRound(arguments);
    TestSyncFaults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_syncfaults.moc"
