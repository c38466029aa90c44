#include "ExtensionFolder.h"

#include <QDir>

QString extensionFolder(const QString &programFolder, bool forFirefox)
{
    // Beside the program, in a system's share, in a folder of sources.
    const QStringList places =
        forFirefox ? QStringList{QStringLiteral("extension-firefox"),
                                 QStringLiteral("../share/glaceron/extension-firefox"),
                                 QStringLiteral("../../../extension/dist/firefox")}
                   : QStringList{QStringLiteral("extension"),
                                 QStringLiteral("../share/glaceron/extension"),
                                 QStringLiteral("../../../extension/dist/chromium")};
    for (const QString &place : places) {
        const QDir folder(programFolder + QLatin1Char('/') + place);
        if (folder.exists(QStringLiteral("manifest.json")))
            return folder.canonicalPath();
    }
    return {};
}
