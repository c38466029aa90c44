#include "InputTypes.h"

FieldKind kindOfType(const QString &inputType)
{
    if (inputType == QLatin1String("search"))
        return FieldKind::Never;
    if (inputType == QLatin1String("email"))
        return FieldKind::Email;
    if (inputType == QLatin1String("url"))
        return FieldKind::Website;
    if (inputType == QLatin1String("month"))
        return FieldKind::CardExpiry;
    if (inputType == QLatin1String("tel"))
        return FieldKind::Phone;
    return FieldKind::Unknown;
}

// The keyboard of a telephone serves any figures, so that type alone says nothing beside a text
// that is not known; what holds addresses of mail asks for none where the text names something
// else.
void readType(FieldReading &reading, const QString &inputType)
{
    if (inputType == QLatin1String("number") && isWritten(reading.kind))
        reading.kind = FieldKind::Other;
    const FieldKind kind = kindOfType(inputType);
    if (kind == FieldKind::Email && reading.kind != FieldKind::Never && !reading.isOfOther) {
        const bool isElse = isIdentityKind(reading.kind) && !reading.says(FieldKind::Email);
        reading.kind = isElse ? FieldKind::Other : kind;
        return;
    }
    const bool isFigures = kind == FieldKind::Phone && reading.isStrange;
    if ((kind == FieldKind::Never && !isCardKind(reading.kind)) ||
        (reading.kind == FieldKind::Unknown && !isFigures))
        reading.kind = kind;
}

bool isWritten(FieldKind kind)
{
    return kind == FieldKind::FullName || kind == FieldKind::Email ||
           kind == FieldKind::AddressLine1 || kind == FieldKind::AddressLine2;
}

FieldKind kindInText(FieldKind kind)
{
    return kind == FieldKind::AddressLine1 ? kind : FieldKind::Other;
}
