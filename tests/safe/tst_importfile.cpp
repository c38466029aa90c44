#include "../Text.h"
#include "ImportFile.h"

#include "CsvText.h"
#include "ImportMatch.h"
#include "PMCreditCard.h"
#include "PMFieldTypes.h"

#include <QtTest>

Q_DECLARE_METATYPE(ImportFile::Format)
Q_DECLARE_METATYPE(ImportEntry::Fault)
Q_DECLARE_METATYPE(ImportFile::Problem)

class TestImportFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void csv_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("records"); // the row, then the cells, joined by "|"
        const auto row = [](const char *name, const QByteArray &bytes, const QStringList &records) {
            QTest::newRow(name) << bytes << records;
        };
        const auto text = [](const char *utf8) { return QString::fromUtf8(utf8); };
        row("plain", "a,b\r\nc,d\r\n", {text("1|a|b"), text("2|c|d")});
        row("no final line end", "a,b\nc,d", {text("1|a|b"), text("2|c|d")});
        row("quotes", "\"a,b\",\"say \"\"hi\"\"\"\n", {text("1|a,b|say \"hi\"")});
        row("lines in a field", "a,\"b\r\nc\"\nd,e\n", {text("1|a|b\r\nc"), text("2|d|e")});
        row("empty cells and lines", ",\n\n\n\"\",x\n", {text("1||"), text("4||x")});
        row("semicolons", "a;b\nc;d,e\n", {text("1|a|b"), text("2|c|d,e")});
        row("tabs", "a\tb\n", {text("1|a|b")});
        row("mark of UTF-8",
            "\xEF\xBB\xBF"
            "a,\xC3\xA4\n",
            {text("1|a|ä")});
        row("UTF-16",
            QByteArray("\xFF\xFE"
                       "a\0,\0\xE4\0\n\0",
                       10),
            {text("1|a|ä")});
        row("Windows-1252", "a,\xE4\x80\n", {text("1|a|ä€")});
        row("a quote that does not end", "a,\"b\nc", {});
        row("NUL", QByteArray("a,\0b\n", 5), {});
    }
    void csv()
    {
        QFETCH(QByteArray, bytes);
        QStringList read;
        if (const auto records = parseCsv(bytes)) {
            for (const CsvRecord &record : *records)
                read << QString::number(record.row) + QLatin1Char('|') +
                            record.cells.join(QLatin1Char('|'));
        }
        QTEST(read, "records");
    }

    void formats_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<ImportFile::Format>("format");
        const auto row = [](const char *name, const QByteArray &bytes, ImportFile::Format format) {
            QTest::newRow(name) << bytes << format;
        };
        row("Chromium",
            "name,url,username,password,note\nMail,https://www.mail.example/in,ana,pw 1,n\n",
            ImportFile::Chromium);
        row("older Chromium",
            "name,url,username,password\nMail,https://www.mail.example/in,ana,pw 1\n",
            ImportFile::Chromium);
        row("Firefox",
            "\"url\",\"username\",\"password\",\"httpRealm\",\"formActionOrigin\",\"guid\","
            "\"timeCreated\",\"timeLastUsed\",\"timePasswordChanged\"\n"
            "\"https://www.mail.example/in\",\"ana\",\"pw 1\",,\"\",\"{1}\",\"1600000000000\","
            "\"1600000000001\",\"1600000000002\"\n",
            ImportFile::Firefox);
        row("Safari",
            "Title,URL,Username,Password,Notes,OTPAuth\n"
            "Mail,https://www.mail.example/in,ana,pw 1,,\n",
            ImportFile::Safari);
        row("Bitwarden",
            "folder,favorite,type,name,notes,fields,reprompt,login_uri,login_username,login_"
            "password,"
            "login_totp\n,1,login,Mail,,,0,www.mail.example/in,ana,pw 1,\n",
            ImportFile::Bitwarden);
        row("KeePassXC",
            "\"Group\",\"Title\",\"Username\",\"Password\",\"URL\",\"Notes\",\"TOTP\",\"Icon\","
            "\"Last Modified\",\"Created\"\n\"Root\",\"Mail\",\"ana\",\"pw "
            "1\",\"https://www.mail.example/in\",\"\",\"\",\"0\",\"2024-05-01T10:00:00Z\","
            "\"2020-09-13T12:26:40Z\"\n",
            ImportFile::KeePassXC);
        row("JSON",
            "{\"encrypted\":false,\"items\":[{\"type\":1,\"name\":\"Mail\",\"login\":{\"username\":"
            "\"ana\",\"password\":\"pw "
            "1\",\"uris\":[{\"uri\":\"https://www.mail.example/in\"}]}}]}",
            ImportFile::BitwardenJson);
    }
    void formats()
    {
        QFETCH(QByteArray, bytes);
        const ImportFile file = readImportFile(bytes);
        QTEST(file.format, "format");
        QCOMPARE(file.entries.size(), std::size_t(1));
        QCOMPARE(file.entries[0].fault, ImportEntry::None);
        const std::unique_ptr<PMListItem> item = file.entries[0].toItem();
        QCOMPARE(item->type(), PMListItem::Login);
        QVERIFY(
            item->title() == QLatin1String("Mail") ||
            (file.format == ImportFile::Firefox && item->title() == QLatin1String("mail.example")));
        QCOMPARE(item->url(), "https://www.mail.example/in"_s);
        QCOMPARE(item->property("login").toString(), "ana"_s);
        QCOMPARE(item->property("password").toString(), "pw 1"_s);
        QCOMPARE(item->favorite(), file.format == ImportFile::Bitwarden);
        if (file.format == ImportFile::Firefox || file.format == ImportFile::KeePassXC)
            QCOMPARE(item->created(), QDateTime::fromSecsSinceEpoch(1600000000, Qt::UTC));
    }

    void faults_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QVector<ImportEntry::Fault>>("faults");
        const QByteArray head = "name,url,username,password\n";
        using Faults = QVector<ImportEntry::Fault>;
        QTest::newRow("address of an app")
            << head + ",android://key@com.shop/,,pw\nOk,shop.example,ana,pw\n"
            << Faults{ImportEntry::NotAWebAddress, ImportEntry::None};
        QTest::newRow("scripts and files")
            << head + ",javascript://x/%0aalert(1),b,c\n,file:///etc,b,c\n"
            << Faults{ImportEntry::NotAWebAddress, ImportEntry::NotAWebAddress};
        QTest::newRow("cells missing") << head + "a,b\nMail,,ana,pw\n"
                                       << Faults{ImportEntry::WrongColumns, ImportEntry::None};
        QTest::newRow("nothing in it") << head + ",,,\nOnly a name,,,\n"
                                       << Faults{ImportEntry::Empty, ImportEntry::Empty};
        QTest::newRow("kind of Bitwarden")
            << QByteArray("type,name,notes,login_uri,login_username,login_password\nssh,a,b,,,\n")
            << Faults{ImportEntry::UnknownKind};
        QTest::newRow("JSON entries of any shape")
            << QByteArray(
                   "{\"items\":[7,null,{\"type\":99,\"name\":\"k\"},{\"type\":1,\"login\":[]}]}")
            << Faults{ImportEntry::UnknownKind, ImportEntry::UnknownKind, ImportEntry::UnknownKind,
                      ImportEntry::Empty};
    }
    void faults()
    {
        QFETCH(QByteArray, bytes);
        QVector<ImportEntry::Fault> found;
        for (const ImportEntry &entry : readImportFile(bytes).entries)
            found.append(entry.fault);
        QTEST(found, "faults");
    }

    void problems_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<ImportFile::Problem>("problem");
        const auto row = [](const char *name, const QByteArray &bytes,
                            ImportFile::Problem problem) {
            QTest::newRow(name) << bytes << problem;
        };
        row("nothing", "", ImportFile::Empty);
        row("empty lines", "\r\n\r\n", ImportFile::Empty);
        row("a picture", QByteArray("\x89PNG\r\n\x1a\n\"\0\x01", 11), ImportFile::NotText);
        row("UTF-16 without its mark", QByteArray("n\0a\0m\0e\0,\0", 10), ImportFile::NotText);
        row("cut short", "name,url,username,password\nMail,mail.example,ana,\"p",
            ImportFile::CutShort);
        row("other columns", "a,b,c\n1,2,3\n", ImportFile::UnknownColumns);
        row("JSON of another kind", "{\"items\":7}", ImportFile::UnknownJson);
        row("JSON cut short", "{\"items\":[{\"type\":1,", ImportFile::UnknownJson);
        row("encrypted JSON", "{\"encrypted\":true,\"items\":[{\"type\":1,\"name\":\"2.x|y\"}]}",
            ImportFile::Encrypted);
    }
    void problems()
    {
        QFETCH(QByteArray, bytes);
        const ImportFile file = readImportFile(bytes);
        QTEST(file.problem, "problem");
        QCOMPARE(file.format, ImportFile::Unknown);
        QVERIFY(file.entries.empty());
    }

    void jsonKinds()
    {
        const ImportFile file = readImportFile(
            "{\"items\":["
            "{\"type\":3,\"name\":\"Card\",\"card\":{\"cardholderName\":\"ANA "
            "MARTIN\",\"brand\":\"Mastercard\",\"number\":\"5555555555554444\",\"expMonth\":\"1\","
            "\"expYear\":\"2027\",\"code\":\"123\"}},"
            "{\"type\":4,\"name\":\"Ana\",\"identity\":{\"firstName\":\"Ana\",\"postalCode\":\"BS1 "
            "4DJ\",\"phone\":\"+44 7700 900123\",\"passportNumber\":\"533\"}},"
            "{\"type\":2,\"name\":\"Alarm\",\"notes\":\"1984\"}]}");
        QCOMPARE(file.entries.size(), std::size_t(3));
        const auto card = file.entries[0].toItem();
        QCOMPARE(card->type(), PMListItem::CreditCard);
        QCOMPARE(card->property("number").toString(), "5555555555554444"_s);
        QCOMPARE(card->property("expire").value<PMFieldTypes::Date>().toText(), "20270101"_s);
        QCOMPARE(card->property("cardType").toInt(), int(PMCreditCard::MasterCard));
        const auto identity = file.entries[1].toItem();
        QCOMPARE(identity->property("zipCode").toString(), "BS1 4DJ"_s);
        QCOMPARE(identity->property("phone").value<PMFieldTypes::Phone>().number,
                 "+44 7700 900123"_s);
        QCOMPARE(identity->note(), "passportNumber: 533"_s);
        QCOMPARE(file.entries[2].toItem()->property("text").toString(), "1984"_s);
    }

    void nothingIsLost_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("note");
        const auto row = [](const char *name, const QByteArray &bytes, const char *url,
                            const char *note) {
            QTest::newRow(name) << bytes << QString::fromUtf8(url) << QString::fromUtf8(note);
        };
        row("JSON",
            "{\"folders\":[{\"id\":\"7\",\"name\":\"Work\"}],\"items\":[{\"type\":1,\"id\":\"x\","
            "\"name\":"
            "\"Mail\",\"folderId\":\"7\",\"notes\":\"first\",\"fields\":[{\"name\":\"PIN\","
            "\"value\":"
            "\"4711\"}],\"passwordHistory\":[{\"lastUsedDate\":\"2024-05-01T10:00:00Z\","
            "\"password\":"
            "\"old\"}],\"login\":{\"password\":\"p\",\"totp\":\"JBSW\",\"fido2Credentials\":[{"
            "\"k\":1}]"
            ","
            "\"uris\":[{\"uri\":\"androidapp://com.mail\"},{\"uri\":\"https://a.example\"}]}}]}",
            "https://a.example",
            "first\nfido2Credentials: [{\"k\":1}]\ntotp: JBSW\nuri: androidapp://com.mail\nPIN: "
            "4711\nformer password (2024-05-01): old\nfolder: Work");
        row("JSON, month that is none",
            "{\"items\":[{\"type\":3,\"name\":\"Card\",\"card\":{\"number\":\"1\",\"brand\":"
            "\"Amex\","
            "\"expMonth\":\"13\",\"expYear\":\"2027\"}}]}",
            "", "expMonth: 13\nexpYear: 2027\nbrand: Amex");
        row("Bitwarden, many addresses",
            "folder,favorite,type,name,notes,fields,reprompt,login_uri,login_username,login_"
            "password,"
            "login_totp\nWork,,login,Mail,\"a\n\",\"PIN: 1\nX: 2\",0,"
            "\"androidapp://com.mail,https://a.example/?x=1,2,b.example\",ana,p,JBSW\n",
            "https://a.example/?x=1,2",
            "a\n\nfolder: Work\nPIN: 1\nX: 2\nuri: androidapp://com.mail\nuri: "
            "b.example\nlogin_totp: JBSW");
        row("KeePassXC",
            "Group,Title,Username,Password,URL,Notes,TOTP,Icon,Last Modified,Created\n"
            "Root/Web/Shops,Mail,ana,p,,n,otpauth://totp/x,0,,\nRoot,B,b,p,,,,0,,\n",
            "", "n\nGroup: Web/Shops\nTOTP: otpauth://totp/x");
        row("further columns of a browser",
            "url,username,password,totp,extra,name,grouping\na.example,ana,p,JBSW,,Mail,Work\n",
            "https://a.example", "totp: JBSW\ngrouping: Work");
        row("login of an app",
            "name,url,username,password,note\nShop,android://key@com.shop/,ana,pw,n\n", "",
            "n\naddress: android://key@com.shop/");
        row("realm of Firefox",
            "url,username,password,httpRealm,formActionOrigin,guid\nhttps://"
            "a.example,ana,p,Staff,,{1}",
            "https://a.example", "httpRealm: Staff");
    }
    void nothingIsLost()
    {
        QFETCH(QByteArray, bytes);
        const ImportFile file = readImportFile(bytes);
        QVERIFY(!file.entries.empty());
        QCOMPARE(file.entries[0].fault, ImportEntry::None);
        QTEST(file.entries[0].toItem()->url(), "url");
        QTEST(file.entries[0].toItem()->note(), "note");
    }

    void chosenColumns()
    {
        const QByteArray bytes =
            "Konto;Web site;Login Name;Password;Kommentar\nMail;a.example;ana;p;hi\n";
        const ImportFile unknown = readImportFile(bytes);
        QCOMPARE(unknown.problem, ImportFile::UnknownColumns);
        ImportColumns columns = guessColumns(unknown.header);
        QCOMPARE(columns, (ImportColumns{"", "url", "login", "password", ""}));
        columns[0] = "title";
        const ImportFile file = readImportFile(bytes, columns);
        QCOMPARE(file.format, ImportFile::ChosenColumns);
        const auto item = file.entries.at(0).toItem();
        QCOMPARE(item->title(), "Mail"_s);
        QCOMPARE(item->url(), "https://a.example"_s);
        QCOMPARE(item->property("password").toString(), "p"_s);
        QCOMPARE(item->note(), "Kommentar: hi"_s);
    }

    void matches()
    {
        const ImportFile file = readImportFile("name,url,username,password,note\n"
                                               "Mail,https://mail.example/a,ana,pw,\n"
                                               "Other name,http://www.mail.example,ana,pw,\n"
                                               "Mail,https://mail.example,ana,other,\n"
                                               "Mail,https://mail.example,bob,pw,\n"
                                               "Mail,https://mail.example,ana,pw,codes\n"
                                               "Shop,https://shop.example,ana,pw,\n"
                                               "Router,http://192.168.1.1:8080,admin,admin,\n"
                                               "Printer,http://192.168.1.1,admin,admin,\n"
                                               "Bad,file:///shop,ana,pw,\n");
        const auto shop = file.entries[5].toItem();
        shop->setNote("a note of its own"_s);
        const std::vector<ImportMatch> expected{
            ImportMatch::New, ImportMatch::AlreadyThere, ImportMatch::OtherPassword,
            ImportMatch::New, ImportMatch::OtherNote,    ImportMatch::AlreadyThere,
            ImportMatch::New, ImportMatch::New,          ImportMatch::New};
        QCOMPARE(findMatches(file.entries, {ImportTraits::of(*shop)}), expected);

        const ImportFile cards = readImportFile(
            "{\"items\":[{\"type\":3,\"name\":\"Visa\",\"card\":{\"number\":\"4111 1111\"}},"
            "{\"type\":3,\"name\":\"Visa\",\"card\":{\"number\":\"4222 2222\"}},"
            "{\"type\":3,\"name\":\"Visa\",\"card\":{\"number\":\"41111111\"}}]}");
        QCOMPARE(findMatches(cards.entries, {}),
                 (std::vector<ImportMatch>{ImportMatch::New, ImportMatch::New,
                                           ImportMatch::AlreadyThere}));
    }
};

QTEST_GUILESS_MAIN(TestImportFile)
#include "tst_importfile.moc"
