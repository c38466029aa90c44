#include "GPMAppSettings.h"
#include "PMCreditCard.h"
#include "PMIdentity.h"
#include "PMItemFactory.h"
#include "PMLogin.h"
#include "editor/FieldRules.h"
#include "editor/ItemDraft.h"
#include "main/ItemFields.h"

#include <QMetaProperty>
#include <QTemporaryDir>
#include <QtTest>

class TestItemFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFieldIsAProperty();
    void everyPropertyOfAKindIsShown();
    void valuesAsAPersonReadsThem();
    void urls_data();
    void urls();
    void draftLeavesTheItemAlone();
    void writingCompletesTheLogin();

private:
    QTemporaryDir m_folder;
    GPMAppSettings m_settings{m_folder.path(), m_folder.path()};

    QString text(const PMListItem &item, const char *property) const;
};

QString TestItemFields::text(const PMListItem &item, const char *property) const
{
    for (const ItemField &field : itemFields(item.type())) {
        if (qstrcmp(field.property, property) == 0)
            return itemFieldText(item, field, m_settings);
    }
    return QStringLiteral("no such field");
}

void TestItemFields::everyFieldIsAProperty()
{
    for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type) {
        const auto item = makeItem(PMListItem::Type(type));
        QVERIFY(!itemFields(item->type()).isEmpty());
        for (const ItemField &field : itemFields(item->type()))
            QVERIFY2(item->metaObject()->indexOfProperty(field.property) >= 0, field.property);
    }
}

void TestItemFields::everyPropertyOfAKindIsShown()
{
    // A strength is shown with its password, the id and the hash say nothing to a person.
    const QSet<QByteArray> hidden = {"strength", "id", "hash"};
    for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type) {
        const auto item = makeItem(PMListItem::Type(type));
        const QMetaObject *kind = item->metaObject();
        for (int i = kind->propertyOffset(); i < kind->propertyCount(); ++i) {
            const char *name = kind->property(i).name();
            if (!hidden.contains(name))
                QVERIFY2(text(*item, name) != QLatin1String("no such field"), name);
        }
    }
}

void TestItemFields::valuesAsAPersonReadsThem()
{
    PMCreditCard card;
    QCOMPARE(text(card, "cardType"), QString());
    QCOMPARE(text(card, "expire"), QString());
    QCOMPARE(text(card, "bankPhone"), QString());
    card.setExpire({2027, 1, 0});
    card.setBankPhone({QStringLiteral("44"), QStringLiteral("2079 460000")});
    card.setCardType(PMCreditCard::MasterCard);
    QCOMPARE(text(card, "expire"), QStringLiteral("January 2027"));
    QCOMPARE(text(card, "bankPhone"), QStringLiteral("+44 2079 460000"));
    QCOMPARE(text(card, "cardType"), QStringLiteral("MasterCard"));

    PMIdentity identity;
    QCOMPARE(text(identity, "gender"), QString());
    identity.setGender(PMFieldTypes::Gender::Female);
    QCOMPARE(text(identity, "gender"), QStringLiteral("Female"));

    PMLogin login;
    m_settings.setLoginMode(GPMAppSettings::Fill);
    QCOMPARE(text(login, "fillType"), QStringLiteral("Use application setting (only fill)"));
    login.setFillType(PMFieldTypes::LoginFillType::FillAndSubmit);
    QCOMPARE(text(login, "fillType"), QStringLiteral("Fill and submit"));
}

void TestItemFields::urls_data()
{
    QTest::addColumn<QString>("entered");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("complete");
    const auto row = [](const char *entered, bool valid, const char *complete) {
        QTest::newRow(entered) << QString::fromUtf8(entered) << valid
                               << QString::fromUtf8(complete);
    };
    row("", true, "");
    row("https://mail.example/login", true, "https://mail.example/login");
    row("http://127.0.0.1:8080/", true, "http://127.0.0.1:8080/");
    row("mail.example/login", true, "https://mail.example/login");
    row("not an address", false, "not an address");
    row("https://", false, "https://");
}

void TestItemFields::urls()
{
    QFETCH(QString, entered);
    QTEST(FieldRules::isUrl(entered), "valid");
    QTEST(FieldRules::completeUrl(entered), "complete");
}

void TestItemFields::draftLeavesTheItemAlone()
{
    PMLogin login;
    login.setLogin(QStringLiteral("ana"));
    ItemDraft draft(login, itemFields(PMListItem::Login), false);
    QVERIFY(!draft.isModified());
    draft.setValue("login", QStringLiteral("bea"));
    QVERIFY(draft.isModified());
    QCOMPARE(login.login(), QStringLiteral("ana"));
    draft.setValue("login", QStringLiteral("ana"));
    QVERIFY(!draft.isModified());

    QTest::ignoreMessage(QtWarningMsg, "! Ui: Try to write unbinded field for property createdBy");
    draft.setValue("createdBy", 1);
    QVERIFY(!draft.isModified());
}

void TestItemFields::writingCompletesTheLogin()
{
    PMLogin login;
    ItemDraft draft(login, itemFields(PMListItem::Login), true);
    draft.setValue("login", QStringLiteral("ana"));
    draft.setValue("password", QStringLiteral("tr0ub4dor&3 horse Battery"));
    draft.setValue("url", QStringLiteral("mail.example"));
    draft.setValue("fillType", int(PMFieldTypes::LoginFillType::OnlyFill));
    draft.writeTo(login);
    QCOMPARE(login.secondaryText(), QStringLiteral("ana"));
    QCOMPARE(login.strength(), PMFieldTypes::PasswordStrength::Strong);
    QCOMPARE(login.url(), QStringLiteral("https://mail.example"));
    QCOMPARE(login.fillType(), PMFieldTypes::LoginFillType::OnlyFill);
}

QTEST_GUILESS_MAIN(TestItemFields)
#include "tst_itemfields.moc"
