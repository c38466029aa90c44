#include "EditorDesk.h"
#include "PMCreditCard.h"
#include "main/ItemPane.h"

#include <QAction>
#include <QComboBox>
#include <QRandomGenerator>

Q_DECLARE_METATYPE(PMListItem::Type)

namespace {

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
            replace(input, day.toString(flip() ? "yyyy-MM-dd"_s : "d MMMM yyyy"_s));
            return QVariant::fromValue(PMFieldTypes::Date{day.year(), day.month(), day.day()});
        }
        case ItemField::Month: {
            const QDate day = QDate(2000, 1, 1).addDays(number(36000));
            replace(input, day.toString("MM/yy"_s));
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
        return text + " x"_s;
    }

    QRandomGenerator m_random;
    const Editing &m_editing;
};

} // namespace

class TestSafeItemEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindKeepsWhatIsTyped_data()
    {
        QTest::addColumn<PMListItem::Type>("type");
        QTest::addColumn<quint32>("seed");
        for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type) {
            for (quint32 seed = 1; seed <= 2; ++seed)
                QTest::addRow("kind %d, seed %u", type, seed)
                    << static_cast<PMListItem::Type>(type) << seed;
        }
    }
    void everyKindKeepsWhatIsTyped()
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
        editing.save();
        QVERIFY(editing.asker.asked.isEmpty());
        QVERIFY(editing.onlyItem());
        const QString summary = editing.onlyItem()->secondaryText();

        // From the disk, and once more through an editor that changes nothing.
        for (int round = 0; round < 2; ++round) {
            QVERIFY(editing.test.core.saveCurrentSafe());
            editing.lock();
            editing.unlock();
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
            QVERIFY(editing.isEditing());
            QVERIFY(!editing.editor().isModified());
            editing.save();
        }

        // What lists show lies outside of the part that is encrypted once more.
        for (const ItemField &field : itemFields(type)) {
            const QString value = editing.onlyItem()->property(field.property).toString();
            if (field.isSecret() || field.form == ItemField::CardNumber || field.isText())
                QVERIFY2(value.isEmpty() || !summary.contains(value), field.property);
        }
    }

    void leavingAsksForEveryField_data()
    {
        QTest::addColumn<PMListItem::Type>("type");
        for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type)
            QTest::addRow("kind %d", type) << static_cast<PMListItem::Type>(type);
    }
    void leavingAsksForEveryField()
    {
        QFETCH(PMListItem::Type, type);
        Editing editing;
        editing.make(type, {});
        Typist typist(7, editing);
        for (const ItemField &field : itemFields(type)) {
            if (field.form == ItemField::CardType)
                continue;
            for (const int answer : {2, 1}) {
                editing.choose("Mine");
                editing.press(Qt::Key_F2);
                editing.showMore();
                const QVariant before = editing.onlyItem()->property(field.property);
                if (field.form == ItemField::Gender || field.form == ItemField::FillType)
                    QTest::keyClick(editing.input(field), Qt::Key_End);
                else
                    typist.type(field);
                editing.asker.asked.clear();
                editing.asker.answer = answer;
                QCOMPARE(editing.view->mayLeave(), answer == 1);
                QCOMPARE(editing.asker.asked.size(), 1);
                QCOMPARE(editing.asker.asked.first().text, "You have not saved changes yet"_s);
                QCOMPARE(editing.onlyItem()->property(field.property), before);
                if (answer == 2) {
                    QVERIFY(editing.isEditing());
                    editing.click("discardButton");
                }
                QVERIFY(!editing.isEditing());
            }
        }
        // "Save" with an empty title saves nothing and goes nowhere.
        editing.press(Qt::Key_F2);
        editing.field("titleField")->clear();
        editing.asker.asked.clear();
        editing.asker.answer = 0;
        QVERIFY(!editing.view->mayLeave());
        QCOMPARE(editing.asker.asked.first().text,
                 "There are empty required fields. What would you like to do?"_s);
        QCOMPARE(editing.asker.asked.last().text,
                 "There are empty required values.\nFill and try again."_s);
        QCOMPARE(editing.onlyItem()->title(), "Mine"_s);
    }

    void aDateThatIsNoneIsNotSaved()
    {
        Editing editing;
        editing.openNew(PMListItem::Identity);
        editing.type("titleField", "Me");
        QTest::keyClicks(editing.field("birthDateField"), "soon"_s);
        editing.save();
        QCOMPARE(editing.asker.asked.size(), 1);
        QCOMPARE(editing.message("birthDate"), "“soon” is not a date"_s);
        QCOMPARE(editing.typed("birthDateField"), "soon"_s);
        QVERIFY(!editing.onlyItem());
        replace(editing.field("birthDateField"), "29 Feb 1984"_s);
        QCOMPARE(editing.message("birthDate"), QString());
        editing.save();
        QVERIFY(editing.onlyItem());
    }

    void wrongValuesAreToldAndSaved()
    {
        Editing editing;
        editing.openNew(PMListItem::CreditCard);
        editing.type("titleField", "Card");
        QTest::keyClicks(editing.field("codeField"), "1234"_s);
        QCOMPARE(editing.message("code"), "Please use 3-digit value"_s);
        QTest::keyClicks(editing.field("numberField"), "378282246310005"_s);
        QCOMPARE(editing.typed("numberField"), "3782 822463 10005"_s);
        QCOMPARE(editing.message("code"), QString());
        // A digit taken out of the middle leaves the cursor there.
        editing.field("numberField")->setCursorPosition(7);
        QTest::keyClick(editing.field("numberField"), Qt::Key_Backspace);
        QTest::keyClick(editing.field("numberField"), Qt::Key_9);
        QCOMPARE(editing.typed("numberField"), "3782 892463 10005"_s);
        replace(editing.field("numberField"), "2720 99"_s);
        QCOMPARE(editing.message("number"), "Incorrect card number"_s);
        editing.save();
        QVERIFY(editing.asker.asked.isEmpty());
        const auto *card = qobject_cast<PMCreditCard *>(editing.onlyItem());
        QVERIFY(card);
        QCOMPARE(card->number(), "272099"_s);
        QCOMPARE(card->cardType(), PMCreditCard::MasterCard);
    }

    void storedFaultsAreToldAtOnce()
    {
        Editing editing;
        editing.editMade(PMListItem::CreditCard, {{"cardholder", "José"_s}});
        QVERIFY(!editing.message("cardholder").isEmpty());
        QCOMPARE(editing.message("number"), QString());
        QVERIFY(!editing.editor().isModified());
    }

    void aKeptEditComesBackAsItWasTyped()
    {
        Editing editing;
        editing.openNew(PMListItem::Identity);
        Typist typist(3, editing);
        const QVariant phone = typist.type({"phoneCell", "", ItemField::Phone});
        replace(editing.field("birthDateField"), "soon"_s);
        replace(editing.field("countryField"), "Atlantis"_s);
        auto *pane = editing.field<ItemPane>("itemPane");
        const std::optional<KeptDraft> kept = pane->draft();
        QVERIFY(kept);
        pane->discard();
        pane->continueDraft(*kept, nullptr);
        QCOMPARE(editing.typed("birthDateField"), "soon"_s);
        QCOMPARE(editing.message("birthDate"), "“soon” is not a date"_s);
        QCOMPARE(editing.typed("countryField"), "Atlantis"_s);
        // It was folded away, and is filled now.
        QVERIFY(editing.field("phoneCellField")->isVisible());
        QCOMPARE(editing.editor().draft().value("phoneCell"), phone);
    }

    void aMeanwhileChangeIsNotSetBack()
    {
        Editing editing;
        const QString id = editing.addAndChoose("Shop");
        editing.press(Qt::Key_F2);
        editing.test.login(id)->setPassword("from the browser"_s);
        replace(editing.field("titleField"), "Store"_s);
        editing.save();
        QCOMPARE(editing.test.login(id)->title(), "Store"_s);
        QCOMPARE(editing.test.login(id)->password(), "from the browser"_s);
    }

    void madePasswordGoesWhereItWasAskedFor()
    {
        Editing editing;
        SafeItemEditor::Place place;
        connect(editing.field<ItemPane>("itemPane"), &ItemPane::generatorRequested,
                editing.view.get(),
                [&place](QObject *, const SafeItemEditor::Place &wanted) { place = wanted; });
        editing.openNew(PMListItem::FtpAccount);
        editing.field("passwordField")->findChild<QAction *>("generateAction"_s)->trigger();
        QVERIFY(place);
        place("made"_s);
        QCOMPARE(editing.typed("passwordField"), "made"_s);
        QVERIFY(editing.editor().isModified());
        editing.click("discardButton");
        // The editor is gone, and so is the field.
        place("late"_s);
        editing.openNew(PMListItem::FtpAccount);
        QCOMPARE(editing.typed("passwordField"), QString());
    }
};

QTEST_MAIN(TestSafeItemEditor)
#include "tst_safeitemeditor.moc"
