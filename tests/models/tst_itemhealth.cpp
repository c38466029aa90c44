#include "../Text.h"
#include "ItemHealth.h"
#include "PMCreditCard.h"
#include "PMFtpAccount.h"
#include "PMItemDocument.h"
#include "PMItemFactory.h"
#include "PMLogin.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QDateTime now(QDate(2026, 6, 15), QTime(12, 0), Qt::UTC);

const char *nameOf(HealthProblem problem)
{
    static const char *const names[] = {"weak", "reused", "old", "insecure", "expiring"};
    return names[static_cast<int>(problem)];
}

} // namespace

class TestItemHealth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        PMFieldTypes::registerMetaTypes();
        m_folder = std::make_unique<QTemporaryDir>();
        SafeEnvironment environment;
        environment.clock = [] { return now; };
        m_safe = std::make_shared<GPMSafe>(environment);
        QVERIFY(m_safe->init(m_folder->path(), "p"_s, "n"_s, "h"_s));
    }

    void insecureAddresses_data()
    {
        QTest::addColumn<bool>("insecure");
        for (const char *address :
             {"http://shop.example/login", "HTTP://Shop.Example", "http://8.8.8.8",
              "http://172.32.0.1", "http://[2001:db8::1]/", "http://a.localhost.example"})
            QTest::newRow(address) << true;
        for (const char *address :
             {"", "https://shop.example", "shop.example", "ftp://shop.example", "http://",
              "http://localhost:8080", "http://my.localhost", "http://127.0.0.1", "http://10.1.2.3",
              "http://192.168.178.1/", "http://172.16.0.1", "http://169.254.1.1", "http://[::1]",
              "http://[fe80::1]", "http://[fd00::1]", "http://router", "http://nas.local",
              "http://box.lan", "http://tv.home.arpa"})
            QTest::newRow(address) << false;
    }
    void insecureAddresses()
    {
        QFETCH(bool, insecure);
        QCOMPARE(isInsecureAddress(QLatin1String(QTest::currentDataTag())), insecure);
    }

    void findings_data()
    {
        QTest::addColumn<QStringList>("passwords"); // of A, B, …
        QTest::addColumn<QDate>("modified");        // of A
        QTest::addColumn<QString>("found");
        const QDate today = now.date();
        const QString strong = "q7V<m2X,8Rz!Kd"_s;
        QTest::newRow("good ones") << QStringList{strong, "Lr5%kQ2w(Hn8"_s} << today << QString();
        QTest::newRow("weak") << QStringList{"sunshine"_s, strong} << today << "weak:A"_s;
        QTest::newRow("none") << QStringList{QString(), QString()} << today << QString();
        QTest::newRow("reused") << QStringList{strong, strong, strong + QLatin1Char(' ')} << today
                                << "reused:A reused:B"_s;
        QTest::newRow("two years") << QStringList{strong} << QDate(2024, 6, 15) << QString();
        QTest::newRow("older") << QStringList{strong} << QDate(2024, 6, 14) << "old:A"_s;
        QTest::newRow("none is not old")
            << QStringList{QString()} << QDate(2020, 1, 1) << QString();
    }
    void findings()
    {
        QFETCH(QStringList, passwords);
        QFETCH(QDate, modified);
        for (int i = 0; i < passwords.size(); ++i) {
            PMLogin *login = addLogin("", passwords.at(i).toUtf8().constData());
            login->setTitle(QChar('A' + i));
            if (i == 0)
                login->setModified(QDateTime(modified, QTime(12, 0), Qt::UTC));
        }
        ItemListModel items;
        items.setSafe(m_safe);
        ItemHealth health(items, nullptr, [] { return now; });
        QSignalSpy changed(&health, &ItemHealth::changed);
        health.start();
        QVERIFY(changed.wait());
        QTEST(text(health, *m_safe), "found");
    }

    void followsChanges()
    {
        PMLogin *shop = addLogin("Shop", "q7V<m2X,8Rz!Kd", "http://shop.example");
        auto *files = add<PMFtpAccount>("Files");
        files->setPassword(shop->password());
        add<PMCreditCard>("Card")->setExpire({2026, 7, 0});
        ItemListModel items;
        items.setSafe(m_safe);
        ItemHealth health(items, nullptr, [] { return now; });
        QCOMPARE(text(health, *m_safe), QString());
        QSignalSpy changed(&health, &ItemHealth::changed);
        health.start();
        QVERIFY(changed.wait());
        QCOMPARE(text(health, *m_safe), "expiring:Card reused:Files reused:Shop insecure:Shop"_s);
        const QVector<HealthFinding> found = health.findings();
        QCOMPARE(found.at(1).otherTitle, "Shop"_s);
        QCOMPARE(found.at(0).date, QDate(2026, 7, 31));

        files->setPassword("files1"_s);
        QVERIFY(changed.wait());
        QVERIFY(health.isWeak(*files));
        QCOMPARE(text(health, *m_safe), "expiring:Card weak:Files insecure:Shop"_s);
        shop->setDeleted(true);
        PMLogin *late = addLogin("Late", "files1");
        QVERIFY(changed.wait());
        QCOMPARE(text(health, *m_safe),
                 "expiring:Card weak:Files reused:Files weak:Late reused:Late"_s);
        QVERIFY(m_safe->removeItems({late->id()}));
        QVERIFY(changed.wait());
        QCOMPARE(text(health, *m_safe), "expiring:Card weak:Files"_s);
        m_safe->lock();
        QVERIFY(changed.wait());
        QVERIFY(health.findings().isEmpty());
    }

    void ignoringEnds_data()
    {
        QTest::addColumn<int>("problem");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("ends");
        const auto row = [](const char *name, HealthProblem problem, const char *property,
                            const QVariant &value, bool ends) {
            QTest::newRow(name) << int(problem) << QByteArray(property) << value << ends;
        };
        const QString text = "other"_s;
        for (const HealthProblem problem : {HealthProblem::Weak, HealthProblem::Reused,
                                            HealthProblem::Old, HealthProblem::Insecure}) {
            row(nameOf(problem), problem, "password", text, true);
            row(nameOf(problem), problem, "title", text, false);
        }
        row("address", HealthProblem::Insecure, "url", text, true);
        row("address of a weak one", HealthProblem::Weak, "url", text, false);
    }
    void ignoringEnds()
    {
        QFETCH(int, problem);
        QFETCH(QByteArray, property);
        QFETCH(QVariant, value);
        const auto what = static_cast<HealthProblem>(problem);
        PMLogin *login = addLogin("Shop", "sunshine", "http://shop.example");
        PMListItem::UnknownKeys other;
        other.privateFields.insert("later"_s, 1);
        login->setUnknownKeys(other);
        QVERIFY(m_safe->saveChanges());
        const QDateTime modified = login->modified();
        setHealthIgnored(*login, what, true);
        QVERIFY(isHealthIgnored(*login, what));
        QCOMPARE(login->modified(), modified);
        QVERIFY(login->isChanged());
        for (int i = 0; i < healthProblemCount; ++i)
            QCOMPARE(isHealthIgnored(*login, HealthProblem(i)), i == problem);

        // It is kept with the safe, among what else is not known, and not in plain sight.
        const QString id = login->id();
        m_safe->lock();
        QVERIFY(m_safe->unlock("p"_s));
        PMListItem *item = m_safe->item(id);
        QVERIFY(isHealthIgnored(*item, what));
        QVERIFY(item->unknownKeys().privateFields.contains("later"_s));
        QVERIFY(item->unknownKeys().publicFields.isEmpty());
        QVERIFY(item->setProperty(property.constData(), value));
        QTEST(!isHealthIgnored(*item, what), "ends");

        setHealthIgnored(*item, what, true);
        setHealthIgnored(*item, what, false);
        QVERIFY(!isHealthIgnored(*item, what));
        QCOMPARE(item->unknownKeys().privateFields.keys(), QStringList{"later"_s});
    }

    void manyItemsDoNotHoldTheLoop()
    {
        for (int i = 0; i < 300; ++i)
            addLogin("Shop", "Password %1 of this shop and of no other one on the net"_s.arg(i)
                                 .toUtf8()
                                 .constData());
        ItemListModel items;
        items.setSafe(m_safe);
        ItemHealth health(items, nullptr, [] { return now; });
        QSignalSpy changed(&health, &ItemHealth::changed);
        // Other work comes in between as often as it wants to.
        int turns = 0;
        QTimer other;
        connect(&other, &QTimer::timeout, [&turns] { ++turns; });
        other.start(0);
        health.start();
        QCOMPARE(health.pending(), 300);
        QVERIFY(changed.wait(60000));
        QVERIFY(turns > 1);
        QCOMPARE(health.pending(), 0);
        QCOMPARE(changed.count(), 1);
    }

private:
    template <typename Item>
    Item *add(const char *title)
    {
        auto item = std::make_unique<Item>();
        item->setTitle(QString::fromUtf8(title));
        item->setModified(now);
        return static_cast<Item *>(m_safe->addItem(std::move(item)));
    }
    PMLogin *addLogin(const char *title, const char *password, const char *url = "")
    {
        auto *login = add<PMLogin>(title);
        login->setPassword(QString::fromUtf8(password));
        login->setUrl(QString::fromUtf8(url));
        return login;
    }
    /// "weak:Title reused:Title ..." of what is not ignored.
    static QString text(const ItemHealth &health, const GPMSafe &safe)
    {
        QStringList list;
        for (const HealthFinding &finding : health.findings()) {
            if (!finding.ignored)
                list.append("%1:%2"_s.arg(QLatin1String(nameOf(finding.problem)),
                                          safe.item(finding.itemId)->title()));
        }
        return list.join(QLatin1Char(' '));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<GPMSafe> m_safe;
};

QTEST_GUILESS_MAIN(TestItemHealth)
#include "tst_itemhealth.moc"
