#include "SearchText.h"

#include "PMAttachment.h"
#include "PMFtpAccount.h"
#include "PMLogin.h"

#include <QUrl>

#include <algorithm>

namespace {

/// Letters with a stroke or of two letters, which Unicode leaves as they are; in lower case.
struct Letter
{
    ushort code;
    const char *plain;
};
const Letter letters[] = {{0x00df, "ss"}, {0x00e6, "ae"}, {0x00f8, "o"}, {0x0111, "d"},
                          {0x0127, "h"},  {0x0131, "i"},  {0x0142, "l"}, {0x0153, "oe"}};

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
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

} // namespace

QString foldForSearch(const QString &text)
{
    if (isAscii(text))
        return text.toLower();
    QString result;
    result.reserve(text.size());
    for (const QChar c : text.normalized(QString::NormalizationForm_KD).toCaseFolded())
        appendFolded(result, c);
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
    const QString host = QUrl(address).host();
    return host.startsWith(QStringLiteral("www.")) ? host.mid(4) : host;
}
