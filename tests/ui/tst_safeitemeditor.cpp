#include "GPMSafe.h"
#include "PMCountryTable.h"
#include "PMCreditCard.h"
#include "PMItemFactory.h"
#include "UiTesting.h"
#include "editor/CountryNames.h"
#include "editor/EditorDefaults.h"
#include "editor/FieldRules.h"
#include "editor/SafeItemEditor.h"
#include "main/ItemKinds.h"
#include "main/ItemPage.h"
#include "main/ItemPane.h"
#include "main/MainView.h"
#include "style/Theme.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QToolButton>
#include <QTranslator>

#include <functional>

Q_DECLARE_METATYPE(PMListItem::Type)

namespace {

/// Everything a user can reach: the main view with a safe in it, in front of real files.
struct Editing
{
    Editing()
        : view(test.core, theme, asker.asker())
    {
        openWithSafe(view, test);
        view.resize(1000, 680);
        view.show();
        activate();
    }
    /// The offscreen platform lets a pop-up take the window's place.
    void activate()
    {
        view.activateWindow();
        if (!QTest::qWaitForWindowActive(&view))
            qFatal("The view got no keyboard");
    }

    template <typename Widget = QLineEdit>
    Widget *field(const char *name) const
    {
        return find<Widget>(view, name);
    }
    QWidget *input(const ItemField &of, const char *suffix = "Field") const
    {
        return field<QWidget>((QByteArray(of.property) + suffix).constData());
    }
    void openNew(PMListItem::Type type)
    {
        if (type == PMListItem::Attachment) {
            // Made from a file, and edited afterwards.
            auto made = test.core.modelCreateItem(type);
            made->setTitle(QStringLiteral("file.txt"));
            test.core.modelAddItem(std::move(made));
            auto *list = field<QListView>("itemList");
            list->setCurrentIndex(list->model()->index(0, 0));
            press(Qt::Key_F2);
        } else {
            view.createItem(type);
        }
        if (auto *more = field<QPushButton>("moreFieldsButton"))
            more->click();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        activate();
        QWidget *focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &view, key, modifiers);
    }
    PMListItem *onlyItem() const
    {
        const auto items = test.core.currentSafe()->items();
        return items.size() == 1 ? items.front() : nullptr;
    }
    QString message(const char *property) const
    {
        return field<QLabel>((QByteArray(property) + "Message").constData())->text();
    }

    TestCore test;
    Theme theme;
    TestAsker asker;
    MainView view;
};

void replace(QWidget *line, const QString &text)
{
    QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(line, Qt::Key_Delete);
    QTest::keyClicks(line, text);
    // As a click elsewhere does.
    if (QWidget *offers = QApplication::activePopupWidget())
        offers->close();
}

/// Types values into the inputs of fields and knows what has to be in the item afterwards.
class Typist
{
public:
    Typist(quint32 seed, const Editing &editing)
        : m_random(seed)
        , m_editing(editing)
    {
    }

    QVariant type(const ItemField &field)
    {
        QWidget *input = m_editing.input(field);
        switch (field.form) {
        case ItemField::Date: {
            const QDate day = QDate(1900, 1, 1).addDays(number(60000));
            replace(input, day.toString(flip() ? QStringLiteral("yyyy-MM-dd")
                                               : QStringLiteral("d MMMM yyyy")));
            return QVariant::fromValue(PMFieldTypes::Date{day.year(), day.month(), day.day()});
        }
        case ItemField::Month: {
            const QDate day = QDate(2000, 1, 1).addDays(number(36000));
            replace(input, day.toString(QStringLiteral("MM/yy")));
            return QVariant::fromValue(PMFieldTypes::Date{day.year(), day.month(), 0});
        }
        case ItemField::Phone: {
            const PMFieldTypes::Phone phone{QString::number(1 + number(998)), digits(9)};
            replace(m_editing.input(field, "Code"), QLatin1Char('+') + phone.code);
            replace(input, phone.number);
            return QVariant::fromValue(phone);
        }
        case ItemField::Gender:
        case ItemField::FillType: {
            auto *box = static_cast<QComboBox *>(input);
            QTest::keyClick(box, flip() ? Qt::Key_End : Qt::Key_Home);
            return box->currentData();
        }
        case ItemField::Number: {
            const int value = 1 + number(300);
            replace(input, QString::number(value));
            return value;
        }
        case ItemField::CardNumber: {
            const QString value = digits(16);
            replace(input, value);
            return value;
        }
        default:
            break;
        }
        QString text = words();
        replace(input, text);
        if (field.isText()) {
            QTest::keyClick(input, Qt::Key_Return);
            QTest::keyClicks(input, text);
            text += QLatin1Char('\n') + text;
        }
        return text;
    }

private:
    int number(int below) { return static_cast<int>(m_random.bounded(below)); }
    bool flip() { return number(2) == 1; }
    QString digits(int count)
    {
        QString text;
        while (text.size() < count)
            text.append(QString::number(number(10)));
        return text;
    }
    QString words()
    {
        QString text;
        for (int i = 0; i < 12; ++i)
            text.append(QChar(0x21 + number(0x5e)));
        return text + QStringLiteral(" x");
    }

    QRandomGenerator m_random;
    const Editing &m_editing;
};

} // namespace

class TestSafeItemEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindKeepsWhatIsTyped_data();
    void everyKindKeepsWhatIsTyped();
    void leavingAsksForEveryField_data();
    void leavingAsksForEveryField();
    void rules_data();
    void rules();
    void aDateThatIsNoneIsNotSaved();
    void wrongValuesAreToldAndSaved();
    void storedFaultsAreToldAtOnce();
    void aKeptEditComesBackAsItWasTyped();
    void aMeanwhileChangeIsNotSetBack();
    void madePasswordGoesWhereItWasAskedFor();
    void countryDefaults();
    void countriesAreShownInTheLanguageAndStoredInEnglish_data();
    void countriesAreShownInTheLanguageAndStoredInEnglish();
    void datesAndCountriesAreChosenByKeyboard();
    void everyKindIsMadeFromTheMenu();
    void aClickCopies();
    void whatExpiresIsMarked_data();
    void whatExpiresIsMarked();
    void wayOfLoggingInIsChangedOnThePage();
};

void TestSafeItemEditor::everyKindKeepsWhatIsTyped_data()
{
    QTest::addColumn<PMListItem::Type>("type");
    QTest::addColumn<quint32>("seed");
    for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type) {
        for (quint32 seed = 1; seed <= 2; ++seed)
            QTest::addRow("kind %d, seed %u", type, seed)
                << static_cast<PMListItem::Type>(type) << seed;
    }
}

void TestSafeItemEditor::everyKindKeepsWhatIsTyped()
{
    QFETCH(PMListItem::Type, type);
    QFETCH(quint32, seed);
    Editing editing;
    editing.openNew(type);
    Typist typist(seed, editing);
    QMap<QByteArray, QVariant> expected{{"title", typist.type(itemTitleField())}};
    for (const ItemField &field : itemFields(type)) {
        if (field.form != ItemField::CardType)
            expected.insert(field.property, typist.type(field));
    }
    editing.press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(editing.asker.asked.isEmpty());
    QVERIFY(editing.onlyItem());
    const QString summary = editing.onlyItem()->secondaryText();

    // From the disk, and once more through an editor that changes nothing.
    for (int round = 0; round < 2; ++round) {
        QVERIFY(editing.test.core.saveCurrentSafe());
        editing.test.core.lockCurrentSafe();
        QSignalSpy finished(&editing.test.core, &GPMAppCore::unlockFinished);
        editing.test.core.unlockCurrentSafe(testPassword);
        QVERIFY(finished.wait());
        const PMListItem *item = editing.onlyItem();
        QVERIFY(item);
        for (auto it = expected.constBegin(); it != expected.constEnd(); ++it) {
            const QVariant found = item->property(it.key().constData());
            const QVariant same = found.userType() == it.value().userType() ? it.value() : [&] {
                QVariant converted = it.value();
                converted.convert(found.userType());
                return converted;
            }();
            QVERIFY2(found == same, it.key().constData());
        }
        QCOMPARE(item->secondaryText(), summary);
        editing.press(Qt::Key_F2);
        QVERIFY(editing.field("titleField"));
        QVERIFY(!editing.field<SafeItemEditor>("itemEditor")->isModified());
        editing.press(Qt::Key_S, Qt::ControlModifier);
    }

    // What lists show lies outside of the part that is encrypted once more.
    for (const ItemField &field : itemFields(type)) {
        const QString value = editing.onlyItem()->property(field.property).toString();
        if (field.isSecret() || field.form == ItemField::CardNumber || field.isText())
            QVERIFY2(value.isEmpty() || !summary.contains(value), field.property);
    }
}

void TestSafeItemEditor::leavingAsksForEveryField_data()
{
    QTest::addColumn<PMListItem::Type>("type");
    for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type)
        QTest::addRow("kind %d", type) << static_cast<PMListItem::Type>(type);
}

void TestSafeItemEditor::leavingAsksForEveryField()
{
    QFETCH(PMListItem::Type, type);
    Editing editing;
    auto made = editing.test.core.modelCreateItem(type);
    made->setTitle(QStringLiteral("Mine"));
    editing.test.core.modelAddItem(std::move(made));
    Typist typist(7, editing);
    auto *list = editing.field<QListView>("itemList");
    for (const ItemField &field : itemFields(type)) {
        if (field.form == ItemField::CardType)
            continue;
        for (const int answer : {2, 1}) {
            list->setCurrentIndex(list->model()->index(0, 0));
            editing.press(Qt::Key_F2);
            if (auto *more = editing.field<QPushButton>("moreFieldsButton"))
                more->click();
            const QVariant before = editing.onlyItem()->property(field.property);
            if (field.form == ItemField::Gender || field.form == ItemField::FillType)
                QTest::keyClick(editing.input(field), Qt::Key_End);
            else
                typist.type(field);
            editing.asker.asked.clear();
            editing.asker.answer = answer;
            QCOMPARE(editing.view.mayLeave(), answer == 1);
            QCOMPARE(editing.asker.asked.size(), 1);
            QCOMPARE(editing.asker.asked.first().text,
                     QStringLiteral("You have not saved changes yet"));
            QCOMPARE(editing.onlyItem()->property(field.property), before);
            if (answer == 2) {
                QVERIFY(editing.field("titleField"));
                find<QPushButton>(editing.view, "discardButton")->click();
            }
            QVERIFY(!editing.field("titleField"));
        }
    }
    // "Save" with an empty title saves nothing and goes nowhere.
    editing.press(Qt::Key_F2);
    editing.field("titleField")->clear();
    editing.asker.asked.clear();
    editing.asker.answer = 0;
    QVERIFY(!editing.view.mayLeave());
    QCOMPARE(editing.asker.asked.first().text,
             QStringLiteral("There are empty required fields. What would you like to do?"));
    QCOMPARE(editing.asker.asked.last().text,
             QStringLiteral("There are empty required values.\nFill and try again."));
    QCOMPARE(editing.onlyItem()->title(), QStringLiteral("Mine"));
}

void TestSafeItemEditor::rules_data()
{
    QTest::addColumn<PMListItem::Type>("type");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("cardNumber");
    QTest::addColumn<QString>("message");
    const auto row = [](PMListItem::Type type, const char *property, const QVariant &value,
                        const char *message, const char *cardNumber = "") {
        QTest::addRow("%s %s %s", property, qPrintable(value.toString()), cardNumber)
            << type << QString::fromLatin1(property) << value << QString::fromLatin1(cardNumber)
            << QString::fromUtf8(message);
    };
    const auto text = [](const char *utf8) { return QVariant(QString::fromUtf8(utf8)); };
    const auto card = PMListItem::CreditCard;
    const char *const holder = "Correct value is up to 26 characters in range A-Z including spaces";
    const char *const number = "Incorrect card number";
    const char *const three = "Please use 3-digit value";
    const char *const four = "Please use 4-digit value";
    row(card, "cardholder", text("JOHN SMITH"), "");
    row(card, "cardholder", text("John-Smith"), holder);
    row(card, "cardholder", text("José"), holder);
    row(card, "cardholder", text("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), "");
    row(card, "cardholder", text("ABCDEFGHIJKLMNOPQRSTUVWXYZA"), holder);
    row(card, "cardholder", text(""), "");
    row(card, "number", text("5555 5555 5555 4444"), "");
    row(card, "number", text("5555-5555-5555-4444"), "");
    row(card, "number", text("555555555555"), number);
    row(card, "number", text("1234567890123"), "");
    row(card, "number", text("1234567890123456789"), "");
    row(card, "number", text("12345678901234567890"), number);
    row(card, "number", text("5555 5555 5555 444x"), number);
    row(card, "number", text("٥٥٥٥٥٥٥٥٥٥٥٥٥٥٥٥"), number);
    row(card, "code", text("123"), "");
    row(card, "code", text("12"), three);
    row(card, "code", text("1234"), three, "4111111111111111");
    row(card, "code", text("1234"), "", "3782 822463 10005");
    row(card, "code", text("123"), four, "378282246310005");
    row(card, "expire", text("13/27"), "“13/27” is not a date");
    row(card, "bankSite", text("bank.example"), "");
    row(card, "bankSite", text("not a site"), "Url is invalid");
    row(card, "bankPhone",
        QVariant::fromValue(PMFieldTypes::Phone{QStringLiteral("x"), QStringLiteral("1")}),
        "“x” is not a country code");
    row(card, "bankPhone",
        QVariant::fromValue(PMFieldTypes::Phone{QStringLiteral("1-684"), QStringLiteral("1")}), "");
    const auto identity = PMListItem::Identity;
    row(identity, "email", text("ana@"), "“ana@” is not a complete address");
    row(identity, "email", text("ana@shop."), "“ana@shop.” is not a complete address");
    row(identity, "email", text("ana@mail.example"), "");
    row(identity, "birthDate", text("31.02.1984"), "“31.02.1984” is not a date");
    row(PMListItem::DriverLicense, "height", text("tall"), "“tall” is not a number");
    row(PMListItem::Login, "title", text(""), "Required field is empty");
}

void TestSafeItemEditor::rules()
{
    QFETCH(PMListItem::Type, type);
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    QFETCH(QString, cardNumber);
    const QVector<ItemField> fields = QVector<ItemField>{itemTitleField()} + itemFields(type);
    const auto field = std::find_if(fields.begin(), fields.end(), [&](const ItemField &each) {
        return property == QLatin1String(each.property);
    });
    QVERIFY(field != fields.end());
    QTEST(FieldRules::message(*field, value, cardNumber), "message");
}

void TestSafeItemEditor::aDateThatIsNoneIsNotSaved()
{
    Editing editing;
    editing.openNew(PMListItem::Identity);
    QTest::keyClicks(editing.field("titleField"), QStringLiteral("Me"));
    QTest::keyClicks(editing.field("birthDateField"), QStringLiteral("soon"));
    editing.press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(editing.asker.asked.size(), 1);
    QCOMPARE(editing.message("birthDate"), QStringLiteral("“soon” is not a date"));
    QCOMPARE(editing.field("birthDateField")->text(), QStringLiteral("soon"));
    QVERIFY(!editing.onlyItem());
    replace(editing.field("birthDateField"), QStringLiteral("29 Feb 1984"));
    QCOMPARE(editing.message("birthDate"), QString());
    editing.press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(editing.onlyItem());
}

void TestSafeItemEditor::wrongValuesAreToldAndSaved()
{
    Editing editing;
    editing.openNew(PMListItem::CreditCard);
    QTest::keyClicks(editing.field("titleField"), QStringLiteral("Card"));
    QTest::keyClicks(editing.field("codeField"), QStringLiteral("1234"));
    QCOMPARE(editing.message("code"), QStringLiteral("Please use 3-digit value"));
    QTest::keyClicks(editing.field("numberField"), QStringLiteral("378282246310005"));
    QCOMPARE(editing.field("numberField")->text(), QStringLiteral("3782 822463 10005"));
    QCOMPARE(editing.message("code"), QString());
    // A digit taken out of the middle leaves the cursor there.
    editing.field("numberField")->setCursorPosition(7);
    QTest::keyClick(editing.field("numberField"), Qt::Key_Backspace);
    QTest::keyClick(editing.field("numberField"), Qt::Key_9);
    QCOMPARE(editing.field("numberField")->text(), QStringLiteral("3782 892463 10005"));
    replace(editing.field("numberField"), QStringLiteral("2720 99"));
    QCOMPARE(editing.message("number"), QStringLiteral("Incorrect card number"));
    editing.press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(editing.asker.asked.isEmpty());
    const auto *card = qobject_cast<PMCreditCard *>(editing.onlyItem());
    QVERIFY(card);
    QCOMPARE(card->number(), QStringLiteral("272099"));
    QCOMPARE(card->cardType(), PMCreditCard::MasterCard);
}

void TestSafeItemEditor::storedFaultsAreToldAtOnce()
{
    Editing editing;
    auto made = editing.test.core.modelCreateItem(PMListItem::CreditCard);
    made->setTitle(QStringLiteral("Card"));
    made->setProperty("cardholder", QStringLiteral("José"));
    editing.test.core.modelAddItem(std::move(made));
    auto *list = editing.field<QListView>("itemList");
    list->setCurrentIndex(list->model()->index(0, 0));
    editing.press(Qt::Key_F2);
    QVERIFY(!editing.message("cardholder").isEmpty());
    QCOMPARE(editing.message("number"), QString());
    QVERIFY(!editing.field<SafeItemEditor>("itemEditor")->isModified());
}

void TestSafeItemEditor::aKeptEditComesBackAsItWasTyped()
{
    Editing editing;
    editing.openNew(PMListItem::Identity);
    Typist typist(3, editing);
    const QVariant phone = typist.type({"phoneCell", "", ItemField::Phone});
    replace(editing.field("birthDateField"), QStringLiteral("soon"));
    replace(editing.field("countryField"), QStringLiteral("Atlantis"));
    auto *pane = editing.field<ItemPane>("itemPane");
    const std::optional<KeptDraft> kept = pane->draft();
    QVERIFY(kept);
    pane->discard();
    pane->continueDraft(*kept, nullptr);
    QCOMPARE(editing.field("birthDateField")->text(), QStringLiteral("soon"));
    QCOMPARE(editing.message("birthDate"), QStringLiteral("“soon” is not a date"));
    QCOMPARE(editing.field("countryField")->text(), QStringLiteral("Atlantis"));
    // It was folded away, and is filled now.
    QVERIFY(editing.field("phoneCellField")->isVisible());
    QCOMPARE(editing.field<SafeItemEditor>("itemEditor")->draft().value("phoneCell"), phone);
}

void TestSafeItemEditor::aMeanwhileChangeIsNotSetBack()
{
    Editing editing;
    const QString id = editing.test.addLogin(QStringLiteral("Shop"));
    auto *list = editing.field<QListView>("itemList");
    list->setCurrentIndex(list->model()->index(0, 0));
    editing.press(Qt::Key_F2);
    editing.test.login(id)->setPassword(QStringLiteral("from the browser"));
    replace(editing.field("titleField"), QStringLiteral("Store"));
    editing.press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(editing.test.login(id)->title(), QStringLiteral("Store"));
    QCOMPARE(editing.test.login(id)->password(), QStringLiteral("from the browser"));
}

void TestSafeItemEditor::madePasswordGoesWhereItWasAskedFor()
{
    Editing editing;
    SafeItemEditor::Place place;
    connect(editing.field<ItemPane>("itemPane"), &ItemPane::generatorRequested, &editing.view,
            [&place](QObject *, const SafeItemEditor::Place &wanted) { place = wanted; });
    editing.openNew(PMListItem::FtpAccount);
    editing.field("passwordField")
        ->findChild<QAction *>(QStringLiteral("generateAction"))
        ->trigger();
    QVERIFY(place);
    place(QStringLiteral("made"));
    QCOMPARE(editing.field("passwordField")->text(), QStringLiteral("made"));
    QVERIFY(editing.field<SafeItemEditor>("itemEditor")->isModified());
    find<QPushButton>(editing.view, "discardButton")->click();
    // The editor is gone, and so is the field.
    place(QStringLiteral("late"));
    editing.openNew(PMListItem::FtpAccount);
    QCOMPARE(editing.field("passwordField")->text(), QString());
}

void TestSafeItemEditor::countryDefaults()
{
    QTest::ignoreMessage(QtDebugMsg, "ItemEditors: Qt returned locale country code \"49\"");
    const EditorDefaults german =
        EditorDefaults::fromLocale(QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(german.country, QStringLiteral("Germany"));
    QCOMPARE(german.code, QStringLiteral("49"));
    QTest::ignoreMessage(QtDebugMsg, "Use default country name for editors: \"United States\" , "
                                     "use default phone code: \"1\"");
    QCOMPARE(EditorDefaults::fromLocale(QLocale::c()).code, QStringLiteral("1"));

    // The suggestions alone are no change, and no phone.
    Editing editing;
    editing.view.createItem(PMListItem::Identity);
    QVERIFY(!editing.field("countryField")->text().isEmpty());
    QVERIFY(!editing.field<SafeItemEditor>("itemEditor")->isModified());
    QVERIFY(editing.view.mayLeave());
    QVERIFY(editing.asker.asked.isEmpty());
}

void TestSafeItemEditor::countriesAreShownInTheLanguageAndStoredInEnglish_data()
{
    QTest::addColumn<QString>("languageName");
    QTest::addColumn<QString>("germany");
    const auto row = [](const char *language, const char *germany) {
        QTest::newRow(germany) << QString::fromUtf8(language) << QString::fromUtf8(germany);
    };
    row("English", "Germany");
    row("Deutsch", "Deutschland");
    row("Español", "Alemania");
    row("Français", "Allemagne");
    row("Русский", "Германия");
}

void TestSafeItemEditor::countriesAreShownInTheLanguageAndStoredInEnglish()
{
    struct Language : QTranslator
    {
        QString name;
        bool isEmpty() const override { return false; }
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return qstrcmp(text, "SettingsLocaleTitle") == 0 ? name : QString();
        }
    };
    QFETCH(QString, germany);
    QFETCH(QString, languageName);
    Language language;
    language.name = languageName;
    QCoreApplication::installTranslator(&language);
    for (const PMCountryTable::Country &country : PMCountryTable::instance().countries()) {
        const QString shown = CountryNames::shown(country.name);
        QVERIFY(!shown.isEmpty());
        QCOMPARE(CountryNames::stored(shown.toUpper()), country.name);
        QCOMPARE(CountryNames::stored(country.name), country.name);
    }

    Editing editing;
    editing.openNew(PMListItem::Passport);
    replace(editing.field("titleField"), QStringLiteral("Pass"));
    // Key events of tests know Latin letters alone.
    editing.field("countryField")->setText(germany.toLower());
    editing.press(Qt::Key_S, Qt::ControlModifier);
    PMListItem *pass = editing.test.core.currentSafe()->items().front();
    QCOMPARE(pass->property("country").toString(), QStringLiteral("Germany"));
    editing.press(Qt::Key_F2);
    QLineEdit *country = editing.field("countryField");
    QCOMPARE(country->text(), germany);
    country->completer()->setCompletionPrefix(QStringLiteral("ermany"));
    QCOMPARE(country->completer()->currentCompletion(), germany);
    find<QPushButton>(editing.view, "discardButton")->click();

    // A name that another program has written is not changed by a look at it.
    pass->setProperty("country", germany);
    editing.press(Qt::Key_F2);
    QCOMPARE(editing.field("countryField")->text(), germany);
    QVERIFY(!editing.field<SafeItemEditor>("itemEditor")->isModified());
    find<QPushButton>(editing.view, "discardButton")->click();
    QCoreApplication::removeTranslator(&language);
}

void TestSafeItemEditor::datesAndCountriesAreChosenByKeyboard()
{
    Editing editing;
    const auto inPopup = [](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget *popup = QApplication::activePopupWidget();
        QVERIFY(popup);
        QWidget *focus = popup->focusWidget();
        QTest::keyClick(focus ? focus : popup, key, modifiers);
    };
    editing.openNew(PMListItem::Identity);
    QLineEdit *day = editing.field("birthDateField");
    QTest::keyClicks(day, QStringLiteral("1984-02-28"));
    day->findChild<QAction *>(QStringLiteral("calendarAction"))->trigger();
    inPopup(Qt::Key_Right);
    inPopup(Qt::Key_Return);
    QCOMPARE(day->text(), QStringLiteral("29 February 1984"));

    editing.activate();
    QLineEdit *code = editing.field("phoneCode");
    code->setFocus();
    replace(code, QString());
    QTest::keyClicks(code, QStringLiteral("germ"));
    inPopup(Qt::Key_Down);
    inPopup(Qt::Key_Return);
    QCOMPARE(code->text(), QStringLiteral("+49"));
    // A name that is typed to its end needs no choosing.
    replace(code, QStringLiteral("france"));
    editing.field("phoneField")->setFocus();
    QCOMPARE(code->text(), QStringLiteral("+33"));
    QCOMPARE(editing.message("phone"), QString());
    find<QPushButton>(editing.view, "discardButton")->click();

    editing.openNew(PMListItem::CreditCard);
    QLineEdit *month = editing.field("expireField");
    QTest::keyClicks(month, QStringLiteral("01/27"));
    month->findChild<QAction *>(QStringLiteral("calendarAction"))->trigger();
    inPopup(Qt::Key_PageDown);
    inPopup(Qt::Key_Down);
    inPopup(Qt::Key_Return);
    QCOMPARE(month->text(), QStringLiteral("05 / 2028"));
}

void TestSafeItemEditor::everyKindIsMadeFromTheMenu()
{
    Editing editing;
    const QList<QAction *> kinds = editing.field<QMenu>("newItemMenu")->actions();
    QCOMPARE(kinds.size(), int(PMListItem::UndefinedItem));
    for (QAction *kind : kinds) {
        const auto type = PMListItem::Type(kind->data().toInt());
        // It asks for a file first.
        if (type == PMListItem::Attachment)
            continue;
        kind->trigger();
        QCOMPARE(editing.field<QLabel>("editorHeading")->text(), newItemText(type));
        for (const ItemField &field : itemFields(type))
            QVERIFY(field.form == ItemField::CardType || editing.input(field));
    }
    find<QPushButton>(editing.view, "discardButton")->click();
    auto *categories = editing.field<QListView>("categoryList");
    for (int row = 0; row < categories->model()->rowCount(); ++row) {
        if (categories->model()->index(row, 0).data().toString() == QStringLiteral("Passports"))
            categories->setCurrentIndex(categories->model()->index(row, 0));
    }
    editing.press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(editing.field<QLabel>("editorHeading")->text(), QStringLiteral("New passport"));
}

void TestSafeItemEditor::aClickCopies()
{
    Editing editing;
    auto made = editing.test.core.modelCreateItem(PMListItem::CreditCard);
    made->setTitle(QStringLiteral("Card"));
    made->setProperty("number", QStringLiteral("5555 5555 5555 4444"));
    made->setProperty("code", QStringLiteral("737"));
    made->setProperty("bank", QStringLiteral("Bank of the North"));
    editing.test.core.modelAddItem(std::move(made));
    auto *list = editing.field<QListView>("itemList");
    list->setCurrentIndex(list->model()->index(0, 0));
    const auto click = [](QWidget *at, const QPoint &where) {
        QTest::mouseClick(at, Qt::LeftButton, {}, where);
        return QGuiApplication::clipboard()->text();
    };
    QCOMPARE(click(editing.field<QWidget>("numberRow"), {30, 30}),
             QStringLiteral("5555555555554444"));
    QCOMPARE(click(editing.field<QWidget>("codeRow"), {30, 30}), QStringLiteral("737"));
    QCOMPARE(click(editing.field<QWidget>("cardFace"), {30, 24}),
             QStringLiteral("Bank of the North"));
    // Empty fields have no rows.
    QVERIFY(!editing.field<QWidget>("cardholderRow"));
    QVERIFY(!editing.field<QWidget>("bankPhoneRow"));
}

void TestSafeItemEditor::whatExpiresIsMarked_data()
{
    QTest::addColumn<int>("days");
    QTest::addColumn<QString>("badge");
    QTest::newRow("over") << -1 << QStringLiteral("expired");
    QTest::newRow("today") << 0 << QStringLiteral("expires today");
    QTest::newRow("soon") << 48 << QStringLiteral("expires in 48 days");
    QTest::newRow("last marked day") << 60 << QStringLiteral("expires in 60 days");
    QTest::newRow("later") << 61 << QString();
}

void TestSafeItemEditor::whatExpiresIsMarked()
{
    QFETCH(int, days);
    QFETCH(QString, badge);
    const QDateTime now(QDate(2026, 11, 21), QTime(12, 0));
    TestCore test;
    Theme theme;
    ItemPage page(test.core.settings(), theme, nullptr, [now] { return now; });
    for (const auto type : {PMListItem::Passport, PMListItem::DriverLicense}) {
        const auto item = makeItem(type);
        const QDate last = now.date().addDays(days);
        item->setProperty("expireDate", QVariant::fromValue(PMFieldTypes::Date{
                                            last.year(), last.month(), last.day()}));
        page.setItem(item.get());
        const auto *shown = find<QLabel>(page, "expireDateBadge");
        QCOMPARE(shown ? shown->text() : QString(), badge);
        page.setItem(nullptr);
    }
}

void TestSafeItemEditor::wayOfLoggingInIsChangedOnThePage()
{
    Editing editing;
    const QString id = editing.test.addLogin(QStringLiteral("Shop"));
    auto *list = editing.field<QListView>("itemList");
    list->setCurrentIndex(list->model()->index(0, 0));
    const auto *button = editing.field<QToolButton>("fillTypeChooseButton");
    button->menu()->actions().last()->trigger();
    QTRY_COMPARE(editing.test.login(id)->fillType(), PMFieldTypes::LoginFillType::OnlyFill);
    QTRY_VERIFY(
        editing.field<QToolButton>("fillTypeChooseButton")->menu()->actions().last()->isChecked());
}

QTEST_MAIN(TestSafeItemEditor)
#include "tst_safeitemeditor.moc"
