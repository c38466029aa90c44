#include "BackupSchedule.h"

QDateTime nextBackup(const GPMAppSettings &settings, const QDateTime &now)
{
    if (!settings.enableBackup())
        return {};
    const QDateTime last = settings.backupCheck();
    // After a clock was set back nobody shall wait for years. What has not changed since is not
    // archived again, so that one run too many costs nothing.
    if (!last.isValid() || last > now)
        return now;
    switch (settings.backupInterval()) {
    case GPMAppSettings::Daily:
        return last.addDays(1);
    case GPMAppSettings::Week:
        return last.addDays(7);
    case GPMAppSettings::Month:
        return last.addMonths(1);
    }
    return now;
}

bool isBackupDue(const GPMAppSettings &settings, const QDateTime &now)
{
    const QDateTime next = nextBackup(settings, now);
    return next.isValid() && next <= now;
}
