#pragma once

#include "Clock.h"

#include <QMutex>
#include <QString>

/// Appends lines to one text file a day, "log_yyyy_MM_dd.txt" in a hidden folder of the user's
/// home. Holds no file open between lines. A line that cannot be written is lost without a word:
/// telling would come back here.
class Logger
{
public:
    enum Level { Debug = 0, Error = 1, Warning = 2, Info = 3 };

    /// A logger below the given home folder.
    /// @param system name of the operating system that each line carries
    Logger(const QString &home, const QString &applicationName, const QString &version,
           const QString &system, Clock clock = systemTime);

    /// The program's own logger, made on first use from the application's name and version.
    static Logger &instance();

    /// Appends one line; a level outside 0 to 3 is written as "DEBUG". May be called from any
    /// thread.
    void write(const QString &message, int level);

    /// The log file of the day, whose folder is made when it is missing.
    QString filePath(const QDateTime &moment) const;

private:
    QString m_folder;
    QString m_version;
    QString m_system;
    Clock m_clock;
    QMutex m_mutex;
};

/// The name of a Windows version by its code (see Platform::windowsVersionCode); "Unknown OS" for
/// codes that are not in the table.
QString windowsName(int versionCode);
