#include "ItemExport.h"

#include "ImportFile.h"
#include "PMCreditCard.h"
#include "PMFieldTypes.h"
#include "PMItemFactory.h"
#include "SafeTesting.h"

#include <QMetaProperty>
#include <QtTest>

namespace {

const QStringList nasty{"=HYPERLINK(\"http://x\",\"y\")"_s,
                        " leading and trailing "_s,
                        "a,b;c\td"_s,
                        "say \"\"hi\"\" \"'"_s,
                        "line\nand\r\nline\r"_s,
                        "\\ \u0001 \uFEFF"_s,
                        "ä€😀 日本 עברית"_s};

ItemExport::Item itemOf(const PMListItem &item, const QStringList &attachments = {})
{
    return {PMItemDocument::fromItem(item), attachments};
}

ImportFile comeBack(const ItemExport &out)
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    if (!out.writeTo(buffer))
        qFatal("Can't write to memory");
    return readImportFile(buffer.data());
}

} // namespace

class TestItemExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { PMFieldTypes::registerMetaTypes(); }
    void csvComesBack()
    {
        ItemExport out;
        out.items.push_back(itemOf(*makeItem(PMListItem::SecureNote)));
        for (const QString &text : nasty) {
            const auto login = makeItem(PMListItem::Login);
            login->setTitle(text);
            login->setUrl("https://a.example/?q=\"x,y\""_s);
            login->setProperty("login", text);
            login->setProperty("password", text);
            login->setNote(text);
            out.items.push_back(itemOf(*login));
        }
        const ImportFile file = comeBack(out);
        QCOMPARE(file.format, ImportFile::Chromium);
        QCOMPARE(int(file.entries.size()), nasty.size());
        for (int i = 0; i < nasty.size(); ++i) {
            const ImportEntry &entry = file.entries[std::size_t(i)];
            QCOMPARE(entry.fault, ImportEntry::None);
            for (const char *property : {"title", "login", "password", "note"})
                QCOMPARE(entry.text(property), nasty.at(i));
            QCOMPARE(entry.text("url"), "https://a.example/?q=\"x,y\""_s);
        }
    }

    void jsonComesBack()
    {
        // Every kind with something in every field.
        ItemExport out;
        out.format = ItemExport::Json;
        std::vector<std::unique_ptr<PMListItem>> items;
        for (int type = 0; type < PMListItem::UndefinedItem; ++type) {
            items.push_back(makeItem(static_cast<PMListItem::Type>(type)));
            PMListItem &item = *items.back();
            const QMetaObject &meta = *item.metaObject();
            for (int i = meta.indexOfProperty("type") + 1; i < meta.propertyCount(); ++i) {
                const QMetaProperty property = meta.property(i);
                if (property.isEnumType())
                    property.write(&item, property.enumerator().value(0));
                else if (property.userType() == QMetaType::QString)
                    property.write(&item, nasty.at(i % nasty.size()));
                else if (property.userType() == QMetaType::Int)
                    property.write(&item, 7 + i);
                else if (property.userType() == QMetaType::QDateTime)
                    property.write(&item,
                                   QDateTime::fromMSecsSinceEpoch(1600000000123 + i, Qt::UTC));
                else if (property.userType() == qMetaTypeId<PMFieldTypes::Date>())
                    property.write(&item, QVariant::fromValue(PMFieldTypes::Date{1984, 2, 29}));
                else if (property.userType() == qMetaTypeId<PMFieldTypes::Phone>())
                    property.write(&item,
                                   QVariant::fromValue(PMFieldTypes::Phone{"44"_s, "77;00"_s}));
            }
            item.setFavorite(true);
            item.setUrl("no web address"_s);
            item.setUnknownKeys({{}, {}, {{"of a later version"_s, 1}}});
            item.setRefs({"some-id"_s});
            out.items.push_back(itemOf(item));
        }
        const ImportFile file = comeBack(out);
        QCOMPARE(file.format, ImportFile::OwnJson);
        items.erase(std::find_if(items.begin(), items.end(), [](const auto &item) {
            return item->type() == PMListItem::Attachment;
        }));
        QCOMPARE(file.entries.size(), items.size());
        for (std::size_t i = 0; i < items.size(); ++i) {
            QCOMPARE(file.entries[i].fault, ImportEntry::None);
            const auto back = file.entries[i].toItem();
            // It is another item now, and what it refers to is not in the file.
            QCOMPARE(back->id(), QString());
            QCOMPARE(back->refs(), QStringList());
            back->setId(items[i]->id());
            back->setRefs(items[i]->refs());
            const PMItemDocument was = PMItemDocument::fromItem(*items[i]);
            const PMItemDocument is = PMItemDocument::fromItem(*back);
            QCOMPARE(is.type, was.type);
            QCOMPARE(is.publicFields, was.publicFields);
            QCOMPARE(is.privateFields, was.privateFields);
        }

        // Attachments stay behind; their names do not.
        out.items = {itemOf(*items[0], {"a.pdf"_s})};
        QCOMPARE(comeBack(out).entries[0].toItem()->note(),
                 items[0]->note() + "\nattachment: a.pdf"_s);
    }

    void failureLeavesNothing()
    {
        const QTemporaryDir folder;
        ItemExport out;
        const auto login = makeItem(PMListItem::Login);
        login->setProperty("password", "secret"_s);
        out.items = {itemOf(*login)};
        const QString path = folder.filePath("out.csv"_s);
        FileLayer files;
        QVERIFY(out.write(files, path));
        QCOMPARE(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther),
                 QFile::Permissions());

        // A disk that takes nothing more.
        struct FullDisk : FileLayer
        {
            bool write(const QString &target, const Produce &produce,
                       QIODevice::OpenMode mode) override
            {
                return FileLayer::write(
                    target,
                    [&produce](QIODevice &device) { return produce(device) && device.size() < 0; },
                    mode);
            }
        };
        FullDisk full;
        QFile::remove(path);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Can't write file"_s));
        QVERIFY(!out.write(full, path));
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList());
    }
};

QTEST_GUILESS_MAIN(TestItemExport)
#include "tst_itemexport.moc"
