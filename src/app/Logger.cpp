#include "Logger.h"

#include "Platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QMutexLocker>
#include <QSysInfo>

#include <utility>

static QString systemName()
{
    const int windows = Platform::create()->windowsVersionCode();
    return windows == 0 ? QSysInfo::prettyProductName() : windowsName(windows);
}

Logger::Logger(const QString &home, const QString &applicationName, const QString &version,
               const QString &system, Clock clock)
    : m_folder(home + QStringLiteral("/.") + applicationName + QStringLiteral("/log"))
    , m_version(version)
    , m_system(system)
    , m_clock(std::move(clock))
{
}

Logger &Logger::instance()
{
    static Logger logger(QDir::homePath(), QCoreApplication::applicationName(),
                         QCoreApplication::applicationVersion(), systemName());
    return logger;
}

void Logger::write(const QString &message, int level)
{
    static const char *const levels[] = {"DEBUG", "ERROR", "WARNING", "INFO"};
    const char *levelName = levels[level >= 0 && level <= Info ? level : 0];

    const QMutexLocker locker(&m_mutex);
    const QDateTime moment = m_clock().toLocalTime();
    QFile file(filePath(moment));
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Text))
        return;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    const QString head = QStringLiteral("[%1][%2][32bit][%3] %4: ")
                             .arg(m_version, m_system, moment.toString(QStringLiteral("hh:mm:ss")),
                                  QLatin1String(levelName));
    // One write for the whole line, so that lines of two threads never mix.
    file.write((head + message + QLatin1Char('\n')).toUtf8());
}

QString Logger::filePath(const QDateTime &moment) const
{
    QDir folder(m_folder);
    if (!folder.exists()) {
        folder.mkpath(QStringLiteral("."));
        QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    const QString date = moment.toString(QStringLiteral("yyyy_MM_dd"));
    return QDir::toNativeSeparators(m_folder + QStringLiteral("/log_%1.txt").arg(date));
}

QString windowsName(int versionCode)
{
    struct Row
    {
        int code;
        const char *name;
    };
    static const Row rows[] = {
        {0x90, "Windows 7"},  {0xA0, "Windows 8"},    {0xB0, "Windows 8.1"},
        {0xC0, "Windows 10"}, {0x10, "Windows NT"},   {0x20, "Windows 2000"},
        {0x30, "Windows XP"}, {0x40, "Windows 2003"}, {0x80, "Windows Vista"},
    };
    if (versionCode > 0xC0)
        return QStringLiteral("Windows > 10");
    for (const Row &row : rows) {
        if (row.code == versionCode)
            return QLatin1String(row.name);
    }
    return QStringLiteral("Unknown OS");
}
