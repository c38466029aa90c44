#pragma once

#include <QString>

#include <optional>

/// A country by its English name with its codes of ISO 3166-1.
struct CountryCodes
{
    QString name;
    QString alpha2;
    QString alpha3;
    QString numeric; ///< three figures; empty where there is none
};

/// The country with the English name or one of its codes in letters, in any case.
std::optional<CountryCodes> countryCodes(const QString &nameOrCode);

/// A state of the United States or a province of Canada with its two letters.
struct StateCode
{
    QString name;
    QString code;
};

/// The state with the name or the code, in any case.
std::optional<StateCode> stateCode(const QString &nameOrCode);
