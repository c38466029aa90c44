#include "../Text.h"
#include "ItemExpiry.h"
#include "ItemFilterModel.h"
#include "PMAttachment.h"
#include "PMCreditCard.h"
#include "PMFtpAccount.h"
#include "PMItemFactory.h"
#include "PMLogin.h"
#include "SearchText.h"

#include <QAbstractItemModelTester>
#include <QCollator>
#include <QTemporaryDir>
#include <QtTest>

#include <random>

using SortBy = ItemFilterModel::SortBy;

/// What the model does in as few words as possible, from the items alone.
class Reference
{
public:
    ItemCategory category;
    QString search;
    SortBy order = SortBy::Title;
    QDate today;

    QStringList ids(std::vector<PMListItem *> items) const
    {
        const SortBy by = category.kind == ItemCategory::MostUsed ? SortBy::MostUsed : order;
        QCollator collator{QLocale(QLocale::English)};
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        collator.setNumericMode(true);
        std::sort(items.begin(), items.end(), [&](PMListItem *a, PMListItem *b) {
            const auto keys = [by](PMListItem *item) -> qint64 {
                switch (by) {
                case SortBy::Modified:
                    return item->modified().toMSecsSinceEpoch();
                case SortBy::Created:
                    return item->created().toMSecsSinceEpoch();
                case SortBy::LastUsed:
                    return item->lastAccessed().isNull() ? 0
                                                         : item->lastAccessed().toMSecsSinceEpoch();
                case SortBy::MostUsed:
                    return item->useCount();
                default:
                    return 0;
                }
            };
            if (keys(a) != keys(b))
                return keys(a) > keys(b);
            if (by == SortBy::Domain && itemDomain(*a) != itemDomain(*b)) {
                if (itemDomain(*a).isEmpty() || itemDomain(*b).isEmpty())
                    return itemDomain(*b).isEmpty();
                return itemDomain(*a) < itemDomain(*b);
            }
            const int titles = collator.compare(a->title(), b->title());
            return titles != 0 ? titles < 0 : a->id() < b->id();
        });
        QStringList result;
        int used = 0;
        for (const PMListItem *item : items) {
            const bool belongs = belongsTo(*item);
            if (belongs && category.kind == ItemCategory::MostUsed && ++used > 20)
                break;
            if (belongs && matches(*item))
                result.append(item->id());
        }
        return result;
    }

private:
    bool matches(const PMListItem &item) const
    {
        const QStringList words = search.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        return std::all_of(words.begin(), words.end(), [&item](const QString &word) {
            return item.title().contains(word, Qt::CaseInsensitive) ||
                   item.url().contains(word, Qt::CaseInsensitive);
        });
    }
    bool belongsTo(const PMListItem &item) const
    {
        if (item.deleted() != (category.kind == ItemCategory::Trash))
            return false;
        switch (category.kind) {
        case ItemCategory::Favourites:
            return item.favorite();
        case ItemCategory::MostUsed:
            return item.useCount() > 0;
        case ItemCategory::OfType:
            return item.type() == category.type;
        case ItemCategory::Expiring:
            return itemExpiry(item) && *itemExpiry(item) <= today.addDays(60);
        default:
            return true;
        }
    }
};

class TestItemFilterModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        PMFieldTypes::registerMetaTypes();
        m_folder = std::make_unique<QTemporaryDir>();
        m_safe = std::make_shared<GPMSafe>();
        QVERIFY(m_safe->init(m_folder->path(), "p"_s, "n"_s, "h"_s));
    }

    void followsRandomEdits_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 12; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void followsRandomEdits()
    {
        QFETCH(quint32, seed);
        m_random.seed(seed);
        // Without a language, names are sorted as in English.
        QLocale::setDefault(seed % 2 ? QLocale::c() : QLocale(QLocale::English));
        const QDateTime now(QDate(2026, 5, 20), QTime(12, 0));
        ItemListModel items;
        ItemFilterModel list(nullptr, [now] { return now; });
        const QAbstractItemModelTester tester(
            &list, QAbstractItemModelTester::FailureReportingMode::QtTest);
        list.setSourceModel(&items);
        Reference expected;
        expected.today = now.date();
        for (int i = 0; i < 60; ++i)
            addRandom();
        items.setSafe(m_safe);
        const QVector<ItemCategory> categories = ItemCategory::all();
        for (int step = 0; step < 400; ++step) {
            const int what = below(12);
            if (what == 0)
                list.setCategory(expected.category = categories.at(below(categories.size())));
            else if (what == 1)
                list.setSearch(expected.search = below(2) ? randomTitle() : QString());
            else if (what == 2)
                list.setSortBy(expected.order = SortBy(below(6)));
            else
                editRandom();
            QStringList shown;
            for (int row = 0; row < list.rowCount(); ++row)
                shown.append(list.index(row).data(ItemListModel::IdRole).toString());
            QCOMPARE(shown, expected.ids(m_safe->items()));

            const QVector<int> counts = categoryCounts(items, expected.today);
            Reference whole = expected;
            whole.search.clear();
            whole.category = categories.at(below(categories.size()));
            QCOMPARE(counts.at(categories.indexOf(whole.category)),
                     whole.ids(m_safe->items()).size());
        }
    }

    void searches_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("found");
        const auto row = [](const char *search, const char *found) {
            QTest::newRow(search) << QString::fromUtf8(search) << QString::fromUtf8(found);
        };
        row("", "Café Crème|Files|Old card|Scan|Trash collection|Visa");
        row("cafe", "Café Crème");
        row("CRÈME café", "Café Crème");
        row("cafe visa", "");
        row("ana", "Café Crème|Files");        // user names
        row("shop.example", "Café Crème");     // the address
        row("ftp.example", "Files");           // the server
        row("contract", "Scan");               // the name of a file
        row("bring milk", "Trash collection"); // a note
        row("s3cret", "");                     // no password
        row("4111", "");                       // no number
        row("kind:card", "Old card|Visa");
        row("kind:CREDIT", "Old card|Visa");
        row("kind:", "Café Crème|Files|Old card|Scan|Trash collection|Visa");
        row("kind:zebra", "");
        row("kind:login kind:card", "");
        row("art:karte visa", "Visa"); // of the window's language
        row("trash", "Trash collection");
        row("is:trash", "Gone|Gone card");
        row("is:trash kind:card", "Gone card");
        row("is:fav", "Visa");
        row("is:favorite", "Visa");
        row("is:weak", "Café Crème");
        row("is:expired", "Old card");
        row("is:expiring", "Old card|Visa");
        row("is:nothing", "");
        row("host:8080", "Files");
    }
    void searches()
    {
        QFETCH(QString, search);
        QFETCH(QString, found);
        const auto add = [this](PMListItem::Type type, const char *title,
                                std::initializer_list<std::pair<const char *, QVariant>> fields) {
            auto item = makeItem(type);
            item->setTitle(QString::fromUtf8(title));
            for (const auto &field : fields)
                QVERIFY(item->setProperty(field.first, field.second));
            m_safe->addItem(std::move(item));
        };
        const auto date = [](int year, int month) {
            return QVariant::fromValue(PMFieldTypes::Date{year, month, 0});
        };
        add(PMListItem::Login, "Café Crème",
            {{"login", "Ana"_s}, {"password", "s3cret"_s}, {"url", "https://shop.example/"_s}});
        add(PMListItem::FtpAccount, "Files",
            {{"username", "ana2"_s},
             {"server", "ftp.example host:8080"_s},
             {"password", "s3cret"_s}});
        add(PMListItem::Attachment, "Scan", {{"filename", "Contract.pdf"_s}});
        add(PMListItem::SecureNote, "Trash collection", {{"note", "Milk\nBring it"_s}});
        add(PMListItem::CreditCard, "Visa",
            {{"number", "4111"_s}, {"expire", date(2026, 7)}, {"favorite", true}});
        add(PMListItem::CreditCard, "Old card", {{"expire", date(2025, 1)}});
        add(PMListItem::CreditCard, "Gone card", {{"deleted", true}});
        add(PMListItem::Login, "Gone", {{"deleted", true}});
        ItemListModel items;
        items.setSafe(m_safe);
        ItemFilterModel list(nullptr, [] { return QDateTime(QDate(2026, 6, 15), QTime(12, 0)); });
        list.setSourceModel(&items);
        SearchTerms terms = SearchTerms::english();
        terms.kinds.append({"Karte"_s, PMListItem::CreditCard});
        terms.kindPrefixes.append("Art"_s);
        list.setTerms(terms);
        list.setWeakCheck([](const PMListItem &item) { return item.type() == PMListItem::Login; });
        list.setSearch(search);
        QStringList titles;
        for (int row = 0; row < list.rowCount(); ++row)
            titles.append(list.index(row).data().toString());
        QCOMPARE(titles.join(QLatin1Char('|')), found);
    }

    void folds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("folded");
        const auto row = [](const char *text, const char *folded) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(folded);
        };
        row("Straße", "strasse");
        row("ŁÓDŹ", "lodz");
        row("Ørsted Æon Œuvre", "orsted aeon oeuvre");
        row("e\u0301te\u0301", "ete");
        row("ΣΊΣΥΦΟΣ", "σισυφοσ");
        row("ﬁne Ⅳ", "fine iv");
        row("日本語", "日本語");
    }
    void folds()
    {
        QFETCH(QString, text);
        QTEST(foldForSearch(text), "folded");
    }

    void domains_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("domain");
        const auto row = [](const char *address, const char *domain) {
            QTest::newRow(address) << QString::fromUtf8(address) << QString::fromUtf8(domain);
        };
        row("https://www.Shop.example:8443/a", "shop.example");
        row("shop.example/login", "shop.example");
        row("www.shop.example", "shop.example");
        row("http://wwwshop.example", "wwwshop.example");
        row("https://ana@shop.example/", "shop.example");
        row("https://xn--bcher-kva.de/", "bücher.de");
        row("https://192.168.1/", "192.168.0.1");
        row("https://-shop.example", "");
        row("", "");
        row("not an address", "");
    }
    void domains()
    {
        QFETCH(QString, address);
        PMLogin login;
        login.setUrl(address);
        QTEST(itemDomain(login), "domain");
    }

private:
    QString randomTitle()
    {
        // Few of them, so that many are the same but for case and number.
        static const char *const names[] = {"bank", "Bank", "mail 2", "mail 10", "zoo", "Alp", ""};
        return QLatin1String(names[below(7)]);
    }

    int below(int limit) { return int(m_random() % unsigned(limit)); }
    PMListItem *addRandom()
    {
        const PMListItem::Type types[] = {PMListItem::Login, PMListItem::Login, PMListItem::SSN,
                                          PMListItem::CreditCard};
        auto item = makeItem(types[below(4)]);
        item->setTitle(randomTitle());
        item->setCreated(QDateTime::fromMSecsSinceEpoch(below(5) * 1000, Qt::UTC));
        return m_safe->addItem(std::move(item));
    }

    void editRandom()
    {
        const std::vector<PMListItem *> items = m_safe->items();
        PMListItem *item = items[m_random() % items.size()];
        switch (below(9)) {
        case 0:
            item->setTitle(randomTitle());
            break;
        case 1:
            item->setUseCount(below(4));
            break;
        case 2:
            item->setFavorite(!item->favorite());
            break;
        case 3:
            item->setDeleted(!item->deleted());
            break;
        case 4:
            item->setModified(QDateTime::fromMSecsSinceEpoch(below(5) * 1000, Qt::UTC));
            break;
        case 5:
            item->setLastAccessed(QDateTime::fromMSecsSinceEpoch(below(5) * 1000, Qt::UTC));
            break;
        case 6:
            item->setUrl("https://www.site%1.example/x"_s.arg(below(3)));
            break;
        case 7:
            addRandom();
            break;
        default:
            if (auto *card = qobject_cast<PMCreditCard *>(item))
                card->setExpire({2026, 1 + below(12), 0});
            else if (items.size() > 30)
                QVERIFY(m_safe->removeItems({item->id()}));
        }
    }

    std::mt19937 m_random;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<GPMSafe> m_safe;
};

QTEST_GUILESS_MAIN(TestItemFilterModel)
#include "tst_itemfiltermodel.moc"
