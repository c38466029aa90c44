#include "../Text.h"
#include "DeletedList.h"
#include "ItemTimes.h"
#include "PMLogin.h"
#include "SafeCrypto.h"
#include "SafeLayout.h"
#include "SyncFileName.h"
#include "SyncProvider.h"
#include "SyncRound.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QUuid>
#include <QtTest>

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr unsigned seeds = 2;
#else
constexpr unsigned seeds = 12;
#endif

/// A safe on one computer, with the provider's folder there. Items are written as a safe writes
/// them, but without opening it each time.
struct Computer
{
    SafeFolder safe;
    Provider::Replica replica;
    QString password = samplePassword;
    qint64 clockError = 0;
    std::shared_ptr<FaultyFiles> files = std::make_shared<FaultyFiles>();
    SyncRecord::Deletions deleted{};

    SafeEnvironment environment(qint64 now) const
    {
        SafeEnvironment world;
        world.files = files;
        world.lockWaitMs = 0;
        world.clock = [now] { return QDateTime::fromMSecsSinceEpoch(now, Qt::UTC); };
        return world;
    }
};

using Items = QMap<QString, QPair<ItemFileName, PMItemDocument>>;

Items itemsOf(const Computer &computer)
{
    Items items;
    const QString folder = computer.safe.path(SafeLayout::content);
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const ItemFileName file = ItemFileName::parse(name);
        if (auto document = readItemFile(*computer.files, folder + QLatin1Char('/') + name,
                                         computer.password.toUtf8()))
            items.insert(file.id, {file, *document});
    }
    return items;
}

QString titleOf(const PMItemDocument &document)
{
    return document.publicFields.value("title"_s).toString();
}

/// Three computers, a provider, and a user who does not look which of them has arrived where.
class Fleet
{
public:
    Fleet(unsigned seed, const QString &place)
        : m_dice(seed)
        , m_provider(m_dice)
    {
        for (int i = 0; i < 3; ++i) {
            Computer &computer = m_computers[i];
            computer.safe = SafeFolder("%1/safe%2"_s.arg(place).arg(i));
            computer.replica.folder = "%1/mirror%2"_s.arg(place).arg(i);
            QDir().mkpath(computer.safe.root());
            if (!SyncMirror::enableSynchronization(*computer.files, computer.replica.folder))
                qFatal("no mirror");
        }
        if (!GPMSafe(m_computers[0].environment(m_time))
                 .init(m_computers[0].safe.root(), samplePassword, "Mine"_s, {}))
            qFatal("no safe");
        for (int i = 1; i < 3; ++i)
            writeSafe(m_computers[i].safe.root(), snapshot(m_computers[0].safe.root()));
    }

    void step()
    {
        m_time += 1 + m_dice.pick(10000);
        Computer &computer = m_computers[m_dice.pick(3)];
        switch (m_dice.pick(14)) {
        case 0:
            add(computer);
            break;
        case 1:
        case 2:
        case 3:
            edit(computer);
            break;
        case 4:
            remove(computer);
            break;
        case 5:
            computer.clockError = (m_dice.pick(3) - 1) * day;
            break;
        case 6:
            if (m_dice.oneIn(10))
                changePassword(computer, "password %1"_s.arg(++m_passwords));
            break;
        case 7:
            if (m_dice.oneIn(10))
                QFile::remove(computer.safe.path(SafeLayout::syncRecord));
            break;
        case 8:
        case 9:
        case 10:
            exchange(computer);
            break;
        default:
            synchronise(computer, true);
        }
    }

    /// Everything arrives everywhere. False when the computers never come to rest.
    bool settle()
    {
        m_provider.stopHalves();
        for (int round = 0; round < 30; ++round) {
            const QMap<QString, QByteArray> before = everything();
            bool moved = false;
            m_waits = false;
            for (Computer &computer : m_computers) {
                const QStringList paths = m_provider.paths(computer.replica);
                for (const QString &path : paths)
                    moved = m_provider.exchange(computer.replica, path) || moved;
                synchronise(computer, false);
            }
            if (!moved && everything() == before) {
                m_provider.startHalves();
                return true;
            }
        }
        return false;
    }

    void passDays() { m_time += 3 * day; }

    /// Whether somebody was told that not everything had come.
    bool waits() const { return m_waits; }
    bool areEqual() const { return list(1) == list(0) && list(2) == list(0); }

    QStringList list(int number) const
    {
        QStringList lines;
        const Items items = itemsOf(m_computers[number]);
        for (auto item = items.begin(); item != items.end(); ++item)
            lines += item->first.text() + QLatin1Char(' ') + titleOf(item->second);
        return lines;
    }

    /// Titles that nobody replaced or deleted on purpose and that are nowhere.
    QStringList lost() const
    {
        const QStringList there = list(0);
        QStringList missing;
        for (const QString &title : m_alive) {
            const QRegularExpression line("^\\S+ %1($| \\()"_s.arg(title));
            if (there.filter(line).isEmpty())
                missing += title;
        }
        return missing;
    }

private:
    qint64 now(const Computer &computer) const { return m_time + computer.clockError; }

    QMap<QString, QByteArray> everything() const
    {
        QMap<QString, QByteArray> all;
        for (const Computer &computer : m_computers) {
            for (const QString &folder : {computer.safe.root(), computer.replica.folder}) {
                const QStringList names = filesIn(folder);
                for (const QString &name : names) {
                    if (name != QLatin1String(SafeLayout::syncRecord))
                        all.insert(folder + name, contentOf(folder + QLatin1Char('/') + name));
                }
            }
        }
        return all;
    }

    void write(const Computer &computer, const ItemFileName &name, const PMItemDocument &document)
    {
        if (!writeItemFile(computer.environment(m_time), computer.safe.contentPath(name),
                           computer.password.toUtf8(), document))
            qFatal("can't write an item");
        rest(computer);
    }

    void add(Computer &computer)
    {
        PMLogin login;
        login.setId(QUuid::createUuidV5(QUuid(), QString::number(++m_titles))
                        .toString(QUuid::WithoutBraces));
        login.setTitle(QString::number(m_titles));
        login.setModified(QDateTime::fromMSecsSinceEpoch(now(computer), Qt::UTC));
        m_alive += login.title();
        write(computer, {login.id(), 0}, PMItemDocument::fromItem(login));
    }

    void edit(Computer &computer)
    {
        const Items items = itemsOf(computer);
        if (items.isEmpty())
            return;
        const auto &item = items[m_dice.any(items.keys())];
        const std::unique_ptr<PMListItem> edited = item.second.toItem();
        m_alive.removeAll(edited->title().section(QLatin1Char(' '), 0, 0));
        m_alive += QString::number(++m_titles);
        edited->setTitle(m_alive.last());
        const qint64 time =
            nextModified(now(computer), edited->modified().toMSecsSinceEpoch(), systemRandom);
        edited->setModified(QDateTime::fromMSecsSinceEpoch(time, Qt::UTC));
        write(computer, item.first, PMItemDocument::fromItem(*edited));
    }

    void remove(Computer &computer)
    {
        const Items items = itemsOf(computer);
        if (items.isEmpty())
            return;
        const QString id = m_dice.any(items.keys());
        const std::unique_ptr<PMListItem> gone = items[id].second.toItem();
        m_alive.removeAll(gone->title().section(QLatin1Char(' '), 0, 0));
        recordDeletedIds(*computer.files, computer.safe.path(SafeLayout::deletedList), {id});
        const QDir folder(computer.safe.path(SafeLayout::content));
        const QStringList names = folder.entryList({id + QLatin1Char('*')}, QDir::Files);
        for (const QString &name : names)
            QFile::remove(folder.filePath(name));
        // Sometimes nobody was there to note when.
        if (!m_dice.oneIn(4))
            computer.deleted.insert(id, {now(computer), 0, {gone->modified().toMSecsSinceEpoch()}});
    }

    void changePassword(Computer &computer, const QString &password)
    {
        GPMSafe safe(computer.environment(now(computer)));
        if (!safe.open(computer.safe.root()) || !safe.unlock(computer.password))
            qFatal("the safe does not open");
        if (safe.changePassword(password))
            computer.password = password;
        if (!m_known.contains(password))
            m_known += password;
    }

    /// Some of the files, each computer at its own pace.
    void exchange(Computer &computer)
    {
        const int share = 1 + m_dice.pick(3);
        const QStringList paths = m_provider.paths(computer.replica);
        for (const QString &path : paths) {
            if (m_dice.oneIn(share))
                m_provider.exchange(computer.replica, path);
        }
        rest(computer);
    }

    void synchronise(Computer &computer, bool mayFail)
    {
        computer.files->operations = 0;
        computer.files->failAt = mayFail && m_dice.oneIn(3) ? 1 + m_dice.pick(6) : 0;
        computer.files->andAllBehind = m_dice.oneIn(2);
        SyncRound round(
            {computer.environment(now(computer)), computer.safe,
             std::make_shared<const SecretBytes>(SecretBytes::fromText(computer.password)),
             std::make_shared<QMutex>(), computer.deleted},
            computer.replica.folder);
        WorkControl control;
        const SyncResult result = round.run(control);
        computer.files->failAt = 0;
        rest(computer);
        m_waits = m_waits || result.state == SyncState::Waiting;
        if (result.state != SyncState::NewPasswordNeeded)
            return;
        const QByteArray passId =
            contentOf(computer.replica.file(QLatin1String(SafeLayout::passId)));
        for (const QString &password : std::as_const(m_known)) {
            if (checkPassId(password.toUtf8(), QString::fromLatin1(passId))) {
                changePassword(computer, password);
                break;
            }
        }
    }

    /// Time passes, or it does not.
    void rest(const Computer &computer)
    {
        if (m_dice.oneIn(3))
            return;
        age(computer.safe.root(), m_age);
        age(computer.replica.folder, m_age);
    }

    Dice m_dice;
    Provider m_provider;
    Computer m_computers[3];
    QStringList m_alive;
    QStringList m_known{samplePassword};
    qint64 m_time = 1700000000000;
    int m_titles = 0;
    int m_passwords = 0;
    int m_age = 0;
    bool m_waits = false;
};

} // namespace

class TestSyncProviders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void losesNothing_data()
    {
        QTest::addColumn<unsigned>("seed");
        // More of them on demand.
        const unsigned first = qEnvironmentVariable("SYNC_FIRST_SEED", "1"_s).toUInt();
        const unsigned count = qEnvironmentVariable("SYNC_SEEDS", QString::number(seeds)).toUInt();
        for (unsigned seed = first; seed < first + count; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    /// Real rounds on real files, through folders that a provider keeps alike as providers do.
    void losesNothing()
    {
        QFETCH(const unsigned, seed);
        const QTemporaryDir place;
        Fleet fleet(seed, place.path());
        for (int part = 0; part < 2; ++part) {
            for (int i = 0; i < 60; ++i)
                fleet.step();
            QVERIFY(fleet.settle());
            // What was left over of two passwords at once is waited for, as if it were half there.
            QVERIFY(fleet.areEqual() || fleet.waits());
            fleet.passDays();
            QVERIFY(fleet.settle());
            QCOMPARE(fleet.list(1), fleet.list(0));
            QCOMPARE(fleet.list(2), fleet.list(0));
            QVERIFY2(fleet.lost().isEmpty(),
                     qPrintable(fleet.lost().join(QLatin1Char(',')) + QLatin1Char('\n') +
                                fleet.list(0).join(QLatin1Char('\n'))));
        }
    }
};

QTEST_GUILESS_MAIN(TestSyncProviders)
#include "tst_syncproviders.moc"
