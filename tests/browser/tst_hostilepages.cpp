#include "FormPages.h"
#include "ItemForms.h"
#include "LoginCapture.h"
#include "LoginForms.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

constexpr int mostFields = 5000;

/// Documents that no extension writes: keys that mean something, values of any kind.
class Scribbler
{
public:
    explicit Scribbler(quint32 seed)
        : m_random(seed)
    {
    }

    QJsonObject page()
    {
        QJsonObject page = object({"title", "language", "url", "x"}, 0);
        QJsonArray forms;
        for (int i = below(3); i > 0; --i)
            forms.append(below(5) == 0 ? value(0) : QJsonValue(form()));
        page.insert(QStringLiteral("forms"), below(8) == 0 ? value(0) : QJsonValue(forms));
        page.insert(QStringLiteral("elements"), below(8) == 0 ? value(0) : QJsonValue(fields()));
        return page;
    }

    QJsonObject form()
    {
        QJsonObject form = object({"formUid", "title", "buttons", "name", "id"}, 0);
        form.insert(QStringLiteral("fields"), fields());
        return form;
    }

private:
    int below(int limit) { return static_cast<int>(m_random.bounded(limit)); }

    QJsonArray fields()
    {
        QJsonArray list;
        for (int i = below(25); i > 0; --i) {
            if (below(10) == 0)
                list.append(value(0));
            else
                list.append(field());
        }
        return list;
    }

    QJsonObject field()
    {
        static const QVector<const char *> types = {"text",       "password", "email", "number",
                                                    "select-one", "radio",    "tel",   "TEXT"};
        QJsonObject field = object({"name",
                                    "id",
                                    "class",
                                    "sourceName",
                                    "label",
                                    "autocomplete",
                                    "placeholder",
                                    "ariaLabel",
                                    "textBefore",
                                    "textAfter",
                                    "tableHead",
                                    "heading",
                                    "pattern",
                                    "inputtype",
                                    "value",
                                    "sourceContext",
                                    "sourceLabelFor",
                                    "isSearch",
                                    "isFixed",
                                    "isFilled",
                                    "maxlength",
                                    "options",
                                    "gpmid",
                                    "visible",
                                    "type"},
                                   0);
        field.insert(QStringLiteral("opid"), QString::number(m_last++));
        if (below(4) > 0)
            field.insert(QStringLiteral("type"), QLatin1String(types.at(below(types.size()))));
        if (below(4) > 0)
            field.insert(QStringLiteral("visible"), true);
        if (below(6) == 0)
            field.insert(QStringLiteral("options"), options());
        return field;
    }

    QJsonArray options()
    {
        QJsonArray list;
        for (int i = below(14); i > 0; --i)
            list.append(below(6) == 0 ? value(0) : QJsonValue(object({"text", "value"}, 0)));
        return list;
    }

    QJsonObject object(const QVector<const char *> &keys, int depth)
    {
        QJsonObject object;
        for (const char *key : keys) {
            if (below(2) == 0)
                object.insert(QLatin1String(key), value(depth));
        }
        return object;
    }

    QJsonValue value(int depth)
    {
        switch (below(depth > 4 ? 6 : 9)) {
        case 0:
            return QJsonValue();
        case 1:
            return below(2) == 0;
        case 2:
            return QVector<double>{-1, 0, 3, 4, 1e300, -0.5, 2147483648.0}.at(below(7));
        case 6:
            return QJsonArray{value(depth + 1), value(depth + 1)};
        case 7:
            return object({"text", "value", "label", "opid"}, depth + 1);
        default:
            return text();
        }
    }

    QString text()
    {
        static const QStringList words =
            QString::fromUtf8("Password|User name|card|number|cvv|expires|MM/YY|ДД.ММ.ГГГГ|first|"
                              "name|Country|State|zip|phone|+49|birth|gender|Frau|male|street|nr|"
                              "cc-number|tel-area-code|new-password|one-time-code|(((|[a-z|(a+)+$|"
                              "(.|.)*(.|.)*x|\\d{2}/\\d{2}|\u202e|\u0000|😀|İ|ß")
                .split(QLatin1Char('|'));
        QString text;
        for (int i = below(4); i > 0; --i)
            text += words.at(below(words.size())) + QLatin1Char(' ');
        if (below(12) == 0)
            text += QChar(0xD800 + below(0x800));
        if (below(40) == 0)
            text = text.repeated(5000);
        return text.trimmed();
    }

    QRandomGenerator m_random;
    int m_last = 0;
};

QHash<QString, QJsonObject> fieldsById(const QJsonObject &page)
{
    QHash<QString, QJsonObject> fields;
    const auto add = [&](const QJsonValue &list) {
        const QJsonArray entries = list.toArray();
        for (const QJsonValue &entry : entries)
            fields.insert(entry[QLatin1String("opid")].toString(), entry.toObject());
    };
    const QJsonArray forms = page.value(QLatin1String("forms")).toArray();
    for (const QJsonValue &form : forms)
        add(form[QLatin1String("fields")]);
    add(page.value(QLatin1String("elements")));
    return fields;
}

/// What is wrong with a filled field; empty when nothing is.
QString faultOf(const FilledForm::Field &filled, const QJsonObject &field, bool isLogin)
{
    const FormField read(field);
    const bool isChoice = read.isSelect() || read.isRadio();
    if (filled.value.isEmpty() || field.isEmpty())
        return QStringLiteral("no value, or no such field");
    if (read.hasHints() && read.isFixed())
        return QStringLiteral("a fixed field");
    if (read.hasHints() && !read.isVisible() && !isChoice)
        return QStringLiteral("a hidden line");
    if (!isLogin && !isChoice && read.maxLength() > 0 && filled.value.size() > read.maxLength())
        return QStringLiteral("longer than the field");
    if (isLogin && filled.value == QLatin1String("secret") && !read.isPassword())
        return QStringLiteral("a password to be read");
    return {};
}

/// What is wrong with the first field that should not have been filled so; empty when all are well.
QString faultOf(const QVector<FilledForm> &forms, const QHash<QString, QJsonObject> &fields,
                bool isLogin)
{
    for (const FilledForm &form : forms) {
        for (const FilledForm::Field &field : form.fields) {
            const QString fault = faultOf(field, fields.value(field.opid), isLogin);
            if (!fault.isEmpty())
                return QStringLiteral("%1: field %2, %3").arg(fault, field.opid, field.value);
        }
    }
    return {};
}

int filledIn(const QVector<FilledForm> &forms)
{
    int count = 0;
    for (const FilledForm &form : forms)
        count += form.fields.size();
    return count;
}

QJsonObject pageOfFields(int count, const QJsonObject &field)
{
    QJsonArray fields;
    for (int i = 0; i < count; ++i)
        fields.append(field);
    return {{QStringLiteral("elements"), fields}};
}

} // namespace

/// Pages that want to stop the program or to get at what is not theirs.
class TestHostilePages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongTypes();
    void anything();
    void tooMuch_data();
    void tooMuch();
    void lengths();
};

void TestHostilePages::wrongTypes()
{
    PMIdentity identity;
    fillIn(identity);
    const QJsonObject wrong =
        QJsonDocument::fromJson(R"({"title":[],"language":{},"forms":[{"buttons":{},"fields":[
        {"autocomplete":7,"label":[],"options":"x","maxlength":"4","pattern":{},"visible":true,
         "type":"text","name":"city"},
        {"autocomplete":"","type":"select-one","visible":true,"options":[null,[],{"text":1}]},
        {"autocomplete":"","type":"text","visible":true,"label":"Phone","maxlength":-4,
         "pattern":"(((","opid":"0"}]}]})")
            .object();
    QCOMPARE(fillIdentityForms(wrong, identity).size(), 1);
}

// Whatever a page says of itself, what is filled keeps to the rules.
void TestHostilePages::anything()
{
    PMCreditCard card;
    fillIn(card);
    PMIdentity identity;
    fillIn(identity);
    int filled = 0;
    for (quint32 seed = 1; seed <= 400; ++seed) {
        Scribbler scribbler(seed);
        const QJsonObject page = scribbler.page();
        const auto fields = fieldsById(page);
        const auto logins = fillLoginForms(page, QStringLiteral("anna"), QStringLiteral("secret"));
        const auto items = fillCardForms(page, card) + fillIdentityForms(page, identity);
        const QString fault = faultOf(logins, fields, true) + faultOf(items, fields, false);
        QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("seed %1: ").arg(seed) + fault));
        filled += filledIn(logins) + filledIn(items);
        fillPasswordForms(page, QStringLiteral("new"));
        captureLogin(scribbler.form());
    }
    QVERIFY(filled > 1000); // else the pages try nothing
}

// A page and how many of its fields are filled at the most.
void TestHostilePages::tooMuch_data()
{
    QTest::addColumn<QJsonObject>("page");
    QTest::addColumn<int>("filled");
    const auto row = [](const char *name, const QJsonObject &page, int filled) {
        QTest::newRow(name) << page << filled;
    };
    const QString opid = QStringLiteral("opid");
    const auto field = [&](const char *members) {
        return pageOf(members).value(QLatin1String("elements"))[0].toObject();
    };
    row("fields", pageOfFields(100000, field(R"({"label":"City"})")), mostFields);
    QJsonObject forms = pageOfFields(800, field(R"({"label":"City"})"));
    const QJsonObject form = {{QStringLiteral("fields"), forms.value(QLatin1String("elements"))}};
    forms.insert(QStringLiteral("forms"), QJsonArray{form, form, form, form, form, form});
    row("fields of several forms", forms, mostFields);

    QJsonObject large = field(R"({"label":"City"})");
    for (const char *key : {"placeholder", "pattern", "name", "heading", "textBefore", "id"})
        large.insert(QLatin1String(key), QString(1 << 20, QLatin1Char('(')));
    row("texts", pageOfFields(1, large), 1);

    QJsonObject wordy = field(R"({"label":"City"})");
    wordy.insert(QStringLiteral("textBefore"), QString(246, QLatin1Char('x')));
    row("letters", pageOfFields(mostFields, wordy), 1600);

    QJsonArray options;
    for (int i = 0; i < 300; ++i)
        options.append(QJsonObject{{QStringLiteral("text"), QStringLiteral("Mrs %1").arg(i)}});
    options.append(QJsonObject{{QStringLiteral("text"), QStringLiteral("Germany")}});
    QJsonObject list = field(R"({"label":"Country","type":"select-one"})");
    list.insert(QStringLiteral("options"), options);
    row("lists", pageOfFields(mostFields, list), mostFields);
    row("patterns",
        pageOfFields(mostFields,
                     field(R"({"label":"City","pattern":"(.|.)*(.|.)*(.|.)*(.|.)*[xy]"})")),
        mostFields);

    QJsonValue deep = QStringLiteral("x");
    for (int i = 0; i < 1000; ++i)
        deep = QJsonArray{deep};
    QJsonObject nested = field(R"({"label":"City"})");
    nested.insert(QStringLiteral("options"), deep);
    nested.insert(QStringLiteral("name"), deep);
    row("depth",
        {{QStringLiteral("elements"), QJsonArray{nested, deep}}, {QStringLiteral("forms"), deep}},
        1);
}

void TestHostilePages::tooMuch()
{
    QFETCH(QJsonObject, page);
    PMIdentity identity;
    fillIn(identity);
    QTEST(filledIn(fillIdentityForms(page, identity)), "filled");
}

// Lengths whose sum is no int.
void TestHostilePages::lengths()
{
    PMCreditCard card;
    fillIn(card);
    const QJsonObject page = pageOf(R"({"label":"Card number","maxlength":2147483647},
                  {"label":"Card number","maxlength":2147483647}, {"maxlength":4})");
    QCOMPARE(valuesOf(fillCardForms(page, card), 3),
             QStringLiteral("4111111111111111|4111111111111111|-"));
}

QTEST_APPLESS_MAIN(TestHostilePages)
#include "tst_hostilepages.moc"
