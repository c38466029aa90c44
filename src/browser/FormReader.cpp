#include "FormReader.h"

#include "AddressFields.h"
#include "CardFields.h"
#include "ChoiceButtons.h"
#include "DateReading.h"
#include "DateShape.h"
#include "FieldOptions.h"
#include "FieldPhrases.h"
#include "FormSections.h"
#include "LoginRoles.h"
#include "OtherPeople.h"
#include "SplitFields.h"

#include <algorithm>

namespace {

/// How many fields away a neighbour still counts.
constexpr int nearby = 4;
/// What takes fewer letters is a part of a number.
constexpr int shortestPhone = 5;

/// Reads the fields of a form one after another, each with what is known of those around it.
class Reader
{
public:
    Reader(const QVector<FormField> &fields, const FormSurroundings &around)
        : m_fields(fields)
        , m_around(around)
    {
        m_readings.reserve(fields.size());
        m_kinds.reserve(fields.size());
        for (int i = 0; i < fields.size(); ++i) {
            const QString next = i + 1 < fields.size() ? fields.at(i + 1).textBefore() : QString();
            m_readings.append(readField(fields.at(i), next, around.language));
            m_kinds.append(m_readings.last().kind);
        }
    }

    QVector<FieldKind> read()
    {
        continueLists(m_fields, m_readings, m_kinds);
        leaveSingleFigures(m_fields, m_kinds);
        assignSplitFields(m_fields, m_readings, m_kinds);
        settleAddress(m_fields, m_readings, m_kinds);
        for (int i = 0; i < m_kinds.size(); ++i) {
            ++m_counts[int(m_kinds.at(i))];
            m_cardsSaid += saysCard(i) ? 1 : 0;
        }
        m_leavesLastName = leavesLastName(m_readings);
        const auto isOnce = [&](FieldKind kind) { return m_counts.at(int(kind)) == 1; };
        m_hasOneDate = isOnce(FieldKind::SomeDay) && isOnce(FieldKind::SomeMonth) &&
                       isOnce(FieldKind::SomeYear) && !has(FieldKind::SomeDate);
        const QSet<QString> genders = gendersOf(m_fields, m_readings);
        for (int i = 0; i < m_fields.size(); ++i) {
            if (m_fields.at(i).isRadio())
                set(i,
                    genders.contains(m_fields.at(i).name()) ? FieldKind::Gender : FieldKind::Other);
            else if (isDateKind(m_kinds.at(i)) && !reading(i).isTold)
                readDate(i);
        }
        for (int i = 0; i < m_fields.size(); ++i)
            readNeighbours(i);
        readWholeNames(m_readings, m_kinds);
        splitExpiry(m_fields, m_kinds);
        joinExpiry(m_fields, m_readings, m_kinds);
        leaveLoneCards(m_fields, m_readings, m_kinds);
        leaveGiftCards(m_fields, m_readings, m_kinds);
        leaveOtherPeople(m_fields, m_readings, m_kinds);
        leaveOtherSections(m_fields, m_readings, m_kinds);
        leaveNumberedPeople(m_fields, m_readings, m_kinds);
        leaveFurtherBirths(m_fields, m_readings, m_kinds);
        leaveExtraStreets(m_fields, m_readings, m_kinds);
        leaveFurtherNames(m_fields, m_readings, m_kinds);
        leaveFurtherPhones(m_fields, m_kinds);
        leaveFurtherMail(m_readings, m_kinds);
        leaveLoneName(m_readings, m_kinds);
        assignLoginRoles(m_fields, m_readings, m_around, m_kinds);
        for (FieldKind &kind : m_kinds)
            kind = isVagueKind(kind) || kind == FieldKind::BankAccount ? FieldKind::Other : kind;
        return m_kinds;
    }

private:
    FieldKind kindAt(int i) const { return m_kinds.value(i, FieldKind::Unknown); }
    const FieldReading &reading(int i) const { return m_readings.at(i); }

    bool has(FieldKind kind) const { return m_counts.value(int(kind)) > 0; }
    void set(int i, FieldKind kind)
    {
        --m_counts[int(m_kinds.at(i))];
        ++m_counts[int(kind)];
        m_kinds[i] = kind;
    }

    /// Whether one of the fields close by is for a card, its date left aside.
    bool isNearCard(int at) const
    {
        static const QVector<FieldKind> telling = {FieldKind::CardHolder,   FieldKind::CardNumber,
                                                   FieldKind::CardCode,     FieldKind::CardType,
                                                   FieldKind::CardMonth,    FieldKind::CardYear,
                                                   FieldKind::CardFirstName};
        for (int i = qMax(0, at - nearby); i <= at + nearby; ++i) {
            if (i != at && telling.contains(kindAt(i)))
                return true;
        }
        return captionKindOf(m_fields.at(at).heading()) == CaptionKind::Card;
    }

    /// Whether a field says by itself that it is a card's. Passports expire as well as cards.
    bool saysCard(int at) const
    {
        const FieldKind kind = reading(at).kind;
        return isCardKind(kind) && kind != FieldKind::CardMonth && kind != FieldKind::CardYear &&
               kind != FieldKind::CardExpiry;
    }

    /// Whether another field says by itself that it is a card's, one close by or, under a card's
    /// heading, any: the heading alone may be that of a gift or a customer's card.
    bool isWithCard(int at) const
    {
        if (asksForCode(m_around))
            return false;
        const bool isHeaded = captionKindOf(m_fields.at(at).heading()) == CaptionKind::Card;
        if (isHeaded)
            return m_cardsSaid > (saysCard(at) ? 1 : 0);
        const int to = qMin(m_fields.size(), at + nearby + 1);
        for (int i = qMax(0, at - nearby); i < to; ++i) {
            if (i != at && saysCard(i))
                return true;
        }
        return false;
    }

    bool isNear(int at, FieldKind kind) const
    {
        for (int i = at - nearby; i <= at + nearby; ++i) {
            if (kindAt(i) == kind)
                return true;
        }
        return false;
    }

    bool isOpen(int i) const { return isOpenField(i, m_fields, m_readings, m_kinds); }
    bool isSilentAt(int i) const
    {
        return i < m_fields.size() && isSilent(m_fields.at(i), reading(i));
    }

    void readDate(int at);
    bool isBirthOfPerson(int at) const;
    void readNeighbours(int at);
    void settleStreets(int at)
    {
        const auto [other, kind] = secondStreet(at, m_fields, m_readings);
        set(other, kind);
    }
    void readVague(int at);
    FieldKind plainName(int at) const;
    bool isHolder(int at) const;
    bool isOfPhone(int at) const;

    const QVector<FormField> &m_fields;
    const FormSurroundings &m_around;
    QVector<FieldReading> m_readings;
    QVector<FieldKind> m_kinds;
    /// How many fields are of each kind.
    QVector<int> m_counts = QVector<int>(int(FieldKind::SomeDate) + 1);
    bool m_leavesLastName = false;
    int m_cardsSaid = 0; ///< how many fields say by themselves that they are a card's
    /// Whether a day, a month and a year are each asked for once.
    bool m_hasOneDate = false;
};

/// Day, month and year side by side, in a form that asks a person for name and gender and for no
/// other date: no card shows the day.
bool Reader::isBirthOfPerson(int at) const
{
    if (!m_hasOneDate || reading(at).isStrange)
        return false;
    const auto isBeside = [&](FieldKind some, FieldKind birth) {
        return isNear(at, some) || isNear(at, birth);
    };
    return has(FieldKind::FirstName) && (has(FieldKind::Gender) || has(FieldKind::NewPassword)) &&
           isBeside(FieldKind::SomeDay, FieldKind::BirthDay) &&
           isBeside(FieldKind::SomeMonth, FieldKind::BirthMonth) &&
           isBeside(FieldKind::SomeYear, FieldKind::BirthYear);
}

/// Whole dates and their parts, of a birth or of a card.
void Reader::readDate(int at)
{
    const FormField &field = m_fields.at(at);
    const FieldKind kind = m_kinds.at(at);
    const FieldKind before = kindAt(at - 1);
    // A date with a word of its own that is not known is another date.
    const bool followsBirth =
        before >= FieldKind::BirthDate && before <= FieldKind::BirthYear && !reading(at).isStrange;
    const bool isCard =
        isCardKind(kind) || (!isIdentityKind(kind) && reading(at).says(FieldKind::CardExpiry));
    const bool isBirth =
        !isCard &&
        (isIdentityKind(kind) || followsBirth || reading(at).says(FieldKind::BirthDate) ||
         captionKindOf(field.heading()) == CaptionKind::Birth || isBirthOfPerson(at));
    // No card shows the day.
    const bool isWhole = kind == FieldKind::CardExpiry && datePartsOf(field).size() == 3;
    const bool isFurther = kind == FieldKind::SomeDate && has(FieldKind::CardExpiry);
    const bool isStrange = isVagueKind(kind) && (reading(at).isStrange || isFurther);
    if (isWhole || (!isBirth && !isCard && (isStrange || !isNearCard(at)))) {
        set(at, FieldKind::Other);
        return;
    }
    FieldKind part = datePartOf(reading(at), isBirth);
    // A short list of days looks like one of months.
    if (part == FieldKind::BirthMonth && at + 1 < m_fields.size() && isBirth &&
        m_fields.at(at).isSelect() && datePartOf(reading(at + 1), true) == FieldKind::BirthMonth)
        part = FieldKind::BirthDay;
    const bool isShort = field.isSelect() || (field.maxLength() > 0 && field.maxLength() <= 4);
    if (part != FieldKind::Unknown && (isVagueKind(kind) || isShort || isSilentAt(at + 1) ||
                                       part == kind || saysPart(reading(at), part))) {
        set(at, part);
    } else if (!isBirth && (field.isSelect() || field.maxLength() == 2)) {
        set(at, before == FieldKind::CardMonth ? FieldKind::CardYear : FieldKind::CardMonth);
    } else if (isVagueKind(kind) || kind == FieldKind::BirthDate || kind == FieldKind::CardExpiry) {
        set(at, isBirth ? FieldKind::BirthDate : FieldKind::CardExpiry);
    }
    // The year often stands behind the month without a word of its own.
    if (m_kinds.at(at) == FieldKind::CardMonth && isOpen(at + 1) &&
        field.isSelect() == m_fields.at(at + 1).isSelect())
        set(at + 1, FieldKind::CardYear);
    if (m_kinds.at(at) == FieldKind::BirthMonth && before == FieldKind::BirthDay && isOpen(at + 1))
        set(at + 1, FieldKind::BirthYear);
}

void Reader::readNeighbours(int at)
{
    const FieldKind before = kindAt(at - 1);
    switch (m_kinds.at(at)) {
    case FieldKind::HouseNumber:
        if (!isNear(at, FieldKind::AddressLine1) && !isNear(at, FieldKind::PostalCode))
            set(at, FieldKind::Other);
        return;
    case FieldKind::AddressLine1:
        if (before == FieldKind::AddressLine1 && m_fields.at(at).isLine())
            settleStreets(at);
        return;
    case FieldKind::Phone:
        if (before == FieldKind::PhoneArea)
            set(at, FieldKind::PhoneLine);
        else if (before == FieldKind::PhoneCode)
            set(at, FieldKind::PhoneNumber);
        else if (m_fields.at(at).maxLength() > 0 && m_fields.at(at).maxLength() < shortestPhone)
            set(at, FieldKind::Other);
        return;
    case FieldKind::PhoneArea:
        if (kindAt(at + 1) != FieldKind::Phone && kindAt(at + 1) != FieldKind::PhonePrefix &&
            kindAt(at + 1) != FieldKind::PhoneLine)
            set(at, FieldKind::Other);
        return;
    case FieldKind::Country:
        if (isOfPhone(at))
            set(at, FieldKind::PhoneCode);
        return;
    case FieldKind::FullName:
        if (isHolder(at))
            set(at, FieldKind::CardHolder);
        return;
    case FieldKind::CardCode:
    case FieldKind::CardHolder:
    case FieldKind::CardExpiry:
    case FieldKind::CardMonth:
    case FieldKind::CardYear:
        if (!reading(at).isTold && !has(FieldKind::CardNumber) && !isNearCard(at))
            set(at, FieldKind::Other);
        return;
    default:
        readVague(at);
    }
}

void Reader::readVague(int at)
{
    const bool isStrange = reading(at).isStrange && m_kinds.at(at) != FieldKind::SomeName;
    if (isStrange && isVagueKind(m_kinds.at(at)))
        return;
    switch (m_kinds.at(at)) {
    case FieldKind::SomeName:
        set(at, plainName(at));
        return;
    case FieldKind::SomeNumber:
        set(at, isWithCard(at) && !has(FieldKind::CardNumber) ? FieldKind::CardNumber
                                                              : FieldKind::Other);
        return;
    case FieldKind::SomeCode:
        set(at,
            isWithCard(at) && !has(FieldKind::CardCode) ? FieldKind::CardCode : FieldKind::Other);
        return;
    default:
        return;
    }
}

/// Whether a full name is that of a card: it says so or stands under its heading, or nothing else
/// of a person is asked for.
bool Reader::isHolder(int at) const
{
    if (reading(at).isTold || !has(FieldKind::CardNumber) || has(FieldKind::CardHolder))
        return false;
    const bool isOfPerson = has(FieldKind::AddressLine1) || has(FieldKind::Email) ||
                            has(FieldKind::Phone) || has(FieldKind::BirthDate);
    const bool isHeaded = captionKindOf(m_fields.at(at).heading()) == CaptionKind::Card;
    return reading(at).says(FieldKind::CardHolder) ||
           (isNearCard(at) && (!isOfPerson || (isHeaded && isWithCard(at))));
}

/// Whether a list of countries is there for the dialling code of the number behind it.
bool Reader::isOfPhone(int at) const
{
    if (!m_fields.at(at).isSelect() || kindAt(at + 1) != FieldKind::Phone)
        return false;
    const QStringList texts = m_fields.at(at).readTexts();
    const bool saysCode = std::any_of(texts.begin(), texts.end(), [](const QString &text) {
        return text.contains(QLatin1String("code"), Qt::CaseInsensitive);
    });
    return saysCode || m_counts.at(int(FieldKind::Country)) > addressesIn(m_kinds);
}

/// "Name" alone: of the card's holder, the family's beside a first name, or the whole.
FieldKind Reader::plainName(int at) const
{
    const auto isBeside = [&](FieldKind kind) {
        return kindAt(at - 1) == kind || kindAt(at + 1) == kind;
    };
    if (isBeside(FieldKind::FirstName) && !isBeside(FieldKind::LastName))
        return FieldKind::LastName;
    const bool follows =
        kindAt(at - 1) == FieldKind::LastName && kindAt(at - 2) != FieldKind::FirstName;
    if ((kindAt(at + 1) == FieldKind::LastName || follows) && !isBeside(FieldKind::FirstName))
        return FieldKind::FirstName;
    const bool first = has(FieldKind::FirstName);
    const bool last = has(FieldKind::LastName) || m_leavesLastName;
    if (first && last)
        return FieldKind::Other;
    if (first)
        return FieldKind::LastName;
    if (last)
        return FieldKind::FirstName;
    return isNearCard(at) && !has(FieldKind::CardHolder) ? FieldKind::CardHolder
                                                         : FieldKind::FullName;
}

} // namespace

QVector<FieldKind> readForm(const QVector<FormField> &fields, const FormSurroundings &around)
{
    QVector<FormField> played;
    QVector<FieldKind> kinds;
    for (const FormField &field : fields) {
        const bool isPlayed = field.isInPlay();
        if (isPlayed)
            played.append(field);
        const FieldKind kind =
            isPlayed ? FieldKind::Unknown : readField(field, {}, around.language).kind;
        kinds.append(isVagueKind(kind) || isPerhapsKind(kind) ? FieldKind::Other : kind);
    }
    const QVector<FieldKind> read = Reader(played, around).read();
    for (int i = 0, at = 0; i < fields.size(); ++i) {
        if (fields.at(i).isInPlay())
            kinds[i] = read.at(at++);
    }
    if (isNewsletter(fields, kinds, around))
        kinds.fill(FieldKind::Never);
    return kinds;
}
