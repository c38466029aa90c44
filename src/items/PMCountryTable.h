#pragma once

#include <QString>
#include <QVector>

#include <optional>

/// Countries by English name with their international dialling codes (ITU-T E.164), in
/// alphabetical order. Codes inside a shared numbering plan carry a dash, as in "1-684".
class PMCountryTable
{
public:
    struct Country
    {
        QString name;
        QString code; ///< dialling code without the plus sign
    };

    PMCountryTable();

    /// The program's own table, built on first use, which is at start-up.
    static const PMCountryTable &instance();

    const QVector<Country> &countries() const { return m_countries; }

    /// The row of a country by its English name, ignoring case.
    std::optional<Country> find(const QString &name) const;

private:
    QVector<Country> m_countries;
};
