#include "SafeLines.h"

#include "backups/BackupTexts.h"
#include "main/ItemKinds.h"
#include "main/RelativeDate.h"
#include "widgets/SizeText.h"

#include <QCoreApplication>

namespace {

class SafeLines
{
    Q_DECLARE_TR_FUNCTIONS(SafeLines)

public:
    static QString gone(SafePlace place)
    {
        switch (place) {
        case SafePlace::DriveGone:
            return tr("Folder not found: it was on a drive that is not connected");
        case SafePlace::FolderGone:
            return tr("Folder not found: it was moved, renamed or deleted");
        case SafePlace::NoSafe:
            return tr("There is no safe in its folder any more, or it can't be read");
        case SafePlace::Here:
            break;
        }
        return {};
    }

    static QString holds(const SafeInfo &safe)
    {
        QStringList parts;
        if (safe.fact.itemCount >= 0)
            parts.append(itemCountText(safe.fact.itemCount));
        parts.append(safe.isRead ? SizeText::of(safe.details.size) : tr("looking…"));
        if (!safe.fact.mirrorFolder.isEmpty())
            parts.append(tr("in the cloud folder"));
        if (!safe.copyOf.isEmpty())
            parts.append(tr("a copy of “%1”").arg(safe.copyOf));
        return parts.join(QStringLiteral(" · "));
    }

    static QString happened(const SafeInfo &safe, const QDateTime &now)
    {
        QStringList parts;
        if (safe.isOpen)
            parts.append(tr("Open"));
        else if (safe.fact.lastOpened.isValid())
            parts.append(tr("Last opened %1").arg(relativeDate(safe.fact.lastOpened, now)));
        else
            parts.append(tr("Not opened yet"));
        if (safe.fact.lastSynchronised.isValid() && !safe.fact.mirrorFolder.isEmpty())
            parts.append(tr("synchronised %1").arg(relativeDate(safe.fact.lastSynchronised, now)));
        if (safe.isRead && safe.details.backupsKnown)
            parts.append(
                safe.details.lastBackup
                    ? tr("backed up %1").arg(BackupTexts::moment(*safe.details.lastBackup, now))
                    : tr("no backup yet"));
        return parts.join(QStringLiteral(" · "));
    }
};

} // namespace

QStringList safeLines(const SafeInfo &safe, const QDateTime &now)
{
    if (!safe.isThere())
        return {SafeLines::gone(safe.details.place)};
    QStringList lines{SafeLines::holds(safe), SafeLines::happened(safe, now)};
    lines.removeAll(QString());
    return lines;
}

SafeSign safeSign(const SafeInfo &safe)
{
    if (!safe.isThere())
        return {safe.details.place == SafePlace::DriveGone ? "plug-connected-x" : "alert-triangle",
                Palette::Terrible};
    if (safe.isOpen)
        return {"shield-check", Palette::Strong};
    if (!safe.fact.mirrorFolder.isEmpty())
        return {"cloud-check", Palette::Accent};
    return {"shield-lock", Palette::Muted};
}
