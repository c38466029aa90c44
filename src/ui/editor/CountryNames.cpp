#include "CountryNames.h"

#include "PMCountryTable.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QStringList>

namespace {

struct Names
{
    QHash<QString, QString> shown;  ///< by the stored name
    QHash<QString, QString> stored; ///< by the shown name in lower case
};

/// @param language its own word for itself, which heads its column
Names readNames(const QString &language)
{
    QFile file(QStringLiteral(":/countries/names.tsv"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QStringList lines =
        QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const int column = lines.value(0).split(QLatin1Char('\t')).indexOf(language);
    Names names;
    for (int row = 1; column > 0 && row < lines.size(); ++row) {
        const QStringList cells = lines.at(row).split(QLatin1Char('\t'));
        names.shown.insert(cells.first(), cells.value(column));
        names.stored.insert(cells.value(column).toLower(), cells.first());
    }
    return names;
}

/// Those of the language that is shown now.
const Names &names()
{
    static QHash<QString, Names> byLanguage;
    const QString language = QCoreApplication::translate("PMTranslator", "SettingsLocaleTitle");
    if (!byLanguage.contains(language))
        byLanguage.insert(language, readNames(language));
    return *byLanguage.constFind(language);
}

} // namespace

QString CountryNames::shown(const QString &stored)
{
    return names().shown.value(stored, stored);
}

QString CountryNames::stored(const QString &typed)
{
    const QString name = typed.trimmed();
    const auto found = names().stored.constFind(name.toLower());
    if (found != names().stored.constEnd())
        return *found;
    const auto country = PMCountryTable::instance().find(name);
    return country ? country->name : typed;
}
