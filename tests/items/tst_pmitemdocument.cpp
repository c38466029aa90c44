#include "../Text.h"
#include "PMItemDocument.h"
#include "PMLogin.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

namespace {

/// JSON written with single quotes.
QByteArray json(const char *text)
{
    return QByteArray(text).replace('\'', '"');
}

std::optional<QString> shift(const QByteArray &plain)
{
    return QString::fromLatin1(plain.toHex());
}

std::optional<QByteArray> unshift(const QString &secret)
{
    if (secret == QLatin1String("locked"))
        return std::nullopt;
    return QByteArray::fromHex(secret.toLatin1());
}

} // namespace

class TestPmItemDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsAccepted_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("accepted");
        const auto row = [](const char *name, const char *text, bool accepted) {
            QTest::newRow(name) << json(text) << accepted;
        };
        row("least", "{'version':2,'type':'Login','public':{}}", true);
        row("later version", "{'version':7,'type':'Login','public':{}}", true);
        row("private as it is", "{'version':2,'type':'Login','public':{},'private':{'login':'a'}}",
            true);
        row("encrypted", "{'version':2,'type':'Login','public':{},'private':'7b7d'}", true);
        row("version 1", "{'version':1,'type':'Login','public':{},'private':{}}", false);
        row("version as text", "{'version':'2','type':'Login','public':{}}", false);
        row("no version", "{'type':'Login','public':{}}", false);
        row("no type", "{'version':2,'public':{}}", false);
        row("type as number", "{'version':2,'type':0,'public':{}}", false);
        row("unknown type", "{'version':2,'type':'login','public':{}}", false);
        row("undefined type", "{'version':2,'type':'UndefinedItem','public':{}}", false);
        row("no public", "{'version':2,'type':'Login'}", false);
        row("public is a list", "{'version':2,'type':'Login','public':[]}", false);
        row("private is a number", "{'version':2,'type':'Login','public':{},'private':3}", false);
        row("does not decrypt", "{'version':2,'type':'Login','public':{},'private':'locked'}",
            false);
        row("decrypts to no object", "{'version':2,'type':'Login','public':{},'private':'5b5d'}",
            false);
        row("list", "[]", false);
        row("cut", "{'version':2,'type':'Login','public':{", false);
        row("empty", "", false);
        QTest::newRow("deep") << QByteArray(100000, '{') << false;
    }
    void whatIsAccepted()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, accepted);
        QCOMPARE(PMItemDocument::fromJson(text, unshift).has_value(), accepted);
    }

    void secretsGoToThePrivatePart()
    {
        PMLogin login;
        login.setTitle("Mail"_s);
        login.setUrl("https://mail.example"_s);
        login.setPassword("s3cret"_s);
        login.setFillType(PMFieldTypes::LoginFillType::OnlyFill);
        login.setRefs({"a"_s, "b"_s});
        login.setCreated(
            QDateTime(QDate(2026, 11, 13), QTime(10, 9, 10, 123), Qt::OffsetFromUTC, 7200));
        const QByteArray text = *PMItemDocument::fromItem(login).toJson(shift);
        for (const char *secret : {"s3cret", "mail.example", "OnlyFill"})
            QVERIFY(!text.contains(secret));
        const QJsonObject shown = QJsonDocument::fromJson(text).object();
        const QJsonObject fields = shown.value("public"_s).toObject();
        QCOMPARE(shown.value("version"_s).toInt(), 2);
        QCOMPARE(fields.value("created"_s).toString(), "2026-11-13T08:09:10.123Z"_s);
        QCOMPARE(fields.value("refs"_s).toArray().size(), 2);
        QCOMPARE(fields.value("type"_s).toString(), "Login"_s);

        const auto back = PMItemDocument::fromJson(text, unshift)->toItem();
        QVERIFY(!back->isChanged());
        const PMItemDocument again = PMItemDocument::fromItem(*back);
        QCOMPARE(again.publicFields, PMItemDocument::fromItem(login).publicFields);
        QCOMPARE(again.privateFields, PMItemDocument::fromItem(login).privateFields);
        QVERIFY(!PMItemDocument::fromItem(login).toJson(
            [](const QByteArray &) { return std::optional<QString>(); }));
    }

    void whatThisVersionDoesNotKnowIsKept()
    {
        const QByteArray text = json("{'version':9,'type':'SecureNote','later':[1],"
                                     "'public':{'title':'t','colour':'red','objectName':'x'},"
                                     "'private':{'text':'n','font':{'size':3}}}");
        auto item = PMItemDocument::fromJson(text, unshift)->toItem();
        QVERIFY(item->objectName().isEmpty());
        item->setTitle("new"_s);
        const QJsonObject written =
            QJsonDocument::fromJson(*PMItemDocument::fromItem(*item).toJson({})).object();
        QVERIFY(written.value("later"_s).isArray());
        const QJsonObject fields = written.value("public"_s).toObject();
        QCOMPARE(fields.value("colour"_s).toString(), "red"_s);
        QCOMPARE(fields.value("title"_s).toString(), "new"_s);
        QVERIFY(written.value("private"_s).toObject().contains("font"_s));
    }

    void valuesOfTheWrongTypeLeaveTheDefault()
    {
        const QByteArray text =
            json("{'version':2,'type':'Login','public':{'title':5,'useCount':'7','favorite':1,"
                 "'created':true,'refs':'a','type':'Passport'},"
                 "'private':{'password':['x'],'fillType':'Never','strength':3,'login':'me'}}");
        const auto item = PMItemDocument::fromJson(text, unshift)->toItem();
        QCOMPARE(item->type(), PMListItem::Login);
        QCOMPARE(item->title(), QString());
        QCOMPARE(item->useCount(), 0);
        QVERIFY(!item->favorite());
        QVERIFY(item->created().isNull());
        const auto *login = qobject_cast<PMLogin *>(item.get());
        QCOMPARE(login->login(), "me"_s);
        QCOMPARE(login->password(), QString());
        QCOMPARE(login->fillType(), PMFieldTypes::LoginFillType::GlobalSettings);
    }

    void whatWasNotUnderstoodIsKeptUntilItIsReplaced()
    {
        const QByteArray text =
            json("{'version':2,'type':'CreditCard','public':{'title':5,'created':'yesterday'},"
                 "'private':{'cardType':'Crystal','expire':'12/29','bankPhone':'0800 1','number':"
                 "77,'bank':'North'}}");
        auto item = PMItemDocument::fromJson(text, unshift)->toItem();
        item->setProperty("number", "4111"_s);
        item->setTitle("Card"_s);
        const PMItemDocument written = PMItemDocument::fromItem(*item);
        const auto secret = [&written](const char *name) {
            return written.privateFields.value(QLatin1String(name)).toVariant().toString();
        };
        QCOMPARE(secret("cardType"), "Crystal"_s);
        QCOMPARE(secret("expire"), "12/29"_s);
        QCOMPARE(secret("bankPhone"), "0800 1"_s);
        QCOMPARE(secret("number"), "4111"_s);
        QCOMPARE(secret("bank"), "North"_s);
        QCOMPARE(written.publicFields.value("title"_s).toString(), "Card"_s);
        QCOMPARE(written.publicFields.value("created"_s).toString(), "yesterday"_s);
    }

    void anItemOfAnotherKindIsLeftAlone()
    {
        PMLogin login;
        login.setTitle("mine"_s);
        const auto document = PMItemDocument::fromJson(
            json("{'version':2,'type':'SSN','public':{'title':'other'}}"), unshift);
        QVERIFY(!document->applyTo(login));
        QCOMPARE(login.title(), "mine"_s);
    }
};

QTEST_GUILESS_MAIN(TestPmItemDocument)
#include "tst_pmitemdocument.moc"
