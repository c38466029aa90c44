#pragma once

#include "GPMAppSettings.h"

#include <QDateTime>

/// When the periodic backup runs next; null while backups are switched off.
QDateTime nextBackup(const GPMAppSettings &settings, const QDateTime &now);

bool isBackupDue(const GPMAppSettings &settings, const QDateTime &now);
