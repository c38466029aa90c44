#include "FormField.h"
#include "LoginClassifiers.h"
#include "LoginForms.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

namespace {

QJsonObject json(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

/// "formUid: opid/gpmid=value ...", forms separated by "; ".
QString summary(const QVector<FilledForm> &forms)
{
    QStringList lines;
    for (const FilledForm &form : forms) {
        const QJsonObject instruction = toFillInstruction(form);
        QString line = instruction.value(QLatin1String("formUid")).toString() + QLatin1Char(':');
        const QJsonArray elements = instruction.value(QLatin1String("elements")).toArray();
        for (const QJsonValue &element : elements) {
            line += QStringLiteral(" %1/%2=%3")
                        .arg(element[QLatin1String("opid")].toString(),
                             element[QLatin1String("gpmid")].toString(),
                             element[QLatin1String("value")].toString());
        }
        lines.append(line);
    }
    return lines.join(QLatin1String("; "));
}

} // namespace

class TestLoginForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void classifiers_data();
    void classifiers();
    void fillsLogin_data();
    void fillsLogin();
    void fillsPassword();
    void emptyValuesFillNothing();
    void passwordMark();
};

// The members of a field, and which classifiers take it.
void TestLoginForms::classifiers_data()
{
    QTest::addColumn<QByteArray>("members");
    QTest::addColumn<QString>("takenAs");
    const auto row = [](const char *members, const char *takenAs) {
        QTest::addRow("%s", members) << QByteArray(members) << QString::fromLatin1(takenAs);
    };
    row(R"("visible":true, "type":"password")", "password visible");
    row(R"("visible":true, "type":"Password", "name":"pass")", "password named visible");
    row(R"("visible":true, "type":"password", "name":"login")", "password visible");
    row(R"("visible":false, "type":"password", "name":"password")", "");
    row(R"("type":"password", "name":"password")", "");
    row(R"("visible":"true", "type":"password", "name":"password")", "");
    row(R"("visible":false, "type":"text", "name":"pasword")", "password");
    row(R"("type":"TEXT", "sourceLabelFor":"Ваш Пароль")", "password");
    row(R"("visible":true, "type":"number", "name":"password")", "visible");
    row(R"("visible":true, "type":"text", "id":"Login")", "login visible");
    row(R"("visible":true, "type":"email", "sourceContext":"Your E-Mail")", "login visible");
    row(R"("visible":true, "type":"number", "class":"uname")", "login visible");
    row(R"("visible":false, "type":"text", "name":"login")", "");
    row(R"("visible":true, "type":"text", "name":"q")", "visible");
    row(R"("visible":true, "type":"select-one", "name":"login")", "");
    row(R"("visible":true, "type":"text", "inputtype":"password")", "visible");
    row(R"("visible":true, "type":"", "inputtype":"password")", "password visible");
    row(R"("visible":true, "type":5, "inputtype":"email")", "visible");
    row(R"("visible":true, "type":"text", "sourceName":"login")", "login visible");
    row(R"("visible":true, "type":"text", "name":"", "sourceName":"login")", "visible");
    row(R"("visible":true, "type":"text", "name":["x"], "sourceName":"login")", "login visible");
}

void TestLoginForms::classifiers()
{
    QFETCH(QByteArray, members);
    const FormField field(json("{" + members + "}"));
    QStringList takenAs;
    if (passwordScore(field) > 0.0F)
        takenAs.append(QStringLiteral("password"));
    if (namedPasswordScore(field) > 0.0F)
        takenAs.append(QStringLiteral("named"));
    if (loginNameScore(field) > 0.0F)
        takenAs.append(QStringLiteral("login"));
    if (visibleFieldScore(field) > 0.0F)
        takenAs.append(QStringLiteral("visible"));
    QTEST(takenAs.join(QLatin1Char(' ')), "takenAs");
}

void TestLoginForms::fillsLogin_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *page, const char *expected) {
        QTest::newRow(name) << QByteArray(page) << QString::fromUtf8(expected);
    };
    row("login form", R"({"forms":[{"formUid":"f","fields":[
        {"opid":"1","gpmid":"a","type":"text","visible":true,"name":"login"},
        {"opid":"2","gpmid":"b","type":"text","visible":true,"name":"search"},
        {"opid":"3","gpmid":"c","type":"password","visible":true}]}]})",
        "f: 1/a=anna 3/c=secret");
    row("order of the page, fields without a form last", R"({
        "elements":[{"opid":"3","type":"password","visible":true}],
        "forms":[{"formUid":"z","fields":[{"opid":"2","type":"password","visible":true},
                                          {"opid":"1","type":"email","visible":true,"id":"mail"}]},
                 {"formUid":"y","fields":[{"opid":"4","type":"text","visible":true,"name":"q"}]},
                 {"formUid":"x","fields":[{"opid":"5","type":"email","visible":true,"id":"mail"}]}]
        })",
        "z: 2/=secret 1/=anna; x: 5/=anna; none: 3/=secret");
    row("the password never goes into a text field", R"({"elements":[
        {"opid":"1","type":"text","visible":true,"name":"password"}]})",
        "");
    row("wrong types everywhere", R"({"elements":{"0":{"type":"password","visible":true}},
        "forms":[5, null, "x", [], {"fields":"x"}, {"fields":{"a":1}},
                 {"formUid":7,"fields":[null, 1, "x", [[]], {"type":{"a":1},"visible":[]}]},
                 {"formUid":"f","fields":[3, {"opid":9,"gpmid":[],"type":"password",
                                              "visible":true,"name":{},"id":[[[{}]]]}]}]})",
        "f: /=secret");
    row("nothing", "{}", "");
}

void TestLoginForms::fillsLogin()
{
    QFETCH(QByteArray, page);
    QTEST(summary(fillLoginForms(json(page), QStringLiteral("anna"), QStringLiteral("secret"))),
          "expected");
}

void TestLoginForms::fillsPassword()
{
    const QJsonObject page = json(R"({"elements":[{"opid":"4","type":"password","visible":true}],
        "forms":[{"formUid":"f","fields":[
            {"opid":"1","type":"text","visible":true,"name":"login"},
            {"opid":"2","type":"text","visible":false,"name":"passwd"},
            {"opid":"3","type":"password","visible":false,"name":"passwd"}]}]})");
    QCOMPARE(summary(fillPasswordForms(page, QStringLiteral("secret"))),
             QStringLiteral("f: 2/=secret; none: 4/=secret"));
}

void TestLoginForms::emptyValuesFillNothing()
{
    const QJsonObject page = json(R"({"elements":[
        {"opid":"1","type":"text","visible":true,"name":"login"},
        {"opid":"2","type":"password","visible":true}]})");
    QCOMPARE(summary(fillLoginForms(page, {}, QStringLiteral("secret"))),
             QStringLiteral("none: 2/=secret"));
    QCOMPARE(summary(fillLoginForms(page, {}, {})), QString());
}

void TestLoginForms::passwordMark()
{
    const QJsonObject page = json(R"({
        "forms":[{"fields":[{"type":"text","visible":true,"name":"login"}]}],
        "elements":[{"type":"password","visible":true,"name":"pass"},
                    {"type":"text","visible":true,"name":"login"}]})");
    const auto forms = fillLoginForms(page, QStringLiteral("same"), QStringLiteral("same"));
    QCOMPARE(forms.size(), 2);
    QVERIFY(!forms.at(0).hasPassword);
    QVERIFY(forms.at(1).hasPassword);
}

QTEST_APPLESS_MAIN(TestLoginForms)
#include "tst_loginforms.moc"
