#include "PreviewContent.h"

#include <QBuffer>
#include <QImageReader>
#include <QTextCodec>

#include <algorithm>
#include <optional>

namespace {

const int longestText = 256 * 1024;
// The layout of one endless line, or of very many, would hold up the window.
const int longestLine = 2000;
const int mostLines = 5000;
const qint64 mostPixels = 100 * 1000 * 1000;
const int longestSide = 4096;

bool isBinary(const QByteArray &bytes)
{
    return std::any_of(bytes.begin(), bytes.end(), [](char byte) {
        const auto value = static_cast<unsigned char>(byte);
        return value < 32 && value != '\t' && value != '\n' && value != '\r' && value != '\f';
    });
}

std::optional<QString> decoded(const QByteArray &bytes)
{
    // A mark at the front tells; without one it is UTF-8 when it can be.
    if (QTextCodec *marked = QTextCodec::codecForUtfText(bytes, nullptr))
        return marked->toUnicode(bytes);
    if (isBinary(bytes))
        return std::nullopt;
    QTextCodec::ConverterState state;
    const QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 ? text : QString::fromLatin1(bytes);
}

/// Without what a text field would not show, and with line ends of one kind.
QString displayed(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QString lines;
    lines.reserve(text.size());
    int length = 0;
    for (const QChar &character : qAsConst(text)) {
        const bool isEnd = character == QLatin1Char('\n') || character == QLatin1Char('\r') ||
                           character == QChar::ParagraphSeparator;
        if (!isEnd && length >= longestLine && !character.isLowSurrogate()) {
            lines += QLatin1Char('\n');
            length = 0;
        }
        lines += isEnd                ? QChar(QLatin1Char('\n'))
                 : character.isNull() ? QChar(QChar::ReplacementCharacter)
                                      : character;
        length = isEnd ? 0 : length + 1;
    }
    return lines;
}

PreviewContent textOf(const QByteArray &bytes)
{
    PreviewContent content;
    const std::optional<QString> text = decoded(bytes.left(longestText));
    if (!text)
        return content;
    content.kind = PreviewContent::Text;
    const QString lines = displayed(*text);
    content.text = lines.section(QLatin1Char('\n'), 0, mostLines - 1);
    content.cut = bytes.size() > longestText || content.text.size() < lines.size();
    return content;
}

bool isPicture(const QByteArray &format)
{
    // A drawing in text form could make the program read other files.
    return !format.isEmpty() && !format.startsWith("svg");
}

PreviewContent pictureOf(QImageReader &reader)
{
    PreviewContent content;
    const QSize size = reader.size();
    if (size.isEmpty() || qint64(size.width()) * size.height() > mostPixels)
        return content;
    if (qMax(size.width(), size.height()) > longestSide)
        reader.setScaledSize(size.scaled(longestSide, longestSide, Qt::KeepAspectRatio));
    reader.setAutoTransform(true);
    content.picture = reader.read();
    content.pictureSize = size;
    if (!content.picture.isNull())
        content.kind = PreviewContent::Picture;
    return content;
}

} // namespace

PreviewContent PreviewContent::of(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    return isPicture(reader.format()) ? pictureOf(reader) : textOf(bytes);
}
