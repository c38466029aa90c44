#include "DateReading.h"

#include <algorithm>

FieldKind datePartOf(const FieldReading &reading, bool isBirth)
{
    static const QVector<QVector<FieldKind>> parts = {
        {FieldKind::SomeDay, FieldKind::Other, FieldKind::BirthDay},
        {FieldKind::SomeMonth, FieldKind::CardMonth, FieldKind::BirthMonth},
        {FieldKind::SomeYear, FieldKind::CardYear, FieldKind::BirthYear}};
    FieldKind said = FieldKind::Unknown;
    int count = 0;
    for (const QVector<FieldKind> &part : parts) {
        const bool isSaid = std::any_of(part.begin(), part.end(), [&](FieldKind kind) {
            return kind != FieldKind::Other && reading.says(kind);
        });
        if (isSaid) {
            said = part.at(isBirth ? 2 : 1);
            ++count;
        }
    }
    return count == 1 ? said : FieldKind::Unknown;
}

bool saysPart(const FieldReading &reading, FieldKind part)
{
    static const QVector<QPair<FieldKind, FieldKind>> some = {
        {FieldKind::CardMonth, FieldKind::SomeMonth},
        {FieldKind::CardYear, FieldKind::SomeYear},
        {FieldKind::BirthDay, FieldKind::SomeDay},
        {FieldKind::BirthMonth, FieldKind::SomeMonth},
        {FieldKind::BirthYear, FieldKind::SomeYear}};
    return reading.also.contains(part) ||
           std::any_of(some.begin(), some.end(), [&](const QPair<FieldKind, FieldKind> &pair) {
               return pair.first == part && reading.named.contains(pair.second);
           });
}
