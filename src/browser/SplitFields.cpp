#include "SplitFields.h"

#include "DateShape.h"
#include "FieldPhrases.h"

#include <algorithm>

namespace {

constexpr int longestPart = 8;
constexpr int longestFirstPart = 5;
constexpr int mostParts = 4;
/// So many fields of one figure each are a code.
constexpr int fewestFigures = 4;

bool isShort(const FormField &field, int most)
{
    return field.isLine() && field.maxLength() > 0 && field.maxLength() <= most;
}

/// How many fields, the first included, take the parts of what the first asks for.
int partsFrom(int at, const QVector<FormField> &fields, const QVector<FieldReading> &readings,
              const QVector<FieldKind> &kinds)
{
    if (!isShort(fields.at(at), longestFirstPart))
        return 1;
    int count = 1;
    for (int i = at + 1; i < fields.size() && count < mostParts; ++i, ++count) {
        const FieldKind kind = kinds.at(i);
        const bool isOfPhone = kinds.at(at) == FieldKind::Phone && kind >= FieldKind::PhoneCode &&
                               kind <= FieldKind::PhoneLine;
        const bool isOpen =
            kind == FieldKind::Unknown || kind == kinds.at(at) || isVagueKind(kind) || isOfPhone;
        // Each part may repeat the caption of all.
        const QString &label = fields.at(i).label();
        const bool isSame =
            kind == kinds.at(at) && !label.isEmpty() && fields.at(at).label().contains(label);
        if (!isOpen || (!isSame && !isSilent(fields.at(i), readings.at(i))) ||
            !isShort(fields.at(i), longestPart))
            break;
    }
    return count;
}

QVector<FieldKind> phoneParts(int count)
{
    switch (count) {
    case 2:
        return {FieldKind::PhoneArea, FieldKind::PhoneLine};
    case 3:
        return {FieldKind::PhoneArea, FieldKind::PhonePrefix, FieldKind::PhoneLine};
    case 4:
        return {FieldKind::PhoneCode, FieldKind::PhoneArea, FieldKind::PhonePrefix,
                FieldKind::PhoneLine};
    default:
        return {};
    }
}

QVector<FieldKind> birthParts(const FormField &field)
{
    QVector<FieldKind> parts;
    for (const DatePart part : datePartsOf(field)) {
        parts.append(part == DatePart::Day     ? FieldKind::BirthDay
                     : part == DatePart::Month ? FieldKind::BirthMonth
                                               : FieldKind::BirthYear);
    }
    return parts;
}

/// Whether it is as short as the one before it, and has no word but that of the next field.
bool isNextPart(int i, const QVector<FormField> &fields, const QVector<FieldReading> &readings)
{
    const bool isOpen = i < fields.size() && isSilent(fields.at(i), readings.at(i));
    const int length = isOpen ? fields.at(i).maxLength() : 0;
    return length > 0 && length == fields.at(i - 1).maxLength() && readings.at(i).isFromBehind;
}

/// "Street, house number", "calle y número".
bool endsOnNumber(const FormField &field)
{
    const QStringList texts = field.readTexts();
    return std::any_of(texts.begin(), texts.end(), [](const QString &text) {
        const QStringList words = wordsOf(text);
        const TextMeaning last = meaningOf(words.value(words.size() - 1), TextSort::Prose, {});
        return words.size() > 1 &&
               (last.names(FieldKind::HouseNumber) || last.names(FieldKind::SomeNumber));
    });
}

/// What follows the field that has the words for both.
void continueOne(int at, const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                 QVector<FieldKind> &kinds)
{
    const int next = at + 1;
    switch (kinds.at(at)) {
    case FieldKind::SomeName:
    case FieldKind::FullName:
        if (fields.at(next).isLine()) {
            kinds[at] = FieldKind::FirstName;
            kinds[next] = FieldKind::LastName;
        }
        return;
    case FieldKind::AddressLine1:
        if (fields.at(next).isLine())
            kinds[next] =
                endsOnNumber(fields.at(at)) ? FieldKind::HouseNumber : FieldKind::AddressLine2;
        return;
    case FieldKind::CardNumber:
        for (int i = next;
             (isOpenField(i, fields, readings, kinds) || isNextPart(i, fields, readings)) &&
             fields.at(i).isLine();
             ++i)
            kinds[i] = FieldKind::CardNumber;
        return;
    default:
        return;
    }
}

/// "City, State, Zip" before three fields names one after another.
void continueList(int at, const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                  QVector<FieldKind> &kinds)
{
    if (!readings.at(at).hasText)
        return;
    QVector<FieldKind> named;
    for (const FieldKind kind : readings.at(at).named) {
        if (isIdentityKind(kind) || isPerhapsKind(kind))
            named.append(kind);
    }
    // Those behind may say in their code what they are; the words before are the first one's.
    const int next = at + 1;
    if (named.size() > 1 && next < fields.size() && isSilent(fields.at(next), readings.at(next)) &&
        kinds.at(next) == kinds.at(at) && named.indexOf(kinds.at(at)) == 1)
        kinds[at] = named.first();
    int silent = 0;
    while (isOpenField(at + silent + 1, fields, readings, kinds))
        ++silent;
    if (silent == 0)
        return;
    if (named.size() < 2) {
        continueOne(at, fields, readings, kinds);
        return;
    }
    for (int i = 0; i < named.size() && i <= silent; ++i)
        kinds[at + i] = named.at(i);
}

} // namespace

bool isSilent(const FormField &field, const FieldReading &reading)
{
    return !reading.hasText && !field.isPassword() && (field.isLine() || field.isSelect());
}

bool isOpenField(int i, const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                 const QVector<FieldKind> &kinds)
{
    return i < fields.size() && isSilent(fields.at(i), readings.at(i)) &&
           (kinds.at(i) == FieldKind::Unknown || isVagueKind(kinds.at(i)));
}

void continueLists(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                   QVector<FieldKind> &kinds)
{
    for (int at = 0; at < fields.size(); ++at)
        continueList(at, fields, readings, kinds);
}

void leaveSingleFigures(const QVector<FormField> &fields, QVector<FieldKind> &kinds)
{
    for (int from = 0; from < fields.size();) {
        int to = from;
        while (to < fields.size() && fields.at(to).maxLength() == 1 &&
               (fields.at(to).isLine() || fields.at(to).isPassword()))
            ++to;
        const bool isCode =
            to - from >= fewestFigures || (to > from && fields.at(from).isPassword());
        if (isCode)
            std::fill(kinds.begin() + from, kinds.begin() + to, FieldKind::Never);
        from = qMax(to, from + 1);
    }
}

void assignSplitFields(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                       QVector<FieldKind> &kinds)
{
    for (int at = 0; at < fields.size(); ++at) {
        const FieldKind kind = kinds.at(at);
        const bool isBirth =
            kind == FieldKind::BirthDate ||
            (kind == FieldKind::SomeDate && readings.at(at).says(FieldKind::BirthDate));
        if ((!isBirth && kind != FieldKind::Phone) || readings.at(at).isTold)
            continue;
        const int count = partsFrom(at, fields, readings, kinds);
        const QVector<FieldKind> parts = isBirth ? birthParts(fields.at(at)) : phoneParts(count);
        if (count < 2 || parts.isEmpty() || parts.size() > count)
            continue;
        for (int i = 0; i < parts.size(); ++i)
            kinds[at + i] = parts.at(i);
        at += parts.size() - 1;
    }
}
