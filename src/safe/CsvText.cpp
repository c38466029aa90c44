#include "CsvText.h"

#include "SecretBytes.h"

#include <QTextCodec>

namespace {

const QChar quote = QLatin1Char('"');

QString decode(const QByteArray &bytes)
{
    QTextCodec *utf8 = QTextCodec::codecForName("UTF-8");
    QTextCodec *codec = QTextCodec::codecForUtfText(bytes, utf8);
    QTextCodec::ConverterState state;
    QString text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars == 0)
        return text;
    wipe(text);
    return QTextCodec::codecForName("windows-1252")->toUnicode(bytes);
}

/// The separator that the first line, outside of quotes, has most of.
QChar findSeparator(const QString &text)
{
    int counts[3] = {};
    const QString candidates = QStringLiteral(",;\t");
    bool quoted = false;
    for (const QChar c : text) {
        if (c == quote)
            quoted = !quoted;
        if (!quoted && (c == QLatin1Char('\n') || c == QLatin1Char('\r')))
            break;
        const int at = candidates.indexOf(c);
        if (!quoted && at >= 0)
            ++counts[at];
    }
    const auto most = std::max_element(std::begin(counts), std::end(counts));
    return candidates.at(static_cast<int>(most - std::begin(counts)));
}

/// Reads a text record by record.
class Reader
{
public:
    explicit Reader(const QString &text)
        : m_text(text)
        , m_separator(findSeparator(text))
    {
    }

    bool atEnd() const { return m_at >= m_text.size(); }

    /// False when a quoted field does not end.
    bool readRecord(CsvRecord &record)
    {
        record = {++m_row, {}};
        do {
            QString cell;
            if (!readCell(cell))
                return false;
            record.cells.append(cell);
        } while (skip(m_separator));
        skip(QLatin1Char('\r'));
        skip(QLatin1Char('\n'));
        return true;
    }

private:
    bool skip(QChar c)
    {
        if (atEnd() || m_text.at(m_at) != c)
            return false;
        ++m_at;
        return true;
    }

    bool endsCell(QChar c) const
    {
        return c == m_separator || c == QLatin1Char('\n') || c == QLatin1Char('\r');
    }

    bool readCell(QString &cell)
    {
        if (!skip(quote)) {
            const int begin = m_at;
            while (!atEnd() && !endsCell(m_text.at(m_at)))
                ++m_at;
            cell = m_text.mid(begin, m_at - begin);
            return true;
        }
        while (!atEnd()) {
            const QChar c = m_text.at(m_at++);
            if (c == quote && !skip(quote)) {
                // What stands between the quote and the separator belongs to no field.
                while (!atEnd() && !endsCell(m_text.at(m_at)))
                    ++m_at;
                return true;
            }
            cell.append(c);
        }
        return false;
    }

    const QString &m_text;
    QChar m_separator;
    int m_at = 0;
    int m_row = 0;
};

} // namespace

std::optional<std::vector<CsvRecord>> parseCsv(const QByteArray &bytes)
{
    QString text = decode(bytes);
    std::vector<CsvRecord> records;
    bool good = !text.contains(QChar::Null);
    for (Reader reader(text); good && !reader.atEnd();) {
        CsvRecord record;
        good = reader.readRecord(record);
        if (good && record.cells != QStringList{QString()})
            records.push_back(record);
    }
    wipe(text);
    if (!good)
        return std::nullopt;
    return records;
}

QByteArray csvLine(const QStringList &cells)
{
    QByteArray line;
    for (const QString &cell : cells) {
        if (!line.isEmpty())
            line += ',';
        QByteArray bytes = cell.toUtf8();
        line += '"' + bytes.replace('"', "\"\"") + '"';
        wipe(bytes);
    }
    return line + "\r\n";
}
