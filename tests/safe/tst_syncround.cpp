#include "PMAttachment.h"
#include "PMLogin.h"
#include "SafeCrypto.h"
#include "SafeTesting.h"
#include "SyncRound.h"

#include <QBuffer>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <filesystem>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString newPassword = QStringLiteral("another password 2");
const qint64 day = 86400000;

/// A safe on one computer. It is unlocked anew for each piece of work, as on a computer that is
/// started for it.
struct Computer
{
    QString folder;
    QString password = samplePassword;
    qint64 time = 1700000000000; ///< of its clock
    std::shared_ptr<FaultyFiles> files = std::make_shared<FaultyFiles>();
    SyncRecord::Deletions deleted{};

    SafeEnvironment environment()
    {
        SafeEnvironment world;
        world.files = files;
        world.lockWaitMs = 0;
        world.clock = [this] { return QDateTime::fromMSecsSinceEpoch(++time, Qt::UTC); };
        return world;
    }

    void work(const std::function<void(GPMSafe &)> &task)
    {
        GPMSafe safe(environment());
        if (!safe.open(folder) || !safe.unlock(password))
            qFatal("the safe does not open");
        task(safe);
        if (safe.isUnlocked() && !safe.saveChanges())
            qFatal("the safe does not save");
    }

    SyncResult synchronise(const QString &mirror)
    {
        SyncRound round({environment(), SafeFolder(folder),
                         std::make_shared<const SecretBytes>(SecretBytes::fromText(password)),
                         std::make_shared<QMutex>(), deleted},
                        mirror);
        WorkControl control;
        return round.run(control);
    }

    /// Each item's id with its title, and for an attachment its bytes.
    QStringList items()
    {
        QStringList list;
        work([&list](GPMSafe &safe) {
            for (PMListItem *item : safe.items()) {
                QString line = item->id() + QLatin1Char(' ') + item->title();
                if (item->deleted())
                    line += QStringLiteral(" (trash)");
                if (item->type() == PMListItem::Attachment) {
                    QBuffer bytes;
                    bytes.open(QIODevice::WriteOnly);
                    safe.readAttachment(item->id(), bytes);
                    line += QLatin1Char(' ') + QString::fromLatin1(bytes.data());
                }
                list.append(line);
            }
        });
        return list;
    }
};

void makeOld(const QString &path)
{
    namespace fs = std::filesystem;
    std::error_code none;
    fs::last_write_time(path.toStdString(),
                        fs::file_time_type::clock::now() - std::chrono::hours(1), none);
}

} // namespace

class TestSyncRound : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_mirror;
    Computer m_one;
    Computer m_two;
    QMap<QString, QMap<QString, QByteArray>> m_before; ///< files of the sides before a round
    QString m_gone;                                    ///< id of an item that goes in it

    QString add(Computer &computer, const QString &title)
    {
        QString id;
        computer.work([&](GPMSafe &safe) {
            auto login = std::make_unique<PMLogin>();
            login->setTitle(title);
            id = safe.addItem(std::move(login))->id();
        });
        return id;
    }

    QString attach(Computer &computer, const QByteArray &content)
    {
        QString id;
        computer.work([&](GPMSafe &safe) {
            QBuffer bytes;
            bytes.setData(content);
            bytes.open(QIODevice::ReadOnly);
            auto item = std::make_unique<PMAttachment>();
            item->setTitle(QStringLiteral("file"));
            id = safe.addAttachment(std::move(item), bytes)->id();
        });
        return id;
    }

    static void rename(Computer &computer, const QString &id, const QString &title)
    {
        computer.work([&](GPMSafe &safe) {
            safe.item(id)->setTitle(title);
            safe.touchItem(*safe.item(id));
        });
    }

    static void remove(Computer &computer, const QString &id)
    {
        computer.work([&](GPMSafe &safe) {
            const PMListItem *item = safe.item(id);
            const qint64 version = item ? item->modified().toMSecsSinceEpoch() : 0;
            if (safe.removeItems({id}))
                computer.deleted.insert(id, {++computer.time, 0, {version}});
        });
    }

    static void changePassword(Computer &computer, const QString &password)
    {
        computer.work([&](GPMSafe &safe) { QVERIFY(safe.changePassword(password)); });
        computer.password = password;
    }

    void meet()
    {
        for (int round = 0; round < 3; ++round) {
            QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
            QCOMPARE(m_two.synchronise(m_mirror).state, SyncState::Done);
        }
    }

    /// A round with something of every kind to do, and its sides as they are before it.
    void makeWork()
    {
        const QString changed = add(m_one, QStringLiteral("changed"));
        m_gone = add(m_one, QStringLiteral("gone"));
        attach(m_one, "some bytes");
        meet();
        rename(m_two, changed, QStringLiteral("theirs"));
        add(m_two, QStringLiteral("new"));
        remove(m_two, m_gone);
        QCOMPARE(m_two.synchronise(m_mirror).state, SyncState::Done);
        m_one.time += day;
        rename(m_one, changed, QStringLiteral("mine"));
        attach(m_one, "other bytes");
        m_one.work([](GPMSafe &safe) { QVERIFY(safe.changePassword(samplePassword)); });
        m_before.clear();
        for (const QString &side : {m_one.folder, m_two.folder, m_mirror})
            m_before.insert(side, snapshot(side));
        m_one.files->operations = 0;
    }

    void putWorkBack()
    {
        for (auto side = m_before.begin(); side != m_before.end(); ++side) {
            QDir(side.key()).removeRecursively();
            writeSafe(side.key(), side.value());
        }
        m_one.files->operations = 0;
    }

    QString inMirror(const QString &name) const { return m_mirror + QLatin1Char('/') + name; }

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_mirror = m_temporary->filePath(QStringLiteral("mirror"));
        m_one = {m_temporary->filePath(QStringLiteral("one"))};
        m_two = {m_temporary->filePath(QStringLiteral("two"))};
        QVERIFY(QDir().mkpath(m_one.folder) && QDir().mkpath(inMirror(QStringLiteral("content"))) &&
                QDir().mkpath(inMirror(QStringLiteral("attachment"))));
        {
            GPMSafe safe(m_one.environment());
            QVERIFY(safe.init(m_one.folder, samplePassword, QStringLiteral("Mine"), {}));
        }
        writeSafe(m_two.folder, snapshot(m_one.folder));
    }

    void exchanges()
    {
        const QString id = add(m_one, QStringLiteral("first"));
        const QString file = attach(m_two, "some bytes");
        meet();
        QCOMPARE(m_one.items(), m_two.items());
        QCOMPARE(m_one.items().size(), 2);
        QVERIFY(m_one.items().join(QLatin1Char('|')).contains(QStringLiteral("some bytes")));

        // A round with nothing new writes nothing.
        const int before = m_one.files->operations;
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
        QCOMPARE(m_one.files->operations.load(), before);

        rename(m_one, id, QStringLiteral("mine"));
        m_two.time += day;
        rename(m_two, id, QStringLiteral("theirs"));
        meet();
        QCOMPARE(m_one.items(), m_two.items());
        QCOMPARE(m_one.items().size(), 3);
        QCOMPARE(m_one.items()
                     .filter(QRegularExpression(QStringLiteral(
                         "mine \\(20\\d\\d-\\d\\d-\\d\\d \\d\\d:\\d\\d / .*\\) \\(trash\\)")))
                     .size(),
                 1);

        remove(m_two, file);
        meet();
        QCOMPARE(m_one.items(), m_two.items());
        QCOMPARE(m_one.items().size(), 2);
        QVERIFY(!QFile::exists(inMirror(QStringLiteral("attachment/") + file)));
    }

    void takesNamesOfBothSides()
    {
        meet();
        m_one.work([](GPMSafe &safe) {
            safe.setName(QStringLiteral("Renamed"));
            QVERIFY(safe.writeMetaFile());
        });
        m_two.time += day; // and saves an item later
        add(m_two, QStringLiteral("other"));
        meet();
        for (Computer *computer : {&m_one, &m_two}) {
            computer->work([](GPMSafe &safe) { QCOMPARE(safe.name(), QStringLiteral("Renamed")); });
        }
    }

    void followsAnotherPassword()
    {
        const QString id = add(m_one, QStringLiteral("first"));
        attach(m_one, "some bytes");
        meet();
        changePassword(m_one, newPassword);
        rename(m_two, id, QStringLiteral("changed meanwhile"));
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
        const QMap<QString, QByteArray> before = snapshot(m_mirror);
        QCOMPARE(m_two.synchronise(m_mirror).state, SyncState::NewPasswordNeeded);
        QCOMPARE(snapshot(m_mirror), before);
        changePassword(m_two, newPassword);
        meet();
        QCOMPARE(m_one.items(), m_two.items());
        QVERIFY(m_one.items().contains(id + QStringLiteral(" changed meanwhile")));
        QCOMPARE(QDir(inMirror(QStringLiteral("content"))).entryList(QDir::Files).size(), 2);
        QCOMPARE(contentOf(inMirror(QStringLiteral("safe.passid"))),
                 contentOf(m_two.folder + QStringLiteral("/safe.passid")));
    }

    /// Two computers change the password, and the one whose change is not to count has died in the
    /// middle of its round: what it left in the mirror opens nowhere.
    void clearsWhatAnotherPasswordLeft()
    {
        const QString id = add(m_one, QStringLiteral("first"));
        meet();
        changePassword(m_one, QStringLiteral("not to count 1"));
        m_one.files->failPath = m_one.folder + QStringLiteral("/safe.sync");
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::SafeNotWritten);
        m_one.files->failPath.clear();
        changePassword(m_two, newPassword);
        writeFile(inMirror(QStringLiteral("safe.passid")),
                  contentOf(m_two.folder + QStringLiteral("/safe.passid")));
        QCOMPARE(m_two.synchronise(m_mirror).state, SyncState::Waiting);
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::NewPasswordNeeded);
        changePassword(m_one, newPassword);
        meet();
        QCOMPARE(m_two.items(), QStringList{id + QStringLiteral(" first")});
        QCOMPARE(QDir(inMirror(QStringLiteral("content"))).entryList(QDir::Files).size(), 1);
    }

    void waitsForWholeFiles()
    {
        const QString item = QStringLiteral("content/") + add(m_one, QStringLiteral("first"));
        const QString bytes = QStringLiteral("attachment/") + attach(m_one, "some bytes");
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

    void clearsConflictCopiesAndLeavesForeignFiles()
    {
        const QString id = add(m_one, QStringLiteral("first"));
        meet();
        rename(m_two, id, QStringLiteral("second"));
        const QString copy =
            inMirror(QStringLiteral("content/%1 (two's conflicted copy 2026-01-31)").arg(id));
        writeFile(copy, contentOf(m_two.folder + QStringLiteral("/content/") + id));
        const QString foreign = inMirror(QStringLiteral("content/notes.txt"));
        writeFile(foreign, "mine");
        writeFile(inMirror(QStringLiteral("desktop.ini")), "system");
        meet();
        QVERIFY(!QFile::exists(copy));
        QCOMPARE(contentOf(foreign), QByteArray("mine"));
        QVERIFY(QFile::exists(inMirror(QStringLiteral("desktop.ini"))));
        QVERIFY(m_one.items().contains(id + QStringLiteral(" second")));
        QCOMPARE(m_one.items(), m_two.items());
    }

    void refusesWhatIsNotItsMirror()
    {
        add(m_one, QStringLiteral("first"));
        meet();
        const QMap<QString, QByteArray> before = snapshot(m_one.folder);
        QCOMPARE(m_one.synchronise(m_mirror + QStringLiteral("gone")).state,
                 SyncState::MirrorMissing);
        QByteArray meta = contentOf(inMirror(QStringLiteral("safe.meta")));
        writeFile(inMirror(QStringLiteral("safe.meta")),
                  meta.replace("\"created\": 1", "\"created\": 2"));
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::OtherSafe);
        QCOMPARE(snapshot(m_one.folder), before);
    }

    /// What somebody does who can write to the mirror but not open the safe.
    void withstands_data()
    {
        QTest::addColumn<QString>("deed");
        for (const char *deed :
             {"old version", "old version beside", "another item's file", "forged deletions",
              "old pass id", "link in place of an item", "link in place of the pass id",
              "link in place of a folder", "endless item", "pipe", "emptied folder"})
            QTest::newRow(deed) << QString::fromLatin1(deed);
    }

    void withstands()
    {
        QFETCH(const QString, deed);
        const QString id = add(m_one, QStringLiteral("first"));
        const QString other = add(m_one, QStringLiteral("other"));
        meet();
        const QString file = inMirror(QStringLiteral("content/") + id);
        const QString passId = inMirror(QStringLiteral("safe.passid"));
        const QByteArray oldVersion = contentOf(file);
        const QByteArray oldPassId = contentOf(passId);
        rename(m_one, id, QStringLiteral("second"));
        meet();
        if (deed == QLatin1String("old pass id")) {
            for (Computer *computer : {&m_one, &m_two}) {
                changePassword(*computer, newPassword);
                QCOMPARE(computer->synchronise(m_mirror).state, SyncState::Done);
            }
        }
        const QStringList expected = m_one.items();
        const QString outside = m_temporary->filePath(QStringLiteral("outside"));
        writeFile(outside, "mine");

        SyncRecord forged;
        forged.addDeletions({{id, {m_one.time + day, 0, {}}}});
        const QHash<QString, std::function<void()>> deeds{
            {QStringLiteral("old version"), [&] { writeFile(file, oldVersion); }},
            {QStringLiteral("old version beside"),
             [&] { writeFile(file + QStringLiteral(" (1)"), oldVersion); }},
            {QStringLiteral("another item's file"),
             [&] { writeFile(file, contentOf(inMirror(QStringLiteral("content/") + other))); }},
            {QStringLiteral("forged deletions"),
             [&] { writeFile(inMirror(QStringLiteral("safe.deletions")), forged.toJson()); }},
            {QStringLiteral("old pass id"), [&] { writeFile(passId, oldPassId); }},
            {QStringLiteral("link in place of an item"),
             [&] { QVERIFY(QFile::remove(file) && QFile::link(outside, file)); }},
            {QStringLiteral("link in place of the pass id"),
             [&] { QVERIFY(QFile::remove(passId) && QFile::link(outside, passId)); }},
            {QStringLiteral("link in place of a folder"),
             [&] {
                 const QString folder = inMirror(QStringLiteral("content"));
                 QVERIFY(QDir().rename(folder, m_temporary->filePath(QStringLiteral("moved"))));
                 QVERIFY(QFile::link(m_temporary->filePath(QStringLiteral("moved")), folder));
             }},
            {QStringLiteral("endless item"),
             [&] {
                 QFile endless(file);
                 QVERIFY(endless.open(QIODevice::WriteOnly) && endless.resize(1LL << 40));
             }},
            {QStringLiteral("pipe"),
             [&] {
                 QVERIFY(QFile::remove(passId));
                 QCOMPARE(mkfifo(QFile::encodeName(passId), 0600), 0);
             }},
            {QStringLiteral("emptied folder"),
             [&] {
                 QVERIFY(QDir(m_mirror).removeRecursively());
                 QVERIFY(SyncMirror::enableSynchronization(*m_one.files, m_mirror));
             }},
        };
        deeds.value(deed)();
        for (int round = 0; round < 2; ++round) {
            for (Computer *computer : {&m_two, &m_one}) {
                const SyncResult result = computer->synchronise(m_mirror);
                QVERIFY(result.state != SyncState::NewPasswordNeeded);
                QVERIFY(result.removed.isEmpty() && result.taken.isEmpty());
                QCOMPARE(computer->items(), expected);
            }
        }
        QCOMPARE(contentOf(outside), QByteArray("mine"));
        QVERIFY(!snapshot(m_mirror).values().contains(
            deed == QLatin1String("old version") ? oldVersion : QByteArray("nothing")));
    }

    /// Until a day has passed it may still arrive; then the item goes on beside it.
    void goesOnWithoutWhatStaysBroken()
    {
        const QString id = add(m_one, QStringLiteral("first"));
        const QString file = inMirror(QStringLiteral("content/") + id);
        meet();
        const QByteArray broken = contentOf(file).left(400);
        writeFile(file, broken);
        rename(m_one, id, QStringLiteral("second"));
        for (const qint64 later : {qint64(0), day / 2}) {
            m_one.time += later;
            const SyncResult result = m_one.synchronise(m_mirror);
            QCOMPARE(result.state, SyncState::Waiting);
            QCOMPARE(result.waiting, QStringList{id});
        }
        m_one.time += day;
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
        QCOMPARE(m_one.items(), QStringList{id + QStringLiteral(" second")});
        QCOMPARE(contentOf(file), broken);
        m_two.synchronise(m_mirror);
        QVERIFY(m_two.items().contains(id + QStringLiteral(" second")));

        // What is only there is waited for, and nothing is written over it.
        const QString lost = QStringLiteral("00000000-0000-0000-0000-00000000000a");
        writeFile(inMirror(QStringLiteral("content/") + lost), broken);
        for (int i = 0; i < 3; ++i) {
            m_one.time += day;
            const SyncResult result = m_one.synchronise(m_mirror);
            QCOMPARE(result.state, SyncState::Waiting);
            QCOMPARE(result.waiting, QStringList{lost});
        }
        QCOMPARE(contentOf(inMirror(QStringLiteral("content/") + lost)), broken);
    }

    /// On a file system that counts in steps of two seconds.
    void seesASecondChangeOfTheSameTimeAndLength()
    {
        const QString id = add(m_one, QStringLiteral("first"));
        meet();
        const QString file = m_one.folder + QStringLiteral("/content/") + id;
        const auto time = std::filesystem::last_write_time(file.toStdString());
        const qint64 length = QFileInfo(file).size();
        PMLogin changed;
        changed.setId(id);
        changed.setTitle(QStringLiteral("other"));
        changed.setModified(m_one.environment().clock());
        do {
            QVERIFY(writeItemFile(m_one.environment(), file, m_one.password.toUtf8(),
                                  PMItemDocument::fromItem(changed)));
            changed.setNote(changed.note().size() > 200 ? QString()
                                                        : changed.note() + QLatin1Char('x'));
        } while (QFileInfo(file).size() != length);
        std::filesystem::last_write_time(file.toStdString(), time);
        meet();
        QCOMPARE(m_two.items(), QStringList{id + QStringLiteral(" other")});
    }

    void clearsCopiesOfTheOtherFiles()
    {
        const QString id = add(m_one, QStringLiteral("first"));
        meet();
        m_two.work([](GPMSafe &safe) {
            safe.setName(QStringLiteral("Renamed"));
            QVERIFY(safe.writeMetaFile());
        });
        remove(m_two, id);
        // The provider of the second computer finds that the first one was quicker.
        const QString replica = m_temporary->filePath(QStringLiteral("replica"));
        writeSafe(replica, snapshot(m_mirror));
        QCOMPARE(m_two.synchronise(replica).state, SyncState::Done);
        for (const char *name : {"passid", "meta", "restore", "deletions"}) {
            const QString ending = QLatin1Char('.') + QLatin1String(name);
            writeFile(inMirror(QStringLiteral("safe (Ana's conflicted copy 2026-01-02)") + ending),
                      contentOf(replica + QStringLiteral("/safe") + ending));
        }
        const QStringList foreign{QStringLiteral("safe (1).meta"), QStringLiteral("safe-MY.passid"),
                                  QStringLiteral("safe (mine).meta")};
        for (const QString &name : foreign)
            writeFile(inMirror(name), "{\"created\": 5, \"name\": \"Other\"}");
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
        QVERIFY(m_one.items().isEmpty());
        m_one.work([](GPMSafe &safe) { QCOMPARE(safe.name(), QStringLiteral("Renamed")); });
        const QStringList left =
            QDir(m_mirror)
                .entryList({QStringLiteral("safe?*.*")}, QDir::Files, QDir::Name)
                .filter(QRegularExpression(QStringLiteral("[ -]")));
        QCOMPARE(QSet<QString>(left.begin(), left.end()),
                 QSet<QString>(foreign.begin(), foreign.end()));
    }

    /// The safe is in the middle of a change of password that a crash has cut short.
    void sendsNoHalfChangeOfPassword()
    {
        add(m_one, QStringLiteral("first"));
        add(m_one, QStringLiteral("second"));
        meet();
        const QString passId = m_one.folder + QStringLiteral("/safe.passid");
        writeFile(passId + QStringLiteral(".bak"), contentOf(passId));
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
        const QString id = add(m_one, QStringLiteral("first"));
        meet();
        rename(m_two, id, QStringLiteral("second"));
        writeFile(m_two.folder + QStringLiteral("/safe.sync"), "{\"vers");
        meet();
        QVERIFY(m_one.items().contains(id + QStringLiteral(" second")));
        QCOMPARE(m_one.items(), m_two.items());
        QVERIFY(SyncRecord::fromJson(contentOf(m_two.folder + QStringLiteral("/safe.sync"))));
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
        QStringList ids{add(m_one, QStringLiteral("0"))};
        QHash<QString, QString> alive{{QStringLiteral("0"), ids.first()}}; // by title
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
            const QRegularExpression there(
                QStringLiteral("^\\S+ %1( \\(.*\\(trash\\))?$").arg(each.key()));
            QVERIFY2(!items.filter(there).isEmpty(),
                     qPrintable(each.key() + QLatin1Char('\n') + items.join(QLatin1Char('\n'))));
        }
    }

    /// A damaged item, as a failing disk leaves it, does not keep the others from their mirror.
    void meetsWithADamagedItem()
    {
        const QString whole = add(m_one, QStringLiteral("whole"));
        const QString file =
            m_one.folder + QStringLiteral("/content/") + add(m_one, QStringLiteral("damaged"));
        const QByteArray half = contentOf(file).left(300);
        writeFile(file, half);
        QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
        QCOMPARE(m_two.synchronise(m_mirror).state, SyncState::Done);
        QCOMPARE(m_two.items(), QStringList{whole + QStringLiteral(" whole")});
        QCOMPARE(contentOf(file), half);
    }

    /// It died before it had written into the lock file who it is.
    void takesTheLockOfADeadProcess()
    {
        const QString lock = m_one.folder + QStringLiteral("/.sourcelock");
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
        QCOMPARE(expected.filter(QStringLiteral("theirs (")).size(), 1);
        QCOMPARE(expected.size(), 5);
        std::mt19937 random(1);
        for (int at = 1; at <= operations; ++at) {
            putWorkBack();
            if (how.startsWith(QLatin1String("killed"))) {
                QProcess child;
                const bool inside = how == QLatin1String("killed inside");
                child.start(QCoreApplication::applicationFilePath(),
                            {QStringLiteral("--round"), m_one.folder, m_mirror,
                             QString::number(m_one.time), QString::number(inside ? at : 0)});
                QVERIFY(child.waitForStarted());
                if (!inside && !child.waitForFinished(static_cast<int>(random() % 150)))
                    child.kill();
                QVERIFY(child.state() == QProcess::NotRunning || child.waitForFinished());
                QVERIFY(!inside || child.exitCode() == 9);
                // The computer is started again some time later.
                makeOld(m_one.folder + QStringLiteral("/.sourcelock"));
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
    TestSyncRound test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_syncround.moc"
