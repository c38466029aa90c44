#include "SearchText.h"

#include "PMAttachment.h"
#include "PMFtpAccount.h"
#include "PMLogin.h"

#include <QUrl>

#include <algorithm>

namespace {

const int longestLabel = 63;

/// Letters with a stroke or of two letters, which Unicode leaves as they are; in lower case.
struct Letter
{
    ushort code;
    const char *plain;
};
const Letter letters[] = {{0x00df, "ss"}, {0x00e6, "ae"}, {0x00f8, "o"}, {0x0111, "d"},
                          {0x0127, "h"},  {0x0131, "i"},  {0x0142, "l"}, {0x0153, "oe"}};

bool isAscii(QChar c)
{
    return c.unicode() < 0x80;
}

void appendFolded(QString &result, QChar c)
{
    const auto letter = std::find_if(std::begin(letters), std::end(letters),
                                     [c](const Letter &row) { return row.code == c.unicode(); });
    if (letter != std::end(letters))
        result.append(QLatin1String(letter->plain));
    else if (c.category() != QChar::Mark_NonSpacing)
        result.append(c);
}

/// Of ASCII alone.
void appendLower(QString &result, const QChar *text, int size)
{
    const int before = result.size();
    result.append(text, size);
    for (auto c = result.begin() + before; c != result.end(); ++c) {
        if (*c >= QLatin1Char('A') && *c <= QLatin1Char('Z'))
            *c = QChar(c->unicode() + ('a' - 'A'));
    }
}

/// The host of an address as it is nearly always written; empty when it takes a closer look.
QString plainHost(const QString &address)
{
    static const QString schemes[] = {QStringLiteral("https://"), QStringLiteral("http://"),
                                      QStringLiteral("//")};
    const auto scheme = std::find_if(std::begin(schemes), std::end(schemes),
                                     [&](const QString &each) { return address.startsWith(each); });
    if (scheme == std::end(schemes))
        return {};
    const int start = scheme->size();
    int end = start;
    while (end < address.size()) {
        const ushort c = address.at(end).unicode();
        const bool plain = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.';
        if (!plain && c != '-')
            break;
        ++end;
    }
    const bool whole = end == address.size() || address.at(end) == QLatin1Char('/');
    const QString host = address.mid(start, end - start);
    // Numbers may be an address in one of its many forms, a double hyphen is an encoding.
    // Numbers may be an address in one of its many forms, a double hyphen is an encoding.
    const bool isName = !host.isEmpty() && host.size() <= longestLabel &&
                        host.at(0).isLetterOrNumber() && host.at(host.size() - 1).isLower();
    static const QString oddities[] = {QStringLiteral("--"), QStringLiteral(".."),
                                       QStringLiteral(".-"), QStringLiteral("-.")};
    const bool isSimple = std::none_of(std::begin(oddities), std::end(oddities),
                                       [&](const QString &odd) { return host.contains(odd); });
    return whole && isName && isSimple ? host : QString();
}

} // namespace

QString foldForSearch(const QString &text)
{
    QString result;
    result.reserve(text.size());
    // Run by run: to take the whole of a long text apart for one accent takes much longer.
    const QChar *const end = text.cend();
    for (const QChar *c = text.cbegin(); c != end;) {
        const QChar *const other = std::find_if_not(c, end, isAscii);
        appendLower(result, c, int(other - c));
        c = std::find_if(other, end, isAscii);
        if (c == other)
            continue;
        const QString run = QString::fromRawData(other, int(c - other));
        const QString folded = run.normalized(QString::NormalizationForm_KD).toCaseFolded();
        for (const QChar part : folded)
            appendFolded(result, part);
    }
    return result;
}

QString itemSearchText(const PMListItem &item)
{
    QStringList texts{item.title(), item.secondaryText(), item.url(), item.note()};
    if (item.type() == PMListItem::Login) {
        texts.append(static_cast<const PMLogin &>(item).login());
    } else if (item.type() == PMListItem::FtpAccount) {
        const auto &account = static_cast<const PMFtpAccount &>(item);
        texts += {account.username(), account.server()};
    } else if (item.type() == PMListItem::Attachment) {
        texts.append(static_cast<const PMAttachment &>(item).filename());
    }
    // No word of a search holds the line break, so none is found across two texts.
    return foldForSearch(texts.join(QLatin1Char('\n')));
}

QString itemDomain(const PMListItem &item)
{
    QString address = item.url();
    if (address.isEmpty() && item.type() == PMListItem::FtpAccount)
        address = static_cast<const PMFtpAccount &>(item).server();
    if (address.isEmpty())
        return {};
    if (!address.contains(QStringLiteral("://")))
        address.prepend(QStringLiteral("//"));
    QString host = plainHost(address);
    if (host.isEmpty())
        host = QUrl(address).host();
    return host.startsWith(QStringLiteral("www.")) ? host.mid(4) : host;
}
