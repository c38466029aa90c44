#include "../Text.h"
#include "ItemListModel.h"
#include "PMItemFactory.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestItemListModel : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<GPMSafe> m_safe;

    PMListItem *add(PMListItem::Type type, const char *title, const char *second = "")
    {
        auto item = makeItem(type);
        item->setTitle(QString::fromUtf8(title));
        item->setSecondaryText(QString::fromUtf8(second));
        return m_safe->addItem(std::move(item));
    }
    static QString titles(const QAbstractItemModel &model)
    {
        QStringList list;
        for (int row = 0; row < model.rowCount(); ++row)
            list.append(model.index(row, 0).data().toString());
        return list.join(QLatin1Char(' '));
    }

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_safe = std::make_shared<GPMSafe>();
        QVERIFY(m_safe->init(m_folder->path(), "p"_s, "n"_s, "h"_s));
    }

    void followsTheSafe()
    {
        ItemListModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        add(PMListItem::Login, "before");
        model.setSafe(m_safe);
        QSignalSpy content(&model, &ItemListModel::contentChanged);
        QVERIFY(content.wait());
        PMListItem *item = add(PMListItem::Login, "b");
        add(PMListItem::SSN, "c");
        QCOMPARE(model.rowCount(), 3);
        QVERIFY(content.wait());
        QCOMPARE(content.count(), 2); // one for both
        QSignalSpy data(&model, &ItemListModel::dataChanged);
        item->setTitle("renamed"_s);
        QCOMPARE(data.count(), 1);
        QCOMPARE(model.indexOf(item->id()).data().toString(), "renamed"_s);
        QVERIFY(m_safe->removeItems({item->id()}));
        QVERIFY(!titles(model).contains("renamed"_s));
        QCOMPARE(model.rowCount(), 2);
        m_safe->lock();
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(m_safe->unlock("p"_s));
        QCOMPARE(model.rowCount(), 2);
        m_safe.reset();
        model.setSafe(nullptr); // the model held the last reference
        QCOMPARE(model.rowCount(), 0);
    }
};

QTEST_GUILESS_MAIN(TestItemListModel)
#include "tst_itemlistmodel.moc"
