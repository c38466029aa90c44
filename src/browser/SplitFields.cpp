#include "SplitFields.h"

#include "DateShape.h"

namespace {

constexpr int longestPart = 8;
constexpr int longestFirstPart = 5;
constexpr int mostParts = 4;

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
        const bool isOpen = kind == FieldKind::Unknown || kind == kinds.at(at) || isVagueKind(kind);
        if (!isOpen || !isSilent(fields.at(i), readings.at(i)) ||
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

} // namespace

bool isSilent(const FormField &field, const FieldReading &reading)
{
    return !reading.hasText && !field.isPassword() && (field.isLine() || field.isSelect());
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
        if (count < 2 || parts.size() > count)
            continue;
        for (int i = 0; i < parts.size(); ++i)
            kinds[at + i] = parts.at(i);
        at += parts.size() - 1;
    }
}
