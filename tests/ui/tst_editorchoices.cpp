#include "EditorDesk.h"
#include "PMCountryTable.h"
#include "editor/CountryNames.h"
#include "editor/EditorDefaults.h"
#include "main/ItemPage.h"

#include <QAction>
#include <QClipboard>
#include <QCompleter>
#include <QMenu>
#include <QToolButton>
#include <QTranslator>

/// What is chosen instead of typed: kinds, countries and days; and what the page shows of it.
class TestEditorChoices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countryDefaults()
    {
        QTest::ignoreMessage(QtDebugMsg, "ItemEditors: Qt returned locale country code \"49\"");
        const EditorDefaults german =
            EditorDefaults::fromLocale(QLocale(QLocale::German, QLocale::Germany));
        QCOMPARE(german.country, "Germany"_s);
        QCOMPARE(german.code, "49"_s);
        QTest::ignoreMessage(QtDebugMsg,
                             "Use default country name for editors: \"United States\" , "
                             "use default phone code: \"1\"");
        QCOMPARE(EditorDefaults::fromLocale(QLocale::c()).code, "1"_s);

        // The suggestions alone are no change, and no phone.
        Editing editing;
        editing.view->createItem(PMListItem::Identity);
        QVERIFY(!editing.typed("countryField").isEmpty());
        QVERIFY(!editing.editor().isModified());
        QVERIFY(editing.view->mayLeave());
        QVERIFY(editing.asker.asked.isEmpty());
    }

    void countriesAreShownInTheLanguageAndStoredInEnglish_data()
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
    void countriesAreShownInTheLanguageAndStoredInEnglish()
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
        replace(editing.field("titleField"), "Pass"_s);
        // Key events of tests know Latin letters alone.
        editing.field("countryField")->setText(germany.toLower());
        editing.save();
        PMListItem *pass = editing.safe().items().front();
        QCOMPARE(pass->property("country").toString(), "Germany"_s);
        editing.press(Qt::Key_F2);
        QLineEdit *country = editing.field("countryField");
        QCOMPARE(country->text(), germany);
        country->completer()->setCompletionPrefix("ermany"_s);
        QCOMPARE(country->completer()->currentCompletion(), germany);
        editing.click("discardButton");

        // A name that another program has written is not changed by a look at it.
        pass->setProperty("country", germany);
        editing.press(Qt::Key_F2);
        QCOMPARE(editing.typed("countryField"), germany);
        QVERIFY(!editing.editor().isModified());
        editing.click("discardButton");
        QCoreApplication::removeTranslator(&language);
    }

    void datesAndCountriesAreChosenByKeyboard()
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
        QTest::keyClicks(day, "1984-02-28"_s);
        day->findChild<QAction *>("calendarAction"_s)->trigger();
        inPopup(Qt::Key_Right);
        inPopup(Qt::Key_Return);
        QCOMPARE(day->text(), "29 February 1984"_s);

        editing.activate();
        QLineEdit *code = editing.field("phoneCode");
        code->setFocus();
        replace(code, QString());
        QTest::keyClicks(code, "germ"_s);
        inPopup(Qt::Key_Down);
        inPopup(Qt::Key_Return);
        QCOMPARE(code->text(), "+49"_s);
        // A name that is typed to its end needs no choosing.
        replace(code, "france"_s);
        editing.field("phoneField")->setFocus();
        QCOMPARE(code->text(), "+33"_s);
        QCOMPARE(editing.message("phone"), QString());
        editing.click("discardButton");

        editing.openNew(PMListItem::CreditCard);
        QLineEdit *month = editing.field("expireField");
        QTest::keyClicks(month, "01/27"_s);
        month->findChild<QAction *>("calendarAction"_s)->trigger();
        inPopup(Qt::Key_PageDown);
        inPopup(Qt::Key_Down);
        inPopup(Qt::Key_Return);
        QCOMPARE(month->text(), "05 / 2028"_s);
    }

    void everyKindIsMadeFromTheMenu()
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
        editing.click("discardButton");
        editing.chooseCategory("Passports");
        editing.press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(editing.field<QLabel>("editorHeading")->text(), "New passport"_s);
    }

    void aClickCopies()
    {
        Editing editing;
        editing.make(PMListItem::CreditCard, {{"number", "5555 5555 5555 4444"_s},
                                              {"code", "737"_s},
                                              {"bank", "Bank of the North"_s}});
        const auto click = [](QWidget *at, const QPoint &where) {
            QTest::mouseClick(at, Qt::LeftButton, {}, where);
            return QGuiApplication::clipboard()->text();
        };
        QCOMPARE(click(editing.field<QWidget>("numberRow"), {30, 30}), "5555555555554444"_s);
        QCOMPARE(click(editing.field<QWidget>("codeRow"), {30, 30}), "737"_s);
        QCOMPARE(click(editing.field<QWidget>("cardFace"), {30, 24}), "Bank of the North"_s);
        // Empty fields have no rows.
        QVERIFY(!editing.field<QWidget>("cardholderRow"));
        QVERIFY(!editing.field<QWidget>("bankPhoneRow"));
    }

    void whatExpiresIsMarked()
    {
        const QDateTime now(QDate(2026, 11, 21), QTime(12, 0));
        TestCore test;
        Theme theme;
        ItemPage page(test.core.settings(), theme, nullptr, [now] { return now; });
        const std::pair<int, QString> badges[] = {{-1, "expired"_s},
                                                  {0, "expires today"_s},
                                                  {48, "expires in 48 days"_s},
                                                  {60, "expires in 60 days"_s},
                                                  {61, {}}};
        for (const auto &[days, badge] : badges) {
            const QDate last = now.date().addDays(days);
            const PMFieldTypes::Date date{last.year(), last.month(), last.day()};
            for (const auto type : {PMListItem::Passport, PMListItem::DriverLicense}) {
                const auto item = makeItem(type);
                item->setProperty("expireDate", QVariant::fromValue(date));
                page.setItem(item.get());
                const auto *shown = find<QLabel>(page, "expireDateBadge");
                QCOMPARE(shown ? shown->text() : QString(), badge);
                page.setItem(nullptr);
            }
        }
    }

    void wayOfLoggingInIsChangedOnThePage()
    {
        Editing editing;
        const QString id = editing.addAndChoose("Shop");
        const auto last = [&editing] {
            return editing.field<QToolButton>("fillTypeChooseButton")->menu()->actions().last();
        };
        last()->trigger();
        QTRY_COMPARE(editing.test.login(id)->fillType(), PMFieldTypes::LoginFillType::OnlyFill);
        QTRY_VERIFY(last()->isChecked());
    }
};

QTEST_MAIN(TestEditorChoices)
#include "tst_editorchoices.moc"
