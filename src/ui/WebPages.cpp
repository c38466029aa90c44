#include "WebPages.h"

#include <QDebug>
#include <QDesktopServices>
#include <QUrl>

void openWebPage(const QUrl &url)
{
    // An address may come with an item that somebody else wrote; it is to open pages, not files
    // or programs.
    const QStringList schemes{QStringLiteral("https"), QStringLiteral("http")};
    if (!schemes.contains(url.scheme()) || !QDesktopServices::openUrl(url))
        qWarning() << "UI: openAddress: Can't open address of" << url.host();
}
