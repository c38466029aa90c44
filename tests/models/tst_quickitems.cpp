#include "../Text.h"
#include "PMItemFactory.h"
#include "PMLogin.h"
#include "QuickItems.h"

#include <QAbstractItemModelTester>
#include <QMetaEnum>
#include <QTemporaryDir>
#include <QtTest>

#include <random>

class TestQuickItems : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::shared_ptr<GPMSafe> m_safe;
    QHash<QString, QString> m_ids;

    PMListItem *add(PMListItem::Type type, const char *title, int uses = 0, bool deleted = false)
    {
        auto item = makeItem(type);
        item->setTitle(QString::fromUtf8(title));
        item->setUseCount(uses);
        item->setDeleted(deleted);
        item->setSecondaryText("of ana"_s);
        PMListItem *added = m_safe->addItem(std::move(item));
        m_ids.insert(added->title(), added->id());
        return added;
    }

    QStringList idsOf(const QString &titles) const
    {
        QStringList ids;
        for (const QString &title : titles.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            ids.append(m_ids.value(title));
        return ids;
    }

    /// The headings with their counts and the titles below them.
    static QString shown(const QuickItems &list)
    {
        QStringList words;
        for (int row = 0; row < list.rowCount(); ++row) {
            const QModelIndex index = list.index(row);
            if (const PMListItem *item = list.itemAt(row)) {
                words << item->title();
                continue;
            }
            const auto group = QMetaEnum::fromType<QuickItems::Group>();
            words << "%1/%2[%3]"_s
                         .arg(QLatin1String(
                             group.valueToKey(index.data(QuickItems::GroupRole).toInt())))
                         .arg(index.data(ItemListModel::TypeRole).toInt())
                         .arg(index.data(QuickItems::CountRole).toInt());
        }
        return words.join(QLatin1Char(' '));
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_safe = std::make_shared<GPMSafe>();
        QVERIFY(m_safe->init(m_folder.path(), "p"_s, "n"_s, "h"_s));
    }
    void cleanup()
    {
        QStringList ids;
        for (const PMListItem *item : m_safe->items())
            ids.append(item->id());
        m_safe->removeItems(ids);
        m_ids.clear();
    }

    void rows_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("rows");
        const auto row = [](const char *name, PMListItem::Type kind, const char *page,
                            const char *search, const char *rows) {
            QTest::newRow(name) << int(kind) << QString::fromUtf8(page) << QString::fromUtf8(search)
                                << QString::fromUtf8(rows);
        };
        const auto login = PMListItem::Login;
        row("no page", login, "", "", "MostUsed/0[2] Mail Bank All/0[3] alp2x alp10 Zoo");
        row("a page", login, "Zoo Mail", "",
            "Page/0[2] Zoo Mail MostUsed/0[1] Bank All/0[2] alp2x alp10");
        row("what is in the trash or gone", login, "Gone Never", "",
            "MostUsed/0[2] Mail Bank All/0[3] alp2x alp10 Zoo");
        row("a page, searched", login, "Zoo alp2x", "al", "Page/0[1] alp2x All/0[1] alp10");
        row("other kinds", login, "Zoo", "vi", "All/1[1] Visa");
        row("of all kinds", PMListItem::CreditCard, "Zoo", "of ana",
            "MostUsed/1[1] Visa All/1[1] Debit All/0[5] alp2x alp10 Bank Mail Zoo All/3[1] Home");
        row("cards", PMListItem::CreditCard, "Zoo", "", "MostUsed/1[1] Visa All/1[1] Debit");
        row("identities", PMListItem::Identity, "", "", "All/3[1] Home");
        row("a kind", login, "", "kind:card", "All/1[2] Debit Visa");
        row("never the trash", login, "", "is:trash", "");
        row("nothing", login, "Zoo", "nothing at all", "");
    }
    void rows()
    {
        add(PMListItem::Login, "Bank", 3);
        add(PMListItem::Login, "Zoo");
        add(PMListItem::Login, "alp10");
        add(PMListItem::Login, "alp2x");
        add(PMListItem::Login, "Mail", 9);
        add(PMListItem::Login, "Gone", 50, true);
        add(PMListItem::CreditCard, "Visa", 1);
        add(PMListItem::CreditCard, "Debit");
        add(PMListItem::Identity, "Home");
        add(PMListItem::SecureNote, "Note", 70);
        ItemListModel items;
        items.setSafe(m_safe);
        QuickItems list(items);
        QFETCH(int, kind);
        QFETCH(QString, page);
        QFETCH(QString, search);
        list.setKind(PMListItem::Type(kind));
        list.setPageIds(idsOf(page));
        list.setSearch(search, SearchTerms::english());
        QCOMPARE(list.rowCount(), 0);
        list.setActive(true);
        QTEST(shown(list), "rows");
    }

    void theMostUsedAreFew()
    {
        for (int uses = 0; uses < 20; ++uses)
            add(PMListItem::Login, QByteArray::number(100 + uses), uses);
        ItemListModel items;
        items.setSafe(m_safe);
        QuickItems list(items);
        list.setActive(true);
        QVERIFY2(
            shown(list).startsWith("MostUsed/0[8] 119 118 117 116 115 114 113 112 All/0[12] 100"_s),
            qPrintable(shown(list)));
    }

    void givesViewsABatchAtATime()
    {
        for (int i = 0; i < 200; ++i)
            add(PMListItem::Login, QByteArray::number(1000 + i));
        ItemListModel items;
        items.setSafe(m_safe);
        QuickItems list(items);
        list.setActive(true);
        QVERIFY(list.rowCount() < 100);
        QCOMPARE(list.itemAt(list.rowOf(m_ids.value("1150"_s)))->title(), "1150"_s);
        while (list.canFetchMore({}))
            list.fetchMore({});
        QCOMPARE(list.rowCount(), 201);
        QCOMPARE(list.rowOf("none"_s), -1);
    }

    void stepsFromItemToItem()
    {
        add(PMListItem::Login, "A", 1);
        add(PMListItem::Login, "B");
        add(PMListItem::Login, "C");
        ItemListModel items;
        items.setSafe(m_safe);
        QuickItems list(items);
        QCOMPARE(list.itemRow(-1, 1), -1);
        list.setActive(true); // heading, A, heading, B, C
        QCOMPARE(list.itemRow(-1, 1), 1);
        QCOMPARE(list.itemRow(1, 1), 3);
        QCOMPARE(list.itemRow(3, -1), 1);
        QCOMPARE(list.itemRow(1, -1), 1);
        QCOMPARE(list.itemRow(1, 50), 4);
        QCOMPARE(list.itemRow(5, -50), 1);
    }

    /// Whatever happens while it is away, it comes back as a new one would, and shows nothing that
    /// is gone meanwhile.
    void followsWhatHappensWhileItIsAway_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 6; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void followsWhatHappensWhileItIsAway()
    {
        QFETCH(quint32, seed);
        std::mt19937 random(seed);
        const auto below = [&random](std::size_t limit) { return random() % limit; };
        const char *const titles[] = {"bank", "Bank", "mail 2", "mail 10", "zoo", ""};
        for (int i = 0; i < 40; ++i)
            add(i % 3 ? PMListItem::Login : PMListItem::CreditCard, titles[below(6)]);
        ItemListModel items;
        items.setSafe(m_safe);
        QuickItems list(items);
        const QAbstractItemModelTester tester(
            &list, QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (int step = 0; step < 120; ++step) {
            const std::vector<PMListItem *> all = m_safe->items();
            PMListItem *item = all[below(all.size())];
            // More than it follows one by one, now and then.
            const std::size_t changes = below(10) == 0 ? 70 : 1;
            for (std::size_t i = 0; i < changes; ++i) {
                PMListItem *changed = all[below(all.size())];
                changed->setUseCount(int(below(4)));
                changed->setTitle(QString::fromLatin1(titles[below(6)]));
            }
            switch (below(4)) {
            case 0:
                item->setDeleted(!item->deleted());
                break;
            case 1:
                add(PMListItem::Login, titles[below(6)]);
                break;
            case 2:
                if (all.size() > 20)
                    QVERIFY(m_safe->removeItems({item->id()}));
                break;
            default:
                list.setPageIds({item->id(), all.front()->id()});
            }
            for (int row = 0; row < list.rowCount(); ++row) {
                if (PMListItem *kept = list.itemAt(row))
                    QCOMPARE(m_safe->item(kept->id()), kept);
            }
            list.setActive(true);
            QuickItems fresh(items);
            fresh.setPageIds(list.pageIds());
            fresh.setActive(true);
            QCOMPARE(shown(list), shown(fresh));
            list.setActive(below(2) == 0);
        }
        m_safe->lock();
        QCOMPARE(list.rowCount(), 0);
        QVERIFY(m_safe->unlock("p"_s));
    }
};

QTEST_GUILESS_MAIN(TestQuickItems)
#include "tst_quickitems.moc"
