#pragma once

#include <QString>
#include <QStringList>

/// What is known of who connects to the link, from the origin that a browser attaches. Browsers
/// always send one and no page can choose its own; what sends none is another program.
enum class OriginTrust {
    Refused,      ///< a web page, or an extension that is not ours
    Known,        ///< our extension by its fixed id, or a program without an origin
    ToBeApproved, ///< may be our extension: its id is random in each profile of the browser
};

/// The ids of our extension in browsers of Chromium's kind; the one that stores offer comes first.
const QStringList &knownExtensionIds();

OriginTrust originTrust(const QString &origin);
