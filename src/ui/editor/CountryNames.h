#pragma once

#include <QString>

/// The countries of the PMCountryTable in the language of the program. Items keep the English
/// names, whatever language they were typed in.
namespace CountryNames {

/// What is shown of a stored name; the name itself when it is none of the table's.
QString shown(const QString &stored);

/// What is stored of a typed name, in the language of the program or in English, in any case; the
/// text as it is when it names no country.
QString stored(const QString &typed);

} // namespace CountryNames
