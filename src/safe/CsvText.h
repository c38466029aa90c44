#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <vector>

/// One record of a CSV file.
struct CsvRecord
{
    int row = 0; ///< from 1, as spreadsheets count; empty lines count, too
    QStringList cells;
};

/// The records of a CSV file as RFC 4180 describes it; fields may also be separated by semicolons
/// or tabs. Empty lines are left out. The text is UTF-8, UTF-16 with a byte order mark, or, when it
/// is neither, Windows-1252. None when a quoted field does not end or the text holds a NUL.
std::optional<std::vector<CsvRecord>> parseCsv(const QByteArray &bytes);

/// One record with its line end, every cell in quotes, nothing changed within them.
QByteArray csvLine(const QStringList &cells);
