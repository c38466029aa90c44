#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <vector>

/// One record of a CSV file.
struct CsvRecord
{
    int line = 0; ///< where it begins in the file, from 1
    QStringList cells;
};

/// The records of a CSV file as RFC 4180 describes it; fields may also be separated by semicolons
/// or tabs. Empty lines are left out. The text is UTF-8, UTF-16 with a byte order mark, or, when it
/// is neither, Windows-1252. None when a quoted field does not end or the text holds a NUL.
std::optional<std::vector<CsvRecord>> parseCsv(const QByteArray &bytes);
