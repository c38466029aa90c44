#include "AddressFields.h"

#include "FieldPhrases.h"
#include "SplitFields.h"

#include <algorithm>

namespace {

struct Settled
{
    FieldKind perhaps;
    FieldKind plain;
};

bool isOfAddress(FieldKind kind)
{
    return kind == FieldKind::City || kind == FieldKind::PostalCode ||
           kind == FieldKind::AddressLine1;
}

/// Where a "ZIP code" is asked for, and no "postcode", a county is a part of a state.
bool isAmerican(const QVector<FormField> &fields, const QVector<FieldKind> &kinds)
{
    for (int i = 0; i < fields.size(); ++i) {
        if (kinds.at(i) != FieldKind::PostalCode)
            continue;
        const QStringList texts = fields.at(i).readTexts();
        for (const QString &text : texts) {
            const QStringList words = wordsOf(text);
            if (words.contains(QLatin1String("zip")) && !words.contains(QLatin1String("postal")) &&
                !words.contains(QLatin1String("postcode")))
                return true;
        }
    }
    return false;
}

bool saysCounty(const FormField &field)
{
    const QStringList texts = field.readTexts() << field.name();
    return std::any_of(texts.begin(), texts.end(), [](const QString &text) {
        return text.contains(QLatin1String("county"), Qt::CaseInsensitive);
    });
}

} // namespace

void settleAddress(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                   QVector<FieldKind> &kinds)
{
    static const Settled table[] = {{FieldKind::PerhapsCity, FieldKind::City},
                                    {FieldKind::PerhapsPostalCode, FieldKind::PostalCode},
                                    {FieldKind::PerhapsState, FieldKind::State},
                                    {FieldKind::PerhapsLine2, FieldKind::AddressLine2}};
    const auto streets = kinds.count(FieldKind::AddressLine1);
    for (const Settled &row : table) {
        const int count = kinds.count(row.perhaps);
        if (count == 0)
            continue;
        const bool isAddress = std::any_of(kinds.begin(), kinds.end(), isOfAddress);
        // Two that are as likely are both left empty.
        const bool isClear = !kinds.contains(row.plain) && count <= qMax(1, streets) && isAddress;
        const bool isCounty = row.perhaps == FieldKind::PerhapsState && isAmerican(fields, kinds);
        for (int i = 0; i < fields.size(); ++i) {
            if (kinds.at(i) == row.perhaps)
                kinds[i] = isClear && !(isCounty && saysCounty(fields.at(i))) ? row.plain
                                                                              : FieldKind::Other;
        }
    }
    // "Postcode or town" asks for one of two, or for both in one.
    for (int i = 0; i < fields.size(); ++i) {
        const QVector<FieldKind> &named = readings.at(i).named;
        const bool isBoth =
            named.contains(FieldKind::PostalCode) && named.contains(FieldKind::City);
        const bool isOne =
            i + 1 >= fields.size() || !isSilent(fields.at(i + 1), readings.at(i + 1));
        if (isBoth && isOne && !readings.at(i).isTold &&
            (kinds.at(i) == FieldKind::PostalCode || kinds.at(i) == FieldKind::City))
            kinds[i] = FieldKind::Other;
    }
    // The PIN of a place is its postal code.
    const bool hasCity = kinds.contains(FieldKind::City);
    const bool hasCode = kinds.contains(FieldKind::PostalCode);
    for (int i = 0; i < fields.size() && hasCity; ++i) {
        if (kinds.at(i) == FieldKind::Password && fields.at(i).isLine())
            kinds[i] = !hasCode ? FieldKind::PostalCode : FieldKind::Other;
    }
    // "Number" behind the street is the house's.
    for (int i = 1; i < fields.size(); ++i) {
        if (kinds.at(i) == FieldKind::SomeNumber && kinds.at(i - 1) == FieldKind::AddressLine1 &&
            fields.at(i).isLine() && readings.at(i).hasText && !readings.at(i).isStrange)
            kinds[i] = FieldKind::HouseNumber;
    }
}

QPair<int, FieldKind> secondStreet(int at, const QVector<FormField> &fields,
                                   const QVector<FieldReading> &readings)
{
    const auto textAt = [&](int i) { return fields.at(i).readTexts().join(QLatin1Char(' ')); };
    const QString text = textAt(at);
    const QString before = textAt(at - 1);
    const bool isSecond =
        readings.at(at).says(FieldKind::AddressLine2) || !readings.at(at).hasText || text == before;
    const bool isFirstStrange = hasStrangeWords(before) && !readings.at(at - 1).isTold;
    if (!isSecond && isFirstStrange && !hasStrangeWords(text))
        return {at - 1, FieldKind::Other};
    return {at, isSecond ? FieldKind::AddressLine2 : FieldKind::Other};
}

void leaveExtraStreets(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                       QVector<FieldKind> &kinds)
{
    const int most =
        qMax(1, qMax(kinds.count(FieldKind::City), kinds.count(FieldKind::PostalCode)));
    int extra = kinds.count(FieldKind::AddressLine1) - most;
    for (int i = 0; i < kinds.size() && extra > 0; ++i) {
        if (kinds.at(i) != FieldKind::AddressLine1 || readings.at(i).isTold ||
            !hasStrangeWords(fields.at(i).readTexts().join(QLatin1Char(' '))))
            continue;
        kinds[i] = FieldKind::Other;
        --extra;
    }
    for (int i = kinds.size() - 1; i >= 0 && extra > 0; --i) {
        if (kinds.at(i) != FieldKind::AddressLine1)
            continue;
        kinds[i] = FieldKind::Other;
        --extra;
    }
}

int addressesIn(const QVector<FieldKind> &kinds)
{
    int most = 1;
    for (const FieldKind kind : {FieldKind::AddressLine1, FieldKind::City, FieldKind::PostalCode})
        most = qMax(most, kinds.count(kind));
    return most;
}
