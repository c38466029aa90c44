#include "EditorDefaults.h"

#include "PMCountryTable.h"

#include <QDebug>

EditorDefaults EditorDefaults::fromLocale(const QLocale &locale)
{
    const auto found = PMCountryTable::instance().find(QLocale::countryToString(locale.country()));
    if (found) {
        qDebug() << "ItemEditors: Qt returned locale country code" << found->code;
        return {found->name, found->code};
    }
    const EditorDefaults fallback{QStringLiteral("United States"), QStringLiteral("1")};
    qDebug() << "Use default country name for editors:" << fallback.country
             << ", use default phone code:" << fallback.code;
    return fallback;
}
