#include "GPMSafeSyncHelper.h"
#include "PMLogin.h"
#include "SafeTesting.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

const int quickly = 20000; // how long to wait for what comes at once

/// One computer: an unlocked safe and what keeps it alike to the mirror.
struct Computer
{
    std::shared_ptr<GPMSafe> safe;
    std::unique_ptr<GPMSafeSyncHelper> helper;

    Computer(const QString &folder, const QString &mirror, const SafeEnvironment &environment)
        : safe(std::make_shared<GPMSafe>(environment))
    {
        if (!safe->open(folder))
            qFatal("the safe does not open");
        helper = std::make_unique<GPMSafeSyncHelper>(safe, mirror, environment,
                                                     GPMSafeSyncHelper::Pauses{0, 3600000});
    }

    QString add(const QString &title)
    {
        auto login = std::make_unique<PMLogin>();
        login->setTitle(title);
        const QString id = safe->addItem(std::move(login))->id();
        safe->saveChangesAsync();
        return id;
    }

    void rename(const QString &id, const QString &title)
    {
        safe->item(id)->setTitle(title);
        safe->touchItem(*safe->item(id));
        safe->saveChangesAsync();
    }

    QStringList titles() const
    {
        QStringList list;
        for (const PMListItem *item : safe->items())
            list.append(item->title());
        list.sort();
        return list;
    }
};

} // namespace

class TestSyncHelper : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_mirror;
    std::shared_ptr<FaultyFiles> m_files;
    std::unique_ptr<Computer> m_one;
    std::unique_ptr<Computer> m_two;

    SafeEnvironment environment() const
    {
        SafeEnvironment world;
        world.files = m_files;
        return world;
    }

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_files = std::make_shared<FaultyFiles>();
        m_mirror = m_temporary->filePath("cloud/mine"_s);
        QVERIFY(GPMSafeSyncHelper::enableSynchronization(*m_files, m_mirror));
        const QString one = m_temporary->filePath("one"_s);
        const QString two = m_temporary->filePath("two"_s);
        QVERIFY(QDir().mkpath(one));
        QVERIFY(GPMSafe().init(one, samplePassword, "Mine"_s, {}));
        writeSafe(two, snapshot(one));
        m_one = std::make_unique<Computer>(one, m_mirror, environment());
        m_two = std::make_unique<Computer>(two, m_mirror, environment());
        QVERIFY(m_one->safe->unlock(samplePassword));
        QVERIFY(m_two->safe->unlock(samplePassword));
    }

    void cleanup()
    {
        m_one.reset();
        m_two.reset();
    }

    /// Nobody calls anything but what the windows call; the watched folder does the rest.
    void bringsEachChangeToTheOtherSafe()
    {
        const QString id = m_one->add("first"_s);
        QTRY_VERIFY_WITH_TIMEOUT(m_two->safe->item(id), quickly);
        PMListItem *shown = m_two->safe->item(id);
        m_one->rename(id, "second"_s);
        QTRY_COMPARE_WITH_TIMEOUT(shown->title(), "second"_s, quickly);
        QVERIFY(!shown->isChanged());
        m_one->safe->setName("Renamed"_s);
        m_one->rename(id, "third"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_two->safe->name(), "Renamed"_s, quickly);
        QVERIFY(m_two->safe->removeItems({id}));
        QTRY_VERIFY_WITH_TIMEOUT(!m_one->safe->item(id), quickly);
        QTRY_VERIFY_WITH_TIMEOUT(!m_one->helper->isRunning() && !m_two->helper->isRunning(),
                                 quickly);
        QVERIFY(QDir(m_mirror + "/content"_s).isEmpty());
    }

    void looksOnUnlock()
    {
        m_two->safe->lock();
        const QString id = m_one->add("first"_s);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_mirror + "/content/"_s + id), quickly);
        QVERIFY(!m_two->safe->item(id));
        QVERIFY(m_two->safe->unlock(samplePassword));
        QTRY_VERIFY_WITH_TIMEOUT(m_two->safe->item(id), quickly);
    }

    /// An edit in memory that is not saved when the other side's comes in: both stay.
    void keepsAnEditThatIsNotSaved()
    {
        const QString id = m_one->add("first"_s);
        QTRY_VERIFY_WITH_TIMEOUT(m_two->safe->item(id), quickly);
        m_two->safe->item(id)->setTitle("typed"_s);
        m_two->safe->touchItem(*m_two->safe->item(id));
        m_one->rename(id, "theirs"_s);
        const auto hasBoth = [](const Computer &computer) {
            const QStringList titles = computer.titles();
            return titles.size() == 2 && titles.first().startsWith("theirs ("_s) &&
                   titles.last() == "typed"_s;
        };
        QTRY_VERIFY_WITH_TIMEOUT(hasBoth(*m_two), quickly);
        QTRY_VERIFY_WITH_TIMEOUT(hasBoth(*m_one), quickly);
    }

    void stopsForTheLock()
    {
        for (int i = 0; i < 20; ++i)
            m_one->add(QString::number(i));
        m_one->safe->lock();
        m_two->safe->lock();
        QVERIFY(m_one->safe->unlock(samplePassword));
        QCOMPARE(m_one->safe->itemCount(), 20);
        QVERIFY(m_two->safe->unlock(samplePassword));
        QTRY_COMPARE_WITH_TIMEOUT(m_two->safe->itemCount(), 20, quickly);
        QCOMPARE(m_two->titles(), m_one->titles());
    }
};

QTEST_GUILESS_MAIN(TestSyncHelper)
#include "tst_synchelper.moc"
